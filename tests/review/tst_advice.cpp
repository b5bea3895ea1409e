// Advice: each rule has a configuration that it speaks of and one beside it of which it is silent.

#include "catalogue/field_mask.h"
#include "document/configuration.h"
#include "review/advice_rules.h"
#include "settings/all_settings.h"
#include "settings/data_set_boxes.h"
#include "support/brackets.h"
#include "support/data_table.h"
#include "support/files.h"
#include "support/setting_samples.h"
#include "translations/text_files.h"

#include <QtTest>

namespace {

constexpr const char* kFactory = VLK_SOURCE "/workbench/tracker/factory.xml";

// "TRANS/SRV1/port=0; /addr=a.b": a path that begins with "/" stays in the element of the one before; a value
// "1@38 78" is a digit and its positions.
void edit(vlk::Configuration& configuration, const QString& edits)
{
    QString element;
    for (const QString& text : edits.split("; ", Qt::SkipEmptyParts)) {
        QString path = text.section('=', 0, 0);
        if (path.startsWith('/'))
            path.prepend(element);
        element = path.section('/', 0, -2);
        QString value = text.section('=', 1);
        if (value.contains('@')) {
            const QStringList positions = value.section('@', 1).split(' ');
            const QString digit = value.left(1);
            value = configuration.value(path);
            for (const QString& position : positions)
                value.replace(position.toInt(), 1, digit);
        }
        configuration.edit(path, value);
    }
}

QStringList rulesOf(const std::vector<vlk::review::Finding>& findings)
{
    QStringList rules;
    for (const vlk::review::Finding& finding : findings)
        rules << finding.rule;
    return rules;
}

} // namespace

class AdviceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        vlk::XmlDocument file(QString(kFactory), "DEVICE");
        factory_.read(*file.root());
    }

    void nothingToTell()
    {
        QCOMPARE(rulesOf(vlk::review::advise(factory_)), QStringList());
        QCOMPARE(rulesOf(vlk::review::advise(new_)), QStringList({"server_empty", "record_format"}));
        for (const vlk::review::Finding& finding : vlk::review::advise(new_))
            QCOMPARE(finding.severity, vlk::review::Severity::Hint);
    }

    void speaks_data()
    {
        const DataTable<QString, QString> rules({"speaking", "silent"});
        for (const Case& one : cases())
            rules.row(qPrintable(one.rule), one.speaking, one.silent);
    }
    void speaks()
    {
        QFETCH(QString, speaking);
        QFETCH(QString, silent);
        const QString rule = QTest::currentDataTag();
        vlk::Configuration beside = factory_;
        edit(beside, silent);
        QVERIFY2(!rulesOf(vlk::review::advise(beside)).contains(rule), "speaks of both");
        vlk::Configuration configuration = factory_;
        edit(configuration, speaking);
        const std::vector<vlk::review::Finding> findings = vlk::review::advise(configuration);
        QVERIFY2(rulesOf(findings).contains(rule), qPrintable(rulesOf(findings).join(' ')));
        for (const vlk::review::Finding& finding : findings) {
            QVERIFY(!finding.paths.isEmpty());
            vlk::Configuration mended = configuration;
            for (const vlk::review::Mend& mend : finding.mends)
                mended.edit(mend.path, mend.value);
            QVERIFY2(finding.mends.empty() || !rulesOf(vlk::review::advise(mended)).contains(finding.rule),
                     "does not mend");
        }
    }

    // The quick window names the protocol of the main server under a key of its own.
    void quickProtocol()
    {
        vlk::Configuration configuration = factory_;
        configuration.edit("TRANS/SRV1/protocol", "K6");
        const auto advised = [&](const char* quick) {
            return vlk::review::advise(configuration, {{"TRANS/SRV1/format", quick}});
        };
        const std::vector<vlk::review::Finding> findings = advised("VLKB_ZETA");
        QCOMPARE(rulesOf(findings), QStringList("quick_protocol"));
        QCOMPARE(findings[0].arguments, QStringList({"ZETA", "K6"}));
        QCOMPARE(findings[0].mends[0].value, QString("ZETA"));
        QCOMPARE(rulesOf(advised("R-7280")), QStringList());
        QCOMPARE(rulesOf(advised("")), QStringList());
    }

    // A sensor moves to the first number that nobody has; where all are taken only the user can know. The
    // ignition is where a new configuration has it, in the use that the line has.
    void mends_data()
    {
        const DataTable<QString, QString, QString> table({"rule", "edits", "mends"});
        const QString second = "BLUETOOTH/FS1/idx=2";
        table.row("free number", "fuel_numbers", second, "BLUETOOTH/FS1/idx=3 ");
        table.row("next number", "fuel_numbers", second + "; BLUETOOTH/SENS2/type=1; BLUETOOTH/FS2/idx=3",
                  "BLUETOOTH/FS1/idx=4 ");
        table.row("no number", "fuel_numbers",
                  second + "; RS485/FS3/use=1; RS485/FS4/use=1; RS485/FS5/use=1; RS485/FS6/use=1", "");
        const QString ignition = "SENSORS/IN1/IN1ADIN/ign=1 ";
        table.row("ignition", "motion_ignition", "SENSORS/IN1/ign=0", ignition);
        table.row("unused line", "motion_ignition", "SENSORS/IN1/normState=NU",
                  "SENSORS/IN1/normState=NB+ " + ignition);
    }
    void mends()
    {
        QFETCH(QString, rule);
        QFETCH(QString, edits);
        vlk::Configuration configuration = factory_;
        edit(configuration, edits);
        const auto findings = vlk::review::advise(configuration);
        QString told;
        for (const vlk::review::Mend& mend : findings.at(rulesOf(findings).indexOf(rule)).mends)
            told += mend.path + '=' + mend.value + ' ';
        QTEST(told, "mends");
    }

    void everyRuleIsTested()
    {
        QSet<QString> tested{"quick_protocol"};
        for (const Case& one : cases())
            tested << one.rule;
        for (const vlk::review::advice::Rule& rule : vlk::review::advice::kRules)
            QVERIFY2(tested.contains(rule.id), rule.id);
    }

    // A text tells all that its rule gives, and nothing else, in both languages.
    void texts()
    {
        for (const QString& language : kLanguages) {
            const Texts texts = readTexts(language);
            for (const vlk::review::advice::Rule& rule : vlk::review::advice::kRules) {
                const QString text = texts.value(rule.text);
                QVERIFY2(!text.isEmpty(), rule.id);
                for (std::size_t i = 0; i < rule.arguments.size(); ++i) {
                    const bool isGiven =
                        rule.arguments[i].kind != vlk::review::advice::Argument::Kind::Nothing;
                    QVERIFY2(text.contains('%' + QString::number(i + 1)) == isGiven, rule.id);
                }
            }
        }
        const TextsAs english([texts = readTexts("en")](const QString& key) { return texts.value(key); });
        vlk::Configuration configuration = factory_;
        edit(configuration,
             "TRANS/SRV1/addr=%2 %1; RS485/FS4/use=1; PROTOCOL/ZETA/mask=0@22; TRACK/GNSS/angle=31");
        QStringList told;
        for (const vlk::review::Finding& finding : vlk::review::advise(configuration))
            told << vlk::review::adviceText(finding);
        QCOMPARE(told,
                 QStringList(
                     {"Server \"Main\" cannot be reached: %2 %1 is neither an IP address nor a host name.",
                      "An elevation mask angle of 31° leaves few satellites.",
                      "Fuel level sensor 4 on the RS-485 line is in use, but the record lacks the field "
                      "\"Level sensor 4\".",
                      "Line AIN3 measures a voltage, but the record lacks the field \"Voltage at the input "
                      "AIN3\"."}));
    }

    // Whatever a file holds.
    void malformedFiles()
    {
        for (const QString& text : hostileTexts() + QStringList{QString(300, '9'), "%1|", "((("}) {
            QByteArray file = readFile(kFactory);
            for (int at = file.indexOf("<TRANS"); (at = file.indexOf("=\"", at)) >= 0;) {
                at += 2;
                file.replace(at, file.indexOf('"', at) - at, text.toHtmlEscaped().toLatin1());
            }
            vlk::XmlDocument document(file, "DEVICE");
            vlk::Configuration configuration(vlk::allSettings());
            configuration.read(*document.root());
            for (const vlk::review::Finding& finding : vlk::review::advise(configuration))
                QVERIFY(!finding.paths.isEmpty());
        }
    }

