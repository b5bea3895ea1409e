#pragma once

// What the window of curves shows, without a widget: the curves and bands that were chosen, the events, and
// the two cursors. The records, the moment that is looked at and the span in sight are those of ShownRecords.

#include "telemetry/curves/curve_columns.h"
#include "telemetry/curves/curve_series.h"
#include "telemetry/curves/state_runs.h"

#include <array>
#include <map>
#include <optional>

namespace vlk {

struct Curve
{
    CurveColumn column;
    std::shared_ptr<CurveSeries> series;
    int axis; // in CurvesModel::axes()
};

struct Band
{
    QString name; // of the item; empty for stops
    QString title;
    std::shared_ptr<const StateRuns> runs;
};

// Records that are told by marks below the curves, by time.
struct MarkRow
{
    QString title;
    std::vector<int> records;
};

enum class Cursor { A, B };

class CurvesModel : public QObject
{
    Q_OBJECT

public:
    static constexpr int kMostCurves = 8;
    static constexpr int kMostAxes = 4;
    static constexpr int kMostBands = 6;

    // Shows nothing of other records that come until it is asked to.
    CurvesModel(ShownRecords* records, QObject* parent);

    ShownRecords& records() const { return *records_; }

    // Takes the items that the records have, as many as there is room for: curves and states. A preset's are
    // offered, and show where they have values or change; those that were chosen are shown in any case.
    enum class Choice { Offered, Chosen };
    void show(const QStringList& items, Choice choice);
    // Does what show() does, as steps of what is done later.
    void showLater(const QStringList& items, Choice choice);
    // There is no telling yet what the records have.
    bool isBeingMade() const { return isBeingMade_ || records_->isBeingRead(); }
    const QStringList& items() const { return items_; }
    // The names of the curves and bands on show.
    QStringList shownNames() const;

    const std::vector<Curve>& curves() const { return curves_; }
    // What stands at each axis: the unit, or the titles of numbers without one.
    const QStringList& axes() const { return axes_; }
    const std::vector<Band>& bands() const { return bands_; }
    const std::vector<MarkRow>& marks() const { return marks_; }
    // The least and the greatest of the curves at an axis.
    Extremes extremesAt(int axis, const TimeSpan& span) const;
    double valueAt(const Curve& curve, int record) const;

    // The curve that the cursors tell, the first one until the user chooses; -1 without curves.
    int focused() const { return focused_; }
    void setFocused(int curve);

    // The record at which a cursor stands; -1 for none. The one that moves is the record that is looked at.
    int cursor(Cursor which) const { return cursors_[static_cast<std::size_t>(which)]; }
    Cursor moving() const { return moving_; }
    void setMoving(Cursor which);
    // Takes it away; the other one moves then. Without either, A is back at the next record that is looked
    // at. False where there is none.
    bool endCursor(Cursor which);

    // "A 20.11.2026 09:12:04 312 l | B 09:40:10 251 l | 28 min -61 l".
    QString cursorLine() const;
    // One cursor that is there: "A 20.11.2026 09:12:04 312 l".
    QString cursorText(Cursor which) const;

    void retranslate();

Q_SIGNALS:
    void changed();
    void cursorsChanged();

private:
    void restart();
    void grow(int first);
    void rebuild();
    void addCurve(CurveColumn column);
    bool changes(const CurveColumn& state);
    void addBand(const CurveColumn& column);
    void findStops();
    void findIgnition();
    void findEvents();
    void makeMarks();
    std::shared_ptr<CurveSeries> seriesOf(const CurveColumn& column);
    std::shared_ptr<const StateRuns> runsOf(ItemIndex state);
    void addTo(CurveSeries& series, const CurveColumn& column, std::span<const int> byTime) const;

    ShownRecords* records_;
    QStringList items_;
    Choice choice_ = Choice::Offered;
    std::map<QString, std::shared_ptr<CurveSeries>> series_;
    std::map<ItemIndex, std::shared_ptr<const StateRuns>> runs_;
    // The bits of elements that are now set, now clear.
    std::map<ElementIndex, std::uint64_t> changingBits_;
    std::vector<Curve> curves_;
    QStringList axes_;
    std::vector<Band> bands_;
    std::vector<MarkRow> marks_;
    std::shared_ptr<const StateRuns> stops_;
    std::optional<ItemIndex> ignition_; // the state that tells it
    std::vector<int> events_;
    bool isBeingMade_ = false;
    int focused_ = -1;
    QString chosenName_; // of the focused one; empty until the user chooses
    std::array<int, 2> cursors_{-1, -1};
    Cursor moving_ = Cursor::A;
};

} // namespace vlk
