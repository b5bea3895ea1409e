#include "typing/title_style.h"

#include "typing/field_mark.h"
#include "typing/grid.h"
#include "typing/kept_palette.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QGroupBox>
#include <QLayout>
#include <QPainter>
#include <QPushButton>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTextBrowser>

#include <algorithm>

namespace vlk {

namespace {

// The style itself measures the ink of the letters, which is less than what they take.
constexpr int kBesideTitle = 4;
constexpr int kDark = 128; // lightness of a window

QFont titleFont(QFont font)
{
    font.setWeight(QFont::DemiBold);
    return font;
}

} // namespace

TitleStyle::TitleStyle() : QProxyStyle(QStyleFactory::create(QApplication::style()->objectName())) {}

void TitleStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const
{
    if (control != CC_GroupBox) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    painter->save();
    painter->setFont(titleFont(painter->font()));
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    painter->restore();
}

void TitleStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    outlineFocus(element, *option, *painter);
}

void TitleStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    outlineOnDark(element, *option, *painter);
    outlineFocus(element, *option, *painter, widget);
}

QRect TitleStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                 const QWidget* widget) const
{
    const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
    if (control != CC_GroupBox || !group)
        return QProxyStyle::subControlRect(control, option, part, widget);
    QStyleOptionGroupBox titled(*group);
    titled.fontMetrics = QFontMetrics(titleFont(widget ? widget->font() : QApplication::font()));
    QRect rect = QProxyStyle::subControlRect(control, &titled, part, widget);
    if (part == SC_GroupBoxLabel)
        rect.setWidth(titled.fontMetrics.size(Qt::TextShowMnemonic, titled.text).width() + kBesideTitle);
    return rect;
}

QSize TitleStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                   const QWidget* widget) const
{
    const QSize own = QProxyStyle::sizeFromContents(type, option, size, widget);
    const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
    if (type != CT_GroupBox || !group)
        return own;
    const QRect title = subControlRect(CC_GroupBox, group, SC_GroupBoxLabel, widget);
    return own.expandedTo({title.width() + kBesideTitle, 0});
}

QSize withRoomBesideWords(QSize size, const QSize& contents, const QStyleOption* option)
{
    constexpr int kBesideWords = 10;
    constexpr int kLeastButton = 80;
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (button && !button->text.isEmpty())
        size.setWidth(std::max({size.width(), contents.width() + 2 * kBesideWords, kLeastButton}));
    return size;
}

namespace {

constexpr qreal kOutline = 2;

// Where the focus came by keys.
void outline(const QStyleOption& option, qreal inside, QPainter& painter)
{
    constexpr QStyle::State focused = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    if ((option.state & focused) != focused)
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(markColor(Mark::Changed, option.palette), kOutline));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(inside, inside, -inside, -inside), 2, 2);
    painter.restore();
}

} // namespace

void outlineOnDark(QStyle::PrimitiveElement element, const QStyleOption& option, QPainter& painter)
{
    const bool isRound = element == QStyle::PE_IndicatorRadioButton;
    if ((element != QStyle::PE_IndicatorCheckBox && !isRound) ||
        option.palette.color(QPalette::Window).lightness() >= kDark)
        return;
    const QRectF outline = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        between(option.palette.color(QPalette::WindowText), option.palette.color(QPalette::Window)));
    painter.setBrush(Qt::NoBrush);
    isRound ? painter.drawEllipse(outline) : painter.drawRect(outline);
    painter.restore();
}

void outlineFocus(QStyle::PrimitiveElement element, const QStyleOption& option, QPainter& painter,
                  const QWidget* widget)
{
    const bool isButton = element == QStyle::PE_PanelButtonCommand;
    const bool isPage = element == QStyle::PE_Frame && (qobject_cast<const QTextBrowser*>(widget) ||
                                                        qobject_cast<const QAbstractItemView*>(widget));
    // A push button has one round it, and asks for one inside too.
    const bool isInside = element == QStyle::PE_FrameFocusRect && !qobject_cast<const QPushButton*>(widget) &&
                          !qobject_cast<const QAbstractItemView*>(widget);
    if (isButton || isPage || isInside)
        outline(option, isPage ? 0 : kOutline / 2, painter);
}

void outlineFocus(QStyle::ComplexControl control, const QStyleOption& option, QPainter& painter)
{
    if (control == QStyle::CC_Slider)
        outline(option, kOutline / 2, painter);
}

// Of the tab that has the focus a style draws its own one, and asks for none.
void outlineFocus(QStyle::ControlElement element, const QStyleOption& option, QPainter& painter)
{
    constexpr qreal kTabFrame = 2;
    if (element == QStyle::CE_TabBarTabLabel)
        outline(option, kTabFrame + kOutline / 2, painter);
}

int TitleStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    const std::optional<int> own = grid::metric(metric);
    return own ? *own : QProxyStyle::pixelMetric(metric, option, widget);
}

void dressGroup(QGroupBox* group)
{
    auto* style = new TitleStyle;
    style->setParent(group);
    group->setStyle(style);
    if (QLayout* layout = group->layout()) {
        QMargins margins = layout->contentsMargins();
        margins.setLeft(grid::kIndent);
        layout->setContentsMargins(margins);
    }
}

void dressGroups(QWidget* window)
{
    const auto groups = window->findChildren<QGroupBox*>();
    for (QGroupBox* group : groups)
        dressGroup(group);
}

} // namespace vlk
