// Values in, texts out. Without a translator a word shows as its key, so the tables below name keys.

#include "support/data_table.h"
#include "support/records.h"
#include "telemetry/text/item_text.h"
#include "telemetry/text/key_text.h"
#include "telemetry/text/signal_level.h"
#include "telemetry/text/unit_word.h"

#include <QtTest>

#include <bit>
#include <cmath>
#include <random>
#include <set>

using namespace vlk;

namespace {

// A line: items of one kind, user parameters with their type letter, then cells of a value and its text.
constexpr char kTexts[] = R"(
NumPage FfsError CAN3FailureCode LbsCellID MotochasLoadOff | 0=0 | 4294967295=4294967295
Code Course SecondsLast Frequency8 LevelRS485_16 RS485Freq1 RefrErrorCode6 LbsMnc_2 | 0=0 | 65535=65535
NaviInfoGlonass NaviInfoQzss TiresNum30 EcoDrvSpeedMax VAccelAxelsZ TahoSpeed | 0=0 | 255=255
TempRS485_1 TempRS485_16 VAccelLineTang | -128=-128 | 127=127
LbsLevel LbsLevel_1 LbsLevel_2 | -113=-113 dBm | 0=0 dBm
Power Reserv StateU_Ain1 StateU_Ain8 | 0=0.00 | 12344=12.34 | 12346=12.35 | 125=0.13 | 375=0.38 | 65535=65.53
Altitude | -19=-1 | -9=0 | 1239=123 | -2147483648=-214748364
Speed Run Way NaviSpeed | 0.125=0.13 | 0.375=0.38 | -0.125=-0.13 | 88.8=88.80 | 1e6=1000000.00 | 1e20=100000002004087734272.00
NaviAltitude | -1=-0.001 | 123456=123.456
NaviCourse | 35999=359.99 | 5=0.05
NaviHDop NaviPDop TiresPres1 TiresPres30 | 12=1.2 | 255=25.5
EcoDrvAccelMax | -1=-0.001 | -32768=-32.768 | 1500=1.500
AccelDelta | 150=1.5 | 65534=655.34 | 65535=tmizta_071
VAccelVertical | 1=0.25 | 255=63.75
VAccelLineRoll | -1=-1.5 | -128=-192.0 | 127=190.5
TahoOdometer | 12345=1234.5 | 9999994=999999 | 9999995=1e+06 | 4294967294=4.29497e+08 | 4294967295=
FfsFuel FfsFuelTrip FfsSubmisVolume FfsReversVolume | 5=0.05 | 12345678=123457 | 100000000=1e+06
FfsSpeed FfsSubmisSpeed FfsSubmisTemp FfsReversSpeed FfsReversTemp | -1=-0.1 | 255=25.5 | -32768=-3276.8
GSM | 0=0 | 1=3 | 31=99 | 99=tmizta_027 | 98=315 | 100=322 | 255=821
AccelLinearX AccelLinearZ AccelAngularPlus AccelAngularCorner | -32768=tmizta_072 | -1=-0.001 | -32767=-32.767 | 1000=1.000
AccelModule | 0=0.00 | 65535=> 655.34 | 65534=655.34 | 1=0.01
DispLastIndex | 4294967295=tmizta_070 | 7=7
AinfGeozoneID AinfRouteID AinfStopID | 0=wrd_002 | 65535=65535
Passager_1 Passager_16 | 255=tmizta_073 | 254=254 | 0=0
Temp1 Temp8 CAN_Temp | -128= | -127=-127 abbr_017 | 0=0 abbr_017 | 127=127 abbr_017
TiresTemp1 TiresTemp30 | -127= | -128=-128 | -126=-126 | 127=127
HPrecisionTemp1 HPrecisionTemp4 | -32768= | -1=-0.05 abbr_017 | 500=25.00 abbr_017 | -32767=-1638.35 abbr_017
HPrecisionHumidity1 HPrecisionHumidity4 | 255= | 254=127.0 abbr_008 | 101=50.5 abbr_008
CAN_AxleLoad_1 CAN_AxleLoad_5 | 65535= | 65534=65534 abbr_009 | 0=0 abbr_009
CAN_EngineTurns | 65535= | 800=800
CAN_EngineLoad CAN_PedalAccel CAN_PedalStop | 255= | 254=254 % | 0=0 %
CAN_Speed | 255= | 90=90 abbr_024
CAN_TimeTO | 65535= | 65534=65534 abbr_023 | 32768=32768 abbr_023
CAN_EngineTime | 5400=1.5 abbr_001 | 0=0 abbr_001 | 4294967295=1.19305e+06 abbr_001
CAN_FuelConsumption | -0.5= | -0.0=0 abbr_026 | 1234565.0=1.23457e+06 abbr_026 | 123456.5=123457 abbr_026 | 0.00001=1e-05 abbr_026
CAN_FullRun | -1e-9= | 1e6=1e+06 abbr_023 | 12.5=12.5 abbr_023
CAN_FuelLevel | 0x8032=50 % | 50=5 abbr_026 | 0x7FFF= | 0xFFFF= | 0xFFFE=32766 % | 0x7FFE=3276.6 abbr_026
CAN_FuelLevel.percent | 0x8032=50 % | 50= | 0x7FFF= | 0xFFFF=
CAN_FuelLevel.litres | 0x8032= | 50=5 abbr_026 | 0x7FFF= | 0xFFFF=
CAN_LevelFiltr | 0x8132=50 % | 55=5.5  | 0x7FFF= | 0xFFFF=127 %
CAN_LevelFiltr.percent | 0x8132=50 % | 55= | 0x7FFF=
CAN_LevelFiltr.litres | 0x8132= | 55=5.5  | 0x7FFF=
State.mode | 0xE7=tmizta_005 | 8=tmizta_006 | 16=tmizta_007 | 24=tmizta_008
Module1.sim | 0xEF=1 | 0x10=2
Module1.modem | 0xFE=tmizta_013 | 0xDF=tmizta_015 | 1=tmizta_015 | 0x21=tmizta_016 | 0x61=tmizta_017
Module2.jamming | 0xFC=wrd_002 | 1=tmizta_026 | 2=tmizta_027 | 3=tmizta_009
State2.events | 0xC7=tmizta_364 | 8=tmizta_365 | 16=tmizta_366 | 32=tmizta_367 | 40=tmizta_368 | 24=tmizta_060 | 48=tmizta_060 | 0xFF=tmizta_060
StateCnct.connection | 0xF8=tmizta_087 | 1=tmizta_363 | 2=GPRS (2G) | 3=WiFi | 4=LTE (4G) | 5=WCDMA (3G) | 6=tmizta_087 | 7=tmizta_087
StateNGauge.fix | 2=tmizta_030 | 0xFD=tmizta_031
StateNGauge.fixOfPacket | 2=tmizta_122 | 0xFD=tmizta_121
NaviState.0 | 1=fixed point | 0xFE=float point
StateNGauge.satellites NaviState.satellites | 3=0 | 0xFF=63 | 4=1
DispCur | 0=tmizta_009 | 1=tmizta_055 | 2=tmizta_056 | 3=tmizta_057 | 4=tmizta_058 | 5=tmizta_059 | 6=tmizta_060 | 7=tmizta_061 | 8=tmizta_062 | 9=tmizta_063 | 10=tmizta_064 | 11=tmizta_036 | 12=tmizta_065 | 13=tmizta_066 | 14=tmizta_067 | 15=tmizta_068 | 16=tmizta_069 | 17=tmizta_009 | 255=tmizta_009
CAN3Event | 0=tmizta_113 | 1=tmizta_114 | 2=tmizta_115 | 3=tmizta_116 | 4=tmizta_117 | 5=tmizta_118 | 6=tmizta_119 | 7=tmizta_120 | 8=tmizta_009: 8 | 255=tmizta_009: 255
FfsState.supply | 0xFFF0=tmizta_093 | 1=tmizta_094 | 2=tmizta_095 | 3=tmizta_096 | 4=tmizta_097 | 5=tmizta_098 | 6=6 | 15=15
FfsState.return | 0xFF0F=tmizta_093 | 0x50=tmizta_098 | 0x60=6
FfsState.engine | 0xF0FF=tmizta_093 | 0x500=tmizta_098 | 0xF00=15
FfsState.power | 0xCFFF=0 | 0x1000=1 | 0xFFFF=3
RefrState1.vendor | 0xE3=tmizta_102 | 4=tmizta_103 | 8=Carrier Standard32 | 12=Zanotti | 16=ThermalMaster | 20=Carrier NDP33LN6FB | 24=6 | 28=7
RefrState2 | 0=tmizta_073 | 1=tmizta_013 | 2=tmizta_104 | 3=tmizta_105 | 4=tmizta_106 | 5=5 | 128=128 | 129=tmizta_073 | 161=tmizta_073 | 170=tmizta_073 | 171=171
RefrState2.vendor | 0=tmizta_073 | 128=tmizta_073 | 129=INVAL | 130=COOL | 143=DSABL | 156=DSCHK | 157=RRACL | 161=SERVICE | 170=Profile Upload Mode | 171=tmizta_073
RefrEngineMode | 0=tmizta_073 | 1=tmizta_107 | 2=tmizta_108 | 3=tmizta_109 | 4=tmizta_110 | 5=5
RefrCompressor | 0=tmizta_073 | 1=tmizta_111 | 2=tmizta_112 | 3=3 | 128=128 | 129=tmizta_073 | 156=tmizta_073 | 157=157
RefrCompressor.vendor | 0=tmizta_073 | 2=tmizta_073 | 3=3 | 130=Diesel, Cycle-Sentry | 132=Diesel, Continuous | 134=Electric, Cycle-Sentry | 135=Electric, Continuous | 145=Diesel, Cycle-Sentry | 148=Diesel, Continuous | 150=Electric, Cycle-Sentry | 152=Electric, Continuous | 153=Diesel, Continuous | 156=Electric, Continuous | 157=157
RefrTemp1 RefrTemp3 RefrSetTemp1 RefrSetTemp3 RefrTempAir RefrTempWater | -1850=-18.5 abbr_017 | -32768=-327.68 abbr_017
RefrTension | 65535= | 12000=12000 abbr_012
RefrIntensity | 65535= | 5=5 abbr_027
RefrPowerEngine RefrPowerNetwork | 4294967295= | 12399=123.00 abbr_001 | 99=0.00 abbr_001
RefrEngineTurns | 65535= | 1450=1450 abbr_018
TahoState.activity1 | 0xFC=tmizta_036 | 1=tmizta_037 | 2=tmizta_038 | 3=tmizta_039
TahoState.card1 | 0xF3=tmizta_040 | 4=tmizta_041 | 8=tmizta_042 | 12=tmizta_043
TahoState.activity2 | 0xCF=tmizta_036 | 0x10=tmizta_037 | 0x30=tmizta_039
TahoState.card2 | 0x3F=tmizta_040 | 0x40=tmizta_041 | 0xC0=tmizta_043
TahoMode | 0=tmizta_014 | 1=tmizta_044 | 2=tmizta_045 | 3=tmizta_046 | 4=tmizta_047 | 5=tmizta_048 | 6=tmizta_009
TahoFlags.group1 | 0xFE3F=tmizta_049 | 64=tmizta_050 | 128=tmizta_051 | 192=tmizta_052 1 | 256=tmizta_053 1 | 320=tmizta_052 2 | 384=tmizta_053 2 | 448=tmizta_054: 7
TahoFlags.group2 | 0xF1FF=tmizta_049 | 512=tmizta_050 | 2560=tmizta_052 2 | 3584=tmizta_054: 7
Latitude Longitude | 33900000=56 30.0000' | -33900000=-56 -30.0000' | 1=0 0.0001' | -1=0 -0.0001' | 0=0 0.0000' | 107999999=179 59.9999'
NaviLatitude NaviLongitude | 33900000000=56 30.0000000' | -33900000001=-56 -30.0000001' | -1=0 -0.0000001'
User1Byte_1 User1Byte_1:u User1Byte_16:f User1Byte_1:x | 255=255
User1Byte_1:s User1Byte_16:s | 255=-1 | 127=127
User1Byte_1:b User1Byte_16:b | 5=00000101
User2Byte_1:u User2Byte_15:f | 0xFFFF=65535
User2Byte_1:s User2Byte_15:s | 0x8000=-32768
User2Byte_1:b User2Byte_15:b | 0x0105=00000001   00000101
User4Byte_1 User4Byte_1:u | 0xFFFFFFFF=4294967295
User4Byte_1:s User4Byte_15:s | 0xFFFFFFFF=-1
User4Byte_1:b | 0x80000001=10000000   00000000   00000000   00000001
User4Byte_1:f User4Byte_15:f | 0xBF800000=-1.000000
User8Byte_1 User8Byte_3:u | 0x8000000000000000=9223372036854775808
User8Byte_1:s User8Byte_3:s | 0x8000000000000000=-9223372036854775808
User8Byte_1:b | 1=00000000   00000000   00000000   00000000   00000000   00000000   00000000   00000001
User8Byte_1:f User8Byte_3:f | 0x3FF0000000000000=1.000000
)";

