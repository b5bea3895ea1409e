#include "window/house_style.h"

#include "typing/field_mark.h"
#include "window/appearance.h"
#include "window/line_icon.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>
#include <QWidget>

namespace vlk {

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
    for (const auto& [text, below] : {std::pair(QPalette::WindowText, QPalette::Window),
                                      {QPalette::Text, QPalette::Window},
                                      {QPalette::ButtonText, QPalette::Button}})
        palette.setColor(QPalette::Disabled, text, between(palette.color(text), palette.color(below)));
}

QIcon HouseStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const
{
    const QPalette& palette = widget ? widget->palette() : QApplication::palette();
    const qreal ratio = widget ? widget->devicePixelRatioF() : 1;
    const int side = pixelMetric(PM_MessageBoxIconSize, option, widget);
    switch (icon) {
    case SP_MessageBoxWarning:
        return markPixmap(Mark::advice, palette, side, ratio);
    case SP_MessageBoxCritical:
        return markPixmap(Mark::invalid, palette, side, ratio);
    case SP_MessageBoxInformation:
        return lineIcon(QStringLiteral("about"));
    case SP_MessageBoxQuestion:
        return lineIcon(QStringLiteral("help"));
    default:
        return QProxyStyle::standardIcon(icon, option, widget);
    }
}

void HouseStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    constexpr int kDark = 128;
    const bool isRound = element == PE_IndicatorRadioButton;
    if ((element != PE_IndicatorCheckBox && !isRound) ||
        option->palette.color(QPalette::Window).lightness() >= kDark)
        return;
    const QRectF outline = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(
        between(option->palette.color(QPalette::WindowText), option->palette.color(QPalette::Window)));
    painter->setBrush(Qt::NoBrush);
    isRound ? painter->drawEllipse(outline) : painter->drawRect(outline);
    painter->restore();
}

int HouseStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* result) const
{
    return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 0
                                                       : QProxyStyle::styleHint(hint, option, widget, result);
}

} // namespace vlk
