// The names, groups and sums of the catalogue, each fact a second time and in another way.

#include "catalogue/field_mask.h"
#include "support/data_table.h"
#include "telemetry/text/item_names.h"

#include <QRegularExpression>
#include <QSet>
#include <QtTest>

using namespace vlk;

namespace {

QString name(const Element& element)
{
    return QString::fromLatin1(element.name.data(), static_cast<int>(element.name.size()));
}

} // namespace

class TestCatalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Every name is an element of a file, so it is unique, well-formed and found again as it is spelled.
    void names()
    {
        const QRegularExpression wellFormed(QStringLiteral("^[A-Z][A-Za-z0-9_]*$"));
        QSet<QString> seen;
        for (int i = 0; i < kElementCount; ++i) {
            const Element& element = kElements[i];
            QVERIFY2(wellFormed.match(name(element)).hasMatch(), qPrintable(name(element)));
            QVERIFY2(!seen.contains(name(element)), qPrintable(name(element)));
            seen.insert(name(element));
            QVERIFY(findElement(element.name) == static_cast<ElementIndex>(i));
        }
        for (const char* unknown : {"", "Numpage", "NumPag", "NumPage ", "TiresNum31", "User8Byte_4"})
            QVERIFY2(!findElement(unknown), unknown);
    }

    // A numbered series counts up without a gap, in the order of the bytes.
    void series()
    {
        const QRegularExpression numbered(QStringLiteral("^(.*\\D)(\\d{1,2})$"));
        QMap<QString, int> last;
        for (const Element& element : kElements) {
            const auto match = numbered.match(name(element));
            if (!match.hasMatch())
                continue;
            const int number = match.captured(2).toInt();
            if (number != 1 && !last.contains(match.captured(1)))
                continue; // State2 has no State1
            QVERIFY2(number == last.value(match.captured(1)) + 1, qPrintable(name(element)));
            last[match.captured(1)] = number;
        }
        QCOMPARE(last.value(QStringLiteral("TiresTemp")), 30);
        QCOMPARE(last.value(QStringLiteral("LevelRS485_")), 16);
        QCOMPARE(last.value(QStringLiteral("StateIn_Imp")), 8);
        QCOMPARE(last.value(QStringLiteral("Passager_")), 16);
    }

    // Rising mask bits, each there, and what stands together under one bit is told here once more.
    void groups()
    {
        QMap<int, int> sizes{{69, 8},  {70, 2},  {72, 2},  {76, 16}, {93, 6},  {94, 12}, {95, 24},
                             {96, 48}, {106, 3}, {108, 3}, {140, 2}, {141, 3}, {145, 3}, {181, 2},
                             {194, 2}, {195, 2}, {196, 3}, {197, 2}, {203, 2}};
        for (int field = 83; field <= 92; ++field)
            sizes[field] = 2;
        for (int field = 109; field <= 116; ++field)
            sizes[field] = 2;
        int next = 0;
        for (int field = 0; field < 255; ++field) {
            QCOMPARE(static_cast<int>(kFields[field].firstElement), next);
            QCOMPARE(static_cast<int>(kFields[field].elementCount), sizes.value(field, 1));
            for (int n = 0; n < sizes.value(field, 1); ++n, ++next)
                QCOMPARE(static_cast<int>(kElements[next].field), field);
        }
        QCOMPARE(next, kElementCount);
    }

    // Widths of whole stretches of fields, counted apart from the table.
    void stretches_data()
    {
        DataTable<int, int, int>({"first", "last", "bytes"})
            .row("all", 0, 254, 734)
            .row("earlier format", 0, 121, 404)
            .row("protocol 1.0", 0, 68, 146)
            .row("high precision", 69, 75, 37)
            .row("base stations", 76, 76, 37)
            .row("sensors 7 to 16", 83, 92, 30)
            .row("tyres", 93, 96, 90)
            .row("tachograph", 97, 102, 13)
            .row("passengers", 109, 116, 16)
            .row("fuel flow", 170, 180, 32)
            .row("refrigerator", 181, 198, 48)
            .row("user parameters", 206, 254, 16 + 30 + 60 + 24);
    }
    void stretches()
    {
        QFETCH(int, first);
        QFETCH(int, last);
        FieldMask mask;
        for (int field = first; field <= last; ++field)
            mask.set(field);
        QTEST(mask.payloadSize(), "bytes");
    }

    // What a code of 1 is worth, in which unit, and the code that is no value; of all others a number counts
    // as it stands and has no unit.
    void measures()
    {
        struct Row
        {
            const char* names;
            double worth;
            Unit unit;
            std::optional<qint64> noValue{};
        };
        using enum Unit;
        const Row rows[] = {
            {"Time LastTime LbsTime TahoTime", 1, UnixSeconds},
            {"GSM", 3.22, Percent, 99},
            {"Latitude Longitude", 1. / 600'000, Degree},
            {"NaviLatitude NaviLongitude", 1. / 600'000'000, Degree},
            {"Altitude", 0.1, Metre},
            {"NaviAltitude", 0.001, Metre},
            {"Speed NaviSpeed TahoSpeed EcoDrvSpeedMax", 1, KilometrePerHour},
            {"CAN_Speed", 1, KilometrePerHour, 255},
            {"Course VAccelLineTang", 1, Degree},
            {"NaviCourse", 0.01, Degree},
            {"VAccelVertical", 0.25, Degree},
            {"VAccelLineRoll", 1.5, Degree},
            {"Run Way CAN_FullRun", 1, Kilometre},
            {"CAN_TimeTO", 1, Kilometre, 65535},
            {"AllSeconds SecondsLast", 1, Second},
            {"AccelDelta AccelModule", 0.01, Second, 65535},
            {"Power Reserv StateU_Ain1..8", 0.001, Volt},
            {"RefrTension", 1, Millivolt, 65535},
            {"RefrIntensity", 1, Milliampere, 65535},
            {"Frequency1..8 RS485Freq1..16", 1, Hertz},
            {"Temp1..8 CAN_Temp", 1, Celsius, -128},
            {"TempRS485_1..16", 1, Celsius},
            {"TiresTemp1..30", 1, Celsius, -127},
            {"HPrecisionTemp1..4", 0.05, Celsius, -32768},
            {"FfsSubmisTemp FfsReversTemp", 0.1, Celsius},
            {"RefrTemp1..3 RefrSetTemp1..3 RefrTempAir RefrTempWater", 0.01, Celsius},
            {"HPrecisionHumidity1..4", 0.5, Humidity, 255},
            {"CAN_PedalAccel CAN_PedalStop CAN_EngineLoad", 1, Percent, 255},
            {"CAN_EngineTurns RefrEngineTurns", 1, TurnsPerMinute, 65535},
            {"CAN_AxleLoad_1..5", 1, Kilogram, 65535},
            {"CAN_FuelConsumption", 1, Litre},
            {"FfsFuel FfsFuelTrip FfsSubmisVolume FfsReversVolume", 0.01, Litre},
            {"FfsSpeed FfsSubmisSpeed FfsReversSpeed", 0.1, LitrePerHour},
            {"CAN_EngineTime", 1. / 3600, Hour},
            {"RefrPowerEngine RefrPowerNetwork", 0.01, Hour, 4'294'967'295},
            {"LbsLevel LbsLevel_1..2", 1, DecibelMilliwatt},
            {"NaviHDop NaviPDop TiresPres1..30", 0.1, None},
            {"TahoOdometer", 0.1, None, 4'294'967'295},
            {"DispLastIndex", 1, None, 4'294'967'295},
            {"AccelLinearX AccelLinearY AccelLinearZ AccelAngularPlus AccelAngularMinus AccelAngularCorner",
             0.001, None, -32768},
            {"EcoDrvAccelMax", 0.001, None},
            {"Passager_1..16", 1, None, 255},
            {"AinfGeozoneID AinfStopID AinfRouteID", 1, None, 0},
        };
        std::array<Row, kElementCount> expected;
        expected.fill({"", 1, None});
        for (const Row& row : rows) {
            items::forEachName(row.names, [&](std::string_view name, const items::ItemName&, int) {
                expected.at(findElement(name).value()) = row;
            });
        }
        for (int i = 0; i < kElementCount; ++i) {
            const Measure& measure = kElements[i].measure;
            QVERIFY2(qAbs(measure.of(1) - expected[i].worth) < 1e-12 && measure.unit == expected[i].unit &&
                         measure.noValue == expected[i].noValue,
                     qPrintable(name(kElements[i])));
        }
    }

    void maskTexts()
    {
        QCOMPARE(FieldMask::fromText("").text(), std::string(255, '0'));
        FieldMask::Bytes spare{};
        spare[31] = 0x01;
        QCOMPARE(FieldMask(spare).payloadSize(), 0);
        QCOMPARE(FieldMask(spare).text(), std::string(255, '0'));
        QCOMPARE(FieldMask::fromText(std::string(400, '1')).payloadSize(), 734);
        QCOMPARE(FieldMask::fromText("19a 0-1").text().substr(0, 8), std::string("11000010"));
        QCOMPARE(FieldMask::fromText(kDefaultMaskText).text(), std::string(kDefaultMaskText));
    }
};

QTEST_APPLESS_MAIN(TestCatalogue)
#include "tst_catalogue.moc"