// The text of a set bit, of a clear one, the bits; several in a line.
constexpr char kBits[] = R"(
tmizta_001 - State.0 | tmizta_002 tmizta_003 State.1 | tmizta_004 - State.2 | tmizta_010 tmizta_011 State.7
tmizta_012 tmizta_013 Module1.0 Module2.5..6 AinfState.0 | tmizta_012 tmizta_014 Module1.1..2
tmizta_013 tmizta_012 Module3.0..1 | tmizta_017 tmizta_022 Module1.6 | tmizta_018 tmizta_019 Module1.3
tmizta_021 tmizta_020 Module1.5 | tmizta_024 tmizta_023 Module1.7 | tmizta_026 wrd_002 Module2.2 AinfState.5
tmizta_026 wrd_004 TahoFlags.5
tmizta_028 tmizta_029 StateNGauge.0 StateOut1.0..7 StateOut2.0..7 TahoFlags.0..4
tmizta_033 tmizta_032 State2.0 StateIn1.0..7 StateIn2.0..7 StateIn3.0..7 | tmizta_034 tmizta_035 NaviState.1
tmizta_075 tmizta_074 AinfState.1 GeozoneInfo.0..9 | tmizta_077 tmizta_076 AinfState.2
tmizta_080 tmizta_079 AinfState.6 | tmizta_082 tmizta_081 CameraState.0
tmizta_084 tmizta_083 CameraState.1 | tmizta_086 tmizta_085 CameraState.2
tmizta_089 tmizta_088 StateCnct.3..7 | tmizta_091 tmizta_090 VAccelState.0..4
tmizta_091 tmizta_092 EcoDrvSpeedState.0..5 EcoDrvAccel1.0..7 EcoDrvAccel2.0..7 EcoDrvAccel3.0..3
tmizta_099 tmizta_087 RefrState1.0 | tmizta_101 tmizta_100 RefrState1.1
wrd_001 wrd_002 State.5..6 Module2.3 StateNGauge.1 CAN3State.0..15 CAN3Crash.0..31 CAN3FailureLamp.0..7
wrd_004 tmizta_078 AinfState.3..4 CameraState.3 | wrd_004 tmizta_360 Module2.4
)";

