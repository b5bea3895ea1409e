#pragma once

// The messages that pass between host and plug-in: their numbers, what each carries, and one table of them
// all. host/host_interface.h tells how a host uses them.

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>

#include <bit>
#include <cstddef>
#include <cstdint>

namespace vlk {

// The numbers of all messages. The table `kMessages` below says which way each goes and what it carries.
enum class Message : std::uint32_t {
    // Host to plug-in
    GetLibraryFlag = 2001,
    GetInterfaceValue = 2002,
    GetFamilyValue = 2003,
    SetHostMode = 2004,
    PrepareTelemetry = 2005,
    GetProtocolText = 2006,
    GetReservedValue = 2010,
    SetIdentity = 2026,
    LanguageChanged = 2031,
    CloseWindows = 2037,
    SetPaths = 2049,
    TrackerAttached = 2051,
    TrackerDetached = 2052,
    LineValues = 2081,
    OpenConfiguration = 2101,
    OpenTelemetry = 2102,
    ShowStoredFile = 2103,
    LiveKey = 2241,
    SupplyValues = 2243,
    AnalogRecord = 2247,
    AccelRecord = 2249,
    AccelCommandResult = 2253,
    MonitorRearm = 2255,
    BtSearchStopped = 2259,
    BtSearchEvent = 2262,
    BtDeviceFound = 2263,
    RfidNumber = 2267,
    CanLogProgram = 2271,
    CurrentRecord = 2301,
    RecordByNumber = 2303,
    RecordByTime = 2305,
    RecordOfPeriod = 2307,
    ExtraPacket = 2312,
    ClearedRecord = 2320,
    TachographAnswer = 2351,
    TachographFileAnswer = 2353,
    TachographFileReady = 2355,
    GetBalanceUssd = 2356,
    RaiseConfiguration = 2373,
    // Host to plug-in, extensions
    EndSave = 7106001,
    GetRunningWork = 7106002,
    GetExtensions = 7106003,
    CompareFiles = 7106004,
    ConfirmWrite = 7106005,
    CheckFile = 7106006,
    ReportFile = 7106007,
    ApplyPreset = 7106008,
    OfferTexts = 7106009,
    BringSettings = 7106010,

