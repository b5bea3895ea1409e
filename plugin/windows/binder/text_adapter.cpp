#include "windows/binder/text_adapter.h"

#include "typing/text_entry.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QRegularExpression>
#include <QRegularExpressionValidator>

namespace vlk {

TextAdapter::TextAdapter(Edits& edits, int row, QLineEdit* edit) : Adapter(edits, row), edit_(edit)
{
    if (setting().maxLength > 0)
        edit->setMaxLength(setting().maxLength);
    if (setting().pattern)
        edit->setValidator(
            new QRegularExpressionValidator(QRegularExpression(QLatin1String(setting().pattern)), edit));
    if (setting().inputMask)
        edit->setInputMask(QLatin1String(setting().inputMask));
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
    if (!setting().expectedPattern)
        return;
    TextEntry::join(edit_)->doubt(
        [expected = QRegularExpression(QLatin1String(setting().expectedPattern)),
         complaint = QCoreApplication::translate("vlk", setting().unexpectedKey)](const QString& text) {
            return expected.match(text).hasMatch() ? QString() : complaint;
        });
}

QStringList TextAdapter::takeNews()
{
    TextEntry* entry = TextEntry::join(edit_);
    return {entry->takeNews(), entry->complaint()};
}

void TextAdapter::show(const QString& value)
{
    if (edit_->text() != value)
        edit_->setText(value);
}

QString TextAdapter::held() const
{
    return edit_->text();
}

} // namespace vlk
