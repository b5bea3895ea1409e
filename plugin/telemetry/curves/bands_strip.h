#pragma once

// What stands below the curves, on the same time: a band for each state, dark where it was on and nothing
// where it is not known, and a row of marks for events and for what the filter found. Names stand on the
// left.

#include <QWidget>

namespace vlk {

class CurvesModel;
class CurvesPlot;
struct FoundEvent;

class BandsStrip : public QWidget
{
    Q_OBJECT

public:
    BandsStrip(CurvesModel* model, CurvesPlot* plot, QWidget* parent = nullptr);

    // At most so high: rows that have no room are left out, the last bands first, then the last marks.
    void setMostHeight(int height);
    // The titles of those.
    QStringList leftOut() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    int rowHeight() const;
    int bandCount() const;
    int markRowCount() const;
    int rowsInRoom() const;
    void refresh();
    void paintBand(QPainter& painter, const QRect& row, int band) const;
    void paintMarks(QPainter& painter, const QRect& row, std::size_t marks) const;
    void paintFound(QPainter& painter, const QRect& row) const;
    void paintCursors(QPainter& painter) const;
    // Null where nothing was found.
    const FoundEvent* foundAt(int record) const;
    // The record of a row of marks that is drawn there; -1 for none.
    int markAt(const QPoint& place) const;
    QString tipAt(const QPoint& place) const;

    CurvesModel* model_;
    CurvesPlot* plot_;
    int mostHeight_ = QWIDGETSIZE_MAX;
};

} // namespace vlk
