#pragma once

// Calibration tables as text: the CSV file, and what the clipboard carries to and from a spreadsheet.
//
// A CSV file begins with a line of headings, then comes a line a row: sensor value, ";", volume, numbers with
// a point, no quotes, CR LF, in the 8-bit encoding of the system. On the clipboard the columns stand as on
// the screen, volume first, with tabs between them and the decimal sign of the user's locale.
//
// Reading takes what spreadsheets make of such a table too: a tab or a comma between the cells, a comma as
// decimal sign, blanks between thousands, cells in quotes, a byte order mark; from the clipboard also commas
// between thousands, where the user's decimal sign is the point. Only the first two cells of a line count. A
// line with commas alone is two numbers where that can be told; where it cannot, its text stands in the first
// cell whole, for the user to see.

#include "fuel/table/fuel_rows.h"
#include "fuel/table/fuel_sensors.h"

#include <QByteArray>

#include <cstdint>
#include <optional>
#include <variant>
#include <vector>

namespace vlk {

// The names of the columns, as the user reads them.
struct FuelCaptions
{
    QString volume;
    QString value;
};

// No more characters of a line than these are looked at.
inline constexpr int kMaxFuelLine = 1024;

// The order of the columns.
enum class FuelOrder : std::uint8_t { ValueFirst, VolumeFirst };

// What the values of a table are, as far as its headings tell.
enum class FuelMeasure : std::uint8_t { Unknown, Voltage, Level };

// Headings of two columns.
struct FuelHeadings
{
    FuelOrder order;
    QString value; // the one of the values
    FuelMeasure measure;
};

// A CSV file that was read by its headings.
struct FuelCsv
{
    FuelRows rows;
    QString value; // the heading of the values
    FuelMeasure measure = FuelMeasure::Unknown;
};

// Why there is none.
enum class FuelCsvFault : std::uint8_t { NoTable, NoOrder };

QByteArray fuelCsv(const FuelCaptions& captions, const FuelRows& rows);
// The first line is dropped, whatever it says, and so are blank ones. None for what is no text or has more
// than kMaxFuelRows rows.
std::optional<FuelRows> readFuelCsv(const QByteArray& content, FuelOrder order = FuelOrder::ValueFirst);
// What the first line says of a file: the captions of the screen, if there are any, or words of any language
// of the texts. None where it does not tell.
std::optional<FuelHeadings> fuelCsvHeadings(const QByteArray& content, const FuelCaptions& captions = {});
// In the order that the headings tell. Litres that are read as levels give wrong litres which nobody notices,
// so rows whose headings do not tell are refused.
std::variant<FuelCsv, FuelCsvFault> readFuelCsvByHeadings(const QByteArray& content,
                                                          const FuelCaptions& captions = {});

QString fuelClipboard(const FuelCaptions& captions, const FuelRows& rows);

// Why no cell can hold what a line has.
enum class FuelRefusal : std::uint8_t { NoNumber, OutOfRange, TooManyDecimals, TooManyLines };

struct LeftOutLine
{
    int line; // from 1
    FuelRefusal reason;
    bool isOfVolume; // not of the value
};

// What a text would add to a table.
struct PastedRows
{
    FuelRows rows;
    std::vector<LeftOutLine> leftOut;
    FuelOrder order = FuelOrder::VolumeFirst;
    bool areHeaded = false; // the order is that of headings
};

// Headings may be there; what they say of the order counts, in whatever language it was saved, and that of
// the screen or the given one without them. With more than kMaxFuelRows rows all is left out.
PastedRows readFuelClipboard(const QString& text, const FuelCaptions& captions, const FuelKind& kind,
                             FuelOrder order = FuelOrder::VolumeFirst);

} // namespace vlk
