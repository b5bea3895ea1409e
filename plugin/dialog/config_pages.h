#pragma once

// The settings pages of the full window, in the order of their tabs, of loading and of saving. The pages
// share operation names and no base class:
//
//     constructor(QWidget* parent), title(), tabIndex(), setTabIndex(int), retranslate(), setDefaults(),
//     loadFromXml(CXmlSection* root), saveToXml(CXmlSection* root)
//
// and, where a page has live values, deviceConnected() and deviceDisconnected(). Adding a page is one line in
// PageTuple.

#include <QWidget>

#include <tuple>
#include <type_traits>

class VLK_Form_Config_Transfer;
class VLK_Form_Config_Zeta3;
class VLK_Form_Config_System;
class VLK_Form_Config_RS;
class VLK_Form_Config_Lines_In;
class VLK_Form_Config_Accel;
class VLK_Form_Config_Bluetooth;

namespace vlk {

using PageTuple = std::tuple<VLK_Form_Config_Transfer*>;

class ConfigPages
{
public:
    template <class Page>
    static constexpr bool has = []<class... Known>(std::type_identity<std::tuple<Known*...>>) {
        return (std::is_same_v<Page, Known> || ...);
    }(std::type_identity<PageTuple>{});

    // Makes every page, in order, and hands each to `action`.
    template <class Action>
    void create(Action action)
    {
        std::apply([&](auto*&... page) { (createOne(page, action), ...); }, pages_);
    }

    template <class Action>
    void forEach(Action action) const
    {
        std::apply([&](auto*... page) { ((page ? action(*page) : void()), ...); }, pages_);
    }

    // Runs `action` on one page; does nothing where the window has no such page.
    template <class Page, class Action>
    void with(Action action) const
    {
        if constexpr (has<Page>) {
            if (auto* page = std::get<Page*>(pages_))
                action(*page);
        }
    }

    // Index of a page's tab, -1 where the window has no such page.
    template <class Page>
    int tabOf() const
    {
        int index = -1;
        with<Page>([&](const auto& page) { index = page.tabIndex(); });
        return index;
    }

private:
    template <class Page, class Action>
    static void createOne(Page*& page, Action& action)
    {
        page = new Page(nullptr);
        action(*page);
    }

    PageTuple pages_{};
};

} // namespace vlk
