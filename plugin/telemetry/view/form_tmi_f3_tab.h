#pragma once

// A tab of values of a telemetry record of protocol 3.0: groups side by side in columns, as many of them as
// the window has room for. It knows neither a window nor a tracker; whoever has a decoded record can show it.

#include "telemetry/view/record_group.h"

#include <QWidget>

#include <vector>

class QHBoxLayout;
class QVBoxLayout;

class VLK_Form_Tmi_F3_Tab : public QWidget
{
    Q_OBJECT

public:
    QString title() const;

    virtual void fill(const TmiPage_Zeta3& page);
    virtual void retranslate();
    // Whether the record that was shown last has any of the tab.
    bool hasValues() const;

    // In this many pixels.
    void arrange(int width);

protected:
    VLK_Form_Tmi_F3_Tab(const char* titleKey, QWidget* parent);

    // Below the other groups of its column, which are counted from 0. In a narrow window the groups of a
    // column that has no room continue the one that they widen least, of equal ones the shortest.
    vlk::RecordGroup* addGroup(int column, const char* objectName, const char* titleKey);
    // Below all columns.
    vlk::RecordGroup* addWideGroup(const char* objectName, const char* titleKey);
    void setPartVisible(int part, bool visible);

private:
    struct Group
    {
        vlk::RecordGroup* box;
        int column;
    };
    using Columns = std::vector<std::vector<QWidget*>>;

    vlk::RecordGroup* makeGroup(const char* objectName, const char* titleKey);
    Columns placed(int columns) const;
    void alignLists();
    int neededWidth(const Columns& columns) const;

    const char* titleKey_;
    int width_ = 0;
    Columns shown_;
    std::vector<vlk::RecordGroup*> boxes_;
    std::vector<Group> groups_;
    std::vector<QVBoxLayout*> columns_;
    QHBoxLayout* sideBySide_;
    QVBoxLayout* layout_;
};
