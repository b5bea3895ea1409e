// Extra packets of both roads. A packet is put together here from its pieces, with sizes that fit or do not.

#include "telemetry/record/tmi_page_zeta2.h"
#include "telemetry/record/tmi_page_zeta3.h"

#include <QtTest>

using namespace vlk;

namespace {

// Number 0x12345678, code 35, and so on up to a mileage of 2.5, which ends at byte 42.
const QByteArray kNavigation = QByteArray::fromHex("78563412"
                                                   "2300"
                                                   "00f15365"
                                                   "2b"
                                                   "01f15365"
                                                   "feffffff"
                                                   "03000000"
                                                   "2a070000"
                                                   "00002041"
                                                   "0e01"
                                                   "00002040");
// Versions and size, State 0x18, StateOut1 3, counters 100 and 200, engine hours 3600.
const QByteArray kSecondHead = QByteArray::fromHex("010e"
                                                   "18"
                                                   "03"
                                                   "64000000"
                                                   "c8000000"
                                                   "100e0000");

QByteArray packet(const QByteArray& behindStandardHead, int size = -1, int stSize = 37)
{
    const QByteArray counted =
        QByteArray("\x02") + static_cast<char>(stSize) + kNavigation + behindStandardHead;
    const int total = size < 0 ? counted.size() : size;
    return QByteArray("\xb1") + static_cast<char>(total & 0xff) + static_cast<char>(total >> 8) + counted;
}

QByteArray entry(int type, int size, const QByteArray& value)
{
    return QByteArray(1, static_cast<char>(type)) + static_cast<char>(size) + value;
}

QStringList entries(const ExtraPacket& extra)
{
    QStringList list;
    extra.forEachEntry([&](const ExtraEntry& entry) {
        const QByteArray bytes(reinterpret_cast<const char*>(entry.value.data()),
                               static_cast<int>(entry.value.size()));
        const bool card = entry.type == ExtraEntry::Card;
        const bool key = entry.type == ExtraEntry::TouchKey || entry.type == ExtraEntry::Rfid;
        list += QStringLiteral("%1:%2:%3")
                    .arg(entry.type)
                    .arg(entry.size)
                    .arg(card  ? entry.text()
                         : key ? QString::number(entry.number())
                               : QString::fromLatin1(bytes.toHex()));
    });
    return list;
}

} // namespace