    // Plug-in to host
    ShowHelp = 2007,
    RequestLines = 2080,
    WriteConfiguration = 2151,
    RequestLiveKey = 2240,
    RequestSupply = 2242,
    RequestAnalog = 2246,
    RequestAccel = 2248,
    RequestAccelCommand = 2252,
    StartBtSearch = 2260,
    CancelBtSearch = 2261,
    WaitStepEnd = 2264,
    RequestRfid = 2266,
    SetCanLogProgram = 2268,
    RequestCanLogProgram = 2270,
    RequestCurrentRecord = 2300,
    RequestRecordByNumber = 2302,
    RequestRecordByTime = 2304,
    RequestRecordOfPeriod = 2306,
    RequestEventText = 2310,
    RequestExtraPacket = 2311,
    ClearServerData = 2321,
    GuardOff = 2322,
    GuardOn = 2323,
    OutputOn = 2326,
    OutputOff = 2327,
    SetMileage = 2328,
    TachographQuestion = 2350,
    TachographFileRequest = 2352,
    TachographFileRead = 2354,
};

#pragma pack(push, 1)
// Answer to RequestAccel.
struct AccelValues
{
    std::uint32_t movement; // sqrt(movement) * 100 / 1800 is the percentage of sensor SH3
    double tilt;            // radians, sensor SH4
    std::uint32_t shock;    // as movement, sensors SH1 and SH2
};

// TachographFileRequest: a file code and its parameter.
struct szQueryTaho
{
    std::uint8_t zero;
    std::uint8_t code;
    std::uint32_t parameter;
};
#pragma pack(pop)
static_assert(sizeof(AccelValues) == 16 && sizeof(szQueryTaho) == 6);

// TrackerAttached. A model other than the plug-in's own counts as TrackerDetached.
struct ConnectInfo
{
    QString model;
    QString text1; // identification texts of the tracker
    QString text2;
    void* unread[2];
    std::uint32_t maskLow; // 64 capability bits
    std::uint32_t maskHigh;
};

// SetIdentity. The word between the texts is not read.
struct IdentityInfo
{
    QString model;
    void* unread;
    QString vendor;
};

// SetPaths: the folders of telemetry and configuration files, and two texts that are only kept.
struct Paths
{
    QString pathTmi;
    QString pathXml;
    QString pathThird;
    QString pathFourth;
};

// OpenConfiguration. The record goes on as long as its path: allocate offsetof(path) + path length + 1.
struct OpenRequest
{
    std::int32_t showFull; // 1: the full window, else the quick one
    std::int32_t fromFile; // 1: a file that the user chose, else it came from the tracker
    char path[1024];       // local 8-bit encoding, NUL-terminated; empty: a new configuration
};

// LiveKey and RfidNumber: one 64-bit number.
struct IdPair
{
    std::uint32_t low;
    std::uint32_t high;
};

// SupplyValues: unsigned 16-bit values of which element `kSupplyElement` is the supply voltage in millivolts.
inline constexpr int kSupplyElement = 7;
struct SupplyRecord
{
    std::uint16_t values[8];
};

// BtDeviceFound.
struct BtDevice
{
    char name[128]; // NUL-terminated
    char mac[128];  // NUL-terminated
};

// Extensions begin at 7106001. They go from the host to the plug-in alone, and none is needed: a plug-in that
// lacks one ignores it and fills nothing, and a host that sends none misses what it does, no more. Each
// carries a record that begins with its own size, in bytes, as the host knows it. The plug-in fills the words
// that lie within that size, so that a record may grow at its end; a null address gets nothing filled.

// EndSave: a save of a period that runs ends now, as a cancel would end it with the next record. Whether one
// ran, and how many records its file got; 0 where none was written.
struct EndedSave
{
    std::uint32_t size = sizeof(EndedSave);
    std::uint32_t ended = 0;
    std::uint32_t records = 0;
};

// GetRunningWork: what asks the tracker by itself, and must not be disturbed. 1 for what runs.
struct RunningWork
{
    std::uint32_t size = sizeof(RunningWork);
    std::uint32_t saving = 0;
    std::uint32_t automatic = 0; // automatic requests
    std::uint32_t clearing = 0;  // bit n: the data of server n + 1 are still to be cleared in this sequence
    std::uint32_t cancelled = 0; // the save that runs, which ends with the next record
};

// GetExtensions: which of them the plug-in answers. A plug-in that fills nothing answers none beyond those
// two.
struct Extensions
{
    std::uint32_t size = sizeof(Extensions);
    std::uint32_t newest = 0; // number of the last one; it answers all up to that
};

// CompareFiles: where two configuration files differ, setting by setting in the order of a save, by what
// values mean: "1" and "01" are equal.
struct FileDifference
{
    std::uint32_t size = sizeof(FileDifference);
    const QString* path = nullptr; // "TRACK/POINTS/angle"
    // In the present language. Of a key that no setting reads the page may be empty, as the group of settings
    // that stand alone is.
    const QString* page = nullptr;
    const QString* group = nullptr;
    const QString* caption = nullptr;
    // The values as the file holds them, and in words and units; null where the file lacks the key.
    const QString* before = nullptr;
    const QString* after = nullptr;
    const QString* beforeText = nullptr;
    const QString* afterText = nullptr;
    // Where `after` is what the window of the configuration handed over last: whether its user has edited the
    // setting, or it changes with a load, quick setup or another setting, as the note says in words, or it
    // stands in the window as it was opened.
    enum Cause : std::uint32_t { Unknown, Edited, Unedited, Opened };
    const QString* note = nullptr;
    std::uint32_t cause = Unknown;
    std::uint32_t readsAlike = 0; // 1: `after` lacks the key, and is read as `before` holds it
};

// The plug-in calls `take` with each difference, during the message; the texts are valid during the call.
struct FileComparison
{
    enum Outcome : std::uint32_t { None, Done, BeforeUnreadable, AfterUnreadable };

