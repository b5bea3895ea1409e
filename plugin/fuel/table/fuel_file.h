#pragma once

// Calibration files on the disk: what they are called, and how they are read and saved.

#include "fuel/table/fuel_text.h"

#include <QByteArray>
#include <QString>

#include <optional>

class QDateTime;

namespace vlk {

// "FOLDER/D1-TITLE(2026-05-17 14_03_59)". Characters that a file name cannot hold are left out.
QString fuelFileName(const QString& folder, const QString& sensor, const QString& title,
                     const QDateTime& time);

// Where files of tables are asked for: the folder of the one that was saved last in this run of the program,
// and before that the other one.
QString fuelFolder(const QString& otherwise);
void rememberFuelFolder(const QString& path);

// True when the file at `path` now holds the content. Otherwise it holds what it held before, and the log
// (vlk.save) says why.
bool saveFuelFile(const QString& path, const QByteArray& content);

// None when there is no such file or it is too large for a calibration, with the reason as the log words it.
std::optional<QByteArray> readFuelFile(const QString& path, QString* fault = nullptr);
// The rows of a CSV file; none likewise, or when it holds no table. The log (vlk.fuel) says why.
std::optional<FuelRows> readFuelCsvFile(const QString& path);
// A CSV file by its headings. One whose headings do not tell has its rows, so the log says nothing of it.
std::variant<FuelCsv, FuelCsvFault> readFuelCsvFileByHeadings(const QString& path,
                                                              const FuelCaptions& captions);

} // namespace vlk
