// Calibration tables of both file forms and from the clipboard: what is read, written and read again, is the
// same.

#include "fuel/table/fuel_document.h"
#include "fuel/table/fuel_report.h"
#include "fuel/table/fuel_text.h"
#include "xml/xml_document.h"

#include <QDateTime>

#include <cstdlib>

using namespace vlk;

namespace {

const FuelCaptions kCaptions{QStringLiteral("volume"), QStringLiteral("value")};

// Rows with numbers; a file quotes no other text.
FuelRows pointsOf(const FuelRows& rows)
{
    FuelRows points;
    for (const FuelRow& row : rows) {
        if (isPoint(row) && row.volume.size() + row.value.size() < kMaxFuelLine)
            points.push_back(row);
    }
    return points;
}

void expect(bool condition)
{
    if (!condition)
        std::abort();
}

void csv(const QByteArray& bytes)
{
    const auto read = readFuelCsv(bytes);
    const FuelRows pasted = readFuelClipboard(QString::fromUtf8(bytes), kCaptions, fuelKind(0)).rows;
    for (const FuelRows& rows : {read.value_or(FuelRows()), pasted}) {
        expect(rows.size() <= kMaxFuelRows);
        const FuelRows points = pointsOf(rows);
        expect(readFuelCsv(fuelCsv(kCaptions, points)) == points);
    }
    // What a paste gives a cell can hold, so it all comes back.
    const PastedRows again = readFuelClipboard(fuelClipboard(kCaptions, pasted), kCaptions, fuelKind(0));
    expect(again.rows == pasted && again.leftOut.empty());
}

void document(const QByteArray& bytes)
{
    XmlDocument read(bytes, kFuelRoot);
    const auto rows = read.isOpen() ? fuelTable(read.root()) : FuelRows();
    if (!rows)
        return;
    expect(rows->size() <= kMaxFuelRows);
    XmlDocument written(QString{}, kFuelRoot);
    putFuelTable(written.root(), "D1", fuelTableName(read.root()), *rows);
    XmlDocument again(written.text(), kFuelRoot);
    expect(fuelTable(again.root())->size() == rows->size());
    FuelPoints points;
    for (const FuelRow& row : *rows)
        points.push_back({fuelNumber(row.volume), fuelNumber(row.value)});
    expect(fuelReport("D1", fuelTableName(read.root()), points, {}).endsWith("</html>"));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    if (bytes.startsWith('<'))
        document(bytes);
    else
        csv(bytes);
    return 0;
}