    std::uint32_t size = sizeof(FileComparison);
    std::uint32_t outcome = None;    // filled
    std::uint32_t differences = 0;   // filled: how many there were
    std::uint32_t showSecrets = 0;   // 1: passwords are told, else dots
    const QString* before = nullptr; // path; null: what the keys of the other file would read as if missing
    const QString* after = nullptr;
    void (*take)(void* context, const FileDifference* difference) = nullptr;
    void* context = nullptr;
};

// ConfirmWrite: edits are kept on disk until they are written. A host that compares what it has written with
// what the tracker holds then says so once, after SetHostMode, and then of each configuration that came out
// right. Of a host that says nothing WriteConfiguration itself is taken for that. `Held` tells of a tracker
// that has been brought back, or has taken something else than was sent: what it holds now, while a
// configuration of it is open. `Asked` asks whether that window has taken over what was told last by `Held`.
struct WriteConfirmation
{
    enum Step : std::uint32_t { WillConfirm, Confirmed, Held, Asked };

    std::uint32_t size = sizeof(WriteConfirmation);
    std::uint32_t step = WillConfirm;
    // What the file of WriteConfiguration held; null: that of the last one. A host that refuses some of them
    // says it, since otherwise one that was refused behind the one in work would count as written.
    const QByteArray* content = nullptr;
    std::uint32_t takenOver = 0; // filled when asked: 1 where it starts from that now
};

// CheckFile: what a load and a save would not leave of a configuration file as it stands, and advice on it.
struct FileRemark
{
    enum Kind : std::uint32_t { Finding, Advice };
    // A hint is worth a look or waits for the user, a warning loses something, an error cannot work.
    enum Severity : std::uint32_t { Hint, Warning, Error };

    std::uint32_t size = sizeof(FileRemark);
    std::uint32_t kind = Finding;
    std::uint32_t severity = Warning;
    const QString* path = nullptr;      // where to mend it
    const QStringList* paths = nullptr; // of all settings that take part
    // Where the setting stands, in the present language; null for what is no setting.
    const QString* page = nullptr;
    const QString* caption = nullptr;
    const QString* text = nullptr;  // a sentence in the present language
    const QString* group = nullptr; // null as the others
};

// As with CompareFiles the plug-in calls `take` during the message.
struct FileCheck
{
    enum Outcome : std::uint32_t { None, Done, Unreadable };

    std::uint32_t size = sizeof(FileCheck);
    std::uint32_t outcome = None;  // filled
    std::uint32_t remarks = 0;     // filled: how many there were
    std::uint32_t showSecrets = 0; // 1: passwords are told, else dots
    const QString* file = nullptr; // path
    void (*take)(void* context, const FileRemark* remark) = nullptr;
    void* context = nullptr;
};

// ReportFile: what a configuration file holds as a document for people, in the present language.
struct FileReport
{
    enum Outcome : std::uint32_t { None, Done, FileUnreadable, BeforeUnreadable };

    std::uint32_t size = sizeof(FileReport);
    std::uint32_t outcome = None;    // filled
    std::uint32_t changesAlone = 0;  // 1: what differs from `before`, else all settings
    std::uint32_t onePage = 0;       // 1: in short, all settings being those that do not have their defaults
    std::uint32_t showSecrets = 0;   // 1: passwords are told, else dots
    const QString* file = nullptr;   // path
    const QString* before = nullptr; // path; null: what the keys of the file would read as if missing
    const QString* about = nullptr;  // lines of the host's own below the title, such as which tracker
    QString* html = nullptr;         // filled when done
};

// ApplyPreset: the keys of a preset, a document with chosen keys alone, laid over a configuration. Of a file
// everything else that it holds stays, unknown keys and their order too.
struct PresetMisfit // a key of the preset that does not fit
{
    enum Reason : std::uint32_t { UnknownKey, Doubled, BadValue, NoPlace };

