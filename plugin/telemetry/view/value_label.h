#pragma once

// A value in a panel of many. A text that does not fit is shown with an ellipsis, and whole in the tool tip.
// A value that there is not has no text; a grey dash is drawn in its place, and the tool tip says why. Under
// the mouse the text can be selected; the right button is left to the panel.

#include "telemetry/shown/absent_value.h"

#include <QLabel>

namespace vlk {

class ValueLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ValueLabel(const QString& objectName, QWidget* parent = nullptr);

    // Fixed in advance, so that a new text moves nothing and costs no layout: wide enough for texts of that
    // many pixels.
    void setTextWidth(int pixels);
    // Within these average characters, as much as there is room for.
    void setTextWidths(int leastCharacters, int mostCharacters);

    void setValue(const QString& value);
    // A dash in the place of the value, with a tool tip.
    void setAbsent(const char* tipKey = kNotInRecord);
    bool isAbsent() const { return absentTip_ != nullptr; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString tip() const;
    bool fits() const;
    QSize withDash(const QSize& size) const;

    const char* absentTip_ = nullptr; // key
};

} // namespace vlk
