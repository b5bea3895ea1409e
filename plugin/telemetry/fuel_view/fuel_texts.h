#pragma once

// Numbers and times of the lists of fuel, in the signs of the language.

#include <QString>

namespace vlk {

// A dash for no number.
QString numberText(double number, int decimals = 0);
// For a spreadsheet, which wants no groups; nothing for no number.
QString sheetNumber(double number, int decimals);
QString signedText(double number, int decimals = 0);
// "2026-11-20T09:40:12+03:00", as files have it.
QString fileTime(double seconds, qint32 utcOffset);
// "20.11.2026 09:40", with seconds behind where they are asked for.
QString listTime(double seconds, qint32 utcOffset, bool withSeconds = false);
QString listDay(double seconds, qint32 utcOffset);
// "55.7512345, 37.6184312"; a dash where there is no place.
QString placeText(double latitude, double longitude);
// "4:05", hours and minutes.
QString hoursText(double seconds);

} // namespace vlk
