#include "dataset/data_set_tabs.h"

#include "catalogue/field_mask.h"
#include "windows/tab_menu.h"

namespace vlk {

namespace {

using Tab = VLK_Form_Config_Set_Zeta3_Tab;

} // namespace

DataSetTabs::DataSetTabs(QWidget* parent) : QTabWidget(parent), menu_(new TabMenu(this)) {}

void DataSetTabs::add(int place, Tab* tab)
{
    places_.at(place - 1) = tab;
    tab->setTabIndex(menu_->add(tab, tab->title()));
    connect(tab, &Tab::maskChanged, this, [this] {
        if (edited)
            edited();
        Q_EMIT recordSizeChanged();
    });
    connect(tab, &Tab::bytesBesideMaskChanged, this, &DataSetTabs::recordSizeChanged);
}

void DataSetTabs::showMask(const QString& mask)
{
    forEach([&](Tab& tab) { tab.loadMask10(mask); });
    forEach([&](Tab& tab) { tab.loadMask20(mask); });
    forEach([&](Tab& tab) { tab.loadMask30(mask); });
}

QString DataSetTabs::mask() const
{
    QString mask = QStringLiteral("111");
    const auto grow = [&](int length) { mask = mask.leftJustified(length, QLatin1Char('0')); };
    grow(kZeta10Count);
    forEach([&](Tab& tab) { tab.fillMask10(mask); });
    grow(kEarlierFieldCount);
    forEach([&](Tab& tab) { tab.fillMask20(mask); });
    grow(kFieldCount);
    forEach([&](Tab& tab) { tab.fillMask30(mask); });
    return mask;
}

int DataSetTabs::recordSize() const
{
    int size = FieldMask::fromText(mask().toStdString()).recordSize();
    forEach([&](const Tab& tab) { size += tab.bytesBesideMask(); });
    return size;
}

void DataSetTabs::retranslate()
{
    forEach([this](Tab& tab) {
        tab.retranslate();
        setTitle(&tab, tab.title());
    });
}

void DataSetTabs::setTitle(Tab* tab, const QString& title)
{
    tab->setTitle(title);
    menu_->setTitle(tab->tabIndex(), title);
}

} // namespace vlk
