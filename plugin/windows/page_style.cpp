#include "windows/page_style.h"

#include "windows/line_icon.h"

#include <QApplication>
#include <QGroupBox>
#include <QMessageBox>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

#include <algorithm>

namespace vlk {

namespace {

constexpr int kTabPadding = 8;
constexpr int kBarHeight = 8;
constexpr int kBesideWords = 10;
constexpr int kLeastButton = 80;
constexpr int kDark = 128; // lightness of a window

QFont titleFont(QFont font)
{
    font.setWeight(QFont::DemiBold);
    return font;
}

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
        style.reset(new PageStyle(QStyleFactory::create(QApplication::style()->objectName())));
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
        painter->save();
        painter->setFont(titleFont(painter->font()));
        QProxyStyle::drawComplexControl(control, &titled, painter, widget);
        painter->restore();
        return;
    }
    if (const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
        slider && control == CC_Slider) {
        QStyleOptionSlider ticks(*slider);
        ticks.subControls = SC_SliderTickmarks;
        QProxyStyle::drawComplexControl(control, &ticks, painter, widget);
        paintBar(*slider, subControlRect(control, option, SC_SliderGroove, widget), painter);
        return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

void PageStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isRound = element == PE_IndicatorRadioButton;
    if ((element != PE_IndicatorCheckBox && !isRound) ||
        option->palette.color(QPalette::Window).lightness() >= kDark)
        return;
    QColor line = option->palette.color(QPalette::WindowText);
    line.setAlphaF(0.5);
    const QRectF outline = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(line);
    painter->setBrush(Qt::NoBrush);
    isRound ? painter->drawEllipse(outline) : painter->drawRect(outline);
    painter->restore();
}

QRect PageStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                const QWidget* widget) const
{
    const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
    if (control != CC_GroupBox || !group)
        return QProxyStyle::subControlRect(control, option, part, widget);
    QStyleOptionGroupBox titled(*group);
    titled.fontMetrics = QFontMetrics(titleFont(widget ? widget->font() : QApplication::font()));
    QRect rect = QProxyStyle::subControlRect(control, &titled, part, widget);
    // The style measures the ink of the letters, which is less than what they take.
    if (part == SC_GroupBoxLabel && titled.direction == Qt::LeftToRight)
        rect.setWidth(titled.fontMetrics.size(Qt::TextShowMnemonic, titled.text).width() + 4);
    return rect;
}

QSize PageStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                  const QWidget* widget) const
{
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (type == CT_PushButton && button && !button->text.isEmpty())
        size.setWidth(std::max({size.width(), contents.width() + 2 * kBesideWords, kLeastButton}));
    return size;
}

QIcon PageStyle::standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const
{
    return which == SP_MessageBoxWarning ? lineIcon(LineIcon::warning)
                                         : QProxyStyle::standardIcon(which, option, widget);
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
    return metric == PM_TabBarTabHSpace ? 2 * kTabPadding : QProxyStyle::pixelMetric(metric, option, widget);
}

} // namespace vlk
