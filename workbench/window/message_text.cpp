#include "window/message_text.h"

#include <algorithm>
#include <iterator>

namespace workbench {

namespace {

// What findMessage relies on.
static_assert(std::ranges::is_sorted(kMessages, {}, &MessageInfo::number));

template <class Record>
const Record& as(const void* address)
{
    return *static_cast<const Record*>(address);
}

QString quoted(const QString& text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString quoted(const char* text, std::size_t size)
{
    return quoted(QString::fromLocal8Bit(text, static_cast<int>(qstrnlen(text, static_cast<uint>(size)))));
}

QString hexNumber(quint64 value, int digits)
{
    return QStringLiteral("0x%1").arg(value, digits, 16, QLatin1Char('0'));
}

QByteArray rawBytes(const void* address, int size)
{
    return {static_cast<const char*>(address), size};
}

// One record by its fields.
using Describe = MessageText (*)(const void*);

struct RecordRow
{
    Message message;
    Describe describe;
};

MessageText describePair(const void* p)
{
    const auto& pair = as<IdPair>(p);
    const quint64 number = static_cast<quint64>(pair.high) << 32 | pair.low;
    return {QStringLiteral("id=%1 (%2)").arg(number).arg(hexNumber(number, 16)), {}};
}

// The members in the places of the form's marks.
template <class Record, class... Members>
MessageText numbers(const void* p, const char* form, Members Record::*... members)
{
    const auto& record = as<Record>(p);
    QString text = QString::fromLatin1(form);
    ((text = text.arg(record.*members)), ...);
    return {text, {}};
}

constexpr RecordRow kRecords[] = {
    {Message::SetIdentity,
     [](const void* p) -> MessageText {
         const auto& r = as<IdentityInfo>(p);
         return {QStringLiteral("model=%1 vendor=%2").arg(quoted(r.model), quoted(r.vendor)), {}};
     }},
    {Message::SetPaths,
     [](const void* p) -> MessageText {
         const auto& r = as<Paths>(p);
         return {QStringLiteral("pathTmi=%1 pathXml=%2 pathThird=%3 pathFourth=%4")
                     .arg(quoted(r.pathTmi), quoted(r.pathXml), quoted(r.pathThird), quoted(r.pathFourth)),
                 {}};
     }},
    {Message::TrackerAttached,
     [](const void* p) -> MessageText {
         const auto& r = as<ConnectInfo>(p);
         return {QStringLiteral("model=%1 text1=%2 text2=%3 mask=%4")
                     .arg(quoted(r.model), quoted(r.text1), quoted(r.text2),
                          hexNumber(static_cast<quint64>(r.maskHigh) << 32 | r.maskLow, 16)),
                 {}};
     }},
    {Message::OpenConfiguration,
     [](const void* p) -> MessageText {
         const auto& r = as<OpenRequest>(p);
         return {QStringLiteral("showFull=%1 fromFile=%2 path=%3")
                     .arg(r.showFull)
                     .arg(r.fromFile)
                     .arg(quoted(QString::fromLocal8Bit(r.path))),
                 {}};
     }},
    {Message::LiveKey, describePair},
    {Message::RfidNumber, describePair},
    {Message::SupplyValues,
     [](const void* p) -> MessageText {
         const auto& r = as<SupplyRecord>(p);
         QStringList values;
         for (const std::uint16_t value : r.values)
             values.append(QString::number(value));
         return {QStringLiteral("values={%1} supply=%2 mV")
                     .arg(values.join(QLatin1String(", ")))
                     .arg(r.values[kSupplyElement]),
                 {}};
     }},
    {Message::AnalogRecord,
     [](const void* p) -> MessageText {
         return {{}, rawBytes(p, kAnalogRecordSize)};
     }},
    {Message::AccelRecord,
     [](const void* p) -> MessageText {
         const auto& r = as<AccelValues>(p);
         // Copies, because the packed members may lie unaligned.
         const std::uint32_t movement = r.movement;
         const double tilt = r.tilt;
         const std::uint32_t shock = r.shock;
         return {QStringLiteral("movement=%1 tilt=%2 shock=%3").arg(movement).arg(tilt).arg(shock), {}};
     }},
    {Message::AccelCommandResult,
     [](const void* p) -> MessageText {
         return {QStringLiteral("status=%1").arg(static_cast<const std::uint8_t*>(p)[kAccelStatusByte]),
                 rawBytes(p, kAccelResultSize)};
     }},
    {Message::BtDeviceFound,
     [](const void* p) -> MessageText {
         const auto& r = as<BtDevice>(p);
         return {
             QStringLiteral("name=%1 mac=%2").arg(quoted(r.name, sizeof r.name), quoted(r.mac, sizeof r.mac)),
             {}};
     }},
    {Message::EndSave,
     [](const void* p) { return numbers(p, "ended=%1 records=%2", &EndedSave::ended, &EndedSave::records); }},
    {Message::GetRunningWork,
     [](const void* p) {
         return numbers(p, "saving=%1 automatic=%2 clearing=%3 cancelled=%4", &RunningWork::saving,
                        &RunningWork::automatic, &RunningWork::clearing, &RunningWork::cancelled);
     }},
    {Message::GetExtensions, [](const void* p) { return numbers(p, "newest=%1", &Extensions::newest); }},
    {Message::CompareFiles,
     [](const void* p) {
         return numbers(p, "outcome=%1 differences=%2", &FileComparison::outcome,
                        &FileComparison::differences);
     }},
    {Message::ConfirmWrite,
     [](const void* p) {
         return numbers(p, "step=%1 takenOver=%2", &WriteConfirmation::step, &WriteConfirmation::takenOver);
     }},
    {Message::CheckFile,
     [](const void* p) {
         return numbers(p, "outcome=%1 remarks=%2", &FileCheck::outcome, &FileCheck::remarks);
     }},
    {Message::ReportFile, [](const void* p) { return numbers(p, "outcome=%1", &FileReport::outcome); }},
    {Message::ApplyPreset,
     [](const void* p) {
         return numbers(p, "outcome=%1 changes=%2 misfits=%3", &PresetApplication::outcome,
                        &PresetApplication::changes, &PresetApplication::misfits);
     }},
    {Message::BringSettings,
     [](const void* p) { return numbers(p, "outcome=%1", &BroughtSettings::outcome); }},
    {Message::OfferTexts,
     [](const void* p) -> MessageText {
         const auto& r = as<OfferedTexts>(p);
         return {QStringLiteral("offered=%1").arg(r.fill ? 1 : 0), {}};
     }},
    {Message::TachographFileRequest,
     [](const void* p) -> MessageText {
         const auto& r = as<szQueryTaho>(p);
         const std::uint32_t parameter = r.parameter;
         return {QStringLiteral("code=%1 parameter=%2").arg(r.code).arg(parameter), {}};
     }},
};

constexpr Describe describeOf(Message message)
{
    for (const RecordRow& row : kRecords) {
        if (row.message == message)
            return row.describe;
    }
    return nullptr;
}

// A message that brings a record and has no row would be told without its content.
static_assert(std::ranges::all_of(kMessages, [](const MessageInfo& info) {
    return (info.p1 != Parameter::RecordAddress && info.p2 != Parameter::RecordAddress) ||
           describeOf(info.number);
}));

MessageText describeParameter(Message message, Parameter kind, const void* p)
{
    if (kind == Parameter::None)
        return {};
    if (kind == Parameter::Value)
        return {QString::number(static_cast<qint64>(vlk::asValue(p))), {}};
    if (!p)
        return {QStringLiteral("null"), {}};
    switch (kind) {
    case Parameter::ByteAddress:
        return {QString::number(as<std::uint8_t>(p)), {}};
    case Parameter::Int32Address:
        return {QString::number(as<std::int32_t>(p)), {}};
    case Parameter::FloatAddress:
        return {QString::number(static_cast<double>(as<float>(p))), {}};
    case Parameter::StringAddress:
        return {quoted(as<QString>(p)), {}};
    case Parameter::BytesAddress:
        return {{}, as<QByteArray>(p)};
    case Parameter::DateTimeAddress:
        return {as<QDateTime>(p).toUTC().toString(Qt::ISODate), {}};
    case Parameter::TextBuffer:
        return {quoted(static_cast<const char*>(p), kBalanceUssdSize), {}};
    case Parameter::RecordAddress:
        return describeOf(message)(p);
    case Parameter::None:
    case Parameter::Value:
        break;
    }
    return {};
}

} // namespace

const MessageInfo* findMessage(Direction direction, quint32 id)
{
    const auto* row = std::ranges::lower_bound(kMessages, Message(id), {}, &MessageInfo::number);
    const bool found =
        row != std::end(kMessages) && static_cast<quint32>(row->number) == id && row->direction == direction;
    return found ? row : nullptr;
}

MessageText describeMessage(Direction direction, quint32 id, const void* p1, const void* p2)
{
    const MessageInfo* info = findMessage(direction, id);
    if (!info)
        return {QStringLiteral("%1 %2").arg(hexNumber(reinterpret_cast<std::uintptr_t>(p1), 1),
                                            hexNumber(reinterpret_cast<std::uintptr_t>(p2), 1)),
                {}};
    const MessageText first = describeParameter(info->number, info->p1, p1);
    const MessageText second = describeParameter(info->number, info->p2, p2);
    MessageText both = first;
    if (!first.words.isEmpty() && !second.words.isEmpty())
        both.words += QLatin1String(", ");
    both.words += second.words;
    both.bytes += second.bytes;
    return both;
}

QString hexText(const QByteArray& bytes)
{
    QString text = QStringLiteral("[%1]").arg(bytes.size());
    if (!bytes.isEmpty())
        text += QLatin1Char(' ') + QString::fromLatin1(bytes.toHex(' ').toUpper());
    return text;
}

} // namespace workbench
