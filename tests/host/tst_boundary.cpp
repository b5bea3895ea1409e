// The exports, the information record and the message table, as a host sees them.

#include "support/files.h"
#include "support/scripted_host.h"

#include <QTemporaryDir>
#include <QtTest>
#include <QtWidgets>

#include <array>

using vlk::Message;

class BoundaryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(host_.isVlkLibrary && host_.libraryInfo && host_.initialize && host_.receiveMessage);
    }

    void identifiesItselfBeforeInitialize()
    {
        QVERIFY(host_.isVlkLibrary());
        host_.libraryInfo(nullptr);

        std::array<uchar, sizeof(vlk::LibraryInfo) + 1> buffer;
        buffer.fill(0xee);
        host_.libraryInfo(reinterpret_cast<vlk::LibraryInfo*>(buffer.data()));
        QCOMPARE(buffer.back(), uchar{0xee});

        const QByteArray record(reinterpret_cast<const char*>(buffer.data()), sizeof(vlk::LibraryInfo));
        QVERIFY(record.left(4) != QByteArray(4, '\0'));
        QCOMPARE(record.mid(4, 255), QByteArray("R-7106").leftJustified(255, '\0'));
        QCOMPARE(record.mid(259, 255), QByteArray("Aster R-7106").leftJustified(255, '\0'));
        const auto word = [](int value) {
            return QByteArray(1, static_cast<char>(value)) + QByteArray(3, '\0');
        };
        QCOMPARE(record.mid(514), word(3) + word(3) + word(0) + word(2) + word(0) + word(1));

        host_.start();
        vlk::LibraryInfo again;
        host_.libraryInfo(&again);
        QCOMPARE(QByteArray(reinterpret_cast<const char*>(&again), sizeof again), record);
    }

    void answersValues()
    {
        const std::pair<Message, int> values[] = {{Message::GetLibraryFlag, 1},
                                                  {Message::GetInterfaceValue, 1},
                                                  {Message::GetFamilyValue, 196},
                                                  {Message::GetReservedValue, 0}};
        for (const auto& [number, expected] : values) {
            std::int32_t value = -7;
            host_.send(number, &value);
            QCOMPARE(value, expected);
        }
        QString text = QStringLiteral("before");
        host_.send(Message::GetProtocolText, &text);
        QCOMPARE(text, QStringLiteral("010"));
    }

    void ignoresOtherHandles()
    {
        std::int32_t value = -7;
        const auto number = static_cast<std::uint32_t>(Message::GetFamilyValue);
        host_.receiveMessage(nullptr, number, &value, nullptr);
        host_.receiveMessage(&value, number, &value, nullptr);
        host_.receiveMessage(static_cast<char*>(host_.handle) + 1, number, &value, nullptr);
        QCOMPARE(value, -7);
        host_.receiveMessage(host_.handle, number, &value, nullptr);
        QCOMPARE(value, 196);
    }

    void survivesEveryNumberWithNullParameters()
    {
        for (std::uint32_t number = 1990; number < 2400; ++number)
            host_.receiveMessage(host_.handle, number, nullptr, nullptr);
        for (const std::uint32_t number : {0U, 1U, 0x7fffffffU, 0xffffffffU})
            host_.receiveMessage(host_.handle, number, nullptr, nullptr);
    }

    void survivesOddRecords()
    {
        host_.open(folder_.path()); // a folder
        host_.open(folder_.filePath(QStringLiteral("none/at/all.xml")));
        const QByteArray longPath(1000, 'a');
        host_.open(QString::fromLatin1(longPath));
        for (const QByteArray& bytes : {QByteArray(), QByteArray("1234567"), QByteArray("1234567,,:21:,:")})
            host_.send(Message::LineValues, &bytes);
        const QByteArray record(64, '\xff');
        for (const Message number : {Message::SupplyValues, Message::AnalogRecord, Message::AccelRecord,
                                     Message::AccelCommandResult, Message::MonitorRearm})
            host_.send(number, record.constData());
        vlk::BtDevice device{};
        std::memset(&device, 'n', sizeof device);
        host_.send(Message::BtDeviceFound, &device);
        host_.send(Message::CloseWindows);
    }

    void tableIsWhole()
    {
        QSet<std::uint32_t> numbers;
        QSet<QByteArray> names;
        for (const vlk::MessageInfo& info : vlk::kMessages) {
            numbers << static_cast<std::uint32_t>(info.number);
            names << info.name;
        }
        QCOMPARE(numbers.size(), static_cast<int>(std::size(vlk::kMessages)));
        QCOMPARE(names.size(), static_cast<int>(std::size(vlk::kMessages)));
    }

    // The record says how long it is; a word that does not lie in it whole stays as it was.
    void extensionsFillWhatIsThere()
    {
        host_.send(Message::PrepareTelemetry);
        for (const auto& [extension, words] :
             {std::pair(Message::EndSave, 3U), {Message::GetRunningWork, 5U}}) {
            for (const quint32 size : {0U, 3U, 4U, 7U, 8U, 11U, 12U, 15U, 16U, 4000U}) {
                quint32 record[] = {size, 0x55, 0x55, 0x55, 0x55};
                host_.send(extension, record);
                for (quint32 word = 1; word < 5; ++word)
                    QCOMPARE(record[word], word < words && size >= 4 * word + 4 ? 0U : 0x55U);
                QCOMPARE(record[0], size);
            }
        }
    }

    void comparesFiles()
    {
        vlk::Extensions extensions;
        host_.send(Message::GetExtensions, &extensions);
        QCOMPARE(extensions.newest, static_cast<quint32>(Message::BringSettings));

        const QString left = writeFile(
            folder_.filePath("left.xml"),
            "<DEVICE><TRANS><AP1 pass=\"a\"/></TRANS><TRACK><POINTS angle=\"07\"/></TRACK></DEVICE>");
        const QString right =
            writeFile(folder_.filePath("right.xml"), "<DEVICE><TRANS><AP1 pass=\"b\"/></TRANS><TRACK><POINTS "
                                                     "angle=\"7\" dist=\"5\"/></TRACK></DEVICE>");
        const QString none = right + "_";
        const auto compare = [this](const QString* before, const QString* after, quint32 size) {
            QStringList told;
            vlk::FileComparison asked;
            asked.size = size;
            asked.before = before;
            asked.after = after;
            asked.context = &told;
            asked.take = [](void* context, const vlk::FileDifference* row) {
                *static_cast<QStringList*>(context) << *row->path + '|' + *row->page + '|' + *row->group +
                                                           '|' + *row->caption + '|' +
                                                           (row->before ? *row->beforeText : "-") + '|' +
                                                           (row->after ? *row->afterText : "-");
            };
            host_.send(Message::CompareFiles, &asked);
            return QString::number(asked.outcome) + ' ' + QString::number(asked.differences) + ' ' +
                   told.join(' ');
        };
        constexpr quint32 whole = sizeof(vlk::FileComparison);
        QCOMPARE(compare(&left, &right, whole),
                 QString("1 2 TRANS/AP1/pass|cfgt1_001|cfgt1_024|cfgt1_033|•••|••• "
                         "TRACK/POINTS/dist|cfgt3_001|cfgt3_006|cfgt3_012|-|5 abbr_022"));
        QCOMPARE(compare(nullptr, &left, whole),
                 QString("1 2 TRANS/AP1/pass|cfgt1_001|cfgt1_024|cfgt1_033||••• "
                         "TRACK/POINTS/angle|cfgt3_001|cfgt3_006|cfgt3_010|5 abbr_016|7 abbr_016"));
        QCOMPARE(compare(&none, &right, whole), QString("2 0 "));
        QCOMPARE(compare(&left, &none, whole), QString("3 0 "));
        QVERIFY(!QFile::exists(none));
        QCOMPARE(compare(&left, &right, whole - 1), QString("0 0 "));
        QCOMPARE(compare(&left, nullptr, whole), QString("0 0 "));
        host_.send(Message::CompareFiles);
        host_.send(Message::GetExtensions);
    }

    void checksFiles()
    {
        const QString file =
            writeFile(folder_.filePath("checked.xml"),
                      "<DEVICE model=\"R-1\"><TRACK><POINTS angle=\"500\"/></TRACK></DEVICE>");
        const QString none = file + "_";
        const auto check = [this](const QString* path, quint32 size) {
            QStringList told;
            vlk::FileCheck asked;
            asked.size = size;
            asked.file = path;
            asked.context = &told;
            asked.take = [](void* context, const vlk::FileRemark* row) {
                const auto orDash = [](const QString* text) { return text ? *text : QString("-"); };
                *static_cast<QStringList*>(context) << QString("%1%2 ").arg(row->kind).arg(row->severity) +
                                                           *row->path + '|' + row->paths->join(',') + '|' +
                                                           orDash(row->page) + '|' + orDash(row->group) +
                                                           '|' + orDash(row->caption);
            };
            host_.send(Message::CheckFile, &asked);
            return QString::number(asked.outcome) + ' ' + QString::number(asked.remarks) + ' ' +
                   told.mid(0, 2).join(' ');
        };
        constexpr quint32 whole = sizeof(vlk::FileCheck);
        QCOMPARE(check(&file, whole),
                 QString("1 4 01 TRACK/POINTS/angle|TRACK/POINTS/angle|cfgt3_001|cfgt3_006|cfgt3_010 "
                         "11 DEVICE/model|DEVICE/model|-|-|-"));
        QCOMPARE(check(&none, whole), QString("2 0 "));
        QCOMPARE(check(&file, whole - 1), QString("0 0 "));
        QCOMPARE(check(nullptr, whole), QString("0 0 "));
        host_.send(Message::CheckFile);
    }

    void reportsFiles()
    {
        const QString file = writeFile(folder_.filePath("told.xml"),
                                       "<DEVICE><TRANS><AP1 pass=\"geheim\"/></TRANS><TRACK><POINTS "
                                       "angle=\"7\"/></TRACK></DEVICE>");
        const QString none = file + "_";
        const QString about = "Tracker 1\nof a customer";
        const auto report = [&](const QString* path, vlk::FileReport asked) {
            QString html;
            asked.file = path;
            asked.about = &about;
            asked.html = &html;
            host_.send(Message::ReportFile, &asked);
            return QString::number(asked.outcome) + html;
        };
        const QString all = report(&file, {});
        QVERIFY(all.startsWith("1<!DOCTYPE html>") && all.contains("<p>of a customer</p>"));
        QVERIFY(all.contains("<td>7 abbr_016</td>") && !all.contains("geheim"));
        const QString changed = report(&file, {.changesAlone = 1, .showSecrets = 1});
        QVERIFY(changed.contains("geheim") && changed.count("<tr>") == 4);
        QVERIFY(report(&file, {.onePage = 1}).size() < all.size() / 2);
        QVERIFY(!report(&file, {.changesAlone = 1, .before = &file}).contains("<tr>"));
        QCOMPARE(report(&none, {}), QString("2"));
        QCOMPARE(report(&file, {.before = &none}), QString("3"));
        QCOMPARE(report(nullptr, {}), QString("0"));
        QCOMPARE(report(&file, {.size = sizeof(vlk::FileReport) - 1}), QString("0"));
        host_.send(Message::ReportFile);
    }

    void bringsSettings()
    {
        const QString file = writeFile(folder_.filePath("there.xml"), "<DEVICE><RS485/></DEVICE>");
        const QString from =
            writeFile(folder_.filePath("from.xml"), "<DEVICE><RS485><OPTIONS owner1=\"TPMS\"/><TPMS "
                                                    "holdTime=\"20\"/></RS485></DEVICE>");
        const QStringList paths{"RS485/TPMS/holdTime", "X/unknown"};
        QByteArray content;
        const auto bring = [&](vlk::BroughtSettings asked) {
            asked.file = &file;
            asked.paths = &paths;
            asked.content = &content;
            host_.send(Message::BringSettings, &asked);
            return asked.outcome;
        };
        QCOMPARE(bring({.from = &from}), static_cast<quint32>(vlk::BroughtSettings::Done));
        QVERIFY(content.contains("owner1=\"TPMS\"") && content.contains("holdTime=\"20\""));
        QCOMPARE(bring({.from = &paths.first()}), static_cast<quint32>(vlk::BroughtSettings::Refused));
        QCOMPARE(bring({.from = nullptr}) + bring({.size = 8, .from = &from}), 0U);
        host_.send(Message::BringSettings);
    }

    // The file keeps what nobody knows; with something that does not fit nothing happens, or the rest does.
    void appliesPresets()
    {
        const QByteArray whole =
            "<DEVICE><X y=\"1\"/><TRACK><POINTS bend=\"2\" angle=\"7\"/></TRACK></DEVICE>";
        const QString file = writeFile(folder_.filePath("old.xml"), whole);
        const QString good =
            writeFile(folder_.filePath("good.xml"),
                      "<DEVICE creator=\"preset\"><TRACK><POINTS angle=\"9\"/></TRACK></DEVICE>");
        const QString bad =
            writeFile(folder_.filePath("bad.xml"),
                      "<DEVICE><TRACK><POINTS angle=\"8\" dist=\"x\" z=\"\"/></TRACK></DEVICE>");
        const QString none = folder_.filePath("none");
        const QString target = folder_.filePath("new.xml");
        const QString closed = folder_.filePath("no folder/new.xml");
        QString reason;
        const auto apply = [&](const QString* preset, const QString* to, vlk::PresetApplication asked = {}) {
            QStringList told;
            asked.preset = preset;
            asked.file = &file;
            asked.target = to;
            asked.context = &told;
            asked.reason = &reason;
            asked.takeChange = [](void* context, const vlk::FileDifference* row) {
                *static_cast<QStringList*>(context) << *row->path + '=' + *row->after;
            };
            asked.takeMisfit = [](void* context, const vlk::PresetMisfit* row) {
                *static_cast<QStringList*>(context) << QString::number(row->reason) + *row->path + *row->note;
            };
            host_.send(Message::ApplyPreset, &asked);
            told.prepend(QStringLiteral("%1 %2 %3").arg(asked.outcome).arg(asked.changes).arg(asked.misfits));
            return told.join(' ');
        };
        QCOMPARE(apply(&good, nullptr), QString("1 1 0 TRACK/POINTS/angle=9"));
        QVERIFY(!QFile::exists(target) && readFile(file) == whole);
        QCOMPARE(apply(&good, &target), QString("1 1 0 TRACK/POINTS/angle=9"));
        QCOMPARE(readFile(target), QByteArray(whole).replace("\"7\"", "\"9\""));
        const QString misfits = "0TRACK/POINTS/zrev_184 2TRACK/POINTS/distrev_187";
        QCOMPARE(apply(&bad, &file), "4 0 2 " + misfits);
        QCOMPARE(readFile(file), whole);
        QCOMPARE(apply(&good, &closed), QString("5 1 0 TRACK/POINTS/angle=9"));
        QVERIFY(!reason.isEmpty());
        QCOMPARE(apply(&bad, &file, {.leaveOutMisfits = 1}), "1 1 2 " + misfits + " TRACK/POINTS/angle=8");
        QCOMPARE(readFile(file), QByteArray(whole).replace("\"7\"", "\"8\""));
        QCOMPARE(apply(&none, &file), QString("2 0 0"));
        QCOMPARE(apply(nullptr, &file), QString("0 0 0"));
        QCOMPARE(apply(&good, &file, {.size = sizeof(vlk::PresetApplication) - 1}), QString("0 0 0"));
        vlk::PresetApplication open;
        open.preset = &good;
        host_.send(Message::ApplyPreset, &open);
        QCOMPARE(open.outcome, static_cast<quint32>(vlk::PresetApplication::NothingOpen));
        host_.open(file);
        host_.send(Message::ApplyPreset, &open);
        QCOMPARE(open.outcome, static_cast<quint32>(vlk::PresetApplication::Shown));
        host_.send(Message::ApplyPreset);
    }

    // Settings are found by the words that the host offers, until it offers none.
    void offeredTexts()
    {
        vlk::OfferedTexts offered;
        const auto hits = [this, &offered](quint32 size) {
            offered.size = size;
            host_.send(Message::OfferTexts, &offered);
            host_.send(Message::LanguageChanged);
            auto* find =
                ScriptedHost::child<QLineEdit>(ScriptedHost::window("VLK_Widget_Config"), "lineEdit_Find");
            find->clear();
            QTest::keyClicks(find, "gauge of ru");
            QString first =
                ScriptedHost::child<QListWidget>(find->window(), "listWidget_Found")->item(0)->text();
            find->clear();
            return first;
        };
        host_.open({});
        offered.fill = [](void*, const char* language, const char* key, QString* text) {
            if (qstrcmp(key, "cfgt3_005") == 0)
                *text = QString("Gauge of ") + language;
        };
        QLocale::setDefault(QLocale("en"));
        QCOMPARE(hits(sizeof offered - 1), QString("rev_127"));
        QVERIFY(hits(sizeof offered).contains("cfgt3_005"));
        offered.fill = nullptr;
        QCOMPARE(hits(sizeof offered), QString("rev_127"));
        host_.send(Message::OfferTexts);
        host_.send(Message::CloseWindows);
    }

    void balanceCodeFollowsFileAndConnection()
    {
        const QString path = configuration("<?xml version=\"1.0\" encoding=\"windows-1251\"?>"
                                           "<DEVICE><SYSTEM><BALANCE USSD=\"*100#\"/></SYSTEM></DEVICE>");
        host_.send(Message::TrackerDetached);
        QCOMPARE(balance(), QByteArray());
        host_.open(path);
        QCOMPARE(balance(), QByteArray("*100#"));
        host_.open(configuration("no document"));
        QCOMPARE(balance(), QByteArray("*100#"));
        host_.open(configuration("<DEVICE><SYSTEM/></DEVICE>"));
        QCOMPARE(balance(), QByteArray());
        host_.open(path);
        host_.attach();
        QCOMPARE(balance(), QByteArray());
        host_.open(configuration("<DEVICE><SYSTEM><BALANCE USSD=\"" + QByteArray(400, '1') +
                                 "\"/></SYSTEM></DEVICE>"));
        QCOMPARE(balance(), QByteArray(254, '1'));
        host_.send(Message::TrackerDetached);
        QCOMPARE(balance(), QByteArray());
    }

    void identityGoesIntoTitlesAndFiles()
    {
        vlk::IdentityInfo other{QStringLiteral("R-1"), nullptr, QStringLiteral("OTHER")};
        host_.send(Message::SetIdentity, &other);
        host_.open({});
        QCOMPARE(title(), QStringLiteral("R-1: New"));

        // The tracker is compared with the identity that was set.
        const auto canWrite = [] {
            return ScriptedHost::child<QWidget>(ScriptedHost::window("VLK_Widget_Config"),
                                                "pushButton_LoadToDevice")
                ->isEnabled();
        };
        host_.attach(QStringLiteral("R-1"));
        QVERIFY(canWrite());
        host_.attach(QStringLiteral("R-7106"));
        QVERIFY(!canWrite());

        vlk::IdentityInfo own{QStringLiteral("R-7106"), nullptr, QStringLiteral("VELTRONIKA")};
        host_.send(Message::SetIdentity, &own);
        host_.open({});
        QCOMPARE(title(), QStringLiteral("R-7106: New"));
    }

    void helpKeepsTheModelOfTheLibrary()
    {
        host_.open({});
        host_.sent.clear();
        ScriptedHost::child<QAbstractButton>(ScriptedHost::window("VLK_Widget_Config_Full"),
                                             "pushButton_Help")
            ->click();
        const auto help = host_.takeSent(Message::ShowHelp);
        QCOMPARE(help.size(), 1);
        QCOMPARE(help[0].text1, QStringLiteral("R-7106"));
        QCOMPARE(help[0].text2, QStringLiteral("r-7106p1.html"));
    }

private:
    QString configuration(const QByteArray& content)
    {
        return writeFile(folder_.filePath(QStringLiteral("configuration.xml")), content);
    }

    QString title() { return ScriptedHost::window("VLK_Widget_Config")->windowTitle(); }

    QByteArray balance()
    {
        QByteArray buffer(vlk::kBalanceUssdSize, 'x');
        host_.send(Message::GetBalanceUssd, buffer.data());
        return QByteArray(buffer.constData());
    }

    ScriptedHost host_;
    QTemporaryDir folder_;
};

QTEST_MAIN(BoundaryTest)
#include "tst_boundary.moc"
