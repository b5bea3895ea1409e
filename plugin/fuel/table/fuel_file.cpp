#include "fuel/table/fuel_file.h"

#include "base/file_name.h"
#include "base/replace_file.h"
#include "fuel/table/fuel_log.h"
#include "fuel/table/fuel_text.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

namespace vlk {

Q_LOGGING_CATEGORY(lcFuel, "vlk.fuel")

namespace {

// Bytes. The largest table has a tenth of this.
constexpr qint64 kLargestFile = 4'000'000;

} // namespace

QString fuelFileName(const QString& folder, const QString& sensor, const QString& title,
                     const QDateTime& time)
{
    return QStringLiteral("%1/%2-%3(%4)")
        .arg(folder, asFileName(sensor, {}), asFileName(title, {}),
             time.toString(QStringLiteral("yyyy-MM-dd hh_mm_ss")));
}

bool saveFuelFile(const QString& path, const QByteArray& content)
{
    return replaceFile(path, content);
}

std::optional<QByteArray> readFuelFile(const QString& path)
{
    QFile file(path);
    // What is no plain file may have no end, or wait for its first byte for ever.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        qCWarning(lcFuel).noquote() << "cannot open" << path << ':' << file.errorString();
        return {};
    }
    if (file.size() > kLargestFile) {
        qCWarning(lcFuel).noquote() << path << "is too large for a calibration table";
        return {};
    }
    return file.read(kLargestFile);
}

std::optional<FuelRows> readFuelCsvFile(const QString& path)
{
    const std::optional<QByteArray> content = readFuelFile(path);
    if (!content)
        return {};
    std::optional<FuelRows> rows = readFuelCsv(*content);
    if (!rows)
        qCWarning(lcFuel).noquote() << path << "holds no calibration table";
    return rows;
}

} // namespace vlk
