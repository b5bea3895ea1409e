#pragma once

// Which curve is which: its line with its shape, its title, and by a stronger text the one that the cursors
// tell. A click chooses that one; without room for all the titles are cut.

#include <QWidget>

namespace vlk {

class CurvesModel;

class CurveLegend : public QWidget
{
    Q_OBJECT

public:
    // Wrapped, the entries take as many lines as they need at the width that it was given.
    CurveLegend(CurvesModel* model, bool isWrapped, QWidget* parent = nullptr);
    void setWrapped(bool isWrapped);

    // That the entries need on one line.
    int widthOfAll() const;
    // With which something is left of each name.
    int leastWidth() const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool event(QEvent* event) override;

private:
    QString textOf(int place) const;
    QFont fontOf(int place) const;
    // Where the entries stand at that width.
    std::vector<QRect> places(int width) const;
    int entryAt(const QPoint& place) const;
    void refresh();

    CurvesModel* model_;
    bool isWrapped_;
};

} // namespace vlk
