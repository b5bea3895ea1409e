#pragma once

// What stands around the pages of the configuration: above them the bar with the search and with the numbers
// of differences and findings, below them one of the two panels that list these, or none. Which panel is
// open, and how high it is, is remembered. The focus that went into the bar or a panel goes back by Esc.

#include "dialog/panel_memory.h"
#include "dialog/review_bar.h"

#include <QPointer>

#include <functional>

namespace vlk {

class AdvicePanel;
class ListPanel;
class ReviewPanel;

class ReviewArea : public QObject
{
    Q_OBJECT

public:
    // `toFirstField` gives the focus to the page on show.
    ReviewArea(ConfigurationReview& review, SettingPlaces& places, QWidget* window,
               std::function<void()> toFirstField);

    ReviewBar* bar() const { return bar_; }
    ReviewPanel* differences() const { return differences_; }
    QWidgetList panels() const;

    // Opens a panel in place of the other one and gives it the focus, or closes them.
    void show(ReviewBar::Panel panel);
    // What was open the last time, without the focus.
    void showKept();
    // Leaves the bar, else closes the panel. False where there is neither to do.
    bool escape();
    void retranslate();

private:
    void followFocus(const QWidget* old, const QWidget* now);
    void giveBack(const QPointer<QWidget>& before) const;
    bool isInPanel(const QWidget* widget) const;

    QWidget* window_;
    std::function<void()> toFirstField_;
    ReviewBar* bar_;
    ReviewPanel* differences_;
    AdvicePanel* advice_;
    PanelMemory kept_;
    QPointer<QWidget> beforeBar_; // had the focus
    QPointer<QWidget> beforePanel_;
};

} // namespace vlk
