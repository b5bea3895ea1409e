#pragma once

// The settings pages of the full window, in the order of their tabs, of loading and of saving. The pages
// share operation names and no base class:
//
//     constructor(QWidget* parent), title(), tabIndex(), setTabIndex(int), retranslate(), setDefaults(),
//     loadFromXml(CXmlSection* root), saveToXml(CXmlSection* root)
//
// What only some pages have is found by its name; the concepts below list it. A page is added by its header
// and a line in PageTuple.

#include "dataset/form_config_zeta3.h"
#include "pages/form_config_accel.h"
#include "pages/form_config_lines_in.h"
#include "pages/form_config_lines_out.h"
#include "pages/form_config_sensors_temp.h"
#include "pages/form_config_system.h"
#include "pages/form_config_track.h"
#include "pages/form_config_transfer.h"
#include "peripherals/form_config_bluetooth.h"
#include "peripherals/form_config_rs.h"

#include <concepts>
#include <tuple>

namespace vlk {

using PageTuple = std::tuple<VLK_Form_Config_Transfer*, VLK_Form_Config_Zeta3*, VLK_Form_Config_Track*,
                             VLK_Form_Config_System*, VLK_Form_Config_RS*, VLK_Form_Config_Sensors_Temp*,
                             VLK_Form_Config_Lines_In*, VLK_Form_Config_Accel*, VLK_Form_Config_Lines_Out*,
                             VLK_Form_Config_Bluetooth*>;

// deviceConnected(), deviceDisconnected()
template <class Page>
concept KnowsTheTracker = requires
{
    &Page::deviceConnected;
};

// loadUserParams(root), saveUserParams(root), after all pages have loaded or saved
template <class Page>
concept HasUserParams = requires
{
    &Page::loadUserParams;
};

// userParamAdded(code, name, third, size), userParamDeleted(...): the free slots of the record
template <class Page>
concept TakesUserParams = requires
{
    &Page::userParamAdded;
};

// signal_Excess_Size(bool) locks all tabs but its own
template <class Page>
concept LimitsTheRecord = requires
{
    &Page::signal_Excess_Size;
};

// showLineValues(QByteArray), showAnalogRecord(record), stopAuto(), pauseAuto(), resumeAuto(): the input
// lines
template <class Page>
concept ShowsLines = requires
{
    &Page::showLineValues;
};

// setCurrentSupply(millivolts): the system
template <class Page>
concept ShowsSupply = requires
{
    &Page::setCurrentSupply;
};

// showPresentValues(AccelValues), clearPresentValues(), stopAuto(), pauseAuto(), resumeAuto(): the
// accelerometer
template <class Page>
concept ShowsAccel = requires
{
    &Page::showPresentValues;
};

// userParamCode(text), userParamText(code), setCanLogProgram(program): the serial line
template <class Page>
concept HasSerialLine = requires
{
    &Page::setCanLogProgram;
};

// displayToKey(text), keyToDisplay(key), onSearchStopped(byte), onSearchEvent(byte), onDeviceFound(BtDevice)
template <class Page>
concept FindsBluetooth = requires
{
    &Page::onDeviceFound;
};

class ConfigPages
{
public:
    // Makes every page, in order, and hands each to `action`.
    template <class Action>
    void create(Action action)
    {
        std::apply([&](auto*&... page) { (createOne(page, action), ...); }, pages_);
    }

    // Hands every page that `action` takes to it, in order: all to one with a parameter `auto& page`, some to
    // one with `ShowsLines auto& page`.
    template <class Action>
    void forEach(Action action) const
    {
        std::apply([&](auto*... page) { (handOver(page, action), ...); }, pages_);
    }

    // Tab of the first page that `action` takes, -1 where the window has none.
    template <class Action>
    int tabOf(Action /*action*/) const
    {
        int tab = -1;
        forEach([&](auto& page) {
            if constexpr (std::invocable<Action, decltype(page)>)
                tab = tab < 0 ? page.tabIndex() : tab;
        });
        return tab;
    }

private:
    template <class Page, class Action>
    static void createOne(Page*& page, Action& action)
    {
        page = new Page(nullptr);
        action(*page);
    }

    template <class Page, class Action>
    static void handOver(Page* page, Action& action)
    {
        if constexpr (std::invocable<Action&, Page&>) {
            if (page)
                action(*page);
        }
    }

    PageTuple pages_{};
};

} // namespace vlk
