#pragma once

// A value in a panel of many. A text that does not fit is shown with an ellipsis, and whole in the tool tip.
// A value that the record lacks has no text; a grey dash is drawn in its place, so that it can be told from a
// value that is there and empty. Under the mouse the text can be selected; the right button is left to the
// panel.

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
    // The record has no such value.
    void setAbsent();

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

    bool isAbsent_ = false;
};

} // namespace vlk
