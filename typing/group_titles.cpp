#include "typing/group_titles.h"

#include <QApplication>
#include <QGroupBox>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>

namespace vlk {

namespace {

// The style itself measures the ink of the letters, which is less than what they take.
constexpr int kMargin = 4;

QFont titleFont(QFont font)
{
    font.setWeight(QFont::DemiBold);
    return font;
}

class TitleStyle : public QProxyStyle
{
public:
    explicit TitleStyle(QObject* parent)
        : QProxyStyle(QStyleFactory::create(QApplication::style()->objectName()))
    {
        setParent(parent);
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override
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

    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override
    {
        const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
        if (control != CC_GroupBox || !group)
            return QProxyStyle::subControlRect(control, option, part, widget);
        QStyleOptionGroupBox titled(*group);
        titled.fontMetrics = QFontMetrics(titleFont(widget ? widget->font() : QApplication::font()));
        QRect rect = QProxyStyle::subControlRect(control, &titled, part, widget);
        if (part == SC_GroupBoxLabel)
            rect.setWidth(titled.fontMetrics.size(Qt::TextShowMnemonic, titled.text).width() + kMargin);
        return rect;
    }

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override
    {
        const QSize own = QProxyStyle::sizeFromContents(type, option, size, widget);
        const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
        if (type != CT_GroupBox || !group)
            return own;
        const QRect title = subControlRect(CC_GroupBox, group, SC_GroupBoxLabel, widget);
        return own.expandedTo({title.width() + kMargin, 0});
    }
};

} // namespace

void dressGroup(QGroupBox* group)
{
    group->setStyle(new TitleStyle(group));
}

void dressGroups(QWidget* window)
{
    const auto groups = window->findChildren<QGroupBox*>();
    for (QGroupBox* group : groups)
        dressGroup(group);
}

} // namespace vlk
