#include "window/house_style.h"

#include "check/plugin_names.h"
#include "typing/field_mark.h"
#include "typing/grid.h"
#include "typing/kept_palette.h"
#include "typing/title_style.h"
#include "window/line_icon.h"

#include <QApplication>
#include <QStyleOption>
#include <QWidget>

namespace workbench {

void HouseStyle::setUp()
{
    const QString base = QApplication::style()->objectName();
    auto* style = new HouseStyle(base);
    // For those that make another style like the application's.
    style->setObjectName(base);
    QApplication::setStyle(style);
}

void HouseStyle::polish(QPalette& palette)
{
    QProxyStyle::polish(palette);
    palette = withReadableDisabledText(palette);
}

QIcon HouseStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const
{
    const QPalette& palette = widget ? widget->palette() : QApplication::palette();
    const qreal ratio = widget ? widget->devicePixelRatioF() : 1;
    const int side = pixelMetric(PM_MessageBoxIconSize, option, widget);
    switch (icon) {
    case SP_MessageBoxWarning:
        return markPixmap(Mark::Advice, palette, side, ratio);
    case SP_MessageBoxCritical:
        return markPixmap(Mark::Invalid, palette, side, ratio);
    case SP_MessageBoxInformation:
        return lineIcon(QStringLiteral("about"));
    case SP_MessageBoxQuestion:
        return lineIcon(QStringLiteral("help"));
    default:
        return QProxyStyle::standardIcon(icon, option, widget);
    }
}

void HouseStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    outlineFocus(element, *option, *painter);
}

void HouseStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    outlineOnDark(element, *option, *painter);
    outlineFocus(element, *option, *painter, widget);
}

void HouseStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    outlineFocus(control, *option, *painter);
}

QSize HouseStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                   const QWidget* widget) const
{
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    return type == CT_PushButton ? vlk::withRoomBesideWords(size, contents, option) : size;
}

int HouseStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    const std::optional<int> own = vlk::grid::metric(metric);
    return own ? *own : QProxyStyle::pixelMetric(metric, option, widget);
}

int HouseStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* result) const
{
    return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 0
                                                       : QProxyStyle::styleHint(hint, option, widget, result);
}

} // namespace workbench
