// What differs between two states of a configuration file, and how it is told.

#include "base/translated.h"
#include "document/values_document.h"
#include "review/difference_text.h"
#include "review/setting_parts.h"
#include "review/take_over.h"
#include "settings/all_settings.h"
#include "settings/quick_settings.h"
#include "support/data_table.h"
#include "support/files.h"
#include "support/setting_samples.h"

#include <QTranslator>
#include <QtTest>

#include <random>

using vlk::review::Differences;
using vlk::review::FileState;

namespace {

QByteArray factory()
{
    return readFile(VLK_SOURCE "/fuzz/corpus/settings/factory.xml");
}

FileState stateOf(const QByteArray& file)
{
    vlk::XmlDocument document(file, "DEVICE");
    return FileState::ofDocument(*document.root());
}

vlk::Configuration loaded(const QByteArray& file)
{
    vlk::Configuration configuration(vlk::allSettings());
    vlk::XmlDocument document(file, "DEVICE");
    configuration.read(*document.root());
    return configuration;
}

QByteArray saved(const vlk::Configuration& configuration)
{
    vlk::XmlDocument document(QString(), "DEVICE");
    configuration.write(*document.root());
    return document.text();
}

// "TRACK/POINTS/angle: 5 > 7", a side that lacks the key as "-", and what the load did in brackets.
QString told(const Differences& differences)
{
    const auto side = [](const QString& text) { return text.isNull() ? QString("-") : text; };
    QStringList lines;
    for (const vlk::review::Difference& difference : differences.all()) {
        const QString change = difference.change == vlk::Change::None
                                   ? QString()
                                   : ' ' + QString::number(static_cast<int>(difference.change));
        lines << difference.path + ": " + side(difference.before) + " > " + side(difference.after) +
                     (difference.byLoad ? " (load" + change + ')' : QString());
    }
    return lines.join("; ");
}

} // namespace

class DifferencesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Not digit by digit.
    void fieldsThatTheTrackerLacks()
    {
        const QByteArray file = factory().replace("mask=\"1", "mask=\"" + QByteArray(255, '1') + "\" old=\"");
        const Differences differences(stateOf(file), FileState::ofConfiguration(loaded(file)));
        bool isTold = false;
        for (const vlk::review::Difference& difference : differences.all()) {
            if (!difference.path.endsWith("ZETA/mask"))
                continue;
            const vlk::Configuration now = loaded(file);
            const auto table = vlk::review::FileKeys::all()[difference.key].table;
            const QString before = textOf(differences, difference, now.tables()[table]).beforeText;
            QVERIFY2(before.contains("rev_297") && !before.contains("1111"), qPrintable(before));
            isTold = true;
        }
        QVERIFY(isTold);
    }

    // A file that is edited as text, against what a save would make of it.
    void ofAFileAsItCame_data()
    {
        using vlk::Change;
        const auto load = [](Change change) { return QString(" (load %1)").arg(static_cast<int>(change)); };
        DataTable<QByteArray, QByteArray, QString> table({"text", "becomes", "told"});
        table.row("nothing", "", "", "")
            .row("another spelling", "pingTimer=\"90\"", "pingTimer=\"0090\"", "")
            .row("trailing zeros", "maxHDOP=\"2.5\"", "maxHDOP=\"2.50\"", "")
            .row("limited", "pingTimer=\"90\"", "pingTimer=\"9000\"",
                 "TRANS/RULES/pingTimer: 9000 > 3600" + load(Change::OutOfRange))
            .row("wrapped", "cnctTimer=\"3600\" useCmd", "cnctTimer=\"90060\" useCmd",
                 "TRANS/RULES/cnctTimer: 90060 > 3660" + load(Change::Wrapped))
            .row("no number", "pingTimer=\"90\"", "pingTimer=\"often\"",
                 "TRANS/RULES/pingTimer: often > 15" + load(Change::NotANumber))
            .row("missing", "pingTimer=\"90\"", "", "TRANS/RULES/pingTimer: - > 90" + load(Change::Missing))
            .row("unknown code", "protocol=\"ZETA\" transProto=\"TCP\" objID=\"710601\"",
                 "protocol=\"X\" transProto=\"TCP\" objID=\"710601\"",
                 "TRANS/SRV1/protocol: X > ZETA" + load(Change::UnknownCode))
            .row("unknown key", "<SIMPRIOR ", "<SIMPRIOR colour=\"2\" ",
                 "TRANS/SIMPRIOR/colour: 2 > - (load)")
            .row("doubled", "<SIMPRIOR ", "<SIMPRIOR regTimer=\"90\"/><SIMPRIOR ",
                 "TRANS/SIMPRIOR[2]/regTimer: 90 > - (load)")
            .row("unknown section", "<TRANS ", "<BOGUS page=\"BOGUS\"><A b=\"1\"/><C/></BOGUS><TRANS ",
                 "BOGUS/A/b: 1 > - (load); BOGUS/C:  > - (load)");
    }
    void ofAFileAsItCame()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, becomes);
        QFETCH(QString, told);
        QByteArray file = factory();
        if (!text.isEmpty()) {
            QVERIFY(file.contains(text));
            file.replace(file.indexOf(text), text.size(), becomes);
        }
        const Differences differences(stateOf(file), FileState::ofConfiguration(loaded(file)));
        QCOMPARE(::told(differences), told);
    }

    // In words and units, of a setting of many parts those that differ.
    void words_data()
    {
        DataTable<QString, QString, QString, QString> table({"language", "path", "value", "told"});
        table.row("number", "en", "TRANS/SRV1/port", "5000", "Data transfer|Servers / Main|Port|4000|5000|")
            .row("unit", "ru", "TRACK/POINTS/maxSpeed", "110",
                 "Трек|Всегда записывать точку трека|Порог скорости|90 км/ч|110 км/ч|")
            .row("volts", "en", "SYSTEM/FUEL/blockVolt", "9000",
                 "System|Fuel level sensors|Sensors are switched off at|8.00 V|9.00 V|")
            .row("choice", "en", "TRANS/RULES/cnctType", "0",
                 "Data transfer|Connection rules|Connection|Permanent|Periodic|")
            .row("flag", "ru", "TRACK/COORDFLT/use", "0", "Трек||Включить обработку координат|Да|Нет|")
            .row("event", "en", "OUTPUTS/LINE1/actions", "02000000000000000000",
                 "Output lines|Switches automatically on|Switches automatically on|"
                 "trigger of sensor IN2: No change|trigger of sensor IN2: Switch off|")
            .row("field of the record", "en", "PROTOCOL/ZETA/mask", "0",
                 "Data set||Fields of the record|Backup battery voltage: Yes|Backup battery voltage: No|")
            .row("secret", "en", "TRANS/AP1/pass", "geheim",
                 "Data transfer|GPRS access point|Password|•••|•••|")
            .row("address without a digit", "en", "BLUETOOTH/SENS1/macaddr", "",
                 "Bluetooth|Sensor 1|MAC address|C4:64:E3:0B:52:10||")
            .row("number that is padded in its list", "en", "BLUETOOTH/FS1/idx", "5",
                 "Bluetooth|Sensor 1|Send as (Fuel level sensor)|Fuel level sensor 3|Fuel level sensor 5|");
    }
    void words()
    {
        QFETCH(QString, language);
        QFETCH(QString, path);
        QFETCH(QString, value);
        QFETCH(QString, told);
        const vlk::TextSource source = textsOf(language);
        const vlk::TextsFrom texts(source);
        vlk::Configuration configuration = loaded(factory());
        const FileState before = FileState::ofConfiguration(configuration);
        if (path.endsWith("mask"))
            value = configuration.value(path).replace(19, 1, "0");
        configuration.edit(path, value);
        const Differences differences(before, FileState::ofConfiguration(configuration));
        QCOMPARE(line(differences, configuration, 0), told);
    }

    // Holds for a key that quick setup alone writes, too.
    void addressWithoutADigit()
    {
        const auto text = textOf({.path = "BLUETOOTH/CHANNEL1/macaddr", .before = "1:::::", .after = ":::::"},
                                 vlk::review::Secrets::Masked);
        QCOMPARE(text.beforeText, QString("1:::::"));
        QCOMPARE(text.afterText, QString(""));
        QCOMPARE(text.after, QString(":::::"));
    }

    // A side that has the value has its unit, though the line of now would have none.
    void unitOfTheOtherSide()
    {
        const vlk::TextSource source = textsOf("en");
        const vlk::TextsFrom texts(source);
        vlk::Configuration configuration = loaded(factory());
        const FileState before = FileState::ofConfiguration(configuration);
        configuration.edit("SENSORS/IN3/normState", "NB+");
        const Differences differences(before, FileState::ofConfiguration(configuration));
        const vlk::review::Difference difference =
            differences.differenceAt(vlk::review::FileKeys::all().at("SENSORS/IN3/IN3AIN/thld"));
        const int table = vlk::review::FileKeys::all()[difference.key].table;
        QCOMPARE(textOf(differences, difference, configuration.tables()[table]).beforeText,
                 QString("500 mV"));
    }

    // Also those that no window shows, and those that the quick window alone writes or shows.
    void everyKeyHasACaption()
    {
        QStringList bare;
        const auto look = [&bare](const vlk::TableLayout& layout, int row) {
            if (vlk::review::wordsOf(layout, row).caption == layout.rows[row].key)
                bare << layout.rows[row].filePath;
        };
        const auto& keys = vlk::review::FileKeys::all();
        for (int key = 0; key < keys.count(); ++key)
            look(keys.layout(keys[key].table), keys[key].rows.front());
        const vlk::TableLayout& quick = layoutOf(vlk::kQuickSettings);
        for (int row = 0; row < static_cast<int>(quick.rows.size()); ++row) {
            const vlk::TableLayout::Row& place = quick.rows[row];
            const bool isWritten = place.base->stored && place.key != "page" && keys.at(place.filePath) < 0;
            if (isWritten || vlk::review::canBeShown(*place.setting))
                look(quick, row);
        }
        QCOMPARE(bare.join(" "), QString());
        const auto text = textOf(vlk::review::Difference{-1, -1, "RS485/OPTIONS/owner2", {}, "", {}});
        QCOMPARE(text.page + '|' + text.group + '|' + text.caption, QString("cfgt6_001|cfgwl_011|rev_247"));
        QCOMPARE(text.afterText, QString("rev_753"));
        // Each line has these.
        const auto level =
            textOf(vlk::review::Difference{-1, -1, "SENSORS/IN2/IN2ADIN/lowLvl", {}, "5000", {}});
        QCOMPARE(level.group + '|' + level.caption, QString("cfgt8_011|cfgt8_024"));
        const auto zeta =
            textOf(vlk::review::Difference{-1, -1, "TRANS/SRV1/format", "EGTS", "VLKB_ZETA", {}});
        QCOMPARE(zeta.after + '|' + zeta.afterText, QString("VLKB_ZETA|ZETA"));
        // An empty secret hides nothing.
        QCOMPARE(textOf(vlk::review::Difference{-1, -1, "BLUETOOTH/CHANNEL1/pass", {}, "", {}}).afterText,
                 QString("rev_753"));
    }

    void secretsAreToldOnDemandAlone()
    {
        const QByteArray file =
            QByteArray(factory()).replace("<AP1 ", "<AP1 pass=\"eins\" pass=\"drei\"/><AP1 name=\"x\" ");
        vlk::Configuration configuration = loaded(file);
        configuration.edit("TRANS/AP1/pass", "zwei");
        const Differences differences(stateOf(file), FileState::ofConfiguration(configuration));
        QString masked, shown;
        for (std::size_t i = 0; i < differences.all().size(); ++i) {
            masked += line(differences, configuration, i);
            shown += line(differences, configuration, i, vlk::review::Secrets::Shown);
        }
        for (const char* secret : {"eins", "zwei", "drei", "mts|"}) {
            QVERIFY2(!masked.contains(secret), secret);
            QVERIFY2(shown.contains(secret), secret);
        }
    }

    void csvKeepsItsColumns()
    {
        vlk::review::DifferenceText text;
        text.caption = "a;\"b\"";
        text.beforeText = "two\nlines";
        const vlk::TextSource source = textsOf("en");
        const vlk::TextsFrom texts(source);
        QCOMPARE(vlk::review::toCsv({text}, "By default", "Now"),
                 QString("Page;Group;Setting;By default;Now;Note\r\n"
                         ";;\"a;\"\"b\"\"\";\"two\nlines\";;\r\n"));
    }

    // What a missing key reads as is no difference from the defaults, and before is that.
    void fromDefaults()
    {
        vlk::Configuration configuration = loaded("<DEVICE/>");
        Differences differences(FileState::ofDefaults(configuration),
                                FileState::ofConfiguration(configuration));
        QCOMPARE(told(differences), QString());
        for (const auto& [path, value] : QMap<QString, QString>{
                 {"TRACK/POINTS/angle", "7"},
                 {"RS485/OPTIONS/owner1", "TPMS"},
                 {"RS485/TPMS/holdTime",
                  "20"}}.toStdMap())
            configuration.edit(path, value);
        for (const vlk::Values& table : configuration.tables())
            differences.update(table);
        QCOMPARE(told(differences), QString("TRACK/POINTS/angle: 5 > 7; RS485/OPTIONS/owner1:  > TPMS; "
                                            "RS485/OPTIONS/boudrate: 19200 > 38400; "
                                            "RS485/TPMS/holdTime: 15 > 20"));
    }

    void ofTwoFiles()
    {
        const QByteArray left =
            "<DEVICE><TRACK><POINTS angle=\"07\" dist=\"x\" a=\"1\"/></TRACK><Z y=\"2\"/></DEVICE>";
        const QByteArray right =
            "<DEVICE><TRACK><POINTS angle=\"7\" dist=\"y\" a=\"2\"/></TRACK><Z y=\"2\"/></DEVICE>";
        QCOMPARE(told(Differences(stateOf(left), stateOf(right))),
                 QString("TRACK/POINTS/dist: x > y; TRACK/POINTS/a: 1 > 2"));
        QCOMPARE(told(Differences(stateOf(left), stateOf("<DEVICE/>"))),
                 QString("TRACK/POINTS/angle: 07 > -; TRACK/POINTS/dist: x > -; TRACK/POINTS/a: 1 > -; "
                         "Z/y: 2 > -"));
        for (const char* unusable : {"", "<DEVICE><TRACK>", "<OTHER><TRACK/></OTHER>", "no document"})
            QCOMPARE(told(Differences(stateOf(unusable), stateOf("<DEVICE/>"))), QString());
    }

    // The quick window's values over those of the full one, as its save lays them.
    void ofTheQuickWindow()
    {
        std::mt19937 random(1);
        vlk::Configuration full = loaded(factory());
        vlk::Values quick(vlk::kQuickSettings);
        vlk::XmlDocument document(factory(), "DEVICE");
        readFrom(*document.root(), quick);
        Differences differences(stateOf(factory()), FileState::ofConfiguration(full));
        for (int i = 0; i < 60; ++i) {
            const int row = static_cast<int>(random() % quick.count());
            const QStringList samples = samplesOfAnyKind(quick.setting(quick.holder(row)));
            quick.edit(row, samples[static_cast<int>(random() % samples.size())]);
            differences.update(FileState::ofConfiguration(full), quick);
            vlk::XmlDocument written(saved(full), "DEVICE");
            writeTo(*written.root(), quick);
            QCOMPARE(told(Differences(stateOf(written.text()), differences.after())), QString());
        }
        QStringList sections;
        for (const vlk::review::Difference& difference : differences.allForQuick())
            sections << difference.path.section('/', 0, 0);
        sections.removeDuplicates();
        QCOMPARE(sections.mid(0, 3), QStringList({"RS485", "SENSORS", "BLUETOOTH"}));
    }

    // Edits at random: what is kept up to date is what a comparison from scratch gives, and taking back the
    // differences one by one, in whatever order, ends where the edits began.
    void takenBackOneByOne_data()
    {
        QTest::addColumn<int>("seed");
        for (int seed = 1; seed <= 20; ++seed)
            QTest::addRow("%d", seed) << seed;
        for (const int seed : {441, 544}) // a value that several keys share
            QTest::addRow("%d", seed) << seed;
    }
    void takenBackOneByOne()
    {
        QFETCH(int, seed);
        std::mt19937 random(seed);
        const auto below = [&](std::size_t count) { return static_cast<int>(random() % count); };
        vlk::Configuration configuration = loaded(factory());
        const QByteArray first = saved(configuration);
        Differences differences(stateOf(first), FileState::ofConfiguration(configuration));
        QCOMPARE(told(differences), QString());
        for (int i = 0; i < 40; ++i) {
            vlk::Values& table = configuration.tables()[below(configuration.tables().size())];
            const int row = below(table.count());
            const QStringList samples = samplesOfAnyKind(table.setting(table.holder(row)));
            table.edit(row, samples[below(samples.size())]);
            differences.update(table);
        }
        QCOMPARE(told(differences),
                 told(Differences(stateOf(first), FileState::ofConfiguration(configuration))));
        QVERIFY(differences.count() > 0);
        int most = 2 * differences.count();
        while (differences.count() > 0 && most-- > 0) {
            const std::vector<vlk::review::Difference> all = differences.all();
            const int key = all[below(all.size())].key;
            takeOver(configuration, differences.before(), withNeeded(differences, {key}));
            for (const vlk::Values& table : configuration.tables())
                differences.update(table);
        }
        QCOMPARE(told(differences), QString());
        QCOMPARE(saved(configuration), first);
    }

    // A load drops its whole days; taken back it is what the file holds.
    void longPeriodIsTakenBack()
    {
        const QByteArray file = factory().replace("cnctTimer=\"3600\" useCmd", "cnctTimer=\"90060\" useCmd");
        vlk::Configuration configuration = loaded(file);
        const QString path = "TRANS/RULES/cnctTimer";
        QCOMPARE(configuration.value(path), QString("3660"));
        takeOver(configuration, Differences(stateOf(file), FileState::ofConfiguration(configuration)),
                 {vlk::review::FileKeys::all().at(path)});
        QCOMPARE(configuration.value(path), QString("90060"));
    }

    // What comes with a setting alone that is taken over is what the other side holds.
    void bringsAlongWhatTheOtherSideHolds()
    {
        const QByteArray file = factory()
                                    .replace("ign=\"1\"", "ign=\"0\"")
                                    .replace("<IN2DIN cntlRestore=\"1\" ign=\"0\" analysTime=\"2500\"/>",
                                             "<IN2DIN cntlRestore=\"1\" ign=\"1\" analysTime=\"5000\"/>");
        vlk::Configuration configuration = loaded(file);
        const QByteArray first = saved(configuration);
        QVERIFY(first.contains("<IN2DIN cntlRestore=\"1\" ign=\"1\" analysTime=\"5000\"/>"));
        configuration.edit("SENSORS/IN2/normState", "NU");
        const FileState now = FileState::ofConfiguration(configuration);
        takeOver(configuration, Differences(stateOf(file), now),
                 {vlk::review::FileKeys::all().at("SENSORS/IN2/normState")});
        QCOMPARE(saved(configuration), first);
    }

    // What a read would make of the rest of a new configuration stays as it is.
    void nothingElseIsTakenOver()
    {
        vlk::Configuration configuration(vlk::allSettings());
        const QByteArray file = saved(configuration);
        configuration.edit("TRANS/RULES/pingTimer", "120");
        const vlk::Configuration expected = configuration;
        configuration.edit("TEMPSENS/SENS1/hyst", "9");
        takeOver(configuration, Differences(stateOf(file), FileState::ofConfiguration(configuration)),
                 {vlk::review::FileKeys::all().at("TEMPSENS/SENS1/hyst")});
        for (std::size_t table = 0; table < expected.tables().size(); ++table)
            QCOMPARE(configuration.tables()[table].held(), expected.tables()[table].held());
    }

private:
    static vlk::TextSource textsOf(const QString& language)
    {
        auto translator = std::make_shared<QTranslator>();
        translator->load(QString(VLK_TEXTS "/") + language);
        return [translator](const char* key) { return translator->translate(nullptr, key); };
    }
    static QString line(const Differences& differences, const vlk::Configuration& configuration, int place,
                        vlk::review::Secrets secrets = vlk::review::Secrets::Masked)
    {
        const vlk::review::Difference difference = differences.all().at(place);
        const int table = difference.key < 0 ? 0 : vlk::review::FileKeys::all()[difference.key].table;
        const auto text = textOf(differences, difference, configuration.tables()[table], secrets);
        return QStringList{text.page, text.group, text.caption, text.beforeText, text.afterText, text.note}
            .join('|');
    }
};

QTEST_GUILESS_MAIN(DifferencesTest)
#include "tst_differences.moc"
