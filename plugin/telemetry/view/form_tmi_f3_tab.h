#pragma once

// A tab of values of a telemetry record of protocol 3.0: groups side by side in columns. It knows neither a
// window nor a tracker; whoever has a decoded record can show it.

#include "telemetry/view/record_group.h"

#include <QWidget>

#include <vector>

class QVBoxLayout;

class VLK_Form_Tmi_F3_Tab : public QWidget
{
    Q_OBJECT

public:
    QString title() const;

    virtual void fill(const TmiPage_Zeta3& page);
    virtual void retranslate();

protected:
    VLK_Form_Tmi_F3_Tab(const char* titleKey, int columns, QWidget* parent);

    // Below the groups that the column holds.
    vlk::RecordGroup* addGroup(int column, const char* objectName, const char* titleKey);
    // Below the columns.
    vlk::RecordGroup* addWideGroup(const char* objectName, const char* titleKey);
    const std::vector<vlk::RecordGroup*>& groups() const { return groups_; }

private:
    const char* titleKey_;
    std::vector<QVBoxLayout*> columns_;
    std::vector<vlk::RecordGroup*> groups_;
};
