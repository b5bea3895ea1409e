#include "fuel/table/fuel_document.h"

#include "xml/xml_node.h"
#include "xml/xml_section.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

namespace vlk {

namespace {

const QString kName = QStringLiteral("Name");
const QString kNameRead = QStringLiteral("Name_A1");
const QString kTable = QStringLiteral("TABLE");
const QString kData = QStringLiteral("DATA");
const QString kVolume = QStringLiteral("param_U");
const QString kValue = QStringLiteral("param_V");
const QString kChanging[] = {QStringLiteral("from"), QStringLiteral("to")};

// The fraction is lost; what no integer holds ends at its limits.
int wholeLitres(const QString& volume)
{
    using Limits = std::numeric_limits<int>;
    const double litres = volume.toDouble();
    return std::isnan(litres) ? 0
                              : static_cast<int>(std::clamp<double>(litres, Limits::min(), Limits::max()));
}

void putTable(CXmlSection* root, const QString& sensor, const FuelRows& rows, bool isKept)
{
    root->setString(QStringLiteral("type"), sensor);
    const CXmlSectionPtr table = root->child(kTable);
    if (!table)
        return;
    for (const FuelRow& row : rows) {
        const CXmlSectionPtr data = table->child(kData, CXmlNode::Empty);
        data->setString(kVolume, isKept ? row.volume : QString::number(wholeLitres(row.volume)));
        data->setString(kValue, row.value);
        for (int i = 0; isKept && i < row.changing.size(); ++i)
            data->setString(kChanging[i], row.changing[i]);
        data->commit();
    }
    table->commit();
}

} // namespace

int cutVolumes(const FuelRows& rows)
{
    return static_cast<int>(std::ranges::count_if(
        rows, [](const FuelRow& row) { return row.volume.toDouble() != wholeLitres(row.volume); }));
}

QString cutVolumesInWords(const FuelRows& rows)
{
    constexpr int kNamed = 8;
    std::map<int, QStringList> volumes; // by what is left of them
    for (const FuelRow& row : rows)
        volumes[wholeLitres(row.volume)] << row.volume;
    QStringList cut;
    for (const auto& [whole, texts] : volumes) {
        const auto isCut = [whole = whole](const QString& text) { return text.toDouble() != whole; };
        if (std::ranges::any_of(texts, isCut))
            cut << QStringLiteral("%1 → %2").arg(texts.join(QLatin1String(", "))).arg(whole);
    }
    if (cut.size() > kNamed)
        cut = cut.mid(0, kNamed) << QStringLiteral("…");
    return cut.join(QLatin1String("; "));
}

void putFuelTable(CXmlSection* root, const QString& sensor, const QString& name, const FuelRows& rows)
{
    root->setChildValue(kName, name);
    putTable(root, sensor, rows, false);
}

void putKeptTable(CXmlSection* root, const QString& sensor, const FuelTableNames& names, const FuelRows& rows)
{
    root->setChildValue(kNameRead, names.typed);
    if (!names.offered.isEmpty())
        root->setChildValue(kName, names.offered);
    putTable(root, sensor, rows, true);
}

std::optional<FuelRows> fuelTable(CXmlSection* root)
{
    FuelRows rows;
    const CXmlSectionPtr table = root->existing(kTable);
    if (!table)
        return rows;
    for (CXmlSectionPtr row(table->firstChild(kData)); row; row.reset(table->nextChild())) {
        if (rows.size() == kMaxFuelRows)
            return {};
        const auto text = [&row](const QString& key) {
            return withDecimalPoint(row->getString(key, QStringLiteral("0")));
        };
        QStringList changing;
        for (const QString& reading : kChanging)
            changing << row->getString(reading);
        if (changing.contains(QString()))
            changing.clear();
        rows.push_back({text(kVolume), text(kValue), changing});
    }
    return rows;
}

QString fuelTableName(const CXmlSection* root)
{
    return root->getString(kNameRead);
}

QString fuelTableWrittenName(const CXmlSection* root)
{
    return root->getString(kName);
}

} // namespace vlk
