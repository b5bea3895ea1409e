#include "fuel/table/unsteady_points.h"

#include "fuel/table/fuel_document.h"
#include "fuel/table/fuel_file.h"
#include "xml/xml_document.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace vlk {

namespace {

// Empty where the file cannot be read.
QString unsteadyPath(const QString& folder, const QString& file)
{
    const std::optional<QByteArray> content = readFuelFile(file);
    if (!content)
        return {};
    const QByteArray name = QCryptographicHash::hash(*content, QCryptographicHash::Sha256).toHex();
    return QStringLiteral("%1/.unsteady/%2.xml").arg(folder, QString::fromLatin1(name));
}

} // namespace

int rememberUnsteady(const QString& folder, const QString& file, const FuelRows& rows)
{
    const auto count = static_cast<int>(
        std::ranges::count_if(rows, [](const FuelRow& row) { return !row.changing.isEmpty(); }));
    const QString path = unsteadyPath(folder, file);
    if (path.isEmpty())
        return count;
    if (count == 0) {
        // Measured again, to the same values.
        QFile::remove(path);
        return 0;
    }
    QDir().mkpath(QFileInfo(path).path());
    XmlDocument document(QString{}, QLatin1String(kFuelRoot));
    putKeptTable(document.root(), {}, {}, rows);
    document.saveAs(path);
    return count;
}

void recallUnsteady(const QString& folder, const QString& file, FuelRows& rows)
{
    const QString path = unsteadyPath(folder, file);
    if (path.isEmpty() || !QFile::exists(path))
        return;
    XmlDocument document(path, QLatin1String(kFuelRoot));
    const FuelRows remembered =
        document.isOpen() ? fuelTable(document.root()).value_or(FuelRows()) : FuelRows();
    if (remembered.size() != rows.size())
        return;
    for (std::size_t i = 0; i < rows.size(); ++i)
        rows[i].changing = remembered[i].changing;
}

} // namespace vlk
