#pragma once

// Pages as a file of either form has them, and what is read of such a file.

#include "sample_pages.h"
#include "telemetry/files/telemetry_contents.h"

#include <QBuffer>

inline vlk::TelemetryOrigin sampleOrigin()
{
    vlk::TelemetryOrigin origin;
    origin.model = QStringLiteral("R-7106");
    origin.vendor = QStringLiteral("VLK");
    origin.trackerId = QStringLiteral("12");
    origin.timeOffset = -7200;
    origin.titles.inputs[0] = QString::fromUtf8("Дверь & ①");
    origin.titles.outputs[1] = QStringLiteral("Out");
    origin.titles.temperatures[3] = QStringLiteral("T4");
    origin.titles.userTypes[1] = QStringLiteral("b");
    origin.titles.userTypes[48] = QString();
    return origin;
}

template <class Write>
QByteArray written(Write write, const vlk::TelemetryPages& pages,
                   const vlk::TelemetryOrigin& origin = sampleOrigin())
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return write(buffer, vlk::storeOf(pages), origin) ? buffer.data() : QByteArray("failed");
}

template <class Read, class... Options>
vlk::TelemetryContents readBack(Read read, QByteArray bytes, Options... options)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return read(buffer, options...);
}

inline QString numbers(const vlk::RecordStore& records)
{
    QStringList list;
    records.forEach([&list](const TmiPage_Zeta3& page) { list += QString::number(page.number()); });
    return list.join(QLatin1Char(' '));
}

// A letter for each.
inline QString kinds(const std::vector<vlk::FileDamage>& damages)
{
    QString letters;
    for (const vlk::FileDamage& damage : damages)
        letters += QLatin1Char("NHRCSML"[damage.kind]);
    return letters;
}
