// Every message that the library takes, in one table: its number and whom it calls. Parameters come from
// outside: a null address ends the message. Numbers that the table lacks are ignored, among them those of the
// contract that have no effect on this model.

#include "dialog/widget_config.h"
#include "dialog/widget_config_full.h"
#include "host/device_r7106.h"
#include "host/file_questions.h"
#include "host/preset_application.h"
#include "telemetry/view/widget_tmi_view.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace {

using vlk::Message;

struct Parameters
{
    void* p1;
    void* p2;
};

using Handler = void (*)(VLK_Device_R7106& device, const Parameters& parameters);

struct Entry
{
    Message number;
    Handler handle;
};

template <class T, auto value>
void answer(VLK_Device_R7106& /*device*/, const Parameters& parameters)
{
    if (parameters.p1)
        *static_cast<T*>(parameters.p1) = value;
}

// Calls an operation of the device with the record at p1.
template <auto operation, class Record>
void withRecord(VLK_Device_R7106& device, const Parameters& parameters)
{
    if (parameters.p1)
        (device.*operation)(*static_cast<const Record*>(parameters.p1));
}

template <auto operation>
void plain(VLK_Device_R7106& device, const Parameters& /*parameters*/)
{
    (device.*operation)();
}

// Where answers of the tracker go while a configuration is open; null before the first.
vlk::TrackerAnswers* answersOf(const VLK_Device_R7106& device)
{
    return device.configDialog() ? &device.configDialog()->fullWindow()->answers() : nullptr;
}

// Hands the value at p1 to the configuration, whether the dialog is on show or not.
template <auto operation, class T>
void toConfig(VLK_Device_R7106& device, const Parameters& parameters)
{
    if (auto* answers = answersOf(device); answers && parameters.p1)
        (answers->*operation)(*static_cast<const T*>(parameters.p1));
}

template <auto operation, class T>
void toShownConfig(VLK_Device_R7106& device, const Parameters& parameters)
{
    if (device.configDialog() && !device.configDialog()->isHidden())
        toConfig<operation, T>(device, parameters);
}

// Hands the byte record at p1 on as it came, null included.
template <auto operation>
void bytesToConfig(VLK_Device_R7106& device, const Parameters& parameters)
{
    if (auto* answers = answersOf(device))
        (answers->*operation)(static_cast<const uchar*>(parameters.p1));
}

// Hands the bytes at p1 to an operation of the telemetry view, whether it is on show or not: those behind the
// first `header` ones, if there are `shortest` of them or more.
template <auto operation, int header = 0, int shortest = 0>
void bytesToView(VLK_Device_R7106& device, const Parameters& parameters)
{
    if (!device.telemetryView() || !parameters.p1)
        return;
    const auto& bytes = *static_cast<const QByteArray*>(parameters.p1);
    if (bytes.size() >= shortest)
        (device.telemetryView()->*operation)(bytes.mid(header));
}

quint64 numberOf(const vlk::IdPair& pair)
{
    return static_cast<quint64>(pair.high) << 32 | pair.low;
}

// The size that the record of an extension says it has; 0 where there is none.
std::uint32_t sizeOf(const void* record)
{
    std::uint32_t size = 0;
    if (record)
        std::memcpy(&size, record, sizeof size);
    return size;
}

// Fills the record of an extension as far as its own size goes, in whole words.
template <class Record>
void fillRecord(void* address, const Record& filled)
{
    constexpr std::uint32_t word = sizeof(std::uint32_t);
    std::uint32_t size = sizeOf(address);
    size = std::min<std::uint32_t>(size, sizeof filled) / word * word;
    if (size > word)
        std::memcpy(static_cast<char*>(address) + word, reinterpret_cast<const char*>(&filled) + word,
                    size - word);
}

using Answers = vlk::TrackerAnswers;
using View = VLK_Widget_Tmi_View;