class TestExtraPacket : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void heads()
    {
        const QByteArray road = packet(kSecondHead);
        const QByteArray key = packet(entry(1, 8, QByteArray(8, '\xff')));
        TmiPage_Zeta3 page(road.constData(), road.size());
        const ExtraPacket& extra = page.extra();
        const auto sameNavigation = [&] {
            return extra.type() == 177 && extra.stVer() == 2 && extra.stSize() == 37 &&
                   extra.value<element("Code")>() == 35 && extra.value<element("Time")>() == 0x6553f100 &&
                   extra.value<element("StateNGauge")>() == 0x2b &&
                   extra.value<element("LastTime")>() == 0x6553f101 &&
                   extra.value<element("Latitude")>() == -2 && extra.value<element("Longitude")>() == 3 &&
                   extra.value<element("Altitude")>() == 1834 && extra.value<element("Speed")>() == 10.0F &&
                   extra.value<element("Course")>() == 270 && extra.value<element("Run")>() == 2.5F;
        };
        QVERIFY(page.isExtra() && sameNavigation());
        QCOMPARE(page.number(), 0x12345678U);
        QCOMPARE(TmiPage_Zeta2(road.constData(), road.size()).number(), 0x12345678U);
        QCOMPARE(page.payload(), road.mid(1));
        QCOMPARE(extra.size(), quint16(road.size() - 3));
        QVERIFY(extra.hVer() == 1 && extra.hSize() == 14);
        QCOMPARE(extra.value<element("State")>(), quint8{0x18});
        QCOMPARE(extra.value<element("StateOut1")>(), quint8{3});
        QCOMPARE(extra.integer(element("StateIn_Imp1")), qint64{100});
        QCOMPARE(extra.number(element("StateIn_Imp2")), 200.0);
        QCOMPARE(extra.value<element("Motochas")>(), 3600U);
        QCOMPARE(extra.raw(element("Power")), quint64{0});

        page.setKeyAnswer(key.constData(), key.size());
        QVERIFY(page.isExtra() && sameNavigation());
        QVERIFY(extra.hVer() == 0 && extra.hSize() == 0 && extra.raw(element("State")) == 0 &&
                extra.raw(element("StateIn_Imp1")) == 0 && extra.raw(element("Motochas")) == 0);
        QCOMPARE(TmiPage_Zeta3(extra).number(), 0x12345678U);
    }

    void areas_data()
    {
        QTest::addColumn<QByteArray>("road"); // empty: the packet is an answer
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<QStringList>("expected");
        const QByteArray one = entry(1, 8, QByteArray::fromHex("0102000000000000"));
        const QByteArray rfid = entry(3, 8, QByteArray::fromHex("ffffffffffffffff"));
        const QByteArray full = entry(2, 16, "ABCDEFGHIJKLMNOP");
        const auto row = [](const char* name, const QByteArray& area, const QStringList& expected) {
            QTest::newRow(name) << packet(kSecondHead + area) << packet(area) << expected;
        };
        row("none", {}, {});
        row("one byte", "\x01", {});
        row("two keys in order", one + rfid, {"1:8:513", "3:8:18446744073709551615"});
        row("a full card", full, {"2:16:ABCDEFGHIJKLMNOP"});
        row("a short card", entry(2, 16, QByteArray("CARD").leftJustified(16, '\0')) + one,
            {"2:16:CARD", "1:8:513"});
        row("unknown, and on", entry(9, 3, "\x01\x02\x03") + one, {"9:3:010203", "1:8:513"});
        row("unknown without bytes", entry(9, 0, {}) + one, {"9:0:", "1:8:513"});
        row("steps are those of the type", entry(1, 1, one.mid(2)) + entry(2, 200, full.mid(2)) + one,
            {"1:1:513", "2:200:ABCDEFGHIJKLMNOP", "1:8:513"});
        row("beyond the area", one + entry(9, 250, "\x01\x02"), {"1:8:513", "9:250:0102"});
        row("a key beyond the area", entry(1, 8, "\x05"), {"1:8:5"});
        row("a card beyond the area", entry(2, 16, "AB"), {"2:16:AB"});
        row("more than is kept", entry(9, 200, QByteArray(200, 'a')) + entry(9, 100, QByteArray(100, 'b')),
            {"9:200:" + QString::fromLatin1(QByteArray(200, 'a').toHex()),
             "9:100:" + QString::fromLatin1(QByteArray(52, 'b').toHex())});

        // Sizes that contradict the bytes or each other.
        const QByteArray none;
        QTest::newRow("bytes behind the packet")
            << packet(kSecondHead + one, 63) + "xyz" << none << QStringList("1:8:513");
        QTest::newRow("cut road packet")
            << packet(kSecondHead + one).chopped(6) << none << QStringList("1:8:513");
        QTest::newRow("cut answer") << none << packet(one).chopped(6) << QStringList("1:8:513");
        QTest::newRow("area before the packet")
            << packet(kSecondHead + one, 20) << packet(one, 20) << QStringList();
        QTest::newRow("area behind the packet")
            << packet(kSecondHead + one, 0xffff, 255) << none << QStringList();
    }

    void areas()
    {
        QFETCH(QByteArray, road);
        QFETCH(QByteArray, answer);
        QFETCH(QStringList, expected);
        TmiPage_Zeta3 page;
        if (!road.isEmpty()) {
            page.setRecord(road.constData(), road.size());
            QCOMPARE(entries(page.extra()), expected);
        }
        if (!answer.isEmpty()) {
            page.setKeyAnswer(answer.constData(), answer.size());
            QCOMPARE(entries(page.extra()), expected);
        }
    }

    // The head of an answer ends where its area begins, even in the middle of what it should hold.
    void shortHeadOfAnAnswer()
    {
        const QByteArray answer = packet({}, -1, 10);
        TmiPage_Zeta3 page;
        page.setKeyAnswer(answer.constData(), answer.size());
        QCOMPARE(page.number(), 0x12345678U);
        QCOMPARE(page.extra().value<element("Time")>() & 0xffU, 0U);
        QCOMPARE(page.extra().raw(element("StateNGauge")), quint64{0});
        QCOMPARE(page.extra().area().size(), std::size_t{27});
    }

    // A record after an extra packet shows nothing of it, and the other way round.
    void changingKinds()
    {
        QByteArray record = QByteArray("\xb0\x1e\x80") + QByteArray(31, '\0') + QByteArray("\x07\0\0\0", 4);
        const QByteArray extra = packet(kSecondHead);
        TmiPage_Zeta3 page(extra.constData(), extra.size());
        QVERIFY(page.ver() == 2 && !page.has(element("NumPage")));
        page.setRecord(record.constData(), record.size());
        QVERIFY(!page.isExtra() && page.type() == 176 && page.ver() == 30 && page.number() == 7);
        page.setRecord(extra.constData(), extra.size());
        QVERIFY(page.isExtra() && page.valueBlock() == TmiPage_Zeta3::ValueBlock{});
    }
};

QTEST_APPLESS_MAIN(TestExtraPacket)
#include "tst_extra_packet.moc"
