#pragma once

// Draws the halves of a slider's handles that stand beyond the ends of its scale, where the slider itself has
// no room for them. Lies under the slider and reaches into the space beside it.

#include <QWidget>

class VLK_DblSlider2;

namespace vlk {

class HandleEnds : public QWidget
{
    Q_OBJECT

public:
    // A slider that has its place in a window.
    explicit HandleEnds(VLK_DblSlider2* slider);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void follow();

    VLK_DblSlider2* slider_;
};

} // namespace vlk
