#pragma once

// The tabs of the data-set page: ten places in a fixed order, of which a tracker model fills some. Every walk
// over the tabs goes by that order. Together they show and give the mask.

#include "dataset/form_config_set_zeta3_tab.h"
#include "windows/binder/mask_widget.h"

#include <QTabWidget>

#include <array>

namespace vlk {

class TabMenu;

class DataSetTabs : public QTabWidget, public MaskWidget
{
    Q_OBJECT

public:
    static constexpr int kPlaces = 10;

    explicit DataSetTabs(QWidget* parent = nullptr);

    // Takes a tab over, at a place from 1 to kPlaces, and shows it behind those that are there.
    void add(int place, VLK_Form_Config_Set_Zeta3_Tab* tab);
    // Null for a place that the model leaves empty.
    VLK_Form_Config_Set_Zeta3_Tab* at(int place) const { return places_.at(place - 1); }

    template <class Action>
    void forEach(Action action) const
    {
        for (VLK_Form_Config_Set_Zeta3_Tab* tab : places_) {
            if (tab)
                action(*tab);
        }
    }

    void showMask(const QString& mask) override;
    QString mask() const override;
    // Bytes of a stored record, which keeps its fields whatever the version of the protocol.
    int recordSize() const;

    void retranslate();
    void setTitle(VLK_Form_Config_Set_Zeta3_Tab* tab, const QString& title);
    // Has an entry for each tab, a VLK_MenuAction.
    TabMenu& menu() const { return *menu_; }

Q_SIGNALS:
    void recordSizeChanged();

private:
    std::array<VLK_Form_Config_Set_Zeta3_Tab*, kPlaces> places_{};
    TabMenu* menu_;
};

} // namespace vlk