    std::uint32_t size = sizeof(PresetMisfit);
    std::uint32_t reason = UnknownKey;
    const QString* path = nullptr; // "TRACK/POINTS[2]/angle" in the second element of that name
    const QString* page = nullptr; // as of FileDifference
    const QString* group = nullptr;
    const QString* caption = nullptr;
    const QString* value = nullptr; // as the preset holds it
    const QString* note = nullptr;  // the reason in words
};

// The plug-in calls the functions, of which either may be null, during the message; the texts are valid
// during the call.
struct PresetApplication
{
    enum Outcome : std::uint32_t {
        None,
        Done,             // all that fits, or the dry run
        PresetUnreadable, // or the preset is no document
        FileUnreadable,
        Refused,    // something does not fit
        NotWritten, // `reason` says why
        Shown,      // of the open configuration
        NothingOpen
    };

    std::uint32_t size = sizeof(PresetApplication);
    std::uint32_t outcome = None;      // filled
    std::uint32_t changes = 0;         // filled: how many there are
    std::uint32_t misfits = 0;         // filled
    std::uint32_t leaveOutMisfits = 0; // 1: the rest is applied, else nothing with one that does not fit
    std::uint32_t showSecrets = 0;     // 1: passwords are told, else dots
    const QString* preset = nullptr;   // path
    // Path; null: the configuration that is open, whose user is shown what would change, and chooses.
    const QString* file = nullptr;
    // Path of the file that is written, which may be `file`; null: a dry run.
    const QString* target = nullptr;
    void (*takeChange)(void* context, const FileDifference* change) = nullptr;
    void (*takeMisfit)(void* context, const PresetMisfit* misfit) = nullptr;
    void* context = nullptr;
    QString* reason = nullptr; // filled when not written; may be null
};

// OfferTexts: how the plug-in gets texts of a language that is not on show, by which settings are found in
// both. The host fills the text of a key in a language ("ru", "en"), or leaves it null where it has none; of
// the key "event 35" what RequestEventText gives for that code where this language is on show. The function
// is called until another one, or none, is offered.
struct OfferedTexts
{
    std::uint32_t size = sizeof(OfferedTexts);
    void (*fill)(void* context, const char* language, const char* key, QString* text) = nullptr;
    void* context = nullptr;
};

// BringSettings: some settings of one configuration file laid into another. What they need there comes along,
// such as the type of their form, the switch that closes them, the field of the record that they fill.
struct BroughtSettings
{
    enum Outcome : std::uint32_t {
        None,
        Done,
        Refused // one of the files cannot be read, or has no place for a setting
    };

