#pragma once

// A write that is on its way to the tracker, in a file that is there from the first byte until the report.
// The file of an earlier run tells of a write that its program did not live to see the end of.

#include "road/road_report.h"

namespace workbench {

class PendingWrite
{
public:
    explicit PendingWrite(const QString& path) : path_(path) {}

    // With what is to be told and to be tried again: tracker, backup, request.
    void keep(const RoadReport& report) const;
    void drop() const;
    // What an earlier run has left: a report of a write that nobody has seen the end of.
    std::optional<RoadReport> left() const;

private:
    QString path_;
};

} // namespace workbench
