#pragma once

// A filter as a person would type it: headings of the columns of the window, with the names that the user
// gave to lines and sensors, words of their values in the language of the moment, times in the zone on show.

#include "telemetry/files/filter_names.h"

namespace vlk {

class RecordsModel;

// As the head of the column in this file has it, without its unit.
QString columnInWords(const FilterColumn& column, const FilterNames& names, const RecordsModel& model);
// The filter in the words of the windows; as it is kept where no words would be read as the same one.
QString filterInWords(const Filter& filter, const FilterNames& names, const RecordsModel& model,
                      qint32 utcOffset);

} // namespace vlk
