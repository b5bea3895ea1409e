#pragma once

// How the parts of a settings page are drawn: titles of groups stand out and are whole, only the outermost
// group has a frame, tabs stand close together, boxes can be seen on dark windows too, buttons have air
// beside their words, and a slider that shows a measured value is a bar. It is set on the single widgets;
// whatever else they do is the application's own style.

#include <QProxyStyle>

#include <memory>

class QMessageBox;
class QWidget;

namespace vlk {

class PageStyle : public QProxyStyle
{
    Q_OBJECT

public:
    // One for all that hold it.
    static std::shared_ptr<PageStyle> shared();

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget = nullptr) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget = nullptr) const override;
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                    const QWidget* widget = nullptr) const override;

private:
    using QProxyStyle::QProxyStyle;
};

// The style lives as long as the widget.
void setPageStyle(QWidget* widget);

// To be called before the box is shown: its icon is a drawing of lines.
void dressMessageBox(QMessageBox& box);

// A group that stands in another one.
bool isInnerGroup(const QWidget* group);

} // namespace vlk
