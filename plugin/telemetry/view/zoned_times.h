#pragma once

// The times that are typed in the telemetry view, and the zone in which they are shown. The zone and the
// period that were last chosen are remembered over runs, beside the telemetry files, and a button calls them
// back. A period whose save was cancelled does not take the place of the one before it.

#include <QDateTime>
#include <QObject>

#include <optional>

class QDateTimeEdit;

namespace Ui {
class VLK_Designer_Widget_Tmi_View;
}

namespace vlk {

class ZonedTimes : public QObject
{
    Q_OBJECT

public:
    explicit ZonedTimes(const Ui::VLK_Designer_Widget_Tmi_View& ui);

    // The zone of this computer, and the last hour.
    void begin();
    // The fields go on meaning the same moments.
    void setZone(int hours);
    // Seconds east of UTC.
    int offset() const { return offset_; }
    QDateTime utc(const QDateTimeEdit& field) const;

    void remember();
    // Unless everything is as the window began, or as it was given up.
    void rememberChosen();
    void giveUp() { begun_ = chosen(); }
    void retranslate() { describe(); }

private:
    struct Choice
    {
        int zone; // hours
        QDateTime first;
        QDateTime last; // both in UTC

        bool operator==(const Choice&) const = default;
    };

    Choice chosen() const;
    static std::optional<Choice> remembered();
    void callBack();
    void describe();
    // The time as the field shows it.
    QDateTime local(const QDateTime& utc) const { return utc.addSecs(offset_); }

    const Ui::VLK_Designer_Widget_Tmi_View& ui_;
    int offset_ = 0;
    std::optional<Choice> begun_;
};

} // namespace vlk
