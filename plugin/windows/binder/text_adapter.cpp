#include "windows/binder/text_adapter.h"

#include <QAction>
#include <QCoreApplication>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QStyle>

namespace vlk {

TextAdapter::TextAdapter(Edits& edits, int index, QLineEdit* edit) : Adapter(edits, index), edit_(edit)
{
    own(edit);
    if (setting().maxLength > 0)
        edit->setMaxLength(setting().maxLength);
    if (setting().pattern)
        edit->setValidator(
            new QRegularExpressionValidator(QRegularExpression(QLatin1String(setting().pattern)), edit));
    if (setting().inputMask)
        edit->setInputMask(QLatin1String(setting().inputMask));
    if (setting().expectedPattern) {
        expected_.setPattern(QLatin1String(setting().expectedPattern));
        sign_ = edit->addAction(edit->style()->standardIcon(QStyle::SP_MessageBoxWarning),
                                QLineEdit::TrailingPosition);
        connect(edit, &QLineEdit::textChanged, this, &TextAdapter::mark);
        mark();
    }
    connect(edit, &QLineEdit::textChanged, this, [this] { take(); });
}

void TextAdapter::dress()
{
    caption(edit_);
    if (sign_)
        sign_->setToolTip(QCoreApplication::translate("vlk", setting().unexpectedKey));
}

void TextAdapter::mark()
{
    sign_->setVisible(!expected_.match(edit_->text()).hasMatch());
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
