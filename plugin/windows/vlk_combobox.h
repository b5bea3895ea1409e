#pragma once

// A combo box that keeps two texts beside its items: the text that was current when the list was last
// opened, and one that the owning page leaves here. A page compares a new selection with the remembered
// text, reacts to a change, and remembers the new one.

#include <QComboBox>

class VLK_ComboBox : public QComboBox
{
    Q_OBJECT

public:
    using QComboBox::QComboBox;

    void showPopup() override;

    QString popupText() const { return popupText_; }

    // Empty at first.
    QString rememberedText() const { return rememberedText_; }
    void setRememberedText(const QString& text) { rememberedText_ = text; }

private:
    QString popupText_;
    QString rememberedText_;
};
