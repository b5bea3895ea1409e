#include "support/files.h"
#include "support/full_disk.h"
#include "window/languages.h"
#include "window/message_log_filter.h"
#include "window/message_log_model.h"
#include "window/message_log_view.h"
#include "window/message_text.h"

#include <QAbstractItemModelTester>
#include <QLineEdit>
#include <QtTest>

#include <cstring>
#include <functional>

using vlk::Direction;
using vlk::Message;

Q_DECLARE_METATYPE(vlk::Message)

namespace {

// Owns whatever a message points at while it is described.
using Describe = std::function<vlk::MessageText()>;

vlk::MessageText in(Message id, const void* p1, const void* p2 = nullptr)
{
    return vlk::describeMessage(Direction::ToPlugin, quint32(id), p1, p2);
}

vlk::MessageText out(Message id, const void* p1 = nullptr, const void* p2 = nullptr)
{
    return vlk::describeMessage(Direction::ToHost, quint32(id), p1, p2);
}

} // namespace

Q_DECLARE_METATYPE(Describe)

class MessageLogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A line edit's clear button fades; the animation deletes itself at its end.
    void cleanupTestCase() { QTest::qWait(500); }
    void describesParameters_data()
    {
        QTest::addColumn<Describe>("describe");
        QTest::addColumn<QString>("words");
        QTest::addColumn<QByteArray>("bytes");
        const auto row = [](const char* name, const Describe& describe, const char* words,
                            const QByteArray& bytes = {}) {
            QTest::newRow(name) << describe << QString::fromUtf8(words) << bytes;
        };
        row(
            "nothing", [] { return out(Message::RequestCurrentRecord); }, "");
        row(
            "null", [] { return out(Message::WriteConfiguration); }, "null");
        row(
            "integer",
            [] {
                const std::int32_t n = -5;
                return in(Message::SetHostMode, &n);
            },
            "-5");
        row(
            "value", [] { return out(Message::OutputOn, vlk::asParameter(2)); }, "2");
        row(
            "float",
            [] {
                const float f = 12.5F;
                return out(Message::SetMileage, &f);
            },
            "12.5");
        row(
            "strings",
            [] {
                const QString model = QStringLiteral("R-7106");
                const QString page = QStringLiteral("Страница");
                return out(Message::ShowHelp, &model, &page);
            },
            "\"R-7106\", \"Страница\"");
        row(
            "time",
            [] {
                const QDateTime time({2026, 3, 1}, {10, 0}, Qt::UTC);
                return out(Message::RequestRecordByTime, &time);
            },
            "2026-03-01T10:00:00Z");
        row(
            "bytes",
            [] {
                const QByteArray b("\x01\xff", 2);
                return in(Message::CurrentRecord, &b);
            },
            "", QByteArray("\x01\xff", 2));
        row(
            "text buffer full to its end",
            [] {
                const QByteArray code(vlk::balanceUssdSize, '*');
                return in(Message::GetBalanceUssd, code.constData());
            },
            QByteArray('"' + QByteArray(vlk::balanceUssdSize, '*') + '"').constData());
        row(
            "open request",
            [] {
                vlk::OpenRequest request{1, 0, "/a b.xml"};
                return in(Message::OpenConfiguration, &request);
            },
            "showFull=1 fromFile=0 path=\"/a b.xml\"");
        row(
            "attached",
            [] {
                const vlk::ConnectInfo info{QStringLiteral("M"), QStringLiteral("1"), {}, {}, 0xA, 0xB};
                return in(Message::TrackerAttached, &info);
            },
            "model=\"M\" text1=\"1\" text2=\"\" mask=0x0000000b0000000a");
        row(
            "64-bit number",
            [] {
                const vlk::IdPair pair{1, 1};
                const std::uint8_t kind = 7;
                return in(Message::RfidNumber, &pair, &kind);
            },
            "id=4294967297 (0x0000000100000001), 7");
        row(
            "status and bytes",
            [] {
                QByteArray record(vlk::accelResultSize, '\0');
                record[vlk::accelStatusByte] = 49;
                return in(Message::AccelCommandResult, record.constData());
            },
            "status=49", QByteArray(vlk::accelResultSize - 1, '\0') + char(49));
        row(
            "names without an end",
            [] {
                vlk::BtDevice device;
                std::memset(&device, 'n', sizeof device);
                return in(Message::BtDeviceFound, &device);
            },
            QByteArray("name=\"" + QByteArray(128, 'n') + "\" mac=\"" + QByteArray(128, 'n') + '"')
                .constData());
        // Nobody knows what lies behind these addresses.
        row(
            "unknown number",
            [] { return vlk::describeMessage(Direction::ToHost, 2999, vlk::asParameter(16), nullptr); },
            "0x10 0x0");
        row(
            "wrong direction",
            [] { return vlk::describeMessage(Direction::ToHost, 2101, vlk::asParameter(1), nullptr); },
            "0x1 0x0");
    }
    void describesParameters()
    {
        QFETCH(Describe, describe);
        const vlk::MessageText text = describe();
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
        for (const vlk::MessageInfo& info : vlk::messages) {
            if (info.p1 != vlk::Parameter::RecordAddress)
                continue;
            const bool ofStrings = info.number == Message::SetPaths || info.number == Message::SetIdentity ||
                                   info.number == Message::TrackerAttached;
            const void* record = ofStrings ? static_cast<const void*>(&strings) : zeroes.constData();
            const auto text = vlk::describeMessage(info.direction, quint32(info.number), record, nullptr);
            QVERIFY2(!text.words.isEmpty() || !text.bytes.isEmpty(), info.name);
        }
    }

    void keepsABoundedNumber()
    {
        vlk::MessageLogModel model(100);
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        for (std::int32_t n = 0; n < 250; ++n)
            model.append(Direction::ToPlugin, quint32(Message::SetHostMode), &n, nullptr);
        QVERIFY(model.rowCount() <= 100 && model.rowCount() >= 90);
        const QModelIndex last = model.index(model.rowCount() - 1, vlk::MessageLogModel::Parameters);
        QCOMPARE(last.data().toString(), QStringLiteral("249"));
        model.clear();
        QCOMPARE(model.rowCount(), 0);
    }

    void filters_data()
    {
        QTest::addColumn<QString>("words");
        QTest::addColumn<int>("directions");
        QTest::addColumn<int>("shown");
        const int both = int(vlk::MessageLogFilter::Directions::Both);
        QTest::newRow("nothing") << QString() << both << 4;
        QTest::newRow("number") << QStringLiteral("2301") << both << 1;
        QTest::newRow("name in any case") << QStringLiteral("currentrecord") << both << 2;
        QTest::newRow("bytes as hex") << QStringLiteral("0A FF") << both << 1;
        QTest::newRow("all words") << QStringLiteral("  record   request ") << both << 1;
        QTest::newRow("a word that is nowhere") << QStringLiteral("record tachograph") << both << 0;
        QTest::newRow("to the plug-in") << QString() << int(vlk::MessageLogFilter::Directions::ToPlugin) << 2;
        QTest::newRow("to the host") << QStringLiteral("help")
                                     << int(vlk::MessageLogFilter::Directions::ToHost) << 1;
    }
    void filters()
    {
        vlk::MessageLogModel model;
        vlk::MessageLogFilter filter;
        const QAbstractItemModelTester tester(&filter,
                                              QAbstractItemModelTester::FailureReportingMode::QtTest);
        filter.setSourceModel(&model);
        QFETCH(QString, words);
        QFETCH(int, directions);
        filter.setWords(words);
        filter.setDirections(vlk::MessageLogFilter::Directions(directions));
        const QByteArray record("\x0a\xff", 2);
        const std::int32_t mode = 1;
        model.append(Direction::ToHost, quint32(Message::RequestCurrentRecord), nullptr, nullptr);
        model.append(Direction::ToPlugin, quint32(Message::CurrentRecord), &record, nullptr);
        model.append(Direction::ToPlugin, quint32(Message::SetHostMode), &mode, nullptr);
        model.append(Direction::ToHost, quint32(Message::ShowHelp), nullptr, nullptr);
        QTEST(filter.rowCount(), "shown");
    }

    void savesWhatIsShown()
    {
        vlk::Languages languages;
        QVERIFY(languages.set(QStringLiteral("en")));
        vlk::MessageLogModel model;
        vlk::MessageLogView view(&model);
        const std::int32_t mode = 2;
        model.append(Direction::ToPlugin, quint32(Message::SetHostMode), &mode, nullptr);
        model.append(Direction::ToPlugin, quint32(Message::LanguageChanged), nullptr, nullptr);
        view.findChild<QLineEdit*>(QStringLiteral("lineEdit_LogFilter"))->setText(QStringLiteral("2004"));
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("log.txt"));
        QString error;
        QVERIFY(view.saveTo(path, &error));
        const QByteArray before = readFile(path);
        const QString text = QString::fromUtf8(before);
        QCOMPARE(text.count(QLatin1Char('\n')), 1);
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
