#pragma once

// The panel of advice below the pages: what contradicts itself or is not filled in yet. Enter or a double
// click goes to the setting; where the program knows what would mend it a button does, as one step.

#include "dialog/configuration_review.h"
#include "review/advice.h"

#include <QStandardItemModel>
#include <QWidget>

class QLabel;
class QPushButton;
class QTableView;
class QToolButton;

namespace vlk {

class EmptyNote;
class SettingPlaces;

class AdvicePanel : public QWidget
{
    Q_OBJECT

public:
    AdvicePanel(ConfigurationReview& review, SettingPlaces& places, QWidget* parent = nullptr);

    void retranslate();
    void open();
    int count() const { return static_cast<int>(findings_.size()); }
    // Of the findings, whatever is worth more than a hint.
    bool isSerious() const;

Q_SIGNALS:
    void closed();
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void refresh();
    void showState();
    review::Hit placeOf(const review::Finding& finding) const;
    const review::Finding* current() const;
    void goTo();
    void mend();

    ConfigurationReview& review_;
    SettingPlaces& places_;
    std::vector<review::Finding> findings_;
    QStandardItemModel model_;
    QLabel* title_;
    QTableView* table_;
    EmptyNote* empty_;
    QPushButton* goTo_;
    QPushButton* mend_;
    QToolButton* close_;
};

} // namespace vlk
