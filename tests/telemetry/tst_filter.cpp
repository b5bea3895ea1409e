// What people write in a filter, what it is kept as, and which records pass. Without a translator a word and
// a heading show as their key.

#include "sample_pages.h"
#include "support/data_table.h"
#include "telemetry/files/filter_parser.h"

#include <QtTest>

using namespace vlk;

class TestFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        const TextSource english = [](const char* key) {
            const QByteArray name(key);
            return name == "tmizta_125"   ? QStringLiteral("Event time")
                   : name == "tmizta_152" ? QStringLiteral("Rate, km/h")
                                          : QLatin1String(key);
        };
        const TextsFrom texts(english);
        names_.addTexts();
        names_.addWord(QStringLiteral("Заправка"), item("Code"), {35, 35});
        names_.addWord(QStringLiteral("Drain of fuel"), item("Code"), {36, 36});
        names_.add(QStringLiteral("Rear door"), item("StateIn1.0"));
    }

    void kept_data()
    {
        const DataTable<QString, QString> table({"typed", "kept"});
        table.row("nothing", "  ", "")
            .row("a number", "StateU_Ain3<9,5", "StateU_Ain3 < 9.5")
            .row("any case", "SPEED >= -1.5E2", "Speed >= -150")
            .row("a heading", "CAN tmizta_164,  %  = 7", "CAN_FuelLevel.percent = 7")
            .row("letters that look alike", "T8 > 1 or \u0421\u0410N tmizta_164, % = 7",
                 "Temp8 > 1 or CAN_FuelLevel.percent = 7")
            .row("one without its unit", "rate > 60 or tmizta_178. rate > 5 or Rate, km/h > 7",
                 "Speed > 60 or NaviSpeed > 5 or Speed > 7")
            .row("the longest name", "IN10 = 1 or IN1 = 0", "StateIn2.1 = 1 or StateIn1.0 = 0")
            .row("a name in quotes", "«rear DOOR» = 1", "StateIn1.0 = 1")
            .row("a whole element", "StateIn1 != 3", "StateIn1 != 3")
            .row("words of two states", "rear door = 'tmizta_033'", "StateIn1.0 = 1")
            .row("a word that is a number", "Module1.sim = '2' or Module1.sim = 0",
                 "Module1.sim = 1 or Module1.sim = 0")
            .row("an event", "Code = \"заправка\" or code != Drain of FUEL", "Code = 35 or Code != 36")
            .row("a word of many codes", "RefrState2 = \"tmizta_073\" and Speed > 1",
                 "(RefrState2 = 0 or RefrState2 >= 129 and RefrState2 <= 170) and Speed > 1")
            .row("none of them", "not RefrState2 != tmizta_073",
                 "not (RefrState2 != 0 and (RefrState2 < 129 or RefrState2 > 170))")
            .row("whatever has no word", "TahoMode = tmizta_009", "TahoMode >= 6 and TahoMode <= 255")
            .row("Russian, and what binds more", "не Speed > 1 или Run = 2 и Way = 3",
                 "not Speed > 1 or Run = 2 and Way = 3")
            .row("brackets", "((Speed > 1 or (Run = 2))) and (Way = 3 and Way = 4)",
                 "(Speed > 1 or Run = 2) and Way = 3 and Way = 4")
            .row("a minute", "Event time = 20.11.2026 08:29",
                 "Time >= 2026-11-20T05:29:00Z and Time <= 2026-11-20T05:29:59Z")
            .row("a day", "Time <= 20.11.2026", "Time <= 2026-11-20T20:59:59Z")
            .row("ISO and a zone", "Time > 2026-11-20T08:29:30Z and LastTime != '2026-11-20 08:29:01-0130'",
                 "Time > 2026-11-20T08:29:30Z and LastTime != 2026-11-20T09:59:01Z")
            .row("seconds since 1970", "Time >= 0", "Time >= 1970-01-01T00:00:00Z");
    }
    void kept()
    {
        QFETCH(QString, typed);
        const ParsedFilter parsed = parseFilter(typed, names_, 10800);
        QVERIFY2(parsed.filter, qPrintable(QString::number(parsed.fault.position) + parsed.fault.expected));
        QTEST(parsed.filter->text(), "kept");
        QCOMPARE(*parseFilter(parsed.filter->text(), names_, 0).filter, *parsed.filter);
    }

    void faults_data()
    {
        const DataTable<QString, int, QString> table({"typed", "position", "expected"});
        table.row("no column", "Speed > 1 and Sped > 2", 14, "rec_100, not Sped")
            .row("a part of a name", "Spee > 1", 0, "rec_100, not Spee")
            .row("a name of two columns", "CAN tmizta_164 > 1", 0, "rec_100, not CAN")
            .row("no name", "Speed > 1 and ", 14, "rec_100")
            .row("no sign", "Speed 3", 6, "rec_101")
            .row("no number", "Speed > ", 8, "rec_102")
            .row("a number and more", "Speed > 3.5.1", 8, "rec_102")
            .row("a unit behind a number", "Speed > 60 km/h and Run > 2", 11, "rec_105, without km/h")
            .row("a unit at a number", "(Speed > 60KM/H)", 9, "rec_102, without 60KM/H")
            .row("no unit behind a number", "Speed > 60 km", 11, "rec_105")
            .row("too large", "Speed > 1e999", 8, "rec_102")
            .row("another word", "Code = 'Parking'", 7, "rec_360")
            .row("another word that begins alike", "Code = 'draining'", 7, "rec_361")
            .row("no such day", "Time > 31.02.2026", 7, "rec_104")
            .row("a date in another form", "Time > 22/11/2026", 7, "rec_104")
            .row("a day without its year", "Time > 27.11 08:00", 7, "rec_104")
            .row("no such minute", "Time > 2026-02-01 10:61", 7, "rec_104")
            .row("a word is not less", "Code < 'Заправка'", 7, "rec_109")
            .row("what follows", "Speed > 1 Run > 2", 10, "rec_105")
            .row("not closed", "(Speed > 1", 10, "rec_106")
            .row("closed twice", "(Speed > 1))", 11, "rec_105")
            .row("a quotation mark", "Speed = \"1", 8, "rec_107")
            .row("too deep", QString(65, '(') + "Speed > 1" + QString(65, ')'), 64, "rec_108")
            .row("not, too often", QString("not ").repeated(70) + "Speed > 1", 260, "rec_108");
    }
    void faults()
    {
        QFETCH(QString, typed);
        const TextSource english = [](const char* key) {
            return QByteArray(key) == "rec_298"   ? QStringLiteral("%1, not %2")
                   : QByteArray(key) == "rec_650" ? QStringLiteral("%1, without %2")
                                                  : QLatin1String(key);
        };
        const TextsFrom texts(english);
        const ParsedFilter parsed = parseFilter(typed, names_, 0);
        QVERIFY(!parsed.filter);
        QTEST(parsed.fault.position, "position");
        QTEST(parsed.fault.expected, "expected");
    }

    void completes_data()
    {
        const DataTable<QString, QStringList> table({"typed", "offered"});
        table.row("a name", "Speed > 1 and navil", {"14 NaviLatitude", "14 NaviLongitude"})
            .row("a word of a name", "door", {"0 Rear door"})
            .row("a sign or a longer name", "Temp1", {"0 Temp1", "5 =", "5 !=", "5 <", "5 >", "5 <=", "5 >="})
            .row("the rest of a sign", "Temp1 !", {"6 !="})
            .row("a word", "Code = \"fu", {"7 \"Drain of fuel\""})
            .row("words", "rear door = ", {"12 \"tmizta_032\"", "12 \"tmizta_033\""})
            .row("a joint", "Speed > 1 ", {"10 rec_110", "10 rec_111"})
            .row("nothing inside a number", "Speed > 1", {});
    }
    void completes()
    {
        QFETCH(QString, typed);
        QStringList offered;
        for (const FilterCompletion& completion : completions(typed + "xyz", typed.size(), names_))
            offered << QString::number(completion.from) + ' ' + completion.text;
        QTEST(offered, "offered");
    }

    void offersFirst()
    {
        FilterNames names = names_;
        names.offerFirst({"rate,  KM/H", "no column", "Rear door"});
        QCOMPARE(names.names().mid(0, 3), QStringList({"Rate, km/h", "Rear door", names_.names().first()}));
        QCOMPARE(names.names().size(), names_.names().size());
        const std::vector<FilterCompletion> offered = completions("door", 4, names);
        QCOMPARE(offered.front().text, QString("Rear door"));
    }

    void passes_data()
    {
        const DataTable<QString, QString> table({"typed", "records"});
        table.row("all", "", "0 1 2 3")
            .row("a packet has an event too", "Code = 35", "1 3")
            .row("volts, as they are written", "StateU_Ain3 = 12.3", "0")
            .row("no more than that", "StateU_Ain3 <= 12.3 and StateU_Ain3 >= 12.3", "0")
            .row("a float next to the number", "Speed = 12.1", "1")
            .row("absent is not unequal", "Speed != 5", "1 2 3")
            .row("but not equal", "not Speed = 5", "0 1 2 3")
            .row("no value", "Temp1 < 100", "2")
            .row("no number", "Run > 0 or Run <= 0", "3")
            .row("times", "Time = 14.11.2023", "0 3")
            .row("no time", "Time < 1.1.2020 or Time != 14.11.2023", "1")
            .row("a bit or a number", "IN2 = 1 or NumPage = 1", "0 2");
    }
    void passes()
    {
        QFETCH(QString, typed);
        constexpr quint64 time = 1'700'000'000; // 14 November 2023, 22:13:20
        const auto bits = [](float number) { return quint64{std::bit_cast<quint32>(number)}; };
        const TelemetryPages pages = pagesOf(
            recordOf(RecordParts{{"NumPage", 1}, {"Time", time}, {"StateU_Ain3", 12300}, {"Temp1", 0x80}}),
            recordOf(
                RecordParts{{"NumPage", 2}, {"Code", 35}, {"Time", time + 86'400}, {"Speed", bits(12.1F)}}),
            recordOf(RecordParts{
                {"NumPage", 3}, {"Temp1", 20}, {"StateIn1", 2}, {"Speed", 0}, {"Run", bits(std::nanf(""))}}));
        RecordStore store = storeOf(pages);
        const QByteArray packet = packetBytes(kSecondHead);
        store.add(bytesAt(packet.constData(), packet.size()));
        RecordColumns columns(store);
        QStringList records;
        for (const int record : passing(*parseFilter(typed, names_, 0).filter, columns))
            records << QString::number(record);
        QTEST(records.join(' '), "records");
    }

private:
    FilterNames names_;
};

QTEST_GUILESS_MAIN(TestFilter)
#include "tst_filter.moc"
