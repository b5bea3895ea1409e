#pragma once

// The panel of advice below the pages: what contradicts itself or is not filled in yet. Enter or a double
// click goes to the setting; where the program knows what would mend it a button does, as one step.

#include "dialog/configuration_review.h"
#include "dialog/list_panel.h"
#include "review/advice.h"
#include "typing/field_mark.h"

#include <QStandardItemModel>

#include <optional>

class QPushButton;

namespace vlk {

class SettingPlaces;

class AdvicePanel : public ListPanel
{
    Q_OBJECT

public:
    AdvicePanel(ConfigurationReview& review, SettingPlaces& places, QWidget* parent = nullptr);

    void retranslate() override;
    int count() const { return static_cast<int>(findings_.size()); }
    // That of the worst finding; hints have none.
    std::optional<Mark> mark() const;

Q_SIGNALS:
    void changed();

protected:
    void refresh() override;
    void take(int line) override;
    // Sentences take the lines that they need.
    void fitTable() override;
    // The marks have colours of their own.
    void changeEvent(QEvent* event) override;

private:
    void showState();
    review::Hit placeOf(const review::Finding& finding) const;
    const review::Finding* current() const;
    void mend();

    ConfigurationReview& review_;
    SettingPlaces& places_;
    std::vector<review::Finding> findings_;
    QStandardItemModel model_;
    QPushButton* goTo_;
    QPushButton* mend_;
};

} // namespace vlk
