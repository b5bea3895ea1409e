#pragma once

// The calibration document, an XML file with the root FUEL that holds the table of one sensor:
//
//     <FUEL model="R-7106" type="D1">
//         <objName>...</objName> <Name>...</Name>
//         <TABLE> <DATA param_U="10" param_V="231"/> ... </TABLE>
//     </FUEL>
//
// param_U is the volume, of which the file keeps whole litres only, and param_V the text of the sensor value.
// The name of the sensor is written as Name and read as Name_A1, so that a document written here loads
// without one.

#include "fuel/table/fuel_rows.h"

#include <optional>

struct CXmlSection;

namespace vlk {

inline constexpr auto kFuelRoot = "FUEL";

// How many volumes the document keeps without their fraction.
int cutVolumes(const FuelRows& rows);

// Which ones, with what is left of them and with those of other rows that end there too, as
// "20.5 → 20; 40, 40.5 → 40": the first ones. Empty for none.
QString cutVolumesInWords(const FuelRows& rows);

// Puts one sensor's table into the root of a document.
void putFuelTable(CXmlSection* root, const QString& sensor, const QString& name, const FuelRows& rows);

// What the field of the name holds, and what it shows while it is empty: the name of the file.
struct FuelTableNames
{
    QString typed;
    QString offered;
};

// Puts the table with volumes as they stand, with the readings that still changed as attributes from and to,
// and with the names where fuelTableName and fuelTableWrittenName find them: for a document that only this
// program reads.
void putKeptTable(CXmlSection* root, const QString& sensor, const FuelTableNames& names,
                  const FuelRows& rows);

// The table in the root of a document; none when it has more than kMaxFuelRows rows.
std::optional<FuelRows> fuelTable(CXmlSection* root);
QString fuelTableName(const CXmlSection* root);
// The name that a document written here holds.
QString fuelTableWrittenName(const CXmlSection* root);

} // namespace vlk
