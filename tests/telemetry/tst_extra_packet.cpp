// Extra packets of both roads. A packet is put together here from its pieces, with sizes that fit or do not.

#include "support/data_table.h"
#include "support/records.h"
#include "telemetry/record/tmi_page_zeta2.h"

#include <QtTest>

using namespace vlk;

namespace {

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
    // The values of both heads are those of the XML in tst_files; here, that a key's answer has the first
    // alone.
    void heads()
    {
        const QByteArray road = packetBytes(kSecondHead);
        const QByteArray key = packetBytes(entryOf(1, 8, QByteArray(8, '\xff')));
        TmiPage_Zeta3 page(road.constData(), road.size());
        const ExtraPacket& extra = page.extra();
        QCOMPARE(page.number(), 0x12345678U);
        QCOMPARE(TmiPage_Zeta2(road.constData(), road.size()).number(), 0x12345678U);
        QCOMPARE(page.payload(), road.mid(1));
        QCOMPARE(extra.raw(element("Power")), quint64{0});
        page.setKeyAnswer(key.constData(), key.size());
        QVERIFY(page.isExtra() && extra.type() == 177 && extra.stVer() == 2 && extra.stSize() == 37);
        QVERIFY(extra.value<element("Code")>() == 35 && extra.value<element("Run")>() == 2.5F);
        QVERIFY(extra.hVer() == 0 && extra.hSize() == 0 && extra.raw(element("State")) == 0 &&
                extra.raw(element("StateIn_Imp1")) == 0 && extra.raw(element("Motochas")) == 0);
        QCOMPARE(TmiPage_Zeta3(extra).number(), 0x12345678U);
    }

    void areas_data()
    {
        // An empty packet is not tried on its road.
        const DataTable<QByteArray, QByteArray, QStringList> table({"road", "answer", "expected"});
        const QByteArray one = entryOf(1, 8, QByteArray::fromHex("0102000000000000"));
        const QByteArray rfid = entryOf(3, 8, QByteArray::fromHex("ffffffffffffffff"));
        const QByteArray full = cardEntry("ABCDEFGHIJKLMNOP");
        const auto row = [&table](const char* name, const QByteArray& area, const QStringList& expected) {
            table.row(name, packetBytes(kSecondHead + area), packetBytes(area), expected);
        };
        row("none", {}, {});
        row("one byte", "\x01", {});
        row("two keys in order", one + rfid, {"1:8:513", "3:8:18446744073709551615"});
        row("a full card", full, {"2:16:ABCDEFGHIJKLMNOP"});
        row("a short card", cardEntry("CARD") + one, {"2:16:CARD", "1:8:513"});
        row("unknown, and on", entryOf(9, 3, "\x01\x02\x03") + one, {"9:3:010203", "1:8:513"});
        row("unknown without bytes", entryOf(9, 0, {}) + one, {"9:0:", "1:8:513"});
        row("steps are those of the type", entryOf(1, 1, one.mid(2)) + entryOf(2, 200, full.mid(2)) + one,
            {"1:1:513", "2:200:ABCDEFGHIJKLMNOP", "1:8:513"});
        row("beyond the area", one + entryOf(9, 250, "\x01\x02"), {"1:8:513", "9:250:0102"});
        row("a key beyond the area", entryOf(1, 8, "\x05"), {"1:8:5"});
        row("a card beyond the area", entryOf(2, 16, "AB"), {"2:16:AB"});
        row("more than is kept",
            entryOf(9, 200, QByteArray(200, 'a')) + entryOf(9, 100, QByteArray(100, 'b')),
            {"9:200:" + QString::fromLatin1(QByteArray(200, 'a').toHex()),
             "9:100:" + QString::fromLatin1(QByteArray(52, 'b').toHex())});

        // Sizes that contradict the bytes or each other.
        table.row("bytes behind the packet", packetBytes(kSecondHead + one, 63) + "xyz", {}, {"1:8:513"})
            .row("cut road packet", packetBytes(kSecondHead + one).chopped(6), {}, {"1:8:513"})
            .row("cut answer", {}, packetBytes(one).chopped(6), {"1:8:513"})
            .row("area before the packet", packetBytes(kSecondHead + one, 20), packetBytes(one, 20), {})
            .row("area behind the packet", packetBytes(kSecondHead + one, 0xffff, 255), {}, {});
    }
    void areas()
    {
        QFETCH(QByteArray, road);
        QFETCH(QByteArray, answer);
        TmiPage_Zeta3 page;
        if (!road.isEmpty()) {
            page.setRecord(road.constData(), road.size());
            QTEST(entries(page.extra()), "expected");
        }
        if (!answer.isEmpty()) {
            page.setKeyAnswer(answer.constData(), answer.size());
            QTEST(entries(page.extra()), "expected");
        }
    }

    // The head of an answer ends where its area begins, even in the middle of what it should hold.
    void shortHeadOfAnAnswer()
    {
        const QByteArray answer = packetBytes({}, -1, 10);
        TmiPage_Zeta3 page;
        page.setKeyAnswer(answer.constData(), answer.size());
        QCOMPARE(page.number(), 0x12345678U);
        QCOMPARE(page.extra().value<element("Time")>(), 0x6553f140U);
        QCOMPARE(page.extra().raw(element("StateNGauge")), quint64{0});
        QCOMPARE(page.extra().area().size(), std::size_t{27});
    }

    // A record after an extra packet shows nothing of it, and the other way round.
    void changingKinds()
    {
        const QByteArray record = RecordParts{{"NumPage", 7}}.bytes();
        const QByteArray extra = packetBytes(kSecondHead);
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
