#pragma once

// Titles of groups that stand out and are whole, whatever the style measures: in DemiBold, with the room that
// the letters take in it. Boxes to tick can be seen in dark windows too, and the margins of layouts are
// those of the grid.

#include <QProxyStyle>

class QGroupBox;

namespace vlk {

// Over a style of its own like that of the application.
class TitleStyle : public QProxyStyle
{
    Q_OBJECT

public:
    TitleStyle();

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                    const QWidget* widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget = nullptr) const override;
};

// The size of a button, of which words need the contents: with room beside them, and wide enough to be hit.
QSize withRoomBesideWords(QSize size, const QSize& contents, const QStyleOption* option);

// To be called by a style behind its own drawing of a part: outlines a box or a radio button on a dark
// window.
void outlineOnDark(QStyle::PrimitiveElement element, const QStyleOption& option, QPainter& painter);
// The same, of what has the focus by keys: a button, the words of a box, a page to read, a list, a slider,
// the present tab. The style's own outline is lost on dark windows.
void outlineFocus(QStyle::PrimitiveElement element, const QStyleOption& option, QPainter& painter,
                  const QWidget* widget);
void outlineFocus(QStyle::ComplexControl control, const QStyleOption& option, QPainter& painter);
void outlineFocus(QStyle::ControlElement element, const QStyleOption& option, QPainter& painter);

// With the indent of what is in it, where it has a layout already.
void dressGroup(QGroupBox* group);
// All that are in the window now.
void dressGroups(QWidget* window);

} // namespace vlk
