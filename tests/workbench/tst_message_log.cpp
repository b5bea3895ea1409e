#include "support/data_table.h"
#include "support/files.h"
#include "support/full_disk.h"
#include "window/languages.h"
#include "window/message_log_filter.h"
#include "window/message_log_model.h"
#include "window/message_log_view.h"
#include "window/message_text.h"
#include "window/plugin_log.h"

#include <QAbstractItemModelTester>
#include <QDirIterator>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTableView>
#include <QToolButton>
#include <QtTest>

using vlk::Direction;
using vlk::Message;

Q_DECLARE_METATYPE(vlk::Message)

namespace {

// Takes the address of what lies in the test's own memory.
void* address(const auto& value)
{
    return const_cast<void*>(static_cast<const void*>(&value));
}

} // namespace

class MessageLogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A line edit's clear button fades; the animation deletes itself at its end.
    void cleanupTestCase() { QTest::qWait(500); }

    // Whatever the plug-in warns of in its log is said to the user in either language.
    void everyWarningHasWords()
    {
        static const QRegularExpression category(
            QStringLiteral("Q_LOGGING_CATEGORY\\(\\w+, \"([^\"]+)\"\\)|QLoggingCategory\\(\"([^\"]+)\"\\)"));
        QStringList categories;
        QDirIterator files(QStringLiteral(VLK_SOURCE "/plugin"), {"*.cpp", "*.h"}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString source = QString::fromUtf8(readFile(files.next()));
            QVERIFY2(!source.contains(QRegularExpression(QStringLiteral("\\bqWarning\\b"))),
                     qPrintable(files.filePath()));
            for (auto found = category.globalMatch(source); found.hasNext();) {
                const QRegularExpressionMatch match = found.next();
                categories << match.captured(1) + match.captured(2);
            }
        }
        QVERIFY(categories.size() > 10);
        for (const QString& language : workbench::Languages::codes()) {
            workbench::Languages languages;
            QVERIFY(languages.set(language));
            for (const QString& name : std::as_const(categories)) {
                const QString words =
                    workbench::PluginLog::words(name, QStringLiteral("/a%2: b at byte 1, 20 bytes"));
                QVERIFY2(!words.isEmpty() && !words.startsWith(QLatin1String("wb_")), qPrintable(name));
            }
        }
        workbench::Languages english;
        QVERIFY(english.set(QStringLiteral("en")));
        QCOMPARE(workbench::PluginLog::words(QStringLiteral("vlk.files.damage"),
                                             QStringLiteral("/a%2: no record at byte 1234567, 20 bytes")),
                 QStringLiteral("/a%2 holds no record at byte 1,234,567: 20\u00a0B were passed over."));
        QCOMPARE(workbench::PluginLog::words(QStringLiteral("other"), {}), QString());
        // No English is left of a warning but the reason, which the system words.
        QVERIFY(english.set(QStringLiteral("ru")));
        for (const auto& [name, message] :
             {std::pair("vlk.xml", "cannot make /a : 1"),
              {"vlk.xml", "cannot open /a : 1"},
              {"vlk.xml", "/a is not a document"},
              {"vlk.fuel", "cannot open /a : 1"},
              {"vlk.fuel", "/a is too large for a calibration table"},
              {"vlk.fuel", "/a holds no calibration table"},
              {"vlk.fuel", "the document holds more rows than a calibration table"},
              {"vlk.unsaved.kept", "2 changes are kept: "},
              {"vlk.unsaved.kept", "2 changes are kept: /a"},
              {"vlk.unsaved.lost", "2 changes are lost: : 1"},
              {"vlk.unsaved.lost", "2 changes are lost: /a: 1"},
              {"vlk.unsaved.found", "changes of 18:44: "},
              {"vlk.unsaved.found", "changes of 26.11.2026 18:44: /a"}}) {
            QString words = workbench::PluginLog::words(QLatin1String(name), QLatin1String(message));
            QVERIFY2(
                !words.remove(QStringLiteral("/a")).contains(QRegularExpression(QStringLiteral("[a-z]"))),
                qPrintable(words));
        }
    }

    void describesParameters_data()
    {
        static const std::int32_t integer = -5;
        static const float real = 12.5F;
        static const QString model = QStringLiteral("R-7106");
        static const QString page = QStringLiteral("Страница");
        static const QDateTime time({2026, 3, 1}, {10, 0}, Qt::UTC);
        static const QByteArray bytes("\x01\xff", 2);
        static const QByteArray code(vlk::kBalanceUssdSize, '*');
        static const vlk::OpenRequest request{1, 0, "/a b.xml"};
        static const vlk::ConnectInfo info{QStringLiteral("M"), QStringLiteral("1"), {}, {}, 0xA, 0xB};
        static const vlk::IdPair pair{1, 1};
        static const std::uint8_t kind = 7;
        static const QByteArray result = QByteArray(vlk::kAccelResultSize - 1, '\0') + char{49};
        static const QByteArray names(sizeof(vlk::BtDevice), 'n');
        static_assert(vlk::kAccelStatusByte == vlk::kAccelResultSize - 1);
        using enum Direction;
        const DataTable<bool, Message, void*, void*, QString, QByteArray> table(
            {"toHost", "number", "first", "second", "words", "bytes"});
        const auto row = [&](const char* name, Direction way, Message number, void* p1, const QString& words,
                             void* p2 = nullptr, const QByteArray& shown = {}) {
            table.row(name, way == ToHost, number, p1, p2, words, shown);
        };
        row("nothing", ToHost, Message::RequestCurrentRecord, nullptr, "");
        row("null", ToHost, Message::WriteConfiguration, nullptr, "null");
        row("integer", ToPlugin, Message::SetHostMode, address(integer), "-5");
        row("value", ToHost, Message::OutputOn, vlk::asParameter(2), "2");
        row("float", ToHost, Message::SetMileage, address(real), "12.5");
        row("strings", ToHost, Message::ShowHelp, address(model), "\"R-7106\", \"Страница\"", address(page));
        row("time", ToHost, Message::RequestRecordByTime, address(time), "2026-03-01T10:00:00Z");
        row("bytes", ToPlugin, Message::CurrentRecord, address(bytes), "", nullptr, bytes);
        row("text buffer full to its end", ToPlugin, Message::GetBalanceUssd, address(*code.constData()),
            '"' + code + '"');
        row("open request", ToPlugin, Message::OpenConfiguration, address(request),
            "showFull=1 fromFile=0 path=\"/a b.xml\"");
        row("attached", ToPlugin, Message::TrackerAttached, address(info),
            "model=\"M\" text1=\"1\" text2=\"\" mask=0x0000000b0000000a");
        row("64-bit number", ToPlugin, Message::RfidNumber, address(pair),
            "id=4294967297 (0x0000000100000001), 7", address(kind));
        row("status and bytes", ToPlugin, Message::AccelCommandResult, address(*result.constData()),
            "status=49", nullptr, result);
        row("names without an end", ToPlugin, Message::BtDeviceFound, address(*names.constData()),
            QString("name=\"%1\" mac=\"%1\"").arg(QString(128, 'n')));
        // Nobody knows what lies behind these addresses.
        row("unknown number", ToHost, Message(2999), vlk::asParameter(16), "0x10 0x0");
        row("wrong direction", ToHost, Message::OpenConfiguration, vlk::asParameter(1), "0x1 0x0");
    }
    void describesParameters()
    {
        QFETCH(bool, toHost);
        QFETCH(Message, number);
        QFETCH(void*, first);
        QFETCH(void*, second);
        const auto text = workbench::describeMessage(toHost ? Direction::ToHost : Direction::ToPlugin,
                                                     static_cast<quint32>(number), first, second);
        QTEST(text.words, "words");
        QTEST(text.bytes, "bytes");
    }

    // A record without a row of its own would show as nothing.
    void knowsEveryRecord()
    {
        const QByteArray zeroes(4096, '\0');
        struct Strings
        {
            QString texts[8];
        } const strings;
        for (const vlk::MessageInfo& info : vlk::kMessages) {
            if (info.p1 != vlk::Parameter::RecordAddress)
                continue;
            const bool ofStrings = info.number == Message::SetPaths || info.number == Message::SetIdentity ||
                                   info.number == Message::TrackerAttached;
            const void* record = ofStrings ? static_cast<const void*>(&strings) : zeroes.constData();
            const auto text = workbench::describeMessage(info.direction, static_cast<quint32>(info.number),
                                                         record, nullptr);
            QVERIFY2(!text.words.isEmpty() || !text.bytes.isEmpty(), info.name);
        }
    }

    void keepsABoundedNumber()
    {
        workbench::MessageLogModel model(100);
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        for (std::int32_t n = 0; n < 250; ++n)
            model.append(Direction::ToPlugin, static_cast<quint32>(Message::SetHostMode), &n, nullptr);
        QVERIFY(model.rowCount() <= 100 && model.rowCount() >= 90);
        const QModelIndex last = model.index(model.rowCount() - 1, workbench::MessageLogModel::Parameters);
        QCOMPARE(last.data().toString(), QStringLiteral("249"));
        model.clear();
        QCOMPARE(model.rowCount(), 0);
    }

    void filters_data()
    {
        using enum workbench::MessageLogFilter::Directions;
        DataTable<QString, int, int>({"words", "directions", "shown"})
            .row("nothing", {}, int(Both), 4)
            .row("number", "2301", int(Both), 1)
            .row("name in any case", "currentrecord", int(Both), 2)
            .row("bytes as hex", "0A FF", int(Both), 1)
            .row("all words", "  record   request ", int(Both), 1)
            .row("a word that is nowhere", "record tachograph", int(Both), 0)
            .row("to the plug-in", {}, int(ToPlugin), 2)
            .row("to the host", "help", int(ToHost), 1);
    }
    void filters()
    {
        workbench::MessageLogModel model;
        workbench::MessageLogFilter filter;
        const QAbstractItemModelTester tester(&filter,
                                              QAbstractItemModelTester::FailureReportingMode::QtTest);
        filter.setSourceModel(&model);
        QFETCH(QString, words);
        QFETCH(int, directions);
        filter.setWords(words);
        filter.setDirections(workbench::MessageLogFilter::Directions(directions));
        const QByteArray record("\x0a\xff", 2);
        const std::int32_t mode = 1;
        model.append(Direction::ToHost, static_cast<quint32>(Message::RequestCurrentRecord), nullptr,
                     nullptr);
        model.append(Direction::ToPlugin, static_cast<quint32>(Message::CurrentRecord), &record, nullptr);
        model.append(Direction::ToPlugin, static_cast<quint32>(Message::SetHostMode), &mode, nullptr);
        model.append(Direction::ToHost, static_cast<quint32>(Message::ShowHelp), nullptr, nullptr);
        QTEST(filter.rowCount(), "shown");
    }

    // The newest line is whole and in sight until the user scrolls away; a line that was chosen behind a
    // filter stays in sight when the filter goes.
    void followsTheNewest()
    {
        workbench::MessageLogModel model;
        workbench::MessageLogView view(&model);
        const auto append = [&model](int count) {
            const std::int32_t mode = 2;
            for (int i = 0; i < count; ++i)
                model.append(Direction::ToPlugin, static_cast<quint32>(Message::LanguageChanged), nullptr,
                             nullptr);
            model.append(Direction::ToPlugin, static_cast<quint32>(Message::SetHostMode), &mode, nullptr);
        };
        auto* table = view.findChild<QTableView*>(QStringLiteral("tableView_Log"));
        auto* words = view.findChild<QLineEdit*>(QStringLiteral("lineEdit_LogFilter"));
        const auto isInSight = [table](int row) {
            const QRect line = table->visualRect(table->model()->index(row, 0));
            return line.isValid() && table->viewport()->rect().contains(line);
        };
        const auto last = [table] { return table->model()->rowCount() - 1; };
        view.resize(600, 400);
        view.show();
        append(100);
        QTRY_VERIFY(isInSight(last()));
        view.resize(600, 283);
        QTRY_VERIFY(isInSight(last()));
        QTest::keyClicks(words, "2004");
        QCOMPARE(last(), 0);
        words->clear();
        append(3);
        QTRY_VERIFY(isInSight(last()));
        table->scrollToTop();
        append(3);
        QCoreApplication::processEvents();
        QVERIFY(isInSight(0) && !isInSight(last()));
        QTest::keyClicks(words, "2004");
        table->setCurrentIndex(table->model()->index(0, 0));
        words->clear();
        QTRY_VERIFY(isInSight(100));
        append(3);
        QCoreApplication::processEvents();
        QVERIFY(isInSight(100) && !isInSight(last()));
    }

    // A name without an ending gets one.
    void savesUnderAnEnding()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        workbench::MessageLogModel model;
        workbench::MessageLogView view(&model);
        model.append(Direction::ToPlugin, static_cast<quint32>(Message::LanguageChanged), nullptr, nullptr);
        const QTemporaryDir folder;
        QTimer::singleShot(0, [&folder] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(folder.filePath("seen"));
            QMetaObject::invokeMethod(dialog, "accept");
        });
        view.findChild<QToolButton*>("toolButton_LogSave")->click();
        QVERIFY(QFile::exists(folder.filePath("seen.txt")));
    }

    void savesWhatIsShown()
    {
        workbench::Languages languages;
        QVERIFY(languages.set(QStringLiteral("en")));
        workbench::MessageLogModel model;
        workbench::MessageLogView view(&model);
        const std::int32_t mode = 2;
        model.append(Direction::ToPlugin, static_cast<quint32>(Message::SetHostMode), &mode, nullptr);
        model.append(Direction::ToPlugin, static_cast<quint32>(Message::LanguageChanged), nullptr, nullptr);
        const auto counted = [&view](const QString& text) {
            const auto labels = view.findChildren<QLabel*>();
            return std::ranges::any_of(labels, [&](const QLabel* label) { return label->text() == text; });
        };
        const auto saveTip = [&view] {
            return view.findChild<QToolButton*>("toolButton_LogSave")->toolTip();
        };
        QVERIFY(counted("2") && !view.shownText().contains("Messages"));
        QCOMPARE(saveTip(), QString("Save the log"));
        QTest::keyClicks(view.findChild<QLineEdit*>(QStringLiteral("lineEdit_LogFilter")), "2004");
        QVERIFY(counted("1 of 2"));
        // Behind the filter the log goes on.
        model.append(Direction::ToPlugin, static_cast<quint32>(Message::LanguageChanged), nullptr, nullptr);
        QVERIFY(counted("1 of 3"));
        QCOMPARE(saveTip(), QString("Save the log: 1 of 3"));
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("log.txt"));
        QString error;
        QVERIFY(view.saveTo(path, &error));
        const QByteArray before = readFile(path);
        const QString text = QString::fromUtf8(before);
        QCOMPARE(text.count(QLatin1Char('\n')), 2);
        QVERIFY2(text.startsWith("Messages: 1 of 3. Filter: 2004\n"), qPrintable(text));
        QVERIFY(text.endsWith(QStringLiteral("\t2004\tSetHostMode\t2\n")));
        QVERIFY(!view.saveTo(folder.path(), &error) && !error.isEmpty());
        error.clear();
        {
            const FullDisk disk(5);
            QVERIFY(!view.saveTo(path, &error) && !error.isEmpty());
        }
        QCOMPARE(readFile(path), before);
    }
};

QTEST_MAIN(MessageLogTest)
#include "tst_message_log.moc"
