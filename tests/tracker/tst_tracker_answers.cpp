// What the tracker answers besides records, the faults on the way, and requests that make no sense.

#include "bench_tracker.h"
#include "support/data_table.h"
#include "support/full_disk.h"

#include "tracker/event_code.h"
#include "window/key_translator.h"

#include <QSignalSpy>
#include <QtEndian>

#include <cmath>

using vlk::Message;

namespace {

quint16 word(const QByteArray& bytes, int offset)
{
    return qFromLittleEndian<quint16>(bytes.constData() + offset);
}

template <typename T>
T record(const QByteArray& bytes)
{
    T value{};
    memcpy(&value, bytes.constData(), qMin<std::size_t>(sizeof value, bytes.size()));
    return value;
}

} // namespace

class TestTrackerAnswers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void measuresLinesAndSupply()
    {
        BenchTracker bench;
        QByteArray list = "21,22,23,99,x";
        const QByteArray lines = bench.ask(Message::RequestLines, &list).first;
        const QList<QByteArray> pairs = lines.mid(7).split(',');
        QCOMPARE(pairs.size(), 3);
        const QByteArray analog = bench.ask(Message::RequestAnalog).first;
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(pairs[i].split(':')[0].toInt(), 21 + i);
            QCOMPARE(pairs[i].split(':')[1].toInt(nullptr, 16), static_cast<int>(word(analog, 15 + 2 * i)));
        }
        QVERIFY(word(analog, 25) > 0 && word(analog, 25) <= 4095);
        const auto supply = record<vlk::SupplyRecord>(bench.ask(Message::RequestSupply).first);
        QVERIFY(supply.values[vlk::kSupplyElement] > 12000 && supply.values[vlk::kSupplyElement] < 14200);
        const auto accel = record<vlk::AccelValues>(bench.ask(Message::RequestAccel).first);
        QVERIFY(std::sqrt(accel.movement) * 100 / 1800 < 10);
        QVERIFY(accel.tilt >= 0 && accel.tilt < 0.1);
        QCOMPARE(static_cast<int>(bench.ask(Message::RequestAccelCommand).first.at(11)), 49);
    }

    void readsKeysTagsAndTheAdapter()
    {
        BenchTracker bench;
        QVERIFY(record<quint64>(bench.ask(Message::RequestLiveKey).first) > 0);
        const Told tag = bench.ask(Message::RequestRfid);
        QVERIFY(record<quint64>(tag.first) > 0);
        QVERIFY(tag.second.at(0) >= -95 && tag.second.at(0) <= -55);
        std::int32_t program = 123456;
        bench.tracker->handle(Message::SetCanLogProgram, &program, nullptr);
        bench.restart();
        QCOMPARE(record<std::int32_t>(bench.ask(Message::RequestCanLogProgram).first), program);
        QCOMPARE(static_cast<int>(bench.ask(Message::WaitStepEnd).id), 2265);
    }

    void searchesBluetooth()
    {
        BenchTracker bench;
        bench.ask(Message::StartBtSearch);
        const auto last = [&bench] { return bench.told.isEmpty() ? QByteArray() : bench.told.last().first; };
        QTRY_COMPARE_WITH_TIMEOUT(last(), QByteArray("1"), 20000);
        QCOMPARE(bench.told.first().first, QByteArray("0"));
        QVERIFY(bench.told.size() > 4);
        const auto device = record<vlk::BtDevice>(bench.told[1].first);
        QCOMPARE(qstrlen(device.mac), 17U);

        bench.ask(Message::StartBtSearch);
        QCOMPARE(bench.told.size(), 1);
        bench.tracker->handle(Message::CancelBtSearch, nullptr, nullptr);
        QTest::qWait(1200);
        QCOMPARE(bench.told.size(), 2);
        QCOMPARE(static_cast<int>(bench.told[1].id), 2259);
        QCOMPARE(bench.told[1].first, QByteArray("3"));

        bench.write("<DEVICE model=\"R-7106\"><BLUETOOTH><GLOBAL use=\"0\"/></BLUETOOTH></DEVICE>");
        QCOMPARE(bench.ask(Message::StartBtSearch).first, QByteArray("2"));
    }

    // It tells so when it is attached, as if it had been another one.
    void hasNoBluetooth()
    {
        BenchTracker bench;
        QCOMPARE(bench.tracker->capabilityMask(), quint64{0x800});
        QSignalSpy attached(bench.tracker.get(), &tracker::SimulatedTracker::attachedChanged);
        bench.tracker->setFaults({.noBluetooth = true});
        QCOMPARE(attached.size(), bench.tracker->attached() ? 2 : 0);
        QCOMPARE(bench.tracker->capabilityMask(), quint64{0});
        QCOMPARE(bench.ask(Message::StartBtSearch).first, QByteArray("2"));
    }

    void answersTheTachograph()
    {
        BenchTracker bench;
        for (const auto& [question, size, status] :
             {std::tuple(1, 37, 0), {3, 175, 0}, {4, 175, 0x20}, {5, 119, 0}}) {
            const QByteArray answer = bench.ask(Message::TachographQuestion, question).first;
            QCOMPARE(answer.size(), size);
            QCOMPARE(static_cast<int>(answer.at(6)), question);
            QCOMPARE(static_cast<int>(answer.at(7)), status);
        }
        for (const int none : {2, -7})
            QVERIFY(bench.silent(Message::TachographQuestion, BenchTracker::plain(none)));
    }

    void makesTachographFiles_data()
    {
        const DataTable<int, quint32, bool> table({"code", "parameter", "made"});
        for (int code = 0; code < 5; ++code)
            table.row(qPrintable(QString("vehicle %1").arg(code)), code, 1779000000, true);
        table.row("card 1", 5, 0xFFFFFF01, true)
            .row("card 2", 5, 0xFFFFFF02, false)
            .row("wild", 200, 0, false);
    }
    void makesTachographFiles()
    {
        QFETCH(int, code);
        QFETCH(quint32, parameter);
        QFETCH(bool, made);
        BenchTracker bench;
        vlk::szQueryTaho request{0, static_cast<std::uint8_t>(code), parameter};
        const QByteArray first = bench.ask(Message::TachographFileRequest, &request).first;
        QCOMPARE(static_cast<int>(first.at(6)), 0);
        QCOMPARE(static_cast<int>(first.at(7)), made ? 0x10 : 0x30);
        QString path = bench.folder() + "/file.ddd";
        if (!made) {
            QCOMPARE(bench.ask(Message::TachographFileRead, &path).first, QByteArray(1, '\0'));
            return;
        }
        QTRY_COMPARE_WITH_TIMEOUT(bench.told.size(), 3, 20000);
        const QByteArray ready = bench.told.last().first;
        QCOMPARE(static_cast<int>(ready.at(7)), 0);
        QVERIFY(QByteArray(ready.constData() + 12).endsWith(".ddd"));
        QCOMPARE(bench.ask(Message::TachographFileRead, &path).first, QByteArray(1, '\1'));
        const QByteArray content = readFile(path);
        QCOMPARE(static_cast<quint32>(content.size()), qFromLittleEndian<quint32>(ready.constData() + 8));
        int offset = 0;
        while (offset + 5 <= content.size())
            offset += 5 + qFromBigEndian<quint16>(content.constData() + offset + 3);
        QCOMPARE(offset, content.size());
        QString nowhere;
        QCOMPARE(bench.ask(Message::TachographFileRead, &nowhere).first, QByteArray(1, '\0'));
        const FullDisk disk(100);
        QCOMPARE(bench.ask(Message::TachographFileRead, &path).first, QByteArray(1, '\0'));
    }

    void hasWordsForEveryEvent()
    {
        BenchTracker bench;
        QSet<int> codes{50, 51, 52, 53, 54, 55};
        const QVector<QByteArray> records = bench.records(0, 8000);
        QCOMPARE(records.size(), 8000);
        for (const QByteArray& record : records)
            codes += word(record, static_cast<quint8>(record.at(0)) == 177 ? 9 : 38);
        workbench::KeyTranslator translator;
        for (const char* language : {"ru", "en"}) {
            QVERIFY(translator.load(language, VLK_TEXTS));
            QCoreApplication::installTranslator(&translator);
            QSet<QString> texts;
            for (const int code : codes) {
                QString text;
                QVERIFY(bench.tracker->handle(Message::RequestEventText, BenchTracker::plain(code), &text));
                QVERIFY2(!text.isEmpty() && !text.contains("wb_") && !text.contains(QString::number(code)),
                         qPrintable(text));
                texts += text;
            }
            QCOMPARE(texts.size(), codes.size());
            QVERIFY(tracker::eventText(999).endsWith(" 999") && !tracker::eventText(999).contains("wb_"));
        }
    }

    void faults()
    {
        BenchTracker bench;
        const QByteArray whole = bench.ask(Message::RequestCurrentRecord).first;
        bench.tracker->setFaults({.shortAnswers = true});
        QCOMPARE(bench.ask(Message::RequestCurrentRecord).first, whole.left(whole.size() / 2));
        const QByteArray analog = bench.ask(Message::RequestAnalog).first;
        QVERIFY(word(analog, 15) > 0);
        QCOMPARE(static_cast<int>(word(analog, 40)), 0);
        bench.tracker->setFaults({.garbledAnswers = true});
        const QByteArray garbled = bench.ask(Message::RequestCurrentRecord).first;
        QCOMPARE(garbled.size(), whole.size());
        QVERIFY(garbled != whole);
        bench.tracker->setFaults({.delayMs = 400});
        QVERIFY(bench.silent(Message::RequestCurrentRecord));
        QTRY_COMPARE(bench.told.size(), 1);
        bench.tracker->setFaults({.silence = true});
        QVERIFY(bench.silent(Message::RequestCurrentRecord));
        QSignalSpy pulled(bench.tracker.get(), &tracker::SimulatedTracker::pulled);
        QSignalSpy changed(bench.tracker.get(), &tracker::SimulatedTracker::faultsChanged);
        bench.tracker->setFaults({.unplug = true});
        QVERIFY(bench.silent(Message::RequestCurrentRecord));
        QVERIFY(!bench.tracker->attached() && !bench.tracker->faults().unplug);
        QCOMPARE(pulled.size(), 1);
        QCOMPARE(changed.size(), 2); // the fault has cleared itself
    }

    void detachingDropsWhatIsUnderWay()
    {
        BenchTracker bench;
        bench.tracker->handle(Message::RequestCurrentRecord, nullptr, nullptr);
        bench.tracker->detach();
        bench.tracker->attach();
        QVERIFY(bench.silent(Message::GuardOn));
        // A plug-in that asks again, or makes the host detach, while it is being told.
        bench.tracker->setSender([&bench](Message id, void*, void*) {
            bench.told.append({id, {}, {}});
            bench.tracker->handle(Message::RequestCurrentRecord, nullptr, nullptr);
            if (bench.told.size() == 3)
                bench.tracker->detach();
        });
        bench.tracker->handle(Message::RequestCurrentRecord, nullptr, nullptr);
        QTest::qWait(300);
        QCOMPARE(bench.told.size(), 3);
    }

    void requestsWithoutParameters()
    {
        BenchTracker bench;
        for (const vlk::MessageInfo& info : vlk::kMessages) {
            const bool own = bench.tracker->handle(info.number, nullptr, nullptr);
            // These two the host takes itself.
            const bool isForHost =
                info.number == Message::ShowHelp || info.number == Message::WriteConfiguration;
            QCOMPARE(own, info.direction == vlk::Direction::ToHost && !isForHost);
        }
        QTest::qWait(100);
        bench.tracker->setSender({});
        bench.tracker->handle(Message::RequestCurrentRecord, nullptr, nullptr);
        QTest::qWait(100);
    }
};

QTEST_GUILESS_MAIN(TestTrackerAnswers)
#include "tst_tracker_answers.moc"