    std::uint32_t size = sizeof(BroughtSettings);
    std::uint32_t outcome = None;       // filled
    const QString* file = nullptr;      // path; it stays as it is
    const QString* from = nullptr;      // path
    const QStringList* paths = nullptr; // of the settings; those that nobody knows are passed over
    QByteArray* content = nullptr;      // filled when done: what the file would hold then
};

// AnalogRecord is a plain byte record of `kAnalogRecordSize` bytes with unsigned 16-bit little-endian values:
// the lines IN1, IN2, IN3 in millivolts from byte 15, and the fuel sensors at the bytes that name them.
inline constexpr int kAnalogRecordSize = 42;
inline constexpr int kAnalogRecordLine1 = 15;

// AccelCommandResult is a byte record; this byte is the status: 1 and 49 mean done.
inline constexpr int kAccelStatusByte = 11;
inline constexpr int kAccelResultSize = 12;

// What GetInterfaceValue and the library information record give.
inline constexpr int kInterfaceValue = 1;
// What GetFamilyValue gives.
inline constexpr int kFamilyValue = 196;

// Size of the buffer that GetBalanceUssd fills.
inline constexpr int kBalanceUssdSize = 255;

// Bytes in front of the record in the answers that carry one.
inline constexpr int kCurrentRecordHeader = 3;
inline constexpr int kRecordByNumberHeader = 3;
inline constexpr int kRecordByTimeHeader = 13;
inline constexpr int kExtraPacketHeader = 2;
// A CurrentRecord or ClearedRecord shorter than this, header included, is ignored.
inline constexpr int kShortestCurrentRecord = 101;

#if QT_POINTER_SIZE == 4
static_assert(offsetof(ConnectInfo, text1) == 4 && offsetof(ConnectInfo, text2) == 8 &&
              offsetof(ConnectInfo, maskLow) == 20);
static_assert(offsetof(IdentityInfo, vendor) == 8);
static_assert(offsetof(Paths, pathXml) == 4 && offsetof(Paths, pathThird) == 8 &&
              offsetof(Paths, pathFourth) == 12);
#endif
static_assert(offsetof(OpenRequest, fromFile) == 4 && offsetof(OpenRequest, path) == 8);

// What a parameter is. "Address" kinds may be null, which the receiver survives.
enum class Parameter : std::uint8_t {
    None,
    Value,           // an integer that travels in the pointer
    ByteAddress,     // std::uint8_t*
    Int32Address,    // std::int32_t* or std::uint32_t*
    FloatAddress,    // float*
    StringAddress,   // QString*
    BytesAddress,    // QByteArray*
    DateTimeAddress, // QDateTime*, UTC
    TextBuffer,      // char*, at least kBalanceUssdSize bytes, filled by the receiver
    RecordAddress,   // one of the records above, or a byte record, named by the message
};

enum class Direction : std::uint8_t { ToPlugin, ToHost };

struct MessageInfo
{
    const char* name;
    Message number;
    std::uint32_t answer; // number that the host gives back later, 0 for none
    Direction direction;
    Parameter p1;
    Parameter p2;
    bool fillsFirst;  // the receiver writes p1
    bool fillsSecond; // the receiver writes p2
};

namespace detail {
constexpr MessageInfo in(Message number, const char* name, Parameter p1 = Parameter::None,
                         Parameter p2 = Parameter::None, bool fillsFirst = false)
{
    return {name, number, 0, Direction::ToPlugin, p1, p2, fillsFirst, false};
}
constexpr MessageInfo out(Message number, const char* name, std::uint32_t answer = 0,
                          Parameter p1 = Parameter::None, Parameter p2 = Parameter::None,
                          bool fillsSecond = false)
{
    return {name, number, answer, Direction::ToHost, p1, p2, false, fillsSecond};
}
} // namespace detail

// Every message once, by number.
// clang-format off
inline constexpr MessageInfo kMessages[] = {
    detail::in(Message::GetLibraryFlag,         "GetLibraryFlag",              Parameter::Int32Address,  Parameter::None,          true),
    detail::in(Message::GetInterfaceValue,      "GetInterfaceValue",           Parameter::Int32Address,  Parameter::None,          true),
    detail::in(Message::GetFamilyValue,         "GetFamilyValue",              Parameter::Int32Address,  Parameter::None,          true),
    detail::in(Message::SetHostMode,            "SetHostMode",                 Parameter::Int32Address),
    detail::in(Message::PrepareTelemetry,       "PrepareTelemetry",            Parameter::ByteAddress,   Parameter::None,          true),
    detail::in(Message::GetProtocolText,        "GetProtocolText",             Parameter::StringAddress, Parameter::None,          true),
    detail::out(Message::ShowHelp,              "ShowHelp",              0,    Parameter::StringAddress, Parameter::StringAddress),
    detail::in(Message::GetReservedValue,       "GetReservedValue",            Parameter::Int32Address,  Parameter::None,          true),
    detail::in(Message::SetIdentity,            "SetIdentity",                 Parameter::RecordAddress),
    detail::in(Message::LanguageChanged,        "LanguageChanged"),
    detail::in(Message::CloseWindows,           "CloseWindows"),
    detail::in(Message::SetPaths,               "SetPaths",                    Parameter::RecordAddress),
    detail::in(Message::TrackerAttached,        "TrackerAttached",             Parameter::RecordAddress),
    detail::in(Message::TrackerDetached,        "TrackerDetached"),
    detail::out(Message::RequestLines,          "RequestLines",          2081, Parameter::BytesAddress),
    detail::in(Message::LineValues,             "LineValues",                  Parameter::BytesAddress),
    detail::in(Message::OpenConfiguration,      "OpenConfiguration",           Parameter::RecordAddress),
    detail::in(Message::OpenTelemetry,          "OpenTelemetry",               Parameter::StringAddress),
    detail::in(Message::ShowStoredFile,         "ShowStoredFile",              Parameter::StringAddress, Parameter::Int32Address),
    detail::out(Message::WriteConfiguration,    "WriteConfiguration",    0,    Parameter::StringAddress),
    detail::out(Message::RequestLiveKey,        "RequestLiveKey",        2241),
    detail::in(Message::LiveKey,                "LiveKey",                     Parameter::RecordAddress),
    detail::out(Message::RequestSupply,         "RequestSupply",         2243),
    detail::in(Message::SupplyValues,           "SupplyValues",                Parameter::RecordAddress),
    detail::out(Message::RequestAnalog,         "RequestAnalog",         2247),
    detail::in(Message::AnalogRecord,           "AnalogRecord",                Parameter::RecordAddress),
    detail::out(Message::RequestAccel,          "RequestAccel",          2249),
    detail::in(Message::AccelRecord,            "AccelRecord",                 Parameter::RecordAddress),
    detail::out(Message::RequestAccelCommand,   "RequestAccelCommand",   2253),
    detail::in(Message::AccelCommandResult,     "AccelCommandResult",          Parameter::RecordAddress),
    detail::in(Message::MonitorRearm,           "MonitorRearm"),
    detail::in(Message::BtSearchStopped,        "BtSearchStopped",             Parameter::ByteAddress),
    detail::out(Message::StartBtSearch,         "StartBtSearch",         2262),
    detail::out(Message::CancelBtSearch,        "CancelBtSearch"),
    detail::in(Message::BtSearchEvent,          "BtSearchEvent",               Parameter::ByteAddress),
    detail::in(Message::BtDeviceFound,          "BtDeviceFound",               Parameter::RecordAddress),
    detail::out(Message::WaitStepEnd,           "WaitStepEnd",           2265),
    detail::out(Message::RequestRfid,           "RequestRfid",           2267),
    detail::in(Message::RfidNumber,             "RfidNumber",                  Parameter::RecordAddress, Parameter::ByteAddress),
    detail::out(Message::SetCanLogProgram,      "SetCanLogProgram",      0,    Parameter::Int32Address),
    detail::out(Message::RequestCanLogProgram,  "RequestCanLogProgram",  2271),
    detail::in(Message::CanLogProgram,          "CanLogProgram",               Parameter::Int32Address),
    detail::out(Message::RequestCurrentRecord,  "RequestCurrentRecord",  2301),
    detail::in(Message::CurrentRecord,          "CurrentRecord",               Parameter::BytesAddress),
    detail::out(Message::RequestRecordByNumber, "RequestRecordByNumber", 2303, Parameter::Int32Address),
    detail::in(Message::RecordByNumber,         "RecordByNumber",              Parameter::BytesAddress),
    detail::out(Message::RequestRecordByTime,   "RequestRecordByTime",   2305, Parameter::DateTimeAddress),
    detail::in(Message::RecordByTime,           "RecordByTime",                Parameter::BytesAddress),
    detail::out(Message::RequestRecordOfPeriod, "RequestRecordOfPeriod", 2307, Parameter::DateTimeAddress),
    detail::in(Message::RecordOfPeriod,         "RecordOfPeriod",              Parameter::BytesAddress),
    detail::out(Message::RequestEventText,      "RequestEventText",      0,    Parameter::Value,         Parameter::StringAddress, true),
    detail::out(Message::RequestExtraPacket,    "RequestExtraPacket",    2312, Parameter::Value),
    detail::in(Message::ExtraPacket,            "ExtraPacket",                 Parameter::BytesAddress),
    detail::in(Message::ClearedRecord,          "ClearedRecord",               Parameter::BytesAddress),
    detail::out(Message::ClearServerData,       "ClearServerData",       2320, Parameter::Value),
    detail::out(Message::GuardOff,              "GuardOff"),
    detail::out(Message::GuardOn,               "GuardOn"),
    detail::out(Message::OutputOn,              "OutputOn",              0,    Parameter::Value),
    detail::out(Message::OutputOff,             "OutputOff",             0,    Parameter::Value),
    detail::out(Message::SetMileage,            "SetMileage",            0,    Parameter::FloatAddress),
    detail::out(Message::TachographQuestion,    "TachographQuestion",    2351, Parameter::Value),
    detail::in(Message::TachographAnswer,       "TachographAnswer",            Parameter::BytesAddress),
    detail::out(Message::TachographFileRequest, "TachographFileRequest", 2353, Parameter::RecordAddress),
    detail::in(Message::TachographFileAnswer,   "TachographFileAnswer",        Parameter::BytesAddress),
    detail::out(Message::TachographFileRead,    "TachographFileRead",    2355, Parameter::StringAddress),
    detail::in(Message::TachographFileReady,    "TachographFileReady",         Parameter::ByteAddress),
    detail::in(Message::GetBalanceUssd,         "GetBalanceUssd",              Parameter::TextBuffer,    Parameter::None,          true),
    detail::in(Message::RaiseConfiguration,     "RaiseConfiguration"),
    detail::in(Message::EndSave,                "EndSave",                     Parameter::RecordAddress, Parameter::None,          true),
    detail::in(Message::GetRunningWork,         "GetRunningWork",              Parameter::RecordAddress, Parameter::None,          true),
    detail::in(Message::GetExtensions,          "GetExtensions",               Parameter::RecordAddress, Parameter::None,          true),
    detail::in(Message::CompareFiles,           "CompareFiles",                Parameter::RecordAddress, Parameter::None,          true),
    detail::in(Message::ConfirmWrite,           "ConfirmWrite",                Parameter::RecordAddress, Parameter::None,          true),
    detail::in(Message::CheckFile,              "CheckFile",                   Parameter::RecordAddress, Parameter::None,          true),
    detail::in(Message::ReportFile,             "ReportFile",                  Parameter::RecordAddress, Parameter::None,          true),
    detail::in(Message::ApplyPreset,            "ApplyPreset",                 Parameter::RecordAddress, Parameter::None,          true),
    detail::in(Message::OfferTexts,             "OfferTexts",                  Parameter::RecordAddress),
    detail::in(Message::BringSettings,          "BringSettings",               Parameter::RecordAddress, Parameter::None,          true),
};
// clang-format on

// A plain value in the place of an address, and back. The token of a LibraryInfo becomes the handle likewise.
inline void* asParameter(std::intptr_t value)
{
    return std::bit_cast<void*>(value);
}
inline std::intptr_t asValue(const void* parameter)
{
    return std::bit_cast<std::intptr_t>(parameter);
}

} // namespace vlk
