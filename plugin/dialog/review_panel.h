#pragma once

// The panel of what differs from the file as it came, from the defaults or from another file. The chosen
// lines are brought back or taken over, as one step.

#include "dialog/difference_model.h"
#include "dialog/list_panel.h"

class QComboBox;
class QPushButton;

namespace vlk {

class SettingPlaces;

class ReviewPanel : public ListPanel
{
    Q_OBJECT

public:
    ReviewPanel(ConfigurationReview& review, SettingPlaces& places, QWidget* parent = nullptr);

    void retranslate() override;

protected:
    void refresh() override { model_.refresh(); }
    void take(int line) override;
    void toggle(int line) override;

private:
    void showState();
    void chooseAgainst(int index);
    void takeOver();
    void saveCsv();

    ConfigurationReview& review_;
    SettingPlaces& places_;
    DifferenceModel model_;
    QComboBox* against_;
    QPushButton* takeOver_;
    QPushButton* copy_;
    QPushButton* csv_;
};

} // namespace vlk
