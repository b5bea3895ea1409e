#include "windows/page_style.h"

#include "typing/field_mark.h"

#include <QApplication>
#include <QGroupBox>
#include <QMessageBox>
#include <QPainter>
#include <QStyleOption>

namespace vlk {

namespace {

constexpr int kTabPadding = 8;
constexpr int kBarHeight = 8;
constexpr int kLettersOfList = 28;

void paintBar(const QStyleOptionSlider& slider, const QRect& groove, QPainter* painter)
{
    QRect bar(groove.left(), groove.center().y() - kBarHeight / 2, groove.width(), kBarHeight);
    painter->setPen(slider.palette.color(QPalette::Active, QPalette::Mid));
    painter->setBrush(slider.palette.color(QPalette::Active, QPalette::Base));
    painter->drawRect(bar.adjusted(0, 0, -1, -1));
    bar.setWidth(
        QStyle::sliderPositionFromValue(slider.minimum, slider.maximum, slider.sliderPosition, bar.width()));
    painter->fillRect(bar, slider.palette.color(QPalette::Active, QPalette::Highlight));
}

} // namespace

bool isInnerGroup(const QWidget* group)
{
    for (const QWidget* outer = group ? group->parentWidget() : nullptr; outer;
         outer = outer->parentWidget()) {
        if (qobject_cast<const QGroupBox*>(outer))
            return true;
    }
    return false;
}

std::shared_ptr<PageStyle> PageStyle::shared()
{
    static std::weak_ptr<PageStyle> current;
    std::shared_ptr<PageStyle> style = current.lock();
    if (!style) {
        style = std::make_shared<PageStyle>();
        current = style;
    }
    return style;
}

void PageStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const
{
    if (const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
        group && control == CC_GroupBox) {
        QStyleOptionGroupBox titled(*group);
        if (isInnerGroup(widget))
            titled.subControls &= ~SC_GroupBoxFrame;
        TitleStyle::drawComplexControl(control, &titled, painter, widget);
        return;
    }
    if (const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
        slider && control == CC_Slider) {
        QStyleOptionSlider ticks(*slider);
        ticks.subControls = SC_SliderTickmarks;
        TitleStyle::drawComplexControl(control, &ticks, painter, widget);
        paintBar(*slider, subControlRect(control, option, SC_SliderGroove, widget), painter);
        return;
    }
    TitleStyle::drawComplexControl(control, option, painter, widget);
}

QSize PageStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                  const QWidget* widget) const
{
    const QSize size = TitleStyle::sizeFromContents(type, option, contents, widget);
    if (const auto* list = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        list && type == CT_ComboBox)
        return size.expandedTo({listWidth(*list), 0});
    return type == CT_PushButton ? withRoomBesideWords(size, contents, option) : size;
}

int PageStyle::listWidth(const QStyleOptionComboBox& option)
{
    const QSize words(kLettersOfList * option.fontMetrics.averageCharWidth(), option.fontMetrics.height());
    return QApplication::style()->sizeFromContents(CT_ComboBox, &option, words).width();
}

QIcon PageStyle::standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const
{
    return which == SP_MessageBoxWarning
               ? markPixmap(Mark::Advice, widget ? widget->palette() : QApplication::palette(),
                            pixelMetric(PM_MessageBoxIconSize, option, widget),
                            widget ? widget->devicePixelRatioF() : 1)
               : TitleStyle::standardIcon(which, option, widget);
}

void setPageStyle(QWidget* widget)
{
    const std::shared_ptr<PageStyle> style = PageStyle::shared();
    widget->setStyle(style.get());
    QObject::connect(widget, &QObject::destroyed, [style] {});
}

void dressMessageBox(QMessageBox& box)
{
    setPageStyle(&box);
    box.setIcon(box.icon());
}

int PageStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    return metric == PM_TabBarTabHSpace ? 2 * kTabPadding : TitleStyle::pixelMetric(metric, option, widget);
}

} // namespace vlk
