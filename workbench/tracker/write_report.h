#pragma once

// What became of a configuration that was written to the tracker: taken or refused. Sections that it lacks
// keep their values.

#include <QString>

namespace tracker {

struct WriteReport
{
    bool accepted = false;
    bool sameAsBefore = false; // every key has the value that it had
    QString reasonKey;         // key of the refusal's text, wb_refused_..., empty when accepted
    QString detail;            // of a refusal: the parser's words, or what stood in place of the model
};

} // namespace tracker
