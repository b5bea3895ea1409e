// Presets: chosen settings in a file of their own, and what becomes of a configuration that takes them.

#include "review/preset.h"
#include "settings/all_settings.h"
#include "support/data_table.h"
#include "support/files.h"
#include "xml/xml_document.h"

#include <QtTest>

using vlk::review::Differences;
using vlk::review::FileKeys;
using vlk::review::FileState;

class PresetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The chosen keys and nothing else, in the order of a save; secrets and the object's name on demand.
    void written_data()
    {
        DataTable<bool, QByteArray> table({"personal", "sections"});
        table
            .row("as a rule", false,
                 "<TRANS page=\"TRANS\"><AP1 name=\"internet.mts.ru\"></AP1></TRANS>"
                 "<TRACK page=\"TRACK\"><POINTS angle=\"5\"></POINTS></TRACK>")
            .row("with what is personal", true,
                 "<TRANS page=\"TRANS\"><OBJECT name=\"x\"></OBJECT><SRV1 objID=\"17017\"></SRV1><AP1 "
                 "name=\"internet.mts.ru\" "
                 "pass=\"mts\">"
                 "</AP1></TRANS><TRACK page=\"TRACK\"><POINTS angle=\"5\"></POINTS></TRACK><BLUETOOTH "
                 "page=\"BLUETOOTH\"><SENS1 macaddr=\"C4:64:E3:0B:52:10\"></SENS1></BLUETOOTH>");
    }
    void written()
    {
        QFETCH(bool, personal);
        QFETCH(QByteArray, sections);
        vlk::Configuration configuration = factory();
        configuration.edit("TRANS/OBJECT/name", "x");
        configuration.edit("TRANS/SRV1/objID", "17017");
        std::vector<int> keys;
        for (const char* path :
             {"TRACK/POINTS/angle", "TRANS/AP1/name", "TRANS/AP1/pass", "TRANS/OBJECT/name",
              "RS485/TPMS/type", "TRANS/SRV1/objID", "BLUETOOTH/SENS1/macaddr"})
            keys.push_back(FileKeys::all().at(path));
        vlk::XmlDocument document(QString(), "DEVICE");
        writePreset(*document.root(), FileState::ofConfiguration(configuration), keys,
                    personal ? vlk::review::Personal::Included : vlk::review::Personal::LeftOut);
        QByteArray text = document.text().replace("\t", "").replace("\r", "").replace("\n", "");
        QVERIFY(text.endsWith("<DEVICE creator=\"preset\">" + sections + "</DEVICE>"));
        vlk::XmlDocument again(document.text(), "DEVICE");
        QVERIFY(vlk::review::saysPreset(*again.root()));
    }

    void applied_data()
    {
        DataTable<QByteArray, QString, QString> table({"preset", "changes", "problems"});
        table.row("values", "<TRACK><POINTS angle=\"07\" dist=\"500\"/></TRACK>", "TRACK/POINTS/angle=7", "")
            .row("a device with its values",
                 "<RS485><OPTIONS owner1=\"TPMS\"/><TPMS holdTime=\"20\"/></RS485>",
                 "RS485/OPTIONS/owner1=TPMS RS485/TPMS/type=PRESSPRO RS485/TPMS/holdTime=20", "")
            .row("a device that is not there", "<RS485><TPMS holdTime=\"20\"/></RS485>", "",
                 "3 RS485/TPMS/holdTime")
            .row("unknown keys", "<TRACK><POINTS angle=\"7\" bend=\"1\"/><X y=\"1\"/></TRACK><Z/>",
                 "TRACK/POINTS/angle=7", "0 TRACK/POINTS/bend 0 TRACK/X/y 0 Z")
            .row("the same key twice", "<TRACK><POINTS angle=\"7\"/><POINTS angle=\"8\"/></TRACK>",
                 "TRACK/POINTS/angle=7", "1 TRACK/POINTS[2]/angle")
            .row("a key twice in one element", "<TRACK><POINTS angle=\"7\" angle=\"8\" angle=\"9\"/></TRACK>",
                 "TRACK/POINTS/angle=7", "1 TRACK/POINTS/angle[2] 1 TRACK/POINTS/angle[3]")
            .row("the same section twice",
                 "<TRACK><POINTS angle=\"7\"/></TRACK><TRACK><POINTS dist=\"8\"/></TRACK>",
                 "TRACK/POINTS/angle=7", "1 TRACK[2]/POINTS/dist")
            .row("bad values",
                 "<TRACK><POINTS angle=\"900\" angleMode=\"9\" dist=\"far\" maxSpeed=\"70\"/></TRACK>",
                 "TRACK/POINTS/maxSpeed=70",
                 "2 TRACK/POINTS/angle 2 TRACK/POINTS/angleMode 2 TRACK/POINTS/dist")
            .row("what a window would not take",
                 "<TRANS><SRV1 addr=\"a b\"/><AP1 pin=\"12\"/></TRANS><TRACK><POINTS useDist=\"7\"/></TRACK>",
                 "", "2 TRANS/SRV1/addr 2 TRANS/AP1/pin 2 TRACK/POINTS/useDist")
            .row("signs that no file holds", "<TRANS><OBJECT name=\"Truck \u2603\"/></TRANS>", "",
                 "2 TRANS/OBJECT/name")
            .row("a period of a day and one beyond its range",
                 "<TRANS><RULES blockTimer=\"86700\" cnctTimer=\"999999999\"/></TRANS>",
                 "TRANS/RULES/blockTimer=86700", "2 TRANS/RULES/cnctTimer")
            .row("a line that is used as a switch claims no ignition",
                 "<SENSORS><IN3 normState=\"NS+\"/></SENSORS>",
                 "SENSORS/IN3/normState=NS+ SENSORS/IN3/IN3ADIN/cntlRestore=0 SENSORS/IN3/IN3ADIN/ign=0 "
                 "SENSORS/IN3/IN3ADIN/analysTime=2500 SENSORS/IN3/IN3ADIN/lowLvl=5000 "
                 "SENSORS/IN3/IN3ADIN/highLvl=6000",
                 "")
            .row("nothing", "", "", "");
    }
    void applied()
    {
        QFETCH(QByteArray, preset);
        QFETCH(QString, changes);
        QFETCH(QString, problems);
        const vlk::Configuration configuration = factory();
        vlk::XmlDocument document("<DEVICE creator=\"preset\">" + preset + "</DEVICE>", "DEVICE");
        const vlk::review::AppliedPreset applied = vlk::review::applied(*document.root(), configuration);
        const Differences differences(FileState::ofConfiguration(configuration), applied.state);
        QStringList told;
        for (const vlk::review::Difference& difference : differences.all()) {
            // The line settings that a device brings along are told elsewhere.
            if (!difference.after.isNull() && !difference.path.endsWith("boudrate"))
                told << difference.path + '=' + difference.after;
        }
        QCOMPARE(told.join(' '), changes);
        told.clear();
        for (const vlk::review::PresetProblem& problem : applied.problems)
            told << QString::number(static_cast<int>(problem.what)) << problem.path;
        QCOMPARE(told.join(' '), problems);

        // Taking over all that differs, or what the preset holds, gives the same configuration.
        std::vector<int> all;
        for (const vlk::review::Difference& difference : differences.all())
            all.push_back(difference.key);
        for (const std::vector<int>& keys : {all, applied.keys}) {
            vlk::Configuration taken = configuration;
            takeOver(taken, applied.state, keys);
            QCOMPARE(Differences(applied.state, FileState::ofConfiguration(taken)).count(), 0);
        }
    }

    void isSurvived()
    {
        for (const char* text : {"", "<DEVICE><TRACK>", "<OTHER creator=\"preset\"/>", "no document"}) {
            vlk::XmlDocument document(QByteArray(text), "DEVICE");
            QVERIFY(!vlk::review::saysPreset(*document.root()));
            const vlk::review::AppliedPreset applied = vlk::review::applied(*document.root(), factory());
            QVERIFY(applied.keys.empty() && applied.problems.empty());
        }
    }

private:
    static vlk::Configuration factory()
    {
        vlk::Configuration configuration(vlk::allSettings());
        vlk::XmlDocument document(readFile(VLK_SOURCE "/fuzz/corpus/settings/factory.xml"), "DEVICE");
        configuration.read(*document.root());
        return configuration;
    }
};

QTEST_GUILESS_MAIN(PresetTest)
#include "tst_preset.moc"
