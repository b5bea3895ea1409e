#pragma once

// The panel of what differs from the file as it came, from the defaults, from another file or from what a
// preset would make of it. The chosen lines are brought back or taken over, as one step, or saved as a
// preset.

#include "dialog/difference_model.h"
#include "dialog/list_panel.h"
#include "typing/notice_bar.h"

#include <functional>

class QAction;
class QLabel;
class QPushButton;

namespace vlk {

class ElidingComboBox;
class SettingPlaces;

class ReviewPanel : public ListPanel
{
    Q_OBJECT

public:
    ReviewPanel(ConfigurationReview& review, SettingPlaces& places, QWidget* parent = nullptr);

    void retranslate() override;
    // Asks for a preset and compares with it. False when none was chosen that could be read.
    bool choosePreset();
    void saveAsPreset();
    // Marks all lines, or none.
    void chooseAll(bool isChosen);

Q_SIGNALS:
    // What became of a file or a copy; asked for again when the language changes.
    void told(const std::function<vlk::Notice()>& notice);

protected:
    void refresh() override { model_.refresh(); }
    void take(int line) override;
    void toggle(const QVector<int>& lines) override;
    // By what they hold, and narrower where they would not fit beside each other.
    void fitTable() override;

private:
    void showState();
    bool chooseAgainst(int index);
    void takeOver();
    void copy();
    void saveCsv();

    ConfigurationReview& review_;
    SettingPlaces& places_;
    DifferenceModel model_;
    ElidingComboBox* against_;
    QPushButton* takeOver_;
    QPushButton* preset_;
    QPushButton* copy_;
    QPushButton* csv_;
    QAction* all_; // of the menu
    QAction* none_;
    QLabel* summary_; // of what quick setup does to any file
};

} // namespace vlk
