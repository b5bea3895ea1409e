#pragma once

// The check of a finished tracker in the production modes: modem, inputs, navigation, and two voltages that
// have limits. What fails its limit shows red; a value that the record lacks counts as 0 and fails.

#include "telemetry/view/record_on_show.h"
#include "telemetry/view/value_rows.h"

#include <QWidget>

class QGridLayout;
class QGroupBox;
class QProgressBar;

class VLK_Form_TMI_Production : public QWidget
{
    Q_OBJECT

public:
    // Records go to `panel` too, if there is one.
    explicit VLK_Form_TMI_Production(EventPanel* panel, QWidget* parent = nullptr);

    // A record, from its type byte on.
    void takeRecord(const QByteArray& record);
    // Seconds east of UTC.
    void setUtcOffset(int seconds);
    qint64 number() const { return record_.number(); }
    void retranslate();

private:
    QGridLayout* addGroup(const char* name, const char* key);
    // The row "distance, seconds on the way, all seconds", whose captions are parts of one text.
    void addLastSegment(QGridLayout* grid);
    void fill(const TmiPage_Zeta3& page);
    void markLimits(const TmiPage_Zeta3& page);

    struct Group
    {
        QGroupBox* box;
        const char* key;
    };

    RecordOnShow record_;
    vlk::ValueRows rows_;
    std::vector<Group> groups_;
    QLabel* levelText_;
    QProgressBar* level_;
    QLabel* ain3Unit_;
    std::vector<QLabel*> segmentCaptions_;
    QLabel* reliabilityUnit_;
};
