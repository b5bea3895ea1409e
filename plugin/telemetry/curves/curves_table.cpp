#include "telemetry/curves/curves_table.h"

#include "base/csv_line.h"
#include "base/translated.h"
#include "telemetry/curves/curves_model.h"
#include "telemetry/curves/time_scale.h"
#include "telemetry/files/iso_times.h"

#include <QIODevice>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace vlk {

namespace {

constexpr int kDigits = 10;
constexpr int kChunkBytes = 1 << 16;

} // namespace

bool writeCurves(QIODevice& device, const CurvesModel& model, const TimeSpan& span)
{
    ShownRecords& records = model.records();
    const bool hasComma = QLocale().decimalPoint() == QLatin1Char(',');
    const char separator = hasComma ? ';' : ',';
    const qint32 offset = records.utcOffset();
    QStringList headings{translated("tmizta_123"),
                         QStringLiteral("%1, %2").arg(translated("tmizta_125"), zoneText(offset))};
    for (const Curve& curve : model.curves())
        headings << withUnit(curve.column);
    // With the mark by which spreadsheets know UTF-8.
    QByteArray text = "\xEF\xBB\xBF" + csvLine(headings, separator).toUtf8();
    IsoTimes zoned(offset);
    const std::vector<quint32>& times = records.columns().times();
    const std::vector<quint32>& numbers = records.columns().recordNumbers();
    for (const int record : records.byTime()) {
        if (!span.contains(times[record]))
            continue;
        char moment[IsoTimes::kLongest];
        const auto length = static_cast<int>(zoned.put(moment, times[record]) - moment);
        if (numbers[record] != 0)
            text += QByteArray::number(numbers[record]);
        text += separator + QByteArray(moment, length);
        for (const Curve& curve : model.curves()) {
            text += separator;
            const double value = model.valueAt(curve, record);
            if (!std::isnan(value))
                text += QByteArray::number(value, 'g', kDigits).replace('.', hasComma ? ',' : '.');
        }
        text += "\r\n";
        if (text.size() < kChunkBytes)
            continue;
        if (device.write(text) != text.size())
            return false;
        text.clear();
    }
    return device.write(text) == text.size();
}

} // namespace vlk
