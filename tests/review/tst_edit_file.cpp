// Edits of configuration files: what they change in the text, what they pull along and what is refused.

#include "review/bring_settings.h"
#include "review/edit_file.h"
#include "settings/all_settings.h"
#include "support/data_table.h"
#include "support/files.h"
#include "support/setting_samples.h"

#include <QTextCodec>
#include <QtTest>

using namespace vlk::review;

class EditFileTest : public QObject
{
    Q_OBJECT

    static std::vector<KeyEdit> editsOf(const QString& text)
    {
        std::vector<KeyEdit> edits;
        for (const QString& edit : text.split(' ', Qt::SkipEmptyParts))
            edits.push_back({edit.section('=', 0, 0), edit.section('=', 1)});
        return edits;
    }

private Q_SLOTS:
    void edits_data()
    {
        DataTable<QString, QByteArray, QByteArray>({"edits", "before", "after"})
            .row("a value", "TRACK/POINTS/angle=7", "<TRACK><POINTS angle = '5' x='&amp;' /></TRACK>",
                 "<TRACK><POINTS angle = '7' x='&amp;' /></TRACK>")
            .row("the same value in another spelling", "TRACK/POINTS/angle=07",
                 "<TRACK><POINTS angle='7'/></TRACK>", "<TRACK><POINTS angle='7'/></TRACK>")
            .row("a new key comes last", "TRACK/POINTS/angle=7", "<TRACK><POINTS z='1' y='2'/></TRACK>",
                 "<TRACK><POINTS z='1' y='2' angle=\"7\"/></TRACK>")
            .row("what nobody knows stays", "TRACK/POINTS/angle=7",
                 "<X/><!-- <TRACK> --><TRACK a='>'><Y/>text<POINTS angle='5' angle='6'>\r\n</POINTS>"
                 "<POINTS angle='1'/></TRACK><TRACK/>",
                 "<X/><!-- <TRACK> --><TRACK a='>'><Y/>text<POINTS angle='7' angle='6'>\r\n</POINTS>"
                 "<POINTS angle='1'/></TRACK><TRACK/>")
            .row("a new section", "TRACK/POINTS/angle=7", "\n\t<X/>\n",
                 "\n\t<X/>\n\t<TRACK page=\"TRACK\">\n\t\t<POINTS angle=\"7\"/>\n\t</TRACK>\n")
            .row("a new element", "TRACK/POINTS/angle=7", "<TRACK page='TRACK'/>",
                 "<TRACK page='TRACK'><POINTS angle=\"7\"/></TRACK>")
            .row("a key as an element", "TRACK/POINTS/angle=7",
                 "<TRACK><POINTS><angle>5</angle></POINTS></TRACK>",
                 "<TRACK><POINTS><angle>7</angle></POINTS></TRACK>")
            .row("letters and signs", QString::fromUtf8("TRANS/OBJECT/name=ж<&\""),
                 "<TRANS><OBJECT name='\xE6'/></TRANS>",
                 "<TRANS><OBJECT name='\xE6&lt;&amp;&quot;'/></TRANS>")
            .row("a value that a load would limit", "TRACK/POINTS/maxSpeed=180",
                 "<TRACK><POINTS maxSpeed='900'/></TRACK>", "<TRACK><POINTS maxSpeed='180'/></TRACK>")
            .row("a period that the next load cuts", "TRANS/RULES/cnctTimer=86400",
                 "<TRANS><RULES cnctTimer='3600'/></TRANS>", "<TRANS><RULES cnctTimer='86400'/></TRANS>")
            .row("a device behind its value", "RS485/TPMS/holdTime=20 RS485/OPTIONS/owner1=TPMS",
                 "<RS485><OPTIONS owner1='' boudrate='9600'/></RS485>",
                 "<RS485><OPTIONS owner1='TPMS' boudrate='38400'/><TPMS type=\"PRESSPRO\" "
                 "holdTime=\"20\"/></RS485>")
            .row("a server that comes into use", "TRANS/SRV2/port=5000 TRANS/SRV2/addr=a.b",
                 "<TRANS><SRV2 addr='0.0.0.0' port='0'/></TRANS>",
                 "<TRANS><SRV2 addr='a.b' port='5000'/></TRANS>")
            .row("a device that goes", "RS485/OPTIONS/owner1=",
                 "<RS485>\n<OPTIONS owner1='TPMS'/>\n<TPMS type='PRESSPRO' holdTime='20'/>\n</RS485>",
                 "<RS485>\n<OPTIONS owner1=''/>\n</RS485>");
    }
    void edits()
    {
        QFETCH(QString, edits);
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        const QByteArray start = "<?xml version='1.0' encoding='windows-1251'?><DEVICE model='x'>";
        const EditedFile edited = withEdits(start + before + "</DEVICE>", editsOf(edits));
        QVERIFY(edited.isReadable && edited.problems.empty());
        QCOMPARE(edited.text, start + after + "</DEVICE>");
    }

