#include "settings/rs_settings.h"

#include "settings/rs_rows.h"

namespace vlk {

namespace {

using namespace rs;

// Choosing an owner brings its line, and a type that has a line of its own brings that, while its device owns
// the line. A load runs these too, and then reads the line's own keys.
constexpr auto kLineSets = [] {
    std::array<Sets, std::size(kRsOwners) * 3 + std::size(kRsLines) * 4> sets{};
    std::size_t count = 0;
    const auto add = [&](When trigger, const char* path, const char* value, When also = {}) {
        sets[count++] = onEditOrRead(trigger, path, value).onlyIf(also);
    };
    for (const RsOwner& owner : kRsOwners) {
        add(owned(owner.code), kSpeed, owner.speed);
        add(owned(owner.code), kParity, "0");
        add(owned(owner.code), kStopBit, "1");
    }
    for (const RsLine& line : kRsLines) {
        const When type = when(line.path, line.type);
        add(owned(line.owner), kSpeed, line.speed, type);
        add(type, kSpeed, line.speed, owned(line.owner));
        add(type, kParity, "0", owned(line.owner));
        add(type, kStopBit, "1", owned(line.owner));
    }
    return sets;
}();

// Readers without a choice of the mode work in the first one.
constexpr When kOneModeReaders = when("RFID/type", "ESCORT|MIELTA");
// clang-format off
constexpr auto kSets = rulesOf(
    kLineSets,
    onEdit(kOneModeReaders, "RFID/mode", "0"),
    onEdit(owned("RFID"),   "RFID/mode", "0").onlyIf(kOneModeReaders),
    repeat<kRsFuelSensors>([](int) { return onSave(unless("FLDS/type"), "FS%1/type", "0"); }));

// A type of tachograph brings its usual access.
constexpr PresetRow kTachographAccess[] = {
    {"ATOL", {"1", "738205"}},
    {"STRH", {"1", "6402917385"}},
    {"MERK", {"1", "738205"}},
    {"KONT", {"1", "738205"}},
};
// clang-format on
constexpr auto kPresets = rulesOf(
    Presets{.trigger = "TACH/type", .fields = {"TACH/login", "TACH/pass"}, .rows = kTachographAccess});

// clang-format off
constexpr auto kEnables = rulesOf(
    show({"RFID", "spinBox_Address"},                when("RFID/type", "ESCORT|LLS|ADM20")),
    show({"RFID", "comboBox_Mode"},                  when("RFID/type", "LLS")),
    show({"RFID", "checkBox_Nearest spinBox_Floor"}, when("RFID/type", "MIELTA|ADM20")),
    show({"TACH", "lineEdit_ID"},                    when("TACH/type", "ATOL")),
    show({"TACH", "lineEdit_Key"},                   when("TACH/type", "ATOL|STRH")),
    show({"TACH", "checkBox_Ping"},                  when("TACH/type", "KONT")),
    repeat<kRsFuelSensors>([](int) {
        return rulesOf(
            enable({"FLDS", "spinBox_Addres_%1 spinBox_Response_%1 checkBox_TrhldMoveOff_%1 checkBox_Filter_%1"}, when("FS%1/use")),
            enable({"FLDS", "spinBox_Aver_%1 spinBox_Kalman_%1"},                                                 when("FS%1/use"), when("FS%1/filterMode")));
    }),
    repeat<6>([](int) { return enable(parts("FLDS", "pushButton_Fuel_D%1"), when("FS%1/use")); }),
    enable({"PCNT", "comboBox_Event_In"}, when("PCNT/countEvent", "2")));
// clang-format on

} // namespace

constexpr SettingsTable kRsSettings = tableOf<kRows, kSets, kPresets, kEnables>(kSection, "cfgt6_001");

} // namespace vlk
