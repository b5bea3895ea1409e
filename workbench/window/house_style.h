#pragma once

// What the workbench changes of the system's style, for the windows of the plug-in too: message boxes have
// the marks and line icons of all other windows, buttons have room beside their words, in dialogs without
// icons, disabled text can be read, boxes to tick can be seen in dark windows, and the margins of layouts are
// those of the grid.

#include <QProxyStyle>

namespace workbench {

class HouseStyle : public QProxyStyle
{
    Q_OBJECT

public:
    // Over the style that the application has.
    static void setUp();

    using QProxyStyle::polish;
    void polish(QPalette& palette) override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override;

private:
    using QProxyStyle::QProxyStyle;
};

} // namespace workbench
