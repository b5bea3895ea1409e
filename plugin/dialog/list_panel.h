#pragma once

// A panel below the pages: a line with its title, what can be done and a cross, and a table. Enter or a
// double click takes a line, Esc closes the panel.

#include <QWidget>

#include <functional>

class QAbstractItemModel;
class QLabel;
class QPushButton;
class QTableView;
class QToolButton;

namespace vlk {

class EmptyNote;

class ListPanel : public QWidget
{
    Q_OBJECT

public:
    // `name`: the end of the names of its widgets.
    ListPanel(const char* name, QWidget* parent);

    virtual void retranslate();
    // Shows it with what there is now, and gives it the focus.
    void open();
    // Shows it and leaves the focus where it is.
    void showNow();
    // As high as there is room for it, within reason.
    void setPanelHeight(int height);

Q_SIGNALS:
    void closed();
    // The upper edge was moved.
    void heightChosen(int height);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    // Whatever has changed while it was not on show, as on the way from one window to the other.
    void showEvent(QShowEvent* event) override;

    // Before all else.
    void setModel(QAbstractItemModel& model);
    // Behind the title, in their order.
    void addToHead(const QWidgetList& widgets);
    // What a button of the head does. One that is disabled by it leaves the focus to the list.
    void press(const QPushButton* button, const std::function<void()>& act);
    void setTitle(const QString& title, QWidget* buddy);
    virtual void refresh() = 0;
    virtual void take(int line) = 0;
    // The table has another width.
    virtual void fitTable() {}
    // The space bar, on the lines that are selected, the current one first; on that alone where it is not.
    virtual void toggle(const QVector<int>& /*lines*/) {}

    QTableView* table() const { return table_; }
    EmptyNote* empty() const { return empty_; }

private:
    QVector<int> selectedLines() const;

    QLabel* title_;
    QTableView* table_;
    EmptyNote* empty_ = nullptr;
    QToolButton* close_;
    QWidget* edge_;            // to be moved
    QWidget* first_ = nullptr; // of the head, what fills the list; null where nothing does
};

} // namespace vlk