    void wideLetters()
    {
        const auto document = [](const char* angle) {
            const QString text =
                QString::fromUtf8("<DEVICE y='ж'><TRACK><POINTS angle='%1'/></TRACK></DEVICE>");
            return QTextCodec::codecForName("UTF-16BE")->fromUnicode(text.arg(angle));
        };
        QCOMPARE(withEdits(document("5"), editsOf("TRACK/POINTS/angle=7")).text, document("7"));
    }

    // The paths that differ then from what was there.
    void settingsAreBrought_data()
    {
        const QByteArray line = "<OUTPUTS><LINE1 mode='GP' autoOff='%' autoOffDelay='%'/></OUTPUTS>";
        const QByteArray server = "<TRANS><SRV2 addr='%' port='%'/></TRANS>";
        const QByteArray fuel = "<PROTOCOL><ZETA mask='%'/></PROTOCOL><RS485><OPTIONS owner1='FLDS'/>"
                                "<FS1 use='%' address='%'/></RS485>";
        const auto of = [](QByteArray text, const QByteArrayList& values) {
            for (const QByteArray& value : values)
                text.replace(text.indexOf('%'), 1, value);
            return text;
        };
        DataTable<QString, QByteArray, QByteArray, QString>({"paths", "there", "from", "brought"})
            .row("the type of its form", "RS485/TPMS/holdTime", "<RS485><OPTIONS owner1=''/></RS485>",
                 "<RS485><OPTIONS owner1='TPMS'/><TPMS type='PRESSPRO' holdTime='20'/></RS485>",
                 "RS485/OPTIONS/owner1 RS485/TPMS/type RS485/TPMS/holdTime")
            .row("the switch that closes it", "OUTPUTS/LINE1/autoOffDelay", of(line, {"0", "0"}),
                 of(line, {"1", "9"}), "OUTPUTS/LINE1/autoOff OUTPUTS/LINE1/autoOffDelay")
            .row("the port of its address", "TRANS/SRV2/addr", of(server, {"0.0.0.0", "0"}),
                 of(server, {"a.example.com", "4321"}), "TRANS/SRV2/addr TRANS/SRV2/port")
            .row("a port that is there", "TRANS/SRV2/addr", of(server, {"b.example.com", "5000"}),
                 of(server, {"a.example.com", "4321"}), "TRANS/SRV2/addr")
            .row("the type of its sensor", "BLUETOOTH/SENS1/macaddr",
                 "<BLUETOOTH><GLOBAL use='0'/></BLUETOOTH>",
                 "<BLUETOOTH><GLOBAL use='1'/><CHANNEL1 device='SENS'/><SENS1 type='2' "
                 "macaddr='00:11:22:33:44:55'/></BLUETOOTH>",
                 "BLUETOOTH/GLOBAL/use BLUETOOTH/SENS1/type BLUETOOTH/SENS1/macaddr BLUETOOTH/TS1/type "
                 "BLUETOOTH/TS1/idx")
            .row("the field of the record", "RS485/FS1/address", of(fuel, {QByteArray(255, '0'), "0", "1"}),
                 of(fuel, {QByteArray(255, '1'), "1", "7"}),
                 "PROTOCOL/ZETA/mask RS485/FS1/use RS485/FS1/address");
    }
    void settingsAreBrought()
    {
        QFETCH(QString, paths);
        QFETCH(QByteArray, there);
        QFETCH(QByteArray, from);
        const QByteArray text = "<DEVICE>" + there + "</DEVICE>";
        const auto after = vlk::review::withSettings(text, "<DEVICE>" + from + "</DEVICE>", paths.split(' '));
        QVERIFY(after);
        vlk::XmlDocument one(text, "DEVICE");
        vlk::XmlDocument other(*after, "DEVICE");
        QStringList brought;
        for (const auto& difference :
             Differences(FileState::ofDocument(*one.root()), FileState::ofDocument(*other.root())).all())
            brought << difference.path;
        QTEST(brought.join(' '), "brought");
        QVERIFY(after->count('1') < 100);
        QVERIFY(!vlk::review::withSettings(text, "<DEVICE>", {}));
    }

