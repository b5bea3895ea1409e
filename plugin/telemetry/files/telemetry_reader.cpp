#include "telemetry/files/telemetry_reader.h"

#include "telemetry/record/record_head.h"

#include <QDeadlineTimer>
#include <QIODevice>
#include <QLoggingCategory>

namespace vlk {

namespace {

// Looking at the clock costs more than reading a record.
constexpr int kStepsBetweenLooks = 64;

// By FileDamage::Kind.
const QLoggingCategory& damageLog(FileDamage::Kind kind)
{
    static const QLoggingCategory logs[] = {
        QLoggingCategory("vlk.files.form"),     QLoggingCategory("vlk.files.header"),
        QLoggingCategory("vlk.files.damage"),   QLoggingCategory("vlk.files.cut"),
        QLoggingCategory("vlk.files.checksum"), QLoggingCategory("vlk.files.count"),
        QLoggingCategory("vlk.files.lines")};
    return logs[kind];
}

bool isBinary(QIODevice& device, const QString& name)
{
    const QByteArray start = device.peek(8);
    if (looksBinary(bytesAt(start.constData(), start.size())))
        return true;
    return !start.startsWith('<') && name.endsWith(QLatin1String(".tmi"), Qt::CaseInsensitive);
}

} // namespace

TelemetryReader::Reader TelemetryReader::readerOf(QIODevice& device, const QString& name,
                                                  TelemetryReading reading)
{
    if (vlk::isBinary(device, name))
        return Reader(std::in_place_type<TelemetryBinaryReader>, device);
    return Reader(std::in_place_type<TelemetryXmlReader>, device, reading);
}

TelemetryReader::TelemetryReader(QIODevice& device, const QString& name, TelemetryReading reading)
    : name_(name), size_(device.isSequential() ? 0 : device.size()), reader_(readerOf(device, name, reading))
{
}

bool TelemetryReader::step()
{
    return std::visit([](auto& reader) { return reader.step(); }, reader_);
}

bool TelemetryReader::readFor(int milliseconds)
{
    const QDeadlineTimer end(milliseconds);
    do {
        for (int i = 0; i < kStepsBetweenLooks; ++i) {
            if (!step())
                return true;
        }
    } while (!end.hasExpired());
    return false;
}

double TelemetryReader::share() const
{
    const qint64 position = std::visit([](const auto& reader) { return reader.position(); }, reader_);
    return size_ > 0 ? static_cast<double>(position) / static_cast<double>(size_) : 0;
}

TelemetryContents& TelemetryReader::contents()
{
    return std::visit([](auto& reader) -> TelemetryContents& { return reader.contents(); }, reader_);
}

void TelemetryReader::finish()
{
    std::visit([](auto& reader) { reader.finish(); }, reader_);
}

TelemetryContents TelemetryReader::take()
{
    finish();
    for (const FileDamage& damage : contents().damages)
        qCWarning(damageLog(damage.kind)).noquote().nospace() << name_ << ": " << text(damage);
    return std::move(contents());
}

} // namespace vlk
