#include "windows/disabled_reason.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace vlk {

namespace {

class Reason : public QObject
{
public:
    Reason(QWidget* widget, const char* textKey) : QObject(widget), key_(textKey) { tell(widget); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::EnabledChange || event->type() == QEvent::LanguageChange)
            tell(static_cast<QWidget*>(watched));
        return QObject::eventFilter(watched, event);
    }

private:
    void tell(QWidget* widget) const
    {
        widget->setToolTip(widget->isEnabled() ? QString() : QCoreApplication::translate("vlk", key_));
    }

    const char* const key_;
};

} // namespace

void tellWhyDisabled(QWidget* widget, const char* textKey)
{
    widget->installEventFilter(new Reason(widget, textKey));
}

} // namespace vlk
