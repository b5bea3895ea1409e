#pragma once

// The table of records: its first columns, number and time, stay at the left whatever is scrolled. They are
// shown by a second view over the first one's left edge, which shares its rows, its selection and its keys.

#include <QTableView>

#include <vector>

namespace vlk {

class RecordsModel;

class RecordsTable : public QTableView
{
    Q_OBJECT

public:
    RecordsTable(RecordsModel* model, QWidget* parent);

    // After the columns of the model are others, or have other texts.
    void takeColumns();
    void fitWidths();
    bool isFrozen(int column) const;
    // Puts the columns into that order.
    void arrange(const std::vector<int>& columns);
    // In the order in which they stand.
    std::vector<int> shownColumns() const;

    // The records of the selected rows, as they stand.
    std::vector<int> selectedRecords() const;
    // Rows, by the user.
    bool areSeveralSelected() const;
    // Makes it the current one, in the middle of what is seen; false where it does not pass the filter.
    bool showRecord(int record);

    // Opens the menu like the Menu key.
    void askMenu();

    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

Q_SIGNALS:
    void recordOpened(int record);
    // By hand; not of a column that stays at the left.
    void columnMoved();
    void menuWanted(const QPoint& globalPlace);

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void updateGeometries() override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setUpFrozen();
    void placeFrozen();
    void keepFrozenFirst();
    int widthOfHead(int column) const;
    void makeRoomForArrow(int column);
    void open(const QModelIndex& index);

    RecordsModel* model_;
    QTableView* frozen_;
    QWidget* edge_; // of the frozen columns
    std::vector<int> frozenColumns_;
    int column_ = -1;       // that was gone to last
    bool isMoving_ = false; // by the program
};

} // namespace vlk
