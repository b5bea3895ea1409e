// What differs between two states of a configuration file, and how it is told.

#include "review/difference_text.h"
#include "review/take_over.h"
#include "settings/all_settings.h"
#include "settings/quick_settings.h"
#include "support/data_table.h"
#include "support/files.h"
#include "support/setting_samples.h"

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
        const QString change = difference.change == vlk::Change::none
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
                 "TRANS/RULES/pingTimer: 9000 > 3600" + load(Change::outOfRange))
            .row("wrapped", "cnctTimer=\"3600\" useCmd", "cnctTimer=\"90060\" useCmd",
                 "TRANS/RULES/cnctTimer: 90060 > 3660" + load(Change::wrapped))
            .row("no number", "pingTimer=\"90\"", "pingTimer=\"often\"",
                 "TRANS/RULES/pingTimer: often > 15" + load(Change::notANumber))
            .row("missing", "pingTimer=\"90\"", "", "TRANS/RULES/pingTimer: - > 90" + load(Change::missing))
            .row("unknown code", "protocol=\"ZETA\" transProto=\"TCP\" objID=\"710601\"",
                 "protocol=\"X\" transProto=\"TCP\" objID=\"710601\"",
                 "TRANS/SRV1/protocol: X > ZETA" + load(Change::unknownCode))
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
            const QStringList samples = samplesOf(table.setting(table.holder(row)));
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
};

QTEST_GUILESS_MAIN(DifferencesTest)
#include "tst_differences.moc"
