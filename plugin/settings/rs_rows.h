#pragma once

// The rows of the table that rs_settings.h tells of.

#include "settings/rs_settings.h"

namespace vlk::rs {

inline constexpr const char* kSection = "RS485";

inline constexpr const char* kOwner = "OPTIONS/owner1";
inline constexpr const char* kSpeed = "OPTIONS/boudrate";
inline constexpr const char* kParity = "OPTIONS/parity";
inline constexpr const char* kStopBit = "OPTIONS/stopBit";

// Behind the devices of the list: an older spelling, and devices of other trackers.
inline constexpr auto kOwners = [] {
    std::array<Code, std::size(kRsOwners) + 4> codes{};
    std::size_t count = 0;
    for (const RsOwner& owner : kRsOwners)
        codes[count++] = {.code = owner.code, .label = owner.label};
    codes[count++] = {.code = "DV01", .means = "DDU"};
    codes[count++] = {.code = "FCAN", .label = "cfgt6_008", .offered = false};
    codes[count++] = {.code = "AINF", .label = "cfgt6_014", .offered = false};
    codes[count++] = {.code = "DCAM", .label = "cfgt6_020", .offered = false};
    return codes;
}();

inline constexpr Code kSpeeds[] = {
    {.code = "1200", .label = "1200"},   {.code = "2400", .label = "2400"},
    {.code = "4800", .label = "4800"},   {.code = "9600", .label = "9600"},
    {.code = "14400", .label = "14400"}, {.code = "19200", .label = "19200"},
    {.code = "38400", .label = "38400"}, {.code = "56000", .label = "56000"},
    {.code = "57600", .label = "57600"}, {.code = "115200", .label = "115200"},
};
inline constexpr Code kParities[] = {
    {.code = "0", .label = "None"},  {.code = "1", .label = "Even"}, {.code = "2", .label = "Odd"},
    {.code = "3", .label = "Space"}, {.code = "4", .label = "Mark"},
};
inline constexpr Code kStopBits[] = {{.code = "1", .label = "1"}, {.code = "2", .label = "2"}};

inline constexpr Code kReceivers[] = {{.code = "0", .label = "cfgt6_083"}};
inline constexpr Code kRefrigerators[] = {{.code = "0", .label = "iQFreeze"}};
// clang-format off
inline constexpr Code kReaders[] = {
    {.code = "ESCORT", .label = "cfgt6_130"},  // ESCORT
    {.code = "LLS",    .label = "cfgt6_131"},  // LLS
    {.code = "MIELTA", .label = "cfgt6_132"},  // MIELTA
    {.code = "ADM20",  .label = "cfgt6_133"},  // ADM20
};
inline constexpr Code kReaderModes[] = {
    {.code = "0", .label = "cfgt6_134"},  // Tracker polls the reader
    {.code = "1", .label = "cfgt6_135"}   // Reader sends by itself
};
inline constexpr Code kTachographs[] = {
    {.code = "ATOL", .label = "cfgt6_092"},  // ATOL
    {.code = "STRH", .label = "cfgt6_093"},  // Shtrikh
    {.code = "MERK", .label = "cfgt6_094"},  // Mercury
    {.code = "KONT", .label = "cfgt6_095"},  // Continental
};
inline constexpr Code kTyreMonitors[] = {
    {.code = "PRESSPRO", .label = "PressurePro"}, {.code = "BRDGESTN", .label = "Bridgestone"},
    {.code = "TM508", .label = "TM508T22U"},      {.code = "TPMS613", .label = "TPMS 6-13"},
    {.code = "TD18", .label = "TD18,20,21"},
};
inline constexpr Code kFuelTypes[] = {
    {.code = "0", .label = "cfgt6_022"},  // LLS
    {.code = "4", .label = "cfgt6_023"},  // Type 4
    {.code = "1", .label = "cfgt6_024"},  // Type 1
    {.code = "2", .label = "cfgt6_025"},  // Type 2
};
inline constexpr Code kCounterFamilies[] = {{.code = "PP01", .label = "PP01"},
                                            {.code = "ACOND", .label = "ACOND"}};
inline constexpr Code kCountEvents[] = {
    {.code = "0", .label = "cfgt6_235", .widget = "PCNT/radioButton_Event_No"},       // none
    {.code = "1", .label = "cfgt6_236", .widget = "PCNT/radioButton_Event_Counter"},  // by what the counters tell
    {.code = "2", .label = "cfgt6_237", .widget = "PCNT/radioButton_Event_In"},       // by the state of an input line
};
// clang-format on
inline constexpr Code kInputs[] = {
    {.code = "1", .label = "IN1"}, {.code = "2", .label = "IN2"}, {.code = "3", .label = "IN3"},
    {.code = "4", .label = "IN4"}, {.code = "5", .label = "IN5"}, {.code = "6", .label = "IN6"},
    {.code = "7", .label = "IN7"}, {.code = "8", .label = "IN8"},
};
inline constexpr Code kDoorNumbers[] = {
    {.code = "0", .offered = false}, {.code = "1", .label = "1"}, {.code = "2", .label = "2"},
    {.code = "3", .label = "3"},     {.code = "4", .label = "4"}, {.code = "5", .label = "5"},
    {.code = "6", .label = "6"},     {.code = "7", .label = "7"}, {.code = "8", .label = "8"},
};
// clang-format off
inline constexpr Position kDoors[kRsDoors] = {
    {"PCNT/comboBox_ACode_Door_1", "cfgt6_241", 8, "PCNT/checkBox_ACode_Door_1"},  // Door 1
    {"PCNT/comboBox_ACode_Door_2", "cfgt6_242", 8, "PCNT/checkBox_ACode_Door_2"},  // Door 2
    {"PCNT/comboBox_ACode_Door_3", "cfgt6_243", 8, "PCNT/checkBox_ACode_Door_3"},  // Door 3
    {"PCNT/comboBox_ACode_Door_4", "cfgt6_244", 8, "PCNT/checkBox_ACode_Door_4"},  // Door 4
    {"PCNT/comboBox_ACode_Door_5", "cfgt6_245", 8, "PCNT/checkBox_ACode_Door_5"},  // Door 5
    {"PCNT/comboBox_ACode_Door_6", "cfgt6_246", 8, "PCNT/checkBox_ACode_Door_6"},  // Door 6
};
// clang-format on

constexpr When owned(const char* owner)
{
    return *owner ? when(kOwner, owner) : unless(kOwner);
}

constexpr auto elementOf(const char* owner, const char* element)
{
    return group(element).onlyWhen(owned(owner));
}

inline constexpr Heading kFuelSensors{"cfgt6_007"};                        // Fuel level sensors
inline constexpr Heading kFuelSensor{"cfgwl_032", "%1 %2", &kFuelSensors}; // Sensor

constexpr auto fuelSensor(int number)
{
    // clang-format off
    return rowsOf(
        elementOf("FLDS", "FS%1"), kFuelSensor,
        flag("use", 0)                            .in("FLDS/checkBox_Use_%1")         .caption("cfgt6_211"),   // Use sensor %1
        link("type", "FLDS/type", 0),
        integer("address", number) .range(0, 255) .in("FLDS/spinBox_Addres_%1")       .caption("cfgt6_212"),   // Network address
        integer("thld", 50)        .range(0, 4095).in("FLDS/spinBox_Response_%1")     .caption("cfgt6_213"),   // Sensitivity threshold for points on the chart
        flag("thldOff", 1)                        .in("FLDS/checkBox_TrhldMoveOff_%1").caption("cfgt6_214"),   // Ignore the threshold in motion
        flag("filterMode", 1)                     .in("FLDS/checkBox_Filter_%1")      .caption("cfgt6_215"),   // Filtering
        integer("filterLength", 25).range(1, 30)  .in("FLDS/spinBox_Aver_%1")         .caption("cfgt6_216"),   // Averaging window
        integer("filterLvl", 6)    .range(0, 10)  .in("FLDS/spinBox_Kalman_%1")       .caption("cfgt6_217"));  // Level of additional filtering
    // clang-format on
}

// clang-format off
inline constexpr auto kFuelRows = rowsOf(
    group("FLDS"), kFuelSensors,
    choice("type", kFuelTypes, "0").byNumber().offering("0|4").unknownIs("").noItemIs("").notStored()
            .in("FLDS/comboBox_FuelType").caption("cfgt6_210"),  // Sensor type
    repeat<kRsFuelSensors>(fuelSensor));
// clang-format on

inline constexpr When kNetworkCounters = when("PCNT/type", "PP01");
inline constexpr When kDoorCounter = when("PCNT/type", "ACOND");

inline constexpr Heading kCounters{"cfgt6_019"};     // Passenger counter
inline constexpr Heading kPassengers{"cfgt6_249"};   // Passenger counters
inline constexpr Heading kCounting{"cfgt6_234"};     // Events at the start and end of counting
inline constexpr Heading kDoorsHeading{"cfgt6_240"}; // Doors

inline constexpr int kLongest = 999999999;

// clang-format off
inline constexpr auto kCounterRows = rowsOf(
    elementOf("PCNT", "PCNT"), kCounters,
    choice("type", kCounterFamilies, "PP01").offering("PP01").unknownIs("PP01").in("PCNT/comboBox_Type").caption("cfgt6_230"),  // Counter type
    kPassengers,
    repeat<kRsCounters>([](int) {
        return integer("id%1", 0).range(1, 250)
                .in("PCNT/spinBox_Passager_%1").offAtZero("checkBox_Passager_%1").caption("cfgt6_233").onlyWhen(kNetworkCounters);  // Network address of counter %1
    }),
    kCounting,
    choice("countEvent", kCountEvents, "0").byNumber().unknownIs("0").caption("cfgt6_234").onlyWhen(kNetworkCounters),  // Events at the start and end of counting
    kCounters,
    integer("id1", 0).named("counter").range(0, 250).in("PCNT/spinBox_ACode_Passager_1").caption("cfgt6_239").onlyWhen(kDoorCounter),  // Network address of the counter
    kDoorsHeading,
    digits("door", "000000", kDoors)       .listing(kDoorNumbers)    .caption("cfgt6_240").onlyWhen(kDoorCounter),      // Doors
    kCounters,
    integer("offTime", 1800).range(0, kLongest).unit("abbr_003").in("PCNT/spinBox_ACore_SM_Off").caption("cfgt6_247").onlyWhen(kDoorCounter),  // Switch the counter off
    integer("coordTime", 0).range(1, kLongest).unit("abbr_003")
            .in("PCNT/spinBox_ACore_SM_SendNavi").offAtZero("checkBox_ACore_SM_SendNavi").caption("cfgt6_248").onlyWhen(kDoorCounter),  // Send navigation data to the counter, period

    group("PCNTIN"), kCounting,
    choice("line", kInputs, "1").offering("1|2|3").notStored().in("PCNT/comboBox_Event_In").caption("cfgt6_238"));  // Input line
// clang-format on

inline constexpr Heading kLine{"cfgt6_001"}; // RS-485 interface
inline constexpr Heading kCanLog{"CAN-LOG"};
inline constexpr Heading kDtaCan{"DTA-CAN"};
inline constexpr Heading kDisplay{"cfgt6_015"};            // Driver display
inline constexpr Heading kNavigationReceiver{"cfgt6_082"}; // High-precision navigation receiver
inline constexpr Heading kRefrigerator{"cfgt6_085"};       // Refrigerator unit
inline constexpr Heading kTagReader{"cfgt6_129"};          // RFID tag reader
inline constexpr Heading kTachograph{"cfgt6_091"};         // Tachograph
inline constexpr Heading kTyrePressure{"cfgt6_009"};       // Tyre pressure monitor

// clang-format off
inline constexpr auto kRows = rowsOf(
    group("OPTIONS"), kLine,
    choice("owner1", kOwners, "")       .unknownIs("")                       .in("comboBox_RS485_Owner_1") .caption("cfgt6_201"),  // On the line
    // A second device on trackers that have room for one; known here, and never written.
    text("owner2", "")                  .notStored(),
    choice("boudrate", kSpeeds, "19200").byNumber().readLast()               .in("comboBox_RS485_Boudrate").caption("cfgt6_002"),  // Baud rate, bit/s
    choice("parity", kParities, "0")    .byNumber().readLast()               .in("comboBox_RS485_Parity")  .caption("cfgt6_003"),  // Parity
    choice("stopBit", kStopBits, "1")   .byNumber().unknownIs("1").readLast().in("comboBox_RS485_StopBit") .caption("cfgt6_004"),  // Stop bits

    // Asked from the adapter and sent to it, never in the file.
    group("CNLG"), kCanLog,
    integer("program", 0).range(0, 999999).notStored().in("CNLG/spinBox_Programm").caption("cfgt6_075"),  // Program number

    elementOf("DTCN", "DTCN"), kDtaCan,
    integer("address", 1).range(1, 255).in("DTCN/spinBox_Adress").caption("cfgt6_078"),  // Address of the DTA-CAN adapter

    elementOf("DDU", "DV01"), kDisplay,
    flag("Use", 0).in("DDU/checkBox").caption("cfgt6_162"),  // Send data to the driver display

    group("HRPS"), kNavigationReceiver,
    choice("type", kReceivers, "0").notStored().in("HRPS/comboBox_Type").caption("cfgt6_084"),  // Type of the high-precision navigation receiver

    group("REFR"), kRefrigerator,
    choice("type", kRefrigerators, "0").notStored().in("REFR/comboBox_Type").caption("cfgt6_086"),  // Type of the refrigerator unit

    elementOf("RFID", "RFID"), kTagReader,
    choice("type", kReaders, "ESCORT").unknownIs("ESCORT")             .in("RFID/comboBox_Type")   .caption("cfgt6_096"),  // Type
    integer("id", 0)                  .range(0, 255)                   .in("RFID/spinBox_Address") .caption("cfgt6_202"),  // Address
    integer("holdTime", 60)           .range(0, 86400).unit("abbr_003").in("RFID/spinBox_FixTime") .caption("cfgt6_203"),  // Tags are held for
    flag("nearOnly", 1)                                                .in("RFID/checkBox_Nearest").caption("cfgt6_204"),  // Work with the nearest tag only
    integer("minLvl", -128)           .range(-128, 0)                  .in("RFID/spinBox_Floor")   .caption("cfgt6_205"),  // Least signal level
    choice("mode", kReaderModes, "0") .byNumber().unknownIs("0")       .in("RFID/comboBox_Mode")   .caption("cfgt6_206"),  // Operating mode

    elementOf("TACH", "TACH"), kTachograph,
    choice("type", kTachographs, "ATOL").unknownIs("ATOL").in("TACH/comboBox_Type")    .caption("cfgt6_096"),  // Type
    text("login", "1")                  .secretly()       .in("TACH/lineEdit_ID")      .caption("cfgt6_097"),  // User identifier
    text("pass", "738205")              .secretly()       .in("TACH/lineEdit_Key")     .caption("cfgt6_098"),  // Authorisation key
    flag("noPing", 1)                   .resetTo(0)       .in("TACH/checkBox_Ping")    .caption("cfgt6_099"),  // do not check that the download cable is attached
    flag("eventOff", 0)                                   .in("TACH/checkBox_EventOff").caption("cfgt6_100"),  // Make an event when the link to the tachograph...

    elementOf("TPMS", "TPMS"), kTyrePressure,
    choice("type", kTyreMonitors, "PRESSPRO").unknownIs("PRESSPRO")         .in("TPMS/comboBox_Type").caption("cfgt6_080"),  // Type of the pressure monitor
    integer("holdTime", 15)                  .range(1, 255).unit("abbr_002").in("TPMS/spinBox_Time") .caption("cfgt6_081"),  // Readings are kept for

    kFuelRows, kCounterRows);
// clang-format on

} // namespace vlk::rs