    void refused_data()
    {
        DataTable<QString, QString>({"edits", "problems"})
            .row("unknown", "TRACK/POINTS/bend=7 TRACK/POINTS/angle=7", "0 TRACK/POINTS/bend")
            .row("out of range", "TRACK/POINTS/angle=900", "2 TRACK/POINTS/angle")
            .row("no number", "TRACK/POINTS/angle=7x", "2 TRACK/POINTS/angle")
            .row("unknown code", "RS485/OPTIONS/owner1=XX", "2 RS485/OPTIONS/owner1")
            .row("too long", "TRANS/OBJECT/name=" + QString(65, 'x'), "2 TRANS/OBJECT/name")
            .row("not to be typed", "TRANS/AP1/pin=12a", "2 TRANS/AP1/pin")
            .row("half an address", "BLUETOOTH/SENS1/macaddr=AA:BB", "2 BLUETOOTH/SENS1/macaddr")
            .row("no address", "BLUETOOTH/SENS1/macaddr=zz", "2 BLUETOOTH/SENS1/macaddr")
            .row("too long an address", "BLUETOOTH/SENS1/macaddr=AA:BB:CC:DD:EE:FF:0",
                 "2 BLUETOOTH/SENS1/macaddr")
            .row("an empty one, and one without signs",
                 "BLUETOOTH/SENS1/macaddr= BLUETOOTH/SENS2/macaddr=aabbccddeeff TRANS/SRV1/addr=", "")
            .row("marked by the window", "TRANS/SRV1/addr=http://x.y/?", "2 TRANS/SRV1/addr")
            .row("an error by itself, and beside another one",
                 "TRANS/AP1/pin=12 TRANS/CRYPTO/srv1Mode=1 TRANS/CRYPTO/key=12 TRANS/SRV1/addr=a.b",
                 "2 TRANS/AP1/pin 2 TRANS/CRYPTO/key")
            .row("no digits", "TRACK/COORDAVER/sensors=zzzz", "2 TRACK/COORDAVER/sensors")
            .row("fewer digits", "TRACK/COORDAVER/sensors=1", "2 TRACK/COORDAVER/sensors")
            .row("neither 0 nor 1", "TRACK/POINTS/useDist=7", "2 TRACK/POINTS/useDist")
            .row("a mask of other signs", "PROTOCOL/ZETA/mask=" + QString(255, '2'), "2 PROTOCOL/ZETA/mask")
            .row("outside the encoding", QString::fromUtf8("TRANS/OBJECT/name=∞"), "2 TRANS/OBJECT/name")
            .row("without its device", "RS485/TPMS/holdTime=20", "3 RS485/TPMS/holdTime");
    }
    void refused()
    {
        QFETCH(QString, edits);
        QFETCH(QString, problems);
        const QByteArray text = "<DEVICE/>";
        const EditedFile edited = withEdits(text, editsOf(edits));
        QStringList told;
        for (const PresetProblem& problem : edited.problems)
            told << QString::number(static_cast<int>(problem.what)) + ' ' + problem.path;
        QCOMPARE(told.join(' '), problems);
        QCOMPARE(edited.text == text, !problems.isEmpty());
        QVERIFY(!withEdits("<DEVICE><TRACK>", {}).isReadable);
    }

    // Whatever is edited in a file of whatever values: a load gives what the edit of a window gives.
    void agreesWithWindows()
    {
        const QByteArray factory = readFile(VLK_SOURCE "/workbench/tracker/factory.xml");
        const FileKeys& keys = FileKeys::all();
        int taken = 0;
        for (int key = 0; key < keys.count(); ++key) {
            const QStringList samples =
                samplesOfAnyKind(*keys.layout(keys[key].table).rows[keys[key].rows.front()].setting);
            for (int i = key % 7; i < samples.size(); i += 7) {
                const QString& sample = samples[i];
                const EditedFile edited = withEdits(factory, {{keys[key].path, sample}});
                if (!edited.problems.empty())
                    continue;
                vlk::Configuration windows = loaded(factory);
                // The address of a server can be typed once it is switched on.
                if (keys[key].path.endsWith("/addr") && !QStringList{"", "0.0.0.0"}.contains(sample))
                    windows.edit(QString(keys[key].path).replace("/addr", "/use"), "1");
                windows.edit(keys[key].path, sample);
                const Differences differences(FileState::ofConfiguration(windows),
                                              FileState::ofConfiguration(loaded(edited.text)));
                QVERIFY2(differences.count() == 0, qPrintable(keys[key].path + '=' + sample));
                taken += edited.text != factory;
            }
        }
        QVERIFY(taken > 300);
    }

    void presets()
    {
        vlk::XmlDocument preset(QByteArray("<DEVICE><TRACK><POINTS angle='7' x='1'/></TRACK></DEVICE>"),
                                "DEVICE");
        const EditedFile edited =
            withPreset("<DEVICE><X/><TRACK><POINTS angle='5'/></TRACK></DEVICE>", *preset.root());
        QCOMPARE(edited.text, QByteArray("<DEVICE><X/><TRACK><POINTS angle='7'/></TRACK></DEVICE>"));
        QCOMPARE(edited.problems.size(), std::size_t{1});
    }

private:
    static vlk::Configuration loaded(const QByteArray& text)
    {
        vlk::Configuration configuration(vlk::allSettings());
        vlk::XmlDocument document(text, "DEVICE");
        configuration.read(*document.root());
        return configuration;
    }
};

QTEST_GUILESS_MAIN(EditFileTest)
#include "tst_edit_file.moc"
