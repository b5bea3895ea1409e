#include "windows/binder/text_adapter.h"

#include <QLineEdit>
#include <QRegularExpressionValidator>

namespace vlk {

TextAdapter::TextAdapter(Binder& binder, int index, QLineEdit* edit) : Adapter(binder, index), edit_(edit)
{
    own(edit);
    if (setting().maxLength > 0)
        edit->setMaxLength(setting().maxLength);
    if (setting().pattern)
        edit->setValidator(
            new QRegularExpressionValidator(QRegularExpression(QLatin1String(setting().pattern)), edit));
    if (setting().inputMask)
        edit->setInputMask(QLatin1String(setting().inputMask));
    connect(edit, &QLineEdit::textChanged, this, [this] { take(); });
}

void TextAdapter::dress()
{
    caption(edit_);
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