ItemIndex find(const QString& name)
{
    const auto found = std::ranges::find(kItems, name.toStdString(),
                                         [](const Item& item) { return std::string_view(item.name); });
    if (found == kItems.end())
        qFatal("no item %s", qPrintable(name));
    return static_cast<ItemIndex>(found - kItems.begin());
}

quint64 rawOf(const QString& value, ValueType type)
{
    if (type == ValueType::F32)
        return std::bit_cast<quint32>(value.toFloat());
    return value.startsWith(QLatin1Char('-')) ? static_cast<quint64>(value.toLongLong())
                                              : value.toULongLong(nullptr, 0);
}

QString textOf(ItemIndex item, quint64 raw, const TextOptions& options = {})
{
    RecordParts values;
    values.put(kItems[item].element, raw);
    return text(values.page(), item, options);
}

QStringList rowsOf(const char* table, const char* between)
{
    return QString::fromLatin1(table).split(QRegularExpression(between), Qt::SkipEmptyParts);
}

} // namespace

class TestText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("TZ", "XYZ-5");
        QLocale::setDefault(QLocale(QLocale::Russian, QLocale::Russia));
    }

    void values_data()
    {
        const DataTable<int, QString, quint64, QString> table({"item", "letters", "raw", "expected"});
        for (const QString& line : rowsOf(kTexts, "\n")) {
            const QStringList cells = line.split(QStringLiteral(" |"));
            for (const QString& name : cells[0].split(QLatin1Char(' '))) {
                const ItemIndex item = find(name.section(QLatin1Char(':'), 0, 0));
                for (const QString& cell : cells.mid(1)) {
                    const QString value = cell.section(QLatin1Char('='), 0, 0).trimmed();
                    table.row(qPrintable(name + ' ' + value), item,
                              name.section(QLatin1Char(':'), 1).repeated(49),
                              rawOf(value, kElements[kItems[item].element].type),
                              cell.section(QLatin1Char('='), 1));
                }
            }
        }
        for (const QString& line : rowsOf(kBits, "\n| \\| ")) {
            const std::string words = line.section(QLatin1Char(' '), 2).toStdString();
            items::forEachName(words, [&](std::string_view, const items::ItemName& name, int bit) {
                for (const bool set : {true, false}) {
                    const QString expected = line.section(QLatin1Char(' '), set ? 0 : 1, set ? 0 : 1);
                    const QString itemName = QLatin1String(name.text.data());
                    table.row(qPrintable(itemName + (set ? " set" : " clear")), find(itemName), {},
                              set ? quint64{1} << bit : ~(quint64{1} << bit),
                              expected == QLatin1String("-") ? QString() : expected);
                }
            });
        }
    }
    void values()
    {
        QFETCH(int, item);
        QFETCH(QString, letters);
        QFETCH(quint64, raw);
        QTEST(textOf(static_cast<ItemIndex>(item), raw, {letters.toStdString()}), "expected");
    }

    void times()
    {
        const std::tuple<quint32, int, const char*> rows[] = {
            {1709208000, 0, "12:00:00 29.02.2024 (UTC)"},
            {1709208000, 10800, "15:00:00 29.02.2024 (UTC +3)"},
            {1709208000, -3600, "11:00:00 29.02.2024 (UTC -1)"},
            {1709208000, 5400, "13:30:00 29.02.2024 (UTC +1)"},
            {1709208000, -5400, "10:30:00 29.02.2024 (UTC -1)"},
            {1709208000, 1800, "12:30:00 29.02.2024 (UTC +0)"},
            {1709208000, -1800, "11:30:00 29.02.2024 (UTC 0)"},
            {1709208000, 43200, "00:00:00 01.03.2024 (UTC +12)"},
            {0xFFFFFFFF, 0, "06:28:15 07.02.2106 (UTC)"},
            {0, -3600, "23:00:00 31.12.1969 (UTC -1)"},
        };
        for (const char* name : {"Time", "LastTime", "LbsTime"}) {
            for (const auto& [seconds, offset, expected] : rows) {
                RecordParts values;
                values.put(kItems[find(name)].element, seconds);
                TmiPage_Zeta3 page = values.page();
                page.setUtcOffset(offset);
                QCOMPARE(text(page, find(name)), QLatin1String(expected));
            }
        }
    }

    // Every number has the digits that Qt gives it, halves and signs of zero too.
    void numbers()
    {
        std::mt19937_64 random(7106);
        std::vector<double> numbers = {0.0,      -0.0,     0.125, -0.004,    1e-4,  9.9999e-5,    999999,
                                       999999.5, 100000.5, 0.1,   9.9999995, 1e300, std::nan(""), -INFINITY};
        for (int i = 0; i < 20'000; ++i) {
            const double scale = std::pow(10.0, static_cast<int>(random() % 18) - 6);
            numbers.push_back(static_cast<double>(static_cast<qint64>(random() % 2'000'001) - 1'000'000) /
                              std::array{8.0, 1000.0, 64.0, 1e6}[i % 4] * scale);
        }
        for (const double number : numbers) {
            for (const int decimals : {0, 1, 2, 3, 4, 6, 7}) {
                AsciiText fixed;
                fixed.addFixed(number, decimals);
                QCOMPARE(fixed.string(), QString::number(number, 'f', decimals));
            }
            AsciiText general;
            general.addGeneral(number);
            QCOMPARE(general.string(), QString::number(number, 'g', 6));
        }
    }

    // Times are those of the machine's zone; here it changes at 1:00 UTC on the last Sunday of March.
    void localTimes()
    {
        const char* const european = "CET-1CEST,M3.5.0,M10.5.0/3";
        const std::tuple<const char*, quint32, const char*, const char*> rows[] = {
            {"XYZ-5", 1709244062, "03:01:02 01.03.2024", "01.03.2024 3:01:02"},
            {european, 1711846799, "01:59:59 31.03.2024", "31.03.2024 1:59:59"},
            {european, 1711846800, "03:00:00 31.03.2024", "31.03.2024 3:00:00"},
            {european, 0xFFFFFFFF, "07:28:15 07.02.2106", "07.02.2106 7:28:15"},
            {"XYZ+4", 0, "20:00:00 31.12.1969", "31.12.1969 20:00:00"},
        };
        for (const auto& [name, seconds, clockFirst, dateFirst] : rows) {
            qputenv("TZ", name);
            const LocalZone zone;
            for (const LocalZone* given : {&zone, static_cast<const LocalZone*>(nullptr)}) {
                QCOMPARE(textOf(item("TahoTime"), seconds, {{}, given}), QLatin1String(clockFirst));
                QCOMPARE(textOf(item("Time.local"), seconds, {{}, given}), QLatin1String(dateFirst));
            }
        }
    }

    void severalValues()
    {
        RecordParts values;
        QCOMPARE(text(values.page(), item("SecondsLast.reliability")), QStringLiteral("0"));
        QCOMPARE(text(values.page(), item("AccelLinearX.axes")), QString());
        values.put(element("SecondsLast"), 5);
        QCOMPARE(text(values.page(), item("SecondsLast.reliability")), QStringLiteral("0"));
        values.put(element("AllSeconds"), 10);
        QCOMPARE(text(values.page(), item("SecondsLast.reliability")), QStringLiteral("50"));
        values.put(element("AccelLinearX"), static_cast<quint64>(-1500));
        values.put(element("AccelLinearZ"), 0x8000);
        QCOMPARE(text(values.page(), item("AccelLinearX.axes")),
                 QStringLiteral("-1.500 | 0.000 | tmizta_072"));
    }

    void signalBarAndKeys()
    {
        const std::pair<int, int> rows[] = {{1, 3}, {31, 99}, {32, 100}, {98, 100}, {99, 0}, {255, 0}};
        for (const auto& [level, percent] : rows)
            QCOMPARE(signalPercent(static_cast<std::uint8_t>(level)), percent);
        QCOMPARE(keyText(0xABC), QStringLiteral("2748 (0x000000000ABC)"));
        QCOMPARE(keyText(~quint64{0}), QStringLiteral("18446744073709551615 (0xFFFFFFFFFFFFFFFF)"));
    }

    // Any bytes have texts, but those that the mask does not have are not shown.
    void anyBytes()
    {
        std::mt19937 random(7106);
        for (int round = 0; round < 20; ++round) {
            RecordParts values;
            std::ranges::generate(values.block, std::ref(random));
            for (int field = 0; field < kFieldCount; ++field)
                values.mask.set(field, random() % 2 != 0);
            const TmiPage_Zeta3 page(176, 30, values.mask, values.block);
            for (int i = 0; i < kItemCount; ++i) {
                const QString shown = text(page, static_cast<ItemIndex>(i));
                const bool expected = page.has(kItems[i].element) || kItems[i].rule().always;
                QVERIFY2(expected || shown.isEmpty(), kItems[i].name.text.data());
            }
        }
    }

    void extraPacket()
    {
        const QByteArray packet = packetBytes(kSecondHead);
        const TmiPage_Zeta3 page(packet.constData(), packet.size());
        const QLatin1String rows(
            "NumPage=305419896|StateNGauge.satellites=10|StateNGauge.fixOfPacket=tmizta_122|Power=|"
            "Latitude=0 -0.0002'|Speed=10.00|State.mode=tmizta_008|StateOut1.7=tmizta_029");
        for (const QString& row : QString(rows).split(QLatin1Char('|')))
            QCOMPARE(text(page, find(row.section(QLatin1Char('='), 0, 0))), row.section(QLatin1Char('='), 1));
    }

    void tablesAreSound()
    {
        std::set<std::string_view> names;
        std::set<ElementIndex> elements;
        for (const Item& item : kItems) {
            const char* name = item.name.text.data();
            QVERIFY2(names.insert(item.name).second, name);
            elements.insert(item.element);
            const Rule& rule = item.rule();
            const int bits = 8 * kElements[item.element].width;
            QVERIFY2(item.bit < bits && rule.bits.first + rule.bits.count <= bits, name);
            QVERIFY2(rule.when.bit < bits || rule.when.bit == Condition::kNone, name);
            QVERIFY2(std::ranges::is_sorted(rule.names, std::less_equal<>{}, &NamedValue::first), name);
            const Measure& measure = measureOf(item, rule);
            QVERIFY2(!rule.withUnit || rule.unit || unitWord(measure.unit), name);
            if (measure.noValue) {
                const bool hasSign = isSigned(kElements[item.element].type);
                const std::int64_t least = hasSign ? -(std::int64_t{1} << (bits - 1)) : 0;
                const std::int64_t most = hasSign ? -least - 1 : (std::int64_t{1} << bits) - 1;
                QVERIFY2(*measure.noValue >= least && *measure.noValue <= most, name);
            }
        }
        QCOMPARE(static_cast<int>(elements.size()), kElementCount);
    }
};

QTEST_GUILESS_MAIN(TestText)

#include "tst_text.moc"
