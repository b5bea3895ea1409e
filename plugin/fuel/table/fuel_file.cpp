#include "fuel/table/fuel_file.h"

#include "base/file_name.h"
#include "base/last_folder.h"
#include "base/replace_file.h"
#include "fuel/table/fuel_log.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

namespace vlk {

Q_LOGGING_CATEGORY(lcFuel, "vlk.fuel")

namespace {

// Bytes. The largest table has a tenth of this.
constexpr qint64 kLargestFile = 4'000'000;

QString noTable(const QString& path)
{
    return QStringLiteral("%1 holds no calibration table").arg(path);
}

} // namespace

QString fuelFileName(const QString& folder, const QString& sensor, const QString& title,
                     const QDateTime& time)
{
    return QStringLiteral("%1/%2-%3(%4)")
        .arg(folder, asFileName(sensor, {}), asFileName(title, {}),
             time.toString(QStringLiteral("yyyy-MM-dd hh_mm_ss")));
}

QString fuelFolder(const QString& otherwise)
{
    return lastFolder(FileKind::Calibration, otherwise);
}

void rememberFuelFolder(const QString& path)
{
    rememberFolder(FileKind::Calibration, path);
}

bool saveFuelFile(const QString& path, const QByteArray& content)
{
    return replaceFile(path, content);
}

std::optional<QByteArray> readFuelFile(const QString& path, QString* fault)
{
    const auto refuse = [fault](const QString& reason) {
        if (fault)
            *fault = reason;
        return std::nullopt;
    };
    QFile file(path);
    // What is no plain file may have no end, or wait for its first byte for ever.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return refuse(QStringLiteral("cannot open %1 : %2").arg(path, file.errorString()));
    if (file.size() > kLargestFile)
        return refuse(QStringLiteral("%1 is too large for a calibration table").arg(path));
    return file.read(kLargestFile);
}

std::optional<FuelRows> readFuelCsvFile(const QString& path)
{
    QString fault = noTable(path);
    const std::optional<QByteArray> content = readFuelFile(path, &fault);
    std::optional<FuelRows> rows = content ? readFuelCsv(*content) : std::nullopt;
    if (!rows)
        qCWarning(lcFuel).noquote() << fault;
    return rows;
}

std::variant<FuelCsv, FuelCsvFault> readFuelCsvFileByHeadings(const QString& path,
                                                              const FuelCaptions& captions)
{
    QString fault = noTable(path);
    std::variant<FuelCsv, FuelCsvFault> read = FuelCsvFault::NoTable;
    if (const std::optional<QByteArray> content = readFuelFile(path, &fault))
        read = readFuelCsvByHeadings(*content, captions);
    const auto* const found = std::get_if<FuelCsvFault>(&read);
    if (found && *found == FuelCsvFault::NoTable)
        qCWarning(lcFuel).noquote() << fault;
    return read;
}

} // namespace vlk
