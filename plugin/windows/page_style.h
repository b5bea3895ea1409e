#pragma once

// How the parts of a settings page are drawn: titles of groups stand out and are whole, only the outermost
// group has a frame, tabs stand close together, boxes can be seen on dark windows too, buttons have air
// beside their words, lists like to be equally wide, and a slider that shows a measured value is a bar. It is
// set on the single widgets; whatever else they do is the application's own style.

#include "typing/title_style.h"

#include <memory>

class QMessageBox;
class QStyleOptionComboBox;
class QWidget;

namespace vlk {

class PageStyle : public TitleStyle
{
    Q_OBJECT

public:
    // One for all that hold it.
    static std::shared_ptr<PageStyle> shared();
    // Of a list whose items are no longer than 28 characters.
    static int listWidth(const QStyleOptionComboBox& option);

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget = nullptr) const override;
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                    const QWidget* widget = nullptr) const override;
};

// The style lives as long as the widget.
void setPageStyle(QWidget* widget);

// To be called before the box is shown: it shows the mark of the house.
void dressMessageBox(QMessageBox& box);

// A group that stands in another one.
bool isInnerGroup(const QWidget* group);

} // namespace vlk