private:
    // Edits of the factory configuration.
    struct Case
    {
        QString rule;
        QString speaking;
        QString silent;
    };
    static QVector<Case> cases()
    {
        QVector<Case> all;
        const char* const in3 = "SENSORS/IN3/normState";
        const auto row = [&](const char* rule, const QString& speaking, const QString& silent) {
            all.append({rule, speaking, silent});
        };
        row("server_empty", "TRANS/SRV1/addr=; /port=0", "TRANS/SRV2/use=1; /addr=; /port=0");
        row("server_address", "TRANS/SRV2/use=1", "TRANS/SRV2/use=1; /addr=10.0.0.1");
        row("server_port", "TRANS/SRV1/port=0", "TRANS/SRV1/port=1");
        row("server_address_form", "TRANS/SRV1/addr=http://a.b", "TRANS/SRV1/addr=a.b");
        row("server_port_large", "TRANS/SRV1/port=65536", "TRANS/SRV1/port=65535");
        row("server_none", "TRANS/SRV1/use=0", "TRANS/SRV1/use=0; TRANS/SRV2/use=1");
        row("servers_same", "TRANS/SRV3/use=1; /addr=Telemetry.example.com",
            "TRANS/SRV3/use=1; /addr=telemetry.example.com; /port=4001");
        row("server_main", "TRANS/SRV1/use=0; TRANS/SRV3/use=1", "TRANS/SRV3/use=1");
        row("server_object", "TRANS/SRV1/protocol=EGTS; /objID=0", "TRANS/SRV1/protocol=EGTS; /objID=1");
        row("crypto_no_key", "TRANS/CRYPTO/srv1Mode=1", "TRANS/CRYPTO/srv2Mode=1");
        row("crypto_key_form", "TRANS/CRYPTO/srv1Mode=1; /key=12AB",
            "TRANS/CRYPTO/srv1Mode=1; /key=" + QString(32, 'a'));
        row("crypto_unused", "TRANS/CRYPTO/key=1", "TRANS/CRYPTO/srv3Mode=1; /key=1");
        row("roaming_no_operator",
            "TRANS/ROAMSIM1/dontCnct=1; /opCode1=0; /opCode2=0; /opCode3=0; /opCode4=0",
            "TRANS/ROAMSIM1/dontCnct=1");
        row("pin_short", "TRANS/AP1/pin=123", "TRANS/AP1/pin=1234");
        row("access_point_name", "TRANS/AP1/name=", "TRANS/AP1/name=; /login=; /pass=");
        const QString fromList = "TRANS/AP1/name=; /login=; /pass=; TRANS/AUTOAPN/sID3=";
        row("apn_code_form", fromList + "25a", fromList + "310410; /sID4=");
        row("apn_code_same", fromList + "25001", "TRANS/AUTOAPN/sID3=25001");
        row("connection_period_cut", "TRANS/RULES/cnctTimer=86400", "TRANS/RULES/cnctTimer=86340");
        row("failure_pause_cut", "TRANS/RULES/blockTimer=86400", "TRANS/RULES/blockTimer=86340");
        row("connection_period_zero", "TRANS/RULES/cnctType=0; /cnctTimer=0", "TRANS/RULES/cnctTimer=0");

        row("record_format", "PROTOCOL/ZETA/format=20", "PROTOCOL/ZETA/format=30");
        row("record_nearly_full", withBytes(461), withBytes(460));
        row("record_no_coordinates", "PROTOCOL/ZETA/mask=0@9", "PROTOCOL/ZETA/mask=0@12");

        row("track_no_points", "TRACK/POINTS/angleMode=0; /useDist=0; /useTimer=0",
            "TRACK/POINTS/angleMode=0; /useDist=0");
        row("track_distance_paused", "TRACK/LIMPOINT/dist=51; TRACK/POINTS/dist=50",
            "TRACK/LIMPOINT/dist=50; TRACK/POINTS/dist=50");
        row("track_period_paused", "TRACK/LIMPOINT/blockTimer=1; /timer=13",
            "TRACK/LIMPOINT/blockTimer=1; /timer=13; TRACK/POINTS/moveTimer=0");
        row("overspeed_rejected", "TRACK/COORDFLT/maxSpeed=90", "TRACK/COORDFLT/maxSpeed=91");
        row("motion_ignition", "SENSORS/IN1/ign=0", "SENSORS/IN2/ign=1");
        row("motion_engine", "TRACK/POINTS/moveTimerSens=010",
            "TRACK/POINTS/moveTimerSens=010; SYSTEM/PWRSENS/line=3");
        row("motion_tachometer", "TRACK/POINTS/moveTimerSens=001", "TRACK/POINTS/moveTimerSens=100");
        row("stop_ignition", "TRACK/COORDAVER/sensors=1000; SENSORS/IN1/ign=0",
            "TRACK/COORDAVER/sensors=1100; SENSORS/IN1/ign=0");
        row("motion_sensor", "ACCEL/SENSORS/sh3=0.0", "ACCEL/SENSORS/sh3=0.1");
        row("elevation_mask", "TRACK/GNSS/angle=31", "TRACK/GNSS/angle=30");
        row("filter_satellites", "TRACK/COORDFLT/minSats=13", "TRACK/COORDFLT/minSats=13; /use=0");
        row("filter_hdop", "TRACK/COORDFLT/maxHDOP=0.7", "TRACK/COORDFLT/maxHDOP=0.8");

        const QString supply = "SYSTEM/PWRSENS/line=3; ";
        row("fuel_ignition", "SYSTEM/FUEL/sensors=100; SENSORS/IN1/normState=NU", "SYSTEM/FUEL/sensors=100");
        row("fuel_never_off", supply + "SYSTEM/FUEL/sensors=001; /blockVolt=0", "SYSTEM/FUEL/blockVolt=0");
        row("fuel_never_on", supply + "SYSTEM/FUEL/sensors=001; /unblockVolt=31000",
            supply + "SYSTEM/FUEL/sensors=001; /unblockVolt=30000");
        row("supply_never_restores", supply + "/restoreLvl=32000", "SYSTEM/PWRSENS/restoreLvl=32000");
        row("engine_never_runs", supply + "SYSTEM/ENGSENS/useCustom=1; /voltageLvl=32000",
            supply + "SYSTEM/ENGSENS/voltageLvl=32000");
        row("engine_below_alarm", supply + "SYSTEM/ENGSENS/useCustom=1; /voltageLvl=10500",
            supply + "SYSTEM/ENGSENS/useCustom=1; /voltageLvl=10600");
        row("ntp_no_server", "SYSTEM/NTP/ntpSrv1=; /ntpSrv2=; /ntpSrv3=; /ntpSrv4=",
            "SYSTEM/NTP/ntpSrv1=; /ntpSrv2=; /ntpSrv3=");
        row("ntp_server_form", "SYSTEM/NTP/ntpSrv4=a b", "SYSTEM/NTP/ntpSrv4=a-b");
        row("ntp_periods", "SYSTEM/NTP/faultPeriod=721", "SYSTEM/NTP/faultPeriod=720");

        const QString counters = "RS485/OPTIONS/owner1=PCNT; ";
        row("fuel_field", "PROTOCOL/ZETA/mask=0@38 78", "RS485/FS6/use=0");
        row("fuel_addresses", "RS485/FS16/use=1; /address=2", "RS485/FS16/address=2");
        row("fuel_none", "RS485/FS1/use=0; RS485/FS2/use=0", "RS485/FS1/use=0");
        row("counters_none", counters, counters + "RS485/PCNT/id7=1");
        row("counter_addresses", counters + "RS485/PCNT/id1=9; /id7=9", counters + "RS485/PCNT/id1=9");
        row("display_silent", "RS485/OPTIONS/owner1=DDU", "RS485/OPTIONS/owner1=DDU; RS485/DV01/Use=1");

        row("temperature_field", "PROTOCOL/ZETA/mask=0@45 163", "PROTOCOL/ZETA/mask=0@45");
        row("input_field", "PROTOCOL/ZETA/mask=0@28",
            "PROTOCOL/ZETA/mask=0@28; SENSORS/IN1/normState=NU; SENSORS/IN2/normState=NU");
        row("analogue_field", "PROTOCOL/ZETA/mask=0@22", "PROTOCOL/ZETA/mask=0@22; SENSORS/IN3/normState=NU");
        const QString open = QString(in3) + "=NB+; SENSORS/IN3/IN3ADIN/";
        const QString closed = QString(in3) + "=NS+; /cntlRestore=1; SENSORS/IN3/IN3ADIN/";
        row("line_never_triggers", open + "highLvl=31000", closed + "highLvl=31000");
        row("line_never_restores", closed + "highLvl=31000", open + "highLvl=31000");
        row("line_names", "SENSORS/IN2/name= зажигание ", "SENSORS/IN2/name=Зажигание; /normState=NU");
        row("line_and_output_name", "OUTPUTS/LINE1/nickname=Датчик AIN3",
            "OUTPUTS/LINE1/nickname=Датчик AIN3; SENSORS/IN3/normState=NU");
        row("supply_line_taken", supply + "SENSORS/IN3/normState=NS+", supply);

        const QString output = "OUTPUTS/LINE1/mode=GP; /safeBlock=1; ";
        row("shock_levels", "ACCEL/SENSORS/sh2=50.0", "ACCEL/SENSORS/sh2=50.1");
        row("output_unsafe", "OUTPUTS/LINE1/mode=GP; /actions=1@0", "OUTPUTS/LINE1/mode=GP; /actions=2@0");
        row("output_idle", output + "/signalForm=1; /onPeriod=1", output + "/actions=1@0; /signalForm=1");
        row("output_idle", output + "/actions=2@0; /signalForm=1; /onPeriod=1", output + "/actions=2@0");
        row("output_time_on", output + "/signalForm=1", output + "/onPeriod=0");
        row("output_time_off", output + "/signalForm=2", output + "/signalForm=1");
        row("output_off_delay", output + "/signalForm=2; /autoOff=1",
            output + "/signalForm=2; /autoOff=1; /autoOffDelay=1");
        row("output_field", output + "/actions=2@16; PROTOCOL/ZETA/mask=0@30", "PROTOCOL/ZETA/mask=0@30");
        row("output_by_line", output + "/actions=1@1; SENSORS/IN2/normState=NU", output + "/actions=1@1");
        row("output_by_shock", output + "/actions=1@8; ACCEL/SENSORS/sh4=0",
            output + "/actions=1@7; ACCEL/SENSORS/sh4=0");
        row("output_by_supply", output + "/actions=1@15", output + "/actions=1@15; " + supply);
        const QString wide = "TEMPSENS/SENS1/min=-50; /max=120; TEMPSENS/SENS2/min=-50; ";
        row("output_by_cold", output + "/actions=1@11; " + wide, output + "/actions=1@11");
        row("output_by_heat", output + "/actions=1@12; " + wide + "/max=120",
            output + "/actions=1@12; " + wide);
        row("output_by_normal", output + "/actions=1@13; " + wide + "/max=120",
            output + "/actions=1@13; " + wide);

        const QString sensor4 = "BLUETOOTH/SENS4/type=%1; /macaddr=00:11:22:33:44:55; /name=a; ";
        row("bluetooth_fuel_field", "BLUETOOTH/FS1/idx=6", "BLUETOOTH/FS1/idx=6; PROTOCOL/ZETA/mask=1@42");
        row("bluetooth_temperature_field", "PROTOCOL/ZETA/format=10; PROTOCOL/ZETA/mask=0@44",
            "PROTOCOL/ZETA/mask=0@44");
        row("bluetooth_combined_field",
            sensor4.arg(7) + "BLUETOOTH/US4 TS4/idx=4; PROTOCOL/ZETA/mask=0@47 165",
            sensor4.arg(7) + "BLUETOOTH/US4 TS4/idx=4; PROTOCOL/ZETA/mask=0@47");
        row("fuel_numbers", "BLUETOOTH/FS1/idx=2", "BLUETOOTH/FS1/idx=2; RS485/FS2/use=0");
        row("bluetooth_address", "BLUETOOTH/SENS1/macaddr=C4:64:E3:0B:52", "BLUETOOTH/SENS4/macaddr=C4");
        row("bluetooth_addresses", sensor4.arg(1) + "/macaddr=c4:64:e3:0b:52:10",
            sensor4.arg(0) + "/macaddr=C4:64:E3:0B:52:10");
        row("bluetooth_type", sensor4.arg(0), sensor4.arg(1));
        row("bluetooth_off", "BLUETOOTH/GLOBAL/use=0",
            "BLUETOOTH/GLOBAL/use=0; BLUETOOTH/SENS1/type=0; BLUETOOTH/SENS2/type=0");
        row("bluetooth_name", "BLUETOOTH/SENS1/name=", "BLUETOOTH/SENS1/name=; BLUETOOTH/FS1/type=1");
        return all;
    }

    // A record of that many bytes: boxes as far as they fit, the largest ones first.
    static QString withBytes(int bytes)
    {
        const auto sizeOf = [](const QString& mask) {
            return vlk::review::advice::kRecordHead +
                   vlk::FieldMask::fromText(mask.toStdString()).payloadSize();
        };
        constexpr int largest = 90;
        QString mask = "111" + QString(vlk::kFieldCount - 3, '0');
        for (int size = largest; size > 0; --size) {
            for (const vlk::DataSetBox& box : vlk::kDataSetBoxes) {
                QString ticked = mask;
                for (std::size_t i = 0; i < box.field.count; ++i)
                    ticked[box.field.positions[i]] = '1';
                if (sizeOf(ticked) - sizeOf(mask) == size && sizeOf(ticked) <= bytes)
                    mask = ticked;
            }
        }
        return "PROTOCOL/ZETA/mask=" + mask;
    }

    vlk::Configuration factory_{vlk::allSettings()};
    const vlk::Configuration new_{vlk::allSettings()};
};

QTEST_GUILESS_MAIN(AdviceTest)
#include "tst_advice.moc"
