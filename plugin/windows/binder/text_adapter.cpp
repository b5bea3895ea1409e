#include "windows/binder/text_adapter.h"

#include "typing/text_entry.h"
#include "windows/carried_text.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QRegularExpression>

#include <map>
#include <string_view>

namespace vlk {

namespace {

// Few patterns stand at many fields: each is compiled once.
const QRegularExpression& compiled(const char* pattern)
{
    static std::map<std::string_view, QRegularExpression> patterns;
    const auto [place, isNew] = patterns.try_emplace(pattern);
    if (isNew)
        place->second.setPattern(QLatin1String(pattern));
    return place->second;
}

} // namespace

TextAdapter::TextAdapter(const Text& text, const Joint& joint, QLineEdit* edit)
    : Adapter(joint.edits, joint.row), text_(text), edit_(edit)
{
    if (text_.maxLength > 0)
        edit->setMaxLength(text_.maxLength);
    auto* carried = new CarriedText(edit);
    if (text_.pattern)
        carried->setRegularExpression(QRegularExpression(QLatin1String(text_.pattern)));
    edit->setValidator(carried);
    if (text_.mask)
        edit->setInputMask(QLatin1String(text_.mask));
    TextEntry::join(edit);
    connect(edit, &QLineEdit::textChanged, this, [this] { take(); });
}

void TextAdapter::dress()
{
    caption(edit_);
    expect();
}

// A text that is not as expected is marked, in the present language.
void TextAdapter::expect()
{
    if (!text_.expectedPattern)
        return;
    TextEntry::join(edit_)->doubt(
        [expected = compiled(text_.expectedPattern),
         complaint = QCoreApplication::translate("vlk", text_.unexpectedKey),
         blanks = QCoreApplication::translate("vlk", "typed_blanks")](const QString& text) {
            if (expected.match(text).hasMatch())
                return QString();
            // They are hard to see.
            const QString trimmed = text.trimmed();
            return trimmed != text && expected.match(trimmed).hasMatch() ? blanks : complaint;
        });
}

QStringList TextAdapter::news() const
{
    const TextEntry* entry = TextEntry::join(edit_);
    return {entry->news(), entry->complaint()};
}

void TextAdapter::show(const QString& value)
{
    if (edit_->text() != value)
        edit_->setText(value);
    else
        TextEntry::join(edit_)->retell();
}

void TextAdapter::forgetTyping()
{
    TextEntry::join(edit_)->forget();
}

// A line that is given its own text keeps what was typed into it before, which Ctrl+Z would bring back.
void TextAdapter::forget()
{
    edit_->setText(edit_->text());
}

QString TextAdapter::held() const
{
    return edit_->text();
}

std::unique_ptr<Adapter> adapterFor(const Text& row, const Joint& joint)
{
    auto* edit = joint.findAs<QLineEdit>(row.widget);
    return edit ? std::make_unique<TextAdapter>(row, joint, edit) : nullptr;
}

QWidget* inputOf(const Text&)
{
    return new QLineEdit;
}

} // namespace vlk
