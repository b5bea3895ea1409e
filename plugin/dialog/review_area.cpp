#include "dialog/review_area.h"

#include "dialog/advice_panel.h"
#include "dialog/review_panel.h"
#include "dialog/setting_places.h"

#include <QApplication>
#include <QTimer>

namespace vlk {

ReviewArea::ReviewArea(ConfigurationReview& review, SettingPlaces& places, QWidget* window,
                       std::function<void()> toFirstField)
    : QObject(window), window_(window), toFirstField_(std::move(toFirstField)),
      bar_(new ReviewBar(review, places, window)), differences_(new ReviewPanel(review, places, window)),
      advice_(new AdvicePanel(review, places, window))
{
    connect(bar_, &ReviewBar::panelRequested, this, &ReviewArea::show);
    for (ListPanel* panel : std::initializer_list<ListPanel*>{differences_, advice_}) {
        connect(panel, &ListPanel::closed, this, [this] { show(ReviewBar::None); });
        connect(panel, &ListPanel::heightChosen, this, [this](int height) {
            kept_.height = height;
            kept_.save();
            for (ListPanel* other : std::initializer_list<ListPanel*>{differences_, advice_})
                other->setPanelHeight(height);
        });
    }
    connect(advice_, &AdvicePanel::changed, this,
            [this] { bar_->setAdvice(advice_->count(), advice_->mark()); });
    connect(qApp, &QApplication::focusChanged, this, &ReviewArea::followFocus);
}

QWidgetList ReviewArea::panels() const
{
    return {differences_, advice_};
}

bool ReviewArea::isInPanel(const QWidget* widget) const
{
    return widget && (differences_->isAncestorOf(widget) || advice_->isAncestorOf(widget));
}

void ReviewArea::followFocus(const QWidget* old, const QWidget* now)
{
    if (!old || !now || !window_->isAncestorOf(old))
        return;
    auto* before = const_cast<QWidget*>(old);
    // From a panel it comes back to the bar.
    if (bar_->isAncestorOf(now) && !bar_->isAncestorOf(old) && !isInPanel(old))
        beforeBar_ = before;
    if (isInPanel(now) && !isInPanel(old))
        beforePanel_ = before;
}

void ReviewArea::giveBack(const QPointer<QWidget>& before) const
{
    if (before && before->isVisible() && before->isEnabled())
        before->setFocus(Qt::OtherFocusReason);
    else
        toFirstField_();
}

void ReviewArea::show(ReviewBar::Panel panel)
{
    const bool wasInPanel = isInPanel(window_->focusWidget());
    // The panel takes room from the page: what is being edited stays in sight.
    if (QWidget* edited = window_->focusWidget())
        QTimer::singleShot(0, edited, [edited] { SettingPlaces::keepInSight(edited); });
    kept_.open = panel;
    kept_.save();
    bar_->setPanel(panel);
    // The other one goes when it has given the focus away.
    if (panel == ReviewBar::Differences)
        differences_->open();
    else if (panel == ReviewBar::Advice)
        advice_->open();
    else if (wasInPanel)
        giveBack(beforePanel_);
    differences_->setVisible(panel == ReviewBar::Differences);
    advice_->setVisible(panel == ReviewBar::Advice);
}

void ReviewArea::showKept()
{
    kept_ = PanelMemory::load();
    const auto panel = static_cast<ReviewBar::Panel>(kept_.open);
    bar_->setPanel(panel);
    const std::pair<ListPanel*, ReviewBar::Panel> panels[] = {{differences_, ReviewBar::Differences},
                                                              {advice_, ReviewBar::Advice}};
    for (const auto& [widget, which] : panels) {
        widget->setPanelHeight(kept_.height);
        widget->hide();
        if (panel == which)
            widget->showNow();
    }
}

bool ReviewArea::escape()
{
    if (bar_->isAncestorOf(window_->focusWidget()))
        giveBack(beforeBar_);
    else if (differences_->isVisible() || advice_->isVisible())
        show(ReviewBar::None);
    else
        return false;
    return true;
}

void ReviewArea::retranslate()
{
    bar_->retranslate();
    differences_->retranslate();
    advice_->retranslate();
}

} // namespace vlk
