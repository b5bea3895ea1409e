#include "tracker/ddd_file.h"

#include "tracker/driver.h"
#include "tracker/random.h"

#include <QDateTime>
#include <QtEndian>

namespace tracker {

namespace {

constexpr int kCardCode = 5;
constexpr int kDayCode = 1;
constexpr int kLastCode = 5;
constexpr int kSignatureBytes = 128;
constexpr int kDays = 28;

template <typename T>
void appendBig(QByteArray& bytes, T value)
{
    const T big = qToBigEndian(value);
    bytes.append(reinterpret_cast<const char*>(&big), sizeof big);
}

void appendBlock(QByteArray& file, quint16 tag, quint8 kind, const QByteArray& data)
{
    appendBig(file, tag);
    appendBig(file, kind);
    appendBig(file, static_cast<quint16>(data.size()));
    file.append(data);
}

void appendSigned(QByteArray& file, quint16 tag, const QByteArray& data)
{
    Random random(mix(tag, static_cast<quint64>(data.size())));
    QByteArray signature;
    for (int i = 0; i < kSignatureBytes; ++i)
        signature.append(static_cast<char>(random.integer(0, 255)));
    appendBlock(file, tag, 0, data);
    appendBlock(file, tag, 1, signature);
}

QByteArray padded(const char* text, int width)
{
    return QByteArray(text).leftJustified(width, ' ', true);
}

// A day is its midnight, its distance, and changes of activity: activity in the upper bits, minute below.
QByteArray activity(qint64 lastDay, int count, quint64 seed)
{
    constexpr int driving = 3;
    constexpr int activityShift = 11;
    constexpr int workFrom = 240; // minute
    QByteArray records;
    for (int back = count - 1; back >= 0; --back) {
        const qint64 day = lastDay - back;
        Random random(mix(seed, static_cast<quint64>(day)));
        const int changes = random.integer(6, 18);
        appendBig(records, static_cast<quint32>(day * kDaySeconds));
        appendBig(records, static_cast<quint16>(random.integer(140, 360)));
        appendBig(records, static_cast<quint16>(changes));
        int minute = workFrom;
        for (int i = 0; i < changes; ++i) {
            appendBig(records, static_cast<quint16>((i % 2 ? 0 : driving) << activityShift | minute));
            minute += random.integer(15, 60);
        }
    }
    return records;
}

QByteArray cardContent(const Vehicle& vehicle)
{
    const Driver& driver = driverOf(vehicle.m);
    QByteArray file;
    appendBlock(file, 0x0002, 0, padded("ICC DRIVER CARD", 25));
    appendBlock(file, 0x0005, 0, padded("IC", 8));
    appendSigned(file, 0x0501, padded("DRIVER", 10));
    appendSigned(file, 0x0520,
                 padded(driver.card, 16) + padded("ROSAVTOTRANS", 36) + padded(driver.surname, 36) +
                     padded(driver.firstName, 36));
    appendSigned(file, 0x0504, activity(vehicle.m.time / kDaySeconds, kDays, vehicle.m.seed));
    return file;
}

QByteArray vehicleContent(int code, quint32 parameter, const Vehicle& vehicle)
{
    const qint64 lastDay = (code == kDayCode ? static_cast<qint64>(parameter) : vehicle.m.time) / kDaySeconds;
    QByteArray file;
    appendSigned(file, 0x7601, padded("XTC652001N1710601", 17) + padded("A710BC76", 14));
    appendSigned(file, static_cast<quint16>(0x7602 + code),
                 activity(lastDay, code == kDayCode ? 1 : kDays, vehicle.m.seed));
    return file;
}

} // namespace

DddFile makeDddFile(int code, quint32 parameter, const Vehicle& vehicle)
{
    const QByteArray stamp = QDateTime::fromSecsSinceEpoch(vehicle.m.time, Qt::UTC)
                                 .toString(QStringLiteral("yyyyMMdd_HHmm"))
                                 .toLatin1();
    if (code == kCardCode) {
        constexpr quint32 slotByte = 0xFF;
        if ((parameter & slotByte) != 1)
            return {};
        const Driver& driver = driverOf(vehicle.m);
        return {"C_" + stamp + "_" + driver.surname + "_" + driver.card + ".ddd", cardContent(vehicle)};
    }
    if (code < 0 || code > kLastCode)
        return {};
    return {"V_" + stamp + "_A710BC76.ddd", vehicleContent(code, parameter, vehicle)};
}

} // namespace tracker
