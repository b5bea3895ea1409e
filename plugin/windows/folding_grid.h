#pragma once

// A grid with two pairs of caption and field in a row, which come to stand below each other where the page is
// too narrow for both. Where each item stood in the form is remembered, so that the pairs come back.

#include <QGridLayout>
#include <QHash>
#include <QPointer>
#include <QWidget>

#include <array>

namespace vlk {

class FoldingGrid
{
public:
    enum class Order { Rows, Columns };
    // What one pair of columns needs: the captions, the fields beside them, and what stands across both.
    struct Needs
    {
        int captions = 0;
        int fields = 0;
        int across = 0;
    };

    // A fold by rows goes "1 2, 3 4" to "1, 2, 3, 4"; one by columns keeps what stands below each other: "1,
    // 3, 2, 4".
    explicit FoldingGrid(QGridLayout* grid, Order order);

    // Captions in columns that keep their width beside fields in columns that stretch.
    static bool isOne(const QGridLayout* grid);

    QGridLayout* grid() const { return grid_; }
    // To be called before the others: learns the places of what came into the grid.
    void learn();
    bool hasSecondPair() const { return hasSecondPair_; }
    // The captions in the first (0) and in the second (1) pair of columns, as they stand unfolded.
    QWidgetList captions(int pair) const;
    Needs needs(int pair) const;
    void fold(bool folded);
    // How wide captions and fields are at least. Fields of a single pair are no wider, 0: they take what
    // there is.
    void setOnePair(int captions, int fields) const;
    void setTwoPairs(int captions, int fields, int secondCaptions) const;

private:
    struct Place
    {
        int row, column, rows, columns;
    };

    QList<QLayoutItem*> items() const;
    bool isAlone(const Place& place) const;
    void putBack(QLayoutItem* item, const Place& place) const;
    QHash<QLayoutItem*, Place> foldedPlaces() const;
    void setColumns(const std::array<int, 4>& widths, int firstStretch, int secondStretch) const;
    void tellOuter() const;

    QPointer<QGridLayout> grid_;
    Order order_;
    QHash<QLayoutItem*, Place> places_; // as in the form
    bool hasSecondPair_ = false;
    bool folded_ = false;
};

} // namespace vlk
