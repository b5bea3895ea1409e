#pragma once

// What the track shows, without a widget: the path, the value that colours it, stops and events. The records,
// the moment that is looked at and the span in sight are those of ShownRecords.

#include "telemetry/curves/curve_columns.h"
#include "telemetry/files/stops.h"
#include "telemetry/track/track_path.h"
#include "telemetry/track/value_classes.h"

namespace vlk {

class TrackModel : public QObject
{
    Q_OBJECT

public:
    TrackModel(ShownRecords* records, QObject* parent);

    ShownRecords& records() const { return *records_; }
    // Empty while it is being made.
    const TrackPath& path() const { return path_; }
    bool isBeingMade() const { return isBeingMade_ || records_->isBeingRead(); }

    // The value that colours the path; speed at first, none where the records have no numbers.
    const std::optional<CurveColumn>& column() const { return column_; }
    void setColumn(const std::optional<CurveColumn>& column);
    // Its title and unit, in the language of the moment.
    void retranslate() { chooseColumn(); }
    const ValueClasses& classes() const { return classes_; }
    // Null without a column; a computed one may end before the records.
    const NumberColumn* values() const;
    double valueAt(int record) const;

    const std::vector<Stop>& stops() const { return stops_; }
    // Rare ones, by their records.
    const std::vector<int>& events() const { return events_; }

    // Only what is in sight of the curves.
    bool isSpanOnly() const { return isSpanOnly_; }
    void setSpanOnly(bool only);
    // The time whose points are shown.
    TimeSpan shownTime() const;
    bool isShown(int point) const { return shownTime().contains(path_.time(point)); }
    // The bounds of what is shown; a place where nothing is.
    QRectF bounds() const;

Q_SIGNALS:
    // Another track.
    void restarted();
    void changed();

private:
    void restart();
    void grow(int first);
    void describe();
    void chooseColumn();
    void findStops();
    void findEvents();
    void classify();

    ShownRecords* records_;
    TrackPath path_;
    std::optional<CurveColumn> column_;
    ValueClasses classes_;
    std::vector<Stop> stops_;
    std::vector<int> events_;
    bool isSpanOnly_ = false;
    bool isBeingMade_ = false;
};

} // namespace vlk
