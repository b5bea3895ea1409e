// The files of what was edited and neither saved nor written: found again whole or not at all, and laid over
// a configuration without what has changed there since.

#include "base/clock.h"
#include "base/file_claim.h"
#include "review/recovery.h"
#include "support/data_table.h"
#include "support/files.h"
#include "support/full_disk.h"
#include "xml/xml_document.h"

#include <QTemporaryDir>
#include <QtTest>

using vlk::review::Unsaved;

using Damage = std::function<QByteArray(QByteArray)>;
Q_DECLARE_METATYPE(Damage)

class RecoveryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void found_data()
    {
        const auto at = [](int place) {
            return [place](QByteArray file) {
                const int byte = place < 0 ? file.size() + place : place;
                file[byte] = static_cast<char>(file[byte] ^ 0x20);
                return file;
            };
        };
        QTest::addColumn<Damage>("damage");
        QTest::addColumn<bool>("isFound");
        const std::tuple<const char*, Damage, bool> rows[] = {
            {"whole", [](const QByteArray& file) { return file; }, true},
            {"another mark", at(0), false},
            {"a damaged length", at(15), false},
            {"a damaged value", at(150), false},
            {"a damaged checksum", at(-1), false},
            {"truncated", [](const QByteArray& file) { return file.left(file.size() - 1); }, false},
            {"half of it", [](const QByteArray& file) { return file.left(file.size() / 2); }, false},
            {"empty", [](const QByteArray&) { return QByteArray(); }, false},
            {"a configuration", [](const QByteArray&) { return before(); }, false},
            {"with more behind it", [](const QByteArray& file) { return file + '\n'; }, false},
        };
        for (const auto& [name, damage, isFound] : rows)
            QTest::newRow(name) << damage << isFound;
    }
    void found()
    {
        QFETCH(Damage, damage);
        const QTemporaryDir folder;
        const QString path = keep(folder, unsaved());
        writeFile(path, damage(readFile(path)));
        const auto kept = vlk::review::keptUnsaved(folder.path(), "file a");
        QTEST(kept.size() == 1, "isFound");
        if (kept.size() == 1)
            QCOMPARE(kept[0].unsaved.after, unsaved().after);
        // What can be read no more stays on the disk, and is found until it is said that it is known.
        const QStringList aside = vlk::review::setDamagedAside(folder.path(), "file a");
        QTEST(aside.isEmpty() && QFile::exists(path), "isFound");
        QVERIFY(aside.isEmpty() || QFile::exists(aside[0]));
        QCOMPARE(vlk::review::setDamagedAside(folder.path(), "file b"), QStringList());
        QCOMPARE(vlk::review::setDamagedAside(folder.path(), "file a"), aside);
        for (const QString& known : aside)
            vlk::review::setKnown(known);
        QCOMPARE(vlk::review::setDamagedAside(folder.path(), "file a"), QStringList());
        QVERIFY(aside.isEmpty() || QFile::exists(aside[0]));
    }

    // Each time of editing stays, and the one under way is written over; others never come.
    void ofOneConfiguration()
    {
        const QTemporaryDir folder;
        Unsaved later = unsaved();
        later.moment = later.moment.addSecs(60);
        const QString path = keep(folder, later);
        keep(folder, unsaved());
        QVERIFY(vlk::review::keptUnsaved(folder.path(), "file b").empty());
        // Under a name that the other one has.
        QString stem = QFileInfo(vlk::review::recoveryPath(folder.path(), "file b")).fileName();
        QFile::copy(path, QFileInfo(path).dir().filePath(stem));
        QVERIFY(vlk::review::keptUnsaved(folder.path(), "file b").empty());
        {
            const vlk::FileClaim byOtherProgram(path);
            QCOMPARE(vlk::review::keptUnsaved(folder.path(), "file a").size(), std::size_t{1});
        }
        later.moment = later.moment.addSecs(60);
        QString reason;
        QVERIFY(keepUnsaved(path, later, &reason));
        const auto kept = vlk::review::keptUnsaved(folder.path(), "file a");
        QCOMPARE(kept.size(), std::size_t{2});
        QCOMPARE(kept[0].unsaved.moment, later.moment);
        QCOMPARE(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther | QFile::WriteOther),
                 QFile::Permissions());

        const QByteArray before = readFile(path);
        later.after += QByteArray(5000, ' ');
        const FullDisk disk(1000);
        QVERIFY(!keepUnsaved(path, later, &reason));
        QCOMPARE(reason, QString("File too large"));
        QCOMPARE(readFile(path), before);
    }

    // Onto the state that they were made on they give the very bytes, onto a later one their own settings.
    void laidOver()
    {
        QCOMPARE(withEdits(before(), unsaved()), unsaved().after);
        const QByteArray later = document("<TRACK><POINTS angle=\"5\" dist=\"70\"/></TRACK>");
        QByteArray expected = later;
        QCOMPARE(withEdits(later, unsaved()), expected.replace("angle=\"5\"", "angle=\"9\""));
        // Quick setup gives a line that is not used no name, which is no edit.
        const auto line = [](const QByteArray& name, const QByteArray& state) {
            return document("<SENSORS><IN2 name=\"" + name + "\" normState=\"" + state + "\"/></SENSORS>");
        };
        Unsaved quick{"file a", {}, line("UIN2", "NB-"), line("", "NU"), {{"SENSORS/IN2/use", "NU"}}};
        QCOMPARE(withEdits(line("Door", "NB-"), quick), line("Door", "NU"));
        quick.quick.clear();
        QCOMPARE(withEdits(line("Door", "NB-"), quick), line("", "NU"));
        for (const char* text : {"", "<DEVICE", "<OTHER/>"}) {
            const Unsaved odd{"file a", {}, text, text};
            QVERIFY(editedKeys(odd).empty());
            QCOMPARE(withEdits(later, odd), later);
        }
    }

private:
    static QByteArray document(const QByteArray& sections)
    {
        vlk::XmlDocument document("<DEVICE>" + sections + "</DEVICE>", "DEVICE");
        return document.text();
    }
    static QByteArray before() { return document("<TRACK><POINTS angle=\"5\" dist=\"50\"/></TRACK>"); }
    static Unsaved unsaved()
    {
        return {"file a", QDateTime({2026, 11, 20}, {18, 40}), before(),
                document("<TRACK><POINTS angle=\"9\" dist=\"50\"/></TRACK>")};
    }
    static QString keep(const QTemporaryDir& folder, const Unsaved& unsaved)
    {
        QString path = vlk::review::recoveryPath(folder.path(), unsaved.subject);
        QString reason;
        if (!keepUnsaved(path, unsaved, &reason))
            qFatal("%s", qPrintable(reason));
        return path;
    }
};

QTEST_GUILESS_MAIN(RecoveryTest)
#include "tst_recovery.moc"
