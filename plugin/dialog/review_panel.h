#pragma once

// The panel below the pages: what differs from the file as it came, from the defaults or from another file.
// Enter or a double click goes to the setting; the chosen lines are brought back or taken over.

#include "dialog/difference_model.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QPushButton;
class QTableView;
class QToolButton;

namespace vlk {

class EmptyNote;
class SettingPlaces;

class ReviewPanel : public QWidget
{
    Q_OBJECT

public:
    ReviewPanel(ConfigurationReview& review, SettingPlaces& places, QWidget* parent = nullptr);

    void retranslate();
    // Opens it, and gives it the focus.
    void open();

Q_SIGNALS:
    void closed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* makeHead();
    void showState();
    void chooseAgainst(int index);
    void goTo(const QModelIndex& index);
    void takeOver();
    void saveCsv();

    ConfigurationReview& review_;
    SettingPlaces& places_;
    DifferenceModel model_;
    QLabel* title_;
    QComboBox* against_;
    QTableView* table_;
    EmptyNote* empty_;
    QPushButton* takeOver_;
    QPushButton* copy_;
    QPushButton* csv_;
    QToolButton* close_;
};

} // namespace vlk
