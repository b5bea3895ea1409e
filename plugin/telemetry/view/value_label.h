#pragma once

// A value in a panel of many: its size is fixed in advance, so that a new text moves nothing and costs no
// layout. A text that does not fit is shown with an ellipsis, and whole in the tool tip.

#include <QLabel>

class ValueLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ValueLabel(const QString& objectName, QWidget* parent = nullptr);

    // Wide enough for texts of that many pixels.
    void setTextWidth(int pixels);
    // Within these average characters, as much as there is room for.
    void setTextWidths(int leastCharacters, int mostCharacters);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool fits() const;
};
