// Records of both formats against a walk over the mask that shares nothing with the decoder: it goes by a
// text of bits, row by row of the catalogue as it is written. VLK_RANDOM_RECORDS sets the number of random
// records, in batches of 20,000.

#include "telemetry/record/record_head.h"
#include "telemetry/record/tmi_page_zeta2.h"
#include "telemetry/record/tmi_page_zeta3.h"

#include <QtTest>

#include <bitset>
#include <random>
#include <vector>

using namespace vlk;

namespace {

struct Expected
{
    bool has;
    quint64 raw;
};

std::vector<Expected> walk(const QByteArray& record, int fieldCount)
{
    static constexpr int kWidths[] = {1, 2, 4, 8, 1, 2, 4, 8, 4};
    std::string bits;
    for (const char byte : record.mid(2, 32).leftJustified(32, '\0'))
        bits += std::bitset<8>(static_cast<uchar>(byte)).to_string();
    const bool known = !record.isEmpty() && static_cast<uchar>(record[0]) == 176;
    int at = known ? 34 : record.size();

    std::vector<Expected> values;
    values.reserve(kElementCount);
    for (const ElementRow& row : catalogue::kElementRows) {
        const bool has = row.field < fieldCount && bits[row.field] == '1';
        quint64 raw = 0;
        if (has) {
            const int width = kWidths[static_cast<int>(row.type)];
            for (int i = width - 1; i >= 0 && at + width <= record.size(); --i)
                raw = raw * 256 + static_cast<uchar>(record[at + i]);
            at += width;
        }
        values.push_back({has, raw});
    }
    return values;
}

// A copy that ends where its memory ends, so that a read beyond it is seen.
std::vector<char> exact(const QByteArray& bytes)
{
    return {bytes.begin(), bytes.end()};
}

template <class Page>
QByteArray difference(const Page& page, const QByteArray& record, int fieldCount)
{
    const auto values = walk(record, fieldCount);
    for (int i = 0; i < kElementCount; ++i) {
        const auto index = static_cast<ElementIndex>(i);
        if (page.has(index) != values[i].has || page.raw(index) != values[i].raw)
            return QByteArray(kElements[i].name.data()) + " of " + record.toHex();
    }
    const auto number = static_cast<quint32>(values[element("NumPage")].raw);
    return page.number() == number && page.payload() == record.mid(34) ? "" : "number or payload";
}

// Whether both decoders agree with the walk.
void check(TmiPage_Zeta3& reused, const QByteArray& record)
{
    const auto bytes = exact(record);
    const auto size = static_cast<qsizetype>(bytes.size());
    reused.setRecord(bytes.data(), size);
    if (reused.isExtra()) {
        QVERIFY(reused.mask() == FieldMask());
        return;
    }
    QCOMPARE(difference(reused, record, kFieldCount), QByteArray());
    QCOMPARE(difference(TmiPage_Zeta2(bytes.data(), size), record, kEarlierFieldCount), QByteArray());
}

QByteArray recordOf(const FieldMask& mask, const QByteArray& payload)
{
    return QByteArray("\xb0\x1e") +
           QByteArray(reinterpret_cast<const char*>(mask.bytes().data()), FieldMask::kBytes) + payload;
}

class Random
{
public:
    explicit Random(unsigned seed) : engine_(seed) {}

    QByteArray bytes(int count)
    {
        QByteArray bytes(count, Qt::Uninitialized);
        std::ranges::generate(bytes, [this] { return static_cast<char>(engine_()); });
        return bytes;
    }

    // Sparse, dense and clustered masks; the payload has what the mask asks for, or less, or more.
    QByteArray record()
    {
        FieldMask mask;
        const unsigned density = below(9);
        const unsigned cluster = 1 + below(20);
        for (int field = 0; field < kFieldCount;) {
            const bool on = below(8) < density;
            for (unsigned n = below(cluster) + 1; n > 0 && field < kFieldCount; --n)
                mask.set(field++, on);
        }
        const int wanted = mask.payloadSize();
        return recordOf(mask, bytes(below(2) == 0 ? wanted : static_cast<int>(below(wanted + 20))));
    }

    unsigned below(unsigned limit) { return static_cast<unsigned>(engine_()) % limit; }

private:
    std::mt19937 engine_;
};

constexpr int kBatch = 20000;

} // namespace

class TestRecord : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomRecords_data()
    {
        QTest::addColumn<unsigned>("seed");
        const int wanted = std::max(kBatch, qEnvironmentVariableIntValue("VLK_RANDOM_RECORDS"));
        for (int batch = 0; batch * kBatch < wanted; ++batch)
            QTest::addRow("batch %d", batch) << 7106U + static_cast<unsigned>(batch);
    }
    void randomRecords()
    {
        QFETCH(unsigned, seed);
        Random random(seed);
        TmiPage_Zeta3 page;
        for (int i = 0; i < kBatch && !QTest::currentTestFailed(); ++i)
            check(page, random.record());
    }

    void sizes()
    {
        Random random(2000);
        TmiPage_Zeta3 page;
        const FieldMask all = FieldMask::fromText(std::string(255, '1'));
        for (int size = 0; size <= 2000 && !QTest::currentTestFailed(); ++size) {
            for (const QByteArray& record : {recordOf(all, random.bytes(size)), random.bytes(size)})
                check(page, record);
        }
        for (const qsizetype size : {qsizetype{-1}, qsizetype{0}, qsizetype{100}}) {
            page.setRecord(nullptr, size);
            QVERIFY(page.type() == 0 && page.payload().isEmpty() &&
                    TmiPage_Zeta2(nullptr, size).number() == 0);
        }
    }

    void reuseKeepsTheZoneAndTheMemory()
    {
        TmiPage_Zeta3 page;
        page.setUtcOffset(-5400);
        const QByteArray full = recordOf(FieldMask::fromText(std::string(255, '1')), QByteArray(734, 'x'));
        page.setRecord(full.constData(), full.size());
        const void* memory = page.payload().constData();
        QByteArray other("\x05\x1e");
        page.setRecord(other.constData(), other.size());
        QCOMPARE(page.type(), quint8{5});
        QVERIFY(page.valueBlock() == TmiPage_Zeta3::ValueBlock{});
        page.setRecord(full.constData(), full.size());
        QCOMPARE(static_cast<const void*>(page.payload().constData()), memory);
        QCOMPARE(page.utcOffset(), -5400);
    }
};

QTEST_APPLESS_MAIN(TestRecord)
#include "tst_record.moc"
