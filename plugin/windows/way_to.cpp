#include "windows/way_to.h"

#include <QComboBox>
#include <QPushButton>
#include <QStackedWidget>
#include <QVariant>

namespace vlk {

namespace {

constexpr const char* kWay = "way";

void setWay(QWidget* to, QObject* way)
{
    to->setProperty(kWay, QVariant::fromValue(way));
}

template <class Way>
Way* wayOf(const QWidget* widget)
{
    return qobject_cast<Way*>(widget->property(kWay).value<QObject*>());
}

} // namespace

void leadsTo(QStackedWidget* pages, QComboBox* list)
{
    setWay(pages, list);
}

void leadsTo(QWidget* window, QPushButton* opener)
{
    setWay(window, opener);
}

void goWaysTo(QWidget* widget)
{
    QWidget* around = widget->isWindow() ? nullptr : widget->parentWidget();
    if (around)
        goWaysTo(around);
    if (auto* pages = qobject_cast<QStackedWidget*>(around)) {
        if (auto* list = wayOf<QComboBox>(pages))
            list->setCurrentIndex(pages->indexOf(widget));
    }
    if (auto* opener = wayOf<QPushButton>(widget); opener && !widget->isVisible())
        opener->click();
}

QPushButton* openerOf(const QWidget* widget)
{
    return wayOf<QPushButton>(widget->window());
}

} // namespace vlk
