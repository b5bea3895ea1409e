#pragma once

// A combo box for narrow places: it would like to be as wide as the texts that it may come to hold, filled or
// not, and shrinks to the beginnings of them. What does not fit has an ellipsis; its tool tip and the
// list below it show texts in full.

#include "windows/vlk_combobox.h"

class QStyleOptionComboBox;

namespace vlk {

// Pixels. Where many boxes share their texts, these are measured once: that takes longer than making a box.
struct TextWidths
{
    int widest = 0;
    int least = 0; // of what is always in sight
};

TextWidths widthsOf(const QStringList& texts, const QString& least, const QFontMetrics& metrics);

class ElidingComboBox : public VLK_ComboBox
{
    Q_OBJECT

public:
    using VLK_ComboBox::VLK_ComboBox;

    // `least`: what is always in sight.
    void reserve(const QStringList& texts, const QString& least);
    // Widths in the font of the box.
    void reserve(TextWidths widths);

    // Where texts begin alike.
    void elideInTheMiddle() { elided_ = Qt::ElideMiddle; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    void showPopup() override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString shownText(QStyleOptionComboBox* option) const;

    int preferredWidth_ = 0;
    int leastWidth_ = 0;
    Qt::TextElideMode elided_ = Qt::ElideRight;
};

} // namespace vlk
