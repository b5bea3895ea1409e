#include "dialog/page_services.h"

#include "dialog/config_pages.h"
#include "dialog/tab_navigation.h"
#include "link/requests.h"

#include <QEvent>

namespace vlk {

PageServices::PageServices(QWidget* parent)
    : VLK_Wnd_Config_Full(parent), pages_(std::make_unique<ConfigPages>()),
      answers_(
          *pages_, [this] { return navigation_->current(); },
          [this] { return isVisible() && isActiveWindow(); })
{
    vlkConfigFull = this;
}

PageServices::~PageServices()
{
    if (vlkConfigFull == this)
        vlkConfigFull = nullptr;
}

bool PageServices::event(QEvent* event)
{
    const bool isDone = VLK_Wnd_Config_Full::event(event);
    if (event->type() == QEvent::WindowActivate)
        answers_.monitor().activated();
    return isDone;
}

// The quick window on top hides the full one, too.
void PageServices::hideEvent(QHideEvent* event)
{
    VLK_Wnd_Config_Full::hideEvent(event);
    answers_.monitor().end();
}

QString PageServices::userParamCode(const QString& text)
{
    // "RS485, Modbus 3": the RS page knows its parameters by what follows the comma and its blank.
    QString code;
    const int comma = text.indexOf(QLatin1Char(','));
    pages_->forEach([&](HasSerialLine auto& page) {
        code = page.userParamCode(text.mid(comma < 0 ? 0 : comma + 2).trimmed());
    });
    if (code.isEmpty())
        pages_->forEach([&](FindsBluetooth auto& page) { code = page.displayToKey(text.trimmed()); });
    return code;
}

QString PageServices::userParamText(const QString& code)
{
    QString text;
    if (code.isEmpty())
        return text;
    pages_->forEach([&](HasSerialLine auto& page) { text = page.userParamText(code); });
    if (text.isEmpty())
        pages_->forEach([&](FindsBluetooth auto& page) { text = page.keyToDisplay(code); });
    return text;
}

void PageServices::gotoInputLines()
{
    navigation_->goTo(pages_->tabOf([](ShowsLines auto&) {}));
}

void PageServices::gotoRs()
{
    navigation_->goTo(pages_->tabOf([](HasSerialLine auto&) {}));
}

void PageServices::gotoBluetooth()
{
    navigation_->goTo(pages_->tabOf([](FindsBluetooth auto&) {}));
}

void PageServices::gotoAccel()
{
    navigation_->goTo(pages_->tabOf([](ShowsAccel auto&) {}));
}

void PageServices::gotoAccelPlain()
{
    gotoAccel();
}

void PageServices::startAccelMonitor(bool on, int periodMs)
{
    answers_.monitor().startAccel(on, periodMs);
}

void PageServices::startLinesMonitor(bool on, const QByteArray& list, int periodMs)
{
    answers_.monitor().startLines(on, list, periodMs);
}

void PageServices::pollCurrentTab()
{
    answers_.monitor().pollCurrentTab();
}

void PageServices::requestAccel()
{
    answers_.monitor().requestAccel();
}

void PageServices::requestAccelResult()
{
    answers_.monitor().requestAccelResult();
}

void PageServices::requestLines(const QByteArray& list)
{
    answers_.monitor().requestLines(list);
}

void PageServices::startBtSearch()
{
    requests::startBtSearch();
}

void PageServices::cancelBtSearch()
{
    requests::cancelBtSearch();
}

void PageServices::getCanLogProgram()
{
    requests::canLogProgram();
}

void PageServices::setCanLogProgram(int value)
{
    requests::setCanLogProgram(value);
}

void PageServices::sendSystemWaitEnd()
{
    requests::waitStepEnd();
}

void PageServices::addUserParam(const QString& code, const QString& name, const QString& third, int size)
{
    pages_->forEach([&](TakesUserParams auto& page) { page.userParamAdded(code, name, third, size); });
}

void PageServices::deleteUserParam(const QString& code, const QString& name, const QString& third, int size)
{
    pages_->forEach([&](TakesUserParams auto& page) { page.userParamDeleted(code, name, third, size); });
}

} // namespace vlk
