#pragma once

// The line above the pages: taking steps back and doing them again, finding a setting by words, and the
// number of differences, which opens the panel of them.

#include "dialog/configuration_review.h"
#include "typing/field_mark.h"

#include <QWidget>

#include <optional>

class QCheckBox;
class QLineEdit;
class QListWidget;
class QToolButton;

namespace vlk {

class SettingPlaces;

class ReviewBar : public QWidget
{
    Q_OBJECT

public:
    ReviewBar(ConfigurationReview& review, SettingPlaces& places, QWidget* parent);

    void retranslate();
    // Behind all others, for the eye and for Tab.
    void addLast(QWidget* widget);
    // A configuration has been opened, in which nothing was looked for yet.
    void begin();
    void focusFind();
    // What is on show below.
    enum Panel { None, Differences, Advice };
    void setPanel(Panel panel);
    void setAdvice(int count, std::optional<Mark> worst);

Q_SIGNALS:
    void panelRequested(vlk::ReviewBar::Panel panel);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void showState();
    void find();
    void makeSearch();
    std::vector<review::Hit> found(const QString& words);
    void addLine(const review::Hit& hit);
    void goTo(int line);
    void closeHits();

    ConfigurationReview& review_;
    SettingPlaces& places_;
    std::unique_ptr<review::Search> search_; // made when it is first needed
    bool searchesQuick_ = false;             // it, the quick window's settings too
    std::vector<review::Hit> hits_;
    QToolButton* undo_;
    QToolButton* redo_;
    QLineEdit* find_;
    QCheckBox* changedOnly_;
    QToolButton* differences_;
    QToolButton* advice_;
    QListWidget* list_; // of hits, over the pages
};

} // namespace vlk