constexpr Entry kTable[] = {
    {Message::GetLibraryFlag, &answer<std::int32_t, 1>},
    {Message::GetInterfaceValue, &answer<std::int32_t, vlk::kInterfaceValue>},
    {Message::GetFamilyValue, &answer<std::int32_t, vlk::kFamilyValue>},
    {Message::SetHostMode,
     [](VLK_Device_R7106& device, const Parameters& parameters) {
         if (parameters.p1)
             device.setMode(*static_cast<const std::int32_t*>(parameters.p1));
     }},
    {Message::PrepareTelemetry,
     [](VLK_Device_R7106& device, const Parameters& parameters) {
         device.ensureTelemetryView();
         answer<std::uint8_t, 0>(device, parameters);
     }},
    {Message::GetProtocolText,
     [](VLK_Device_R7106&, const Parameters& parameters) {
         if (parameters.p1)
             *static_cast<QString*>(parameters.p1) = QStringLiteral("010");
     }},
    {Message::GetReservedValue, &answer<std::int32_t, 0>},
    {Message::SetIdentity, &withRecord<&VLK_Device_R7106::setIdentity, vlk::IdentityInfo>},
    {Message::LanguageChanged, &plain<&VLK_Device_R7106::retranslate>},
    {Message::CloseWindows, &plain<&VLK_Device_R7106::closeWindows>},
    {Message::SetPaths, &withRecord<&VLK_Device_R7106::setPaths, vlk::Paths>},
    {Message::TrackerAttached, &withRecord<&VLK_Device_R7106::attach, vlk::ConnectInfo>},
    {Message::TrackerDetached, &plain<&VLK_Device_R7106::detach>},
    {Message::LineValues, &toShownConfig<&Answers::takeLineValues, QByteArray>},
    {Message::OpenConfiguration, &withRecord<&VLK_Device_R7106::openConfiguration, vlk::OpenRequest>},
    {Message::OpenTelemetry, &withRecord<&VLK_Device_R7106::openTelemetry, QString>},
    {Message::ShowStoredFile,
     [](VLK_Device_R7106& device, const Parameters& parameters) {
         if (parameters.p1 && parameters.p2)
             device.showStoredFile(*static_cast<const QString*>(parameters.p1),
                                   *static_cast<const std::int32_t*>(parameters.p2));
     }},
    {Message::LiveKey,
     [](VLK_Device_R7106& device, const Parameters& parameters) {
         if (device.liveOwner() == 1 && device.telemetryView() && parameters.p1)
             device.telemetryView()->takeLiveKey(numberOf(*static_cast<const vlk::IdPair*>(parameters.p1)));
     }},
    {Message::SupplyValues, &bytesToConfig<&Answers::takeSupply>},
    {Message::AnalogRecord,
     [](VLK_Device_R7106& device, const Parameters& parameters) {
         if (device.telemetryView() && !device.telemetryView()->isHidden())
             device.telemetryView()->takeAnalog(static_cast<const uchar*>(parameters.p1));
         if (device.configDialog() && !device.configDialog()->isHidden())
             bytesToConfig<&Answers::takeAnalog>(device, parameters);
     }},
    {Message::AccelRecord, &bytesToConfig<&Answers::takeAccel>},
    {Message::AccelCommandResult, &bytesToConfig<&Answers::takeAccelResult>},
    {Message::MonitorRearm,
     [](VLK_Device_R7106& device, const Parameters&) {
         if (auto* answers = answersOf(device))
             answers->rearmMonitor();
     }},
    {Message::BtSearchStopped, &toConfig<&Answers::takeBtSearchStopped, uchar>},
    {Message::BtSearchEvent, &toConfig<&Answers::takeBtSearchEvent, uchar>},
    {Message::BtDeviceFound, &toConfig<&Answers::takeBtDevice, vlk::BtDevice>},
    {Message::RfidNumber,
     [](VLK_Device_R7106& device, const Parameters& parameters) {
         if (device.telemetryView() && parameters.p1 && parameters.p2)
             device.telemetryView()->takeRfid(numberOf(*static_cast<const vlk::IdPair*>(parameters.p1)),
                                              *static_cast<const qint8*>(parameters.p2));
     }},
    {Message::CanLogProgram, &toConfig<&Answers::takeCanLogProgram, std::int32_t>},
    {Message::CurrentRecord,
     &bytesToView<&View::takePresent, vlk::kCurrentRecordHeader, vlk::kShortestCurrentRecord>},
    {Message::RecordByNumber, &bytesToView<&View::takeRecord, vlk::kRecordByNumberHeader>},
    {Message::RecordByTime, &bytesToView<&View::takeRecord, vlk::kRecordByTimeHeader>},
    {Message::RecordOfPeriod, &bytesToView<&View::takeRecord, vlk::kRecordByTimeHeader>},
    {Message::ExtraPacket, &bytesToView<&View::takeKeyAnswer, vlk::kExtraPacketHeader>},
    {Message::ClearedRecord,
     &bytesToView<&View::takeClearedRecord, vlk::kCurrentRecordHeader, vlk::kShortestCurrentRecord>},
    {Message::TachographAnswer, &bytesToView<&View::takeTachographAnswer>},
    {Message::TachographFileAnswer, &bytesToView<&View::takeTachographAnswer>},
    {Message::TachographFileReady,
     [](VLK_Device_R7106& device, const Parameters& parameters) {
         if (device.telemetryView() && parameters.p1)
             device.telemetryView()->takeTachographFetched(*static_cast<const uchar*>(parameters.p1) != 0);
     }},
    {Message::GetBalanceUssd,
     [](VLK_Device_R7106& device, const Parameters& parameters) {
         if (parameters.p1)
             std::memcpy(parameters.p1, device.balanceUssd(), std::strlen(device.balanceUssd()) + 1);
     }},
    {Message::RaiseConfiguration,
     [](VLK_Device_R7106& device, const Parameters&) {
         if (device.configDialog() && device.configDialog()->isVisible()) {
             device.configDialog()->raise();
             device.configDialog()->activateWindow();
         }
     }},
    {Message::EndSave,
     [](VLK_Device_R7106& device, const Parameters& parameters) {
         if (device.telemetryView())
             fillRecord(parameters.p1, device.telemetryView()->endSave());
     }},
    {Message::GetRunningWork,
     [](VLK_Device_R7106& device, const Parameters& parameters) {
         if (device.telemetryView())
             fillRecord(parameters.p1, device.telemetryView()->runningWork());
     }},
    {Message::GetExtensions,
     [](VLK_Device_R7106&, const Parameters& parameters) {
         vlk::Extensions extensions;
         extensions.newest = static_cast<std::uint32_t>(std::end(vlk::kMessages)[-1].number);
         fillRecord(parameters.p1, extensions);
     }},
    {Message::CompareFiles,
     [](VLK_Device_R7106& device, const Parameters& parameters) {
         const VLK_Widget_Config* window = device.configDialog();
         if (sizeOf(parameters.p1) >= sizeof(vlk::FileComparison))
             vlk::compareFiles(*static_cast<vlk::FileComparison*>(parameters.p1),
                               window ? &window->handedOver() : nullptr);
     }},
    {Message::ConfirmWrite,
     [](VLK_Device_R7106& device, const Parameters& parameters) {
         constexpr std::size_t withoutContent = offsetof(vlk::WriteConfirmation, content);
         constexpr std::size_t withContent = offsetof(vlk::WriteConfirmation, takenOver);
         const std::size_t size = sizeOf(parameters.p1);
         if (size < withoutContent)
             return;
         vlk::WriteConfirmation told;
         std::memcpy(&told, parameters.p1, size < withContent ? withoutContent : withContent);
         device.confirmWrite(told);
         told.takenOver = told.step == vlk::WriteConfirmation::Asked && device.hasTakenOver() ? 1 : 0;
         fillRecord(parameters.p1, told);
     }},
    {Message::CheckFile,
     [](VLK_Device_R7106&, const Parameters& parameters) {
         if (sizeOf(parameters.p1) >= sizeof(vlk::FileCheck))
             vlk::checkFile(*static_cast<vlk::FileCheck*>(parameters.p1));
     }},
    {Message::ReportFile,
     [](VLK_Device_R7106&, const Parameters& parameters) {
         if (sizeOf(parameters.p1) >= sizeof(vlk::FileReport))
             vlk::reportFile(*static_cast<vlk::FileReport*>(parameters.p1));
     }},
    {Message::ApplyPreset,
     [](VLK_Device_R7106& device, const Parameters& parameters) {
         if (sizeOf(parameters.p1) >= sizeof(vlk::PresetApplication))
             vlk::applyPreset(*static_cast<vlk::PresetApplication*>(parameters.p1), device.configDialog());
     }},
    {Message::OfferTexts,
     [](VLK_Device_R7106& device, const Parameters& parameters) {
         if (sizeOf(parameters.p1) >= sizeof(vlk::OfferedTexts))
             device.setTexts(*static_cast<const vlk::OfferedTexts*>(parameters.p1));
     }},
    {Message::BringSettings,
     [](VLK_Device_R7106&, const Parameters& parameters) {
         if (sizeOf(parameters.p1) >= sizeof(vlk::BroughtSettings))
             vlk::bringSettings(*static_cast<vlk::BroughtSettings*>(parameters.p1));
     }},
};

static_assert(std::ranges::is_sorted(kTable, {}, &Entry::number));

// A message without a row would never reach its window.
static_assert(std::ranges::all_of(vlk::kMessages, [](const vlk::MessageInfo& info) {
    return info.direction == vlk::Direction::ToHost ||
           std::ranges::binary_search(kTable, info.number, {}, &Entry::number);
}));

} // namespace

void VLK_Device_R7106::receive(std::uint32_t id, void* p1, void* p2)
{
    const auto number = static_cast<Message>(id);
    const auto* found = std::ranges::lower_bound(kTable, number, {}, &Entry::number);
    if (found != std::end(kTable) && found->number == number)
        found->handle(*this, Parameters{p1, p2});
}
