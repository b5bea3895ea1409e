#pragma once

// A telemetry record of protocol 3.0: decodes it, fills the event panel, and then its tabs.

#include "telemetry/record/telemetry_titles.h"
#include "telemetry/view/record_on_show.h"

#include <QWidget>

class VLK_TabWidget;

class VLK_Form_TMI_Zeta3 : public QWidget
{
    Q_OBJECT

public:
    // Records go to `panel` too, if there is one.
    explicit VLK_Form_TMI_Zeta3(EventPanel* panel, QWidget* parent = nullptr);

    // The names of lines and sensors that the tabs show beside their values.
    void setTitles(const vlk::TelemetryTitles& titles) { titles_ = titles; }
    // Bit 3: the tracker has four outputs, else three.
    void setCapabilityMask(quint64 mask) { capabilityMask_ = mask; }
    // Off while records are requested automatically: the user cannot command the tracker then.
    void setCommandsEnabled(bool enabled) { commandsEnabled_ = enabled; }

    // A record, from its type byte on.
    void takeRecord(const QByteArray& record) { record_.take(record); }

    // Seconds east of UTC.
    void setUtcOffset(int seconds) { record_.setUtcOffset(seconds); }
    // -1 before the first record.
    qint64 number() const { return record_.number(); }
    const TmiPage_Zeta3* page() const { return record_.page(); }

private:
    RecordOnShow record_;
    VLK_TabWidget* tabWidget_;
    vlk::TelemetryTitles titles_;
    quint64 capabilityMask_ = 0;
    bool commandsEnabled_ = true;
};
