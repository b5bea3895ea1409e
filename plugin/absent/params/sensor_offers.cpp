#include "absent/params/sensor_offers.h"

#include "base/translated.h"
#include "settings/values.h"

namespace vlk {

namespace {

constexpr int kUserParameter = 1; // target of a value
constexpr int kLastWithNumbers = 6;

QString path(const char* element, int sensor, const char* key)
{
    return numberedName(element, sensor) + QLatin1Char('/') + QLatin1String(key);
}

} // namespace

SensorOfferSource::SensorOfferSource(const Values& bluetooth, int sensor)
    : values_(bluetooth), sensor_(sensor), type_(bluetooth.rowAt(path("SENS%1", sensor, "form")))
{
    for (const BluetoothSensorType& type : kBluetoothSensorTypes) {
        const BluetoothIndex& index = type.index;
        const char* element = index.elsewhere ? index.elsewhere : type.section;
        types_.push_back(
            {&type, type.vendors.size() > 1 ? bluetooth.rowAt(path(type.section, sensor, "type")) : -1,
             index.list == BluetoothList::None ? -1 : bluetooth.rowAt(path(element, sensor, "idx"))});
    }
    for (int place = 0; place < kUniversalValues; ++place) {
        const QString row = QStringLiteral("U%1P%2/").arg(sensor).arg(place + 1);
        const auto at = [&](const char* key) { return bluetooth.rowAt(row + QLatin1String(key)); };
        rows_[place] = {at("group"), at("stor"), at("idx"), at("prm")};
    }
}

SensorOffers SensorOfferSource::offers() const
{
    SensorOffers offers;
    const QString& code = values_.value(type_);
    for (const TypeRows& known : types_) {
        if (code != QLatin1String(known.type->code))
            continue;
        offers.type = known.type;
        offers.vendor = known.vendor < 0 ? 0 : values_.value(known.vendor).toInt();
        if (known.number >= 0 && known.type->vendors[offers.vendor].indexed)
            offers.number = values_.value(known.number).toInt();
    }
    for (int place = 0; place < kUniversalValues; ++place)
        offers.rows[place] = universal(place);
    return offers;
}

SensorOffers::Universal SensorOfferSource::universal(int place) const
{
    const UniversalRows& rows = rows_[place];
    SensorOffers::Universal value;
    value.isUsed = values_.value(rows.group) != QLatin1String("0");
    if (!value.isUsed)
        return value;
    value.target = values_.value(rows.target).toInt();
    if (value.target > kLastWithNumbers)
        value.target = 0;
    const QString& number = values_.value(rows.number);
    if (value.target != 0 && number != QLatin1String("0"))
        value.number = number.rightJustified(2);
    if (value.target == kUserParameter) {
        value.name = QStringLiteral("U%1P%2, %3 %4 %5")
                         .arg(sensor_)
                         .arg(place + 1)
                         .arg(translated("cfgt17_072"), translated("abbr_047"), number.trimmed());
        value.element = values_.value(rows.element);
    }
    return value;
}

} // namespace vlk
