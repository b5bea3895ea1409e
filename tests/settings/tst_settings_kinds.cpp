// Every kind of setting and of rule, on a table of its own: what becomes of a text of the file, and what an
// edit changes.

#include "document/values_document.h"
#include "review/change.h"
#include "review/value_text.h"
#include "support/data_table.h"
#include "support/setting_samples.h"

#include <QtTest>

namespace {

using namespace vlk;

constexpr Code kUses[] = {{.code = "NU", .label = "none"},
                          {.code = "NB+", .label = "high"},
                          {.code = "AIN", .label = "analogue"},
                          {.code = "PLS", .label = "pulses", .offered = false},
                          {.code = "OLD", .means = "AIN"}};
constexpr Code kNumbers[] = {{.code = "0"}, {.code = "1"}, {.code = "3"}};
constexpr Code kPatterns[] = {{.code = "11000", .pattern = "11***"},
                              {.code = "10000", .pattern = "10**0"},
                              {.code = "01000", .pattern = "01***"}};
constexpr Position kBoxes[] = {{"a", "first"}, {}, {"c", "third"}};
constexpr Position kMoreBoxes[] = {{"d", "first"}, {}, {"e", "third"}};
constexpr Position kLists[] = {{"f", "first", 2}, {}, {"g", "third", 2}};
constexpr PeriodPart kParts[] = {{"h", 3600, 0, 71, "h"}, {"m", 60, 0, 59, "min"}};
constexpr PeriodPart kWrapped[] = {{"i", 3600, 0, 71, "h"}, {"n", 60, 0, 59, "min"}};
constexpr PeriodPart kLeast[] = {{"j", 3600, 0, 71, "h"}, {"o", 60, 0, 59, "min"}};
constexpr Code kPairs[] = {{.code = "00", .label = "none"}, {.code = "01", .label = "pair"}};
constexpr MaskField kFields[] = {
    {.widget = "a", .caption = "first", .positions = {0}, .count = 1, .always = true},
    {.widget = "b", .caption = "both", .positions = {1, 2}, .count = 2},
    {.widget = "c",
     .caption = "any",
     .format = "%1 %2",
     .number = 7,
     .positions = {3, 5},
     .count = 2,
     .anyReads = true},
    {.widget = "d", .caption = "list", .positions = {6, 7}, .count = 2, .items = kPairs}};

constexpr auto kRows = rowsOf(
    group("A"), constant("mode", "1"), flag("flag", 1), flag("line", 0).onValue(3),
    integer("whole", 5).range(1, 90), integer("minutes", 3600, 60).range(5, 100),
    integer("offOr", 0).range(1, 300).offAtZero("box"), real("real", 2.5, 1).range(0.1, 100).readSingle(),
    volts("volts", 8000).range(0, 31), text("text", "x").upTo(5), text("pin", "").secretly(),
    text("model", DefaultText{"%1 IN", "key"}), choice("use", kUses, "NU").unknownIs("NU").noItemIs("N/A"),
    choice("number", kNumbers, "1").byNumber(), choice("form", kNumbers, "0").byNumber().unknownIs("1"),
    choice("chosen", kNumbers, "1").byNumber().unknownIs("9").noItemIs("9"),
    choice("satellites", kPatterns, "11000"), period("period", 3600, kParts),
    period("wrapped", 3600, kWrapped).wrapping(86400), period("least", 3600, kLeast).atLeast(300),
    digits("digits", "101", kBoxes), digits("lists", "201", kLists), mask("fields", "10010101", 8, kFields),
    integer("blank", 0).blankable(), text("address", "none").resetTo(""), flag("server", 0).notStored(),
    flag("safe", 0), integer("delay", 60).onlyWhen(when("A/use", "NB+")),
    integer("shared", 0).range(0, 20).notStored(), volts("low", 5000).range(0, 31),
    volts("high", 6000).range(0, 31), integer("hysteresis", 5).range(0, 10), integer("left", 20),
    integer("right", 30), integer("speed", 9600), integer("late", 0).readLast(),
    digits("conditions", "000", kMoreBoxes), choice("preset", kNumbers, "0").byNumber().notStored(),
    text("one", ""), text("two", ""), group("A/CHILD").onlyWhen(when("A/use", "NB+|AIN")),
    link("shared", "A/shared", 7), integer("own", 3), group("W"), integer("alone", 3).notStored(), group("B"),
    hexadecimal("byte", 255).range(0, 255), text("address", "").masked("HH:HH"),
    integer("row", 0).range(1, 4).offAtZero("other box").onUnlessZero(), integer("fresh", 0),
    choice("kept", kUses, "NU").unknownIs("NB+").ifUnoffered(Unoffered::KeepsValue),
    choice("kind", kNumbers, "0"), group("EMPTY").atSave(ElementSave::AnewIfAny),
    integer("some", 1).onlyWhen(when("B/kind", "9")),
    group("C").named("second C").onlyWhen(when("B/kind", "7")), integer("alone", 1), repeat<3>([](int) {
        return rowsOf(group("SOLE%1"), flag("on", 0), choice("list", kNumbers, "0").byNumber(),
                      choice("number", kNumbers, "0")
                          .byNumber()
                          .unknownIs("1")
                          .noItemIs("-")
                          .resetTo("-")
                          .offering("")
                          .ifUnoffered(Unoffered::KeepsValue));
    }),
    repeat<2>([](int number) { return rowsOf(group("R%1"), integer("n%1", number)); }));
constexpr auto kSets =
    rulesOf(onEdit(when("A/whole", "7"), "A/flag", "0"), onEdit(when("A/flag", "0"), "A/whole", "8"),
            onEdit(when("B/row"), "B/fresh", "1").onset(),
            onEdit(when("A/whole", "6"), "W/alone", "9").onlyIf(when("A/use", "AIN")),
            onEditOrRead(when("A/speed", "1"), "A/late", "4"),
            afterRead(unless("A/address", "none"), "A/server", "1"),
            afterRead(unless("A/use", "NB+"), "A/safe", "0"), always(unless("A/line"), "A/conditions", "*00"),
            onSave(unless("A/server"), "A/address", "none"), onSave(unless("A/use", "NB+"), "A/safe", "0"));
constexpr auto kDistances =
    rulesOf(Distance{.first = "A/low", .second = "A/high", .gap = 0.5},
            Distance{.first = "A/left", .second = "A/right", .gap = 1, .gapFrom = "A/hysteresis"});
constexpr auto kRanges = rulesOf(
    RangeWhen{.when = when("A/use", "AIN"), .path = "A/shared", .least = 1, .most = 500},
    RangeWhen{.when = when("A/line"), .path = "A/form", .offers = "0|1"},
    RangeWhen{.when = when("A/line"), .path = "A/lists", .offers = "0|1"}, repeat<3>([](int) {
        constexpr When list = when("SOLE%1/list", "1");
        return rulesOf(
            RangeWhen{.when = list, .path = "SOLE%1/number", .offers = "1|3", .startsOver = true},
            RangeWhen{
                .when = when("SOLE%1/list", "0"), .path = "SOLE%1/number", .offers = "", .startsOver = true});
    }));
constexpr auto kExclusives = repeat<3>([](int) {
    return ExclusiveChoice{
        .path = "SOLE%1/number", .when = when("SOLE%1/on"), .list = "numbers", .holder = "SOLE%1"};
});
constexpr auto kEnables = rulesOf(enable(parts("same"), whenSame("SOLE1/on", "SOLE2")));
constexpr PresetRow kReady[] = {{"0", {"a", "b"}}, {"1", {"c", nullptr}}, {"3", {"", ""}}};
constexpr auto kPresets =
    rulesOf(Presets{.trigger = "A/preset", .fields = {"A/one", "A/two"}, .rows = kReady, .other = "3"});
constexpr SettingsTable kTable =
    tableOf<kRows, kSets, kDistances, kRanges, kExclusives, kPresets, kEnables>("S");

// Two values that keep a distance are read behind the one that says it.
constexpr auto kLateRows =
    rowsOf(group("L"), integer("low", 0).range(0, 90).readLast(),
           integer("high", 100).range(10, 100).readLast(), integer("gap", 5).range(0, 50));
constexpr auto kLateDistances = rulesOf(Distance{.first = "L/low", .second = "L/high", .gapFrom = "L/gap"});
constexpr SettingsTable kLate = tableOf<kLateRows, kLateDistances>("LATE");

// One edit that every kind of rule answers.
constexpr auto kOrderRows =
    rowsOf(group("O"), integer("low", 0), integer("high", 0),
           choice("list", kNumbers, "0").offering("").noItemIs("-").resetTo("-"),
           choice("first", kNumbers, "0"), choice("second", kNumbers, "0"), integer("ranged", 9),
           choice("use", kNumbers, "0"), integer("set", 0), integer("preset", 0), integer("held", 0));
constexpr When kSeven = when("O/low", "7");
constexpr auto kOrderSets = rulesOf(always(kSeven, "O/held", "3"), onEdit(kSeven, "O/use", "1"),
                                    onEdit(when("O/use", "1"), "O/set", "1"));
constexpr auto kOrderDistances = rulesOf(Distance{.first = "O/low", .second = "O/high", .gap = 1});
constexpr auto kOrderRanges =
    rulesOf(RangeWhen{.when = kSeven, .path = "O/ranged", .least = 0, .most = 5},
            RangeWhen{.when = kSeven, .path = "O/list", .offers = "1|3", .startsOver = true});
constexpr auto kOrderExclusives =
    rulesOf(ExclusiveChoice{.path = "O/first", .when = kSeven, .list = "list", .holder = "1"},
            ExclusiveChoice{.path = "O/second", .when = when("O/held", "9"), .list = "list", .holder = "2"});
constexpr PresetRow kUseRows[] = {{"1", {"2"}}};
constexpr auto kOrderPresets = rulesOf(Presets{.trigger = "O/use", .fields = {"O/preset"}, .rows = kUseRows});
constexpr SettingsTable kOrder =
    tableOf<kOrderRows, kOrderSets, kOrderDistances, kOrderRanges, kOrderExclusives, kOrderPresets>("ORDER");

// What a kind lacks, its rows do not take.
template <class Row>
concept HasRange = requires(Row row)
{
    row.range(1, 5);
};
template <class Row>
concept HasMask = requires(Row row)
{
    row.masked("HH");
};
template <class Row>
concept HasCodes = requires(Row row)
{
    row.byNumber();
};
template <class Row>
concept IsShown = requires(Row row)
{
    row.in("widget").caption("key");
};
static_assert(HasRange<Number> && !HasRange<Flag> && !HasRange<Text>);
static_assert(HasMask<Text> && !HasMask<Flag> && !HasMask<Number> && !HasMask<Choice>);
static_assert(HasCodes<Choice> && !HasCodes<Text> && !HasCodes<Period> && !HasCodes<Digits>);
static_assert(IsShown<Mask> && !IsShown<Group> && !IsShown<Link> && !IsShown<Constant>);

// Over two sections, of which a save empties the second.
constexpr auto kWideRows =
    rowsOf(group("P").atSave(ElementSave::KeepsOthers),
           text("mask", "0000").atSave(OnSave::Document).ifMissing(Missing::KeepsValue), group("Q"),
           constant("page", "Q"), flag("any", 0).notStored(), flag("one", 0).notStored(),
           choice("use", kNumbers, "0").offering("0|1").notStored().ifMissing(Missing::KeepsValue),
           integer("owner", 1), group("Q/C"), text("state", "a"), integer("ign", 0).notStored(),
           group("Q/C/I"), link("ign", "Q/C/ign", 1).ifNoElement(0),
           group("Q/E").onlyWhen(when("Q/any"), when("Q/one")).readWhen(when("Q/owner", "1")),
           link("use", "Q/one", 0));
constexpr PresetRow kSettled[] = {
    {"0", {"a", "0"}}, {"1", {"b", "1"}}, {"3", {"c", nullptr}}, {"0", {"b", "0"}}};
constexpr auto kWidePresets = rulesOf(
    Presets{.trigger = "Q/use", .fields = {"Q/C/state", "Q/C/ign"}, .rows = kSettled, .settles = true});
constexpr auto kWideSets =
    rulesOf(afterRead(when("Q/one"), "Q/any", "1"), afterRead(when("Q/C/ign"), "Q/any", "1"),
            onSave({}, "P/mask", "00*******0"), onSave(when("Q/any"), "P/mask", "*1").onlyIf(when("Q/one")));
constexpr SettingsTable kWide = tableOver<kWideRows, kWideSets, kWidePresets>("");

} // namespace

Q_DECLARE_METATYPE(vlk::Change)

class SettingsKindsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { values_.reset(); }

    void reading_data()
    {
        DataTable<QString, QString, QString, Change> table({"key", "text", "value", "change"});
        table.row("constant", "A/mode", "7", "1", Change::NotOffered);
        table.row("flag", "A/flag", "5", "1", Change::LooseForm);
        table.row("flag, no number", "A/flag", "yes", "0", Change::NotANumber);
        table.row("flag of another value", "A/line", "1", "0", Change::LooseForm);
        table.row("flag of its value", "A/line", "3", "3", Change::None);
        table.row("leading zeros", "A/whole", "007", "7", Change::OtherForm);
        table.row("number", "A/whole", "91", "90", Change::OutOfRange);
        table.row("number with a tail", "A/whole", "12abc", "12", Change::NotANumber);
        table.row("no number", "A/whole", "abc", "1", Change::NotANumber);
        table.row("nothing", "A/whole", "", "1", Change::NotANumber);
        table.row("seconds as minutes", "A/minutes", "3605", "3600", Change::Rounded);
        table.row("off", "A/offOr", "0", "0", Change::None);
        table.row("off, spelled otherwise", "A/offOr", "00", "0", Change::OtherForm);
        table.row("less than off", "A/offOr", "-4", "0", Change::OutOfRange);
        table.row("on", "A/offOr", "301", "300", Change::OutOfRange);
        table.row("real", "A/real", "12.34", "12.3", Change::Rounded);
        table.row("trailing zeros", "A/real", "12.30", "12.3", Change::OtherForm);
        table.row("real, no number", "A/real", "nan", "0.1", Change::NotANumber);
        table.row("real with a tail", "A/real", "2.5abc", "2.5", Change::NotANumber);
        table.row("real in single precision", "A/real", "1.05", "1.0", Change::Rounded);
        table.row("volts", "A/volts", "2010", "2010", Change::None);
        table.row("volts between steps", "A/volts", "2014", "2010", Change::Rounded);
        table.row("text", "A/text", "123456", "12345", Change::TooLong);
        table.row("offered", "A/use", "AIN", "AIN", Change::None);
        table.row("known, not offered", "A/use", "PLS", "N/A", Change::NotOffered);
        table.row("unknown", "A/use", "NX+", "NU", Change::UnknownCode);
        table.row("older spelling", "A/use", "OLD", "AIN", Change::OtherForm);
        table.row("by number", "A/number", "03", "3", Change::OtherForm);
        table.row("leaves it as it stands", "A/number", "2", "1", Change::UnknownCode);
        table.row("unknown is no item", "A/chosen", "2", "9", Change::UnknownCode);
        table.row("pattern", "A/satellites", "01001", "01000", Change::OtherForm);
        table.row("no pattern", "A/satellites", "00000", "11000", Change::UnknownCode);
        table.row("period", "A/period", "3725", "3720", Change::Rounded);
        table.row("period, leading zeros", "A/period", "03720", "3720", Change::OtherForm);
        table.row("period beyond its boxes", "A/period", "999999999", "258360", Change::OutOfRange);
        table.row("period beyond a day", "A/wrapped", "90060", "3660", Change::Wrapped);
        table.row("least period", "A/least", "60", "300", Change::OutOfRange);
        table.row("digits", "A/digits", "9x", "100", Change::LooseForm);
        table.row("digits of lists", "A/lists", "231", "201", Change::LooseForm);
        table.row("digit that a list lacks", "A/lists", "301", "001", Change::NotOffered);
        table.row("fields of a mask", "A/fields", "01001101", "11110101", Change::NotOffered);
        table.row("half of a field", "A/fields", "10010001", "10010101", Change::Completed);
        table.row("fields beyond the text", "A/fields", "0", "10000000", Change::NotOffered);
        table.row("item that a list lacks", "A/fields", "10010110", "10010101", Change::NotOffered);
        table.row("mask that is too long", "A/fields", "111101011", "11110101", Change::TooLong);
        table.row("blank", "A/blank", "", "", Change::None);
        table.row("bound by another", "A/safe", "1", "0", Change::None);
        table.row("links are read elsewhere", "A/speed", "1", "1", Change::None);
        table.row("hexadecimal", "B/byte", "0F", "0F", Change::None);
        table.row("hexadecimal, short", "B/byte", "f", "0F", Change::OtherForm);
        table.row("hexadecimal, too much", "B/byte", "100", "FF", Change::OutOfRange);
        table.row("not hexadecimal", "B/byte", "xy", "00", Change::NotANumber);
        table.row("empty mask", "B/address", "", ":", Change::OtherForm);
        table.row("mask, filled", "B/address", "0a:Bc", "0a:Bc", Change::None);
        table.row("mask, without its signs", "B/address", "0aBc", "0a:Bc", Change::OtherForm);
        table.row("mask, partly", "B/address", "x1:b y7:", "1:b7", Change::UnknownCode);
        table.row("any number but 0 is on", "B/row", "-4", "1", Change::OutOfRange);
        table.row("0 is off", "B/row", "0", "0", Change::None);
        table.row("not offered, stays", "B/kept", "PLS", "NU", Change::NotOffered);
        table.row("unknown, does not", "B/kept", "NX+", "NB+", Change::UnknownCode);
    }
    void reading()
    {
        QFETCH(QString, key);
        QFETCH(QString, text);
        const int index = values_.rowAt(key);
        const Limits limits = values_.limits(index);
        QTEST(takenAs(values_.setting(index), {text, values_.value(index), limits}).change, "change");
        read({{"S/" + key, text}});
        QTEST(values_.value(index), "value");
    }

    // Three settings with one list of two numbers.
    void sharedLists_data()
    {
        DataTable<QStringList, QString>({"edits", "numbers"})
            .row("no list", {}, "- - -")
            .row("another list brings its first number", {"1/list=1", "1/number=3", "2/list=1"}, "3 1 -")
            .row("what holds nothing yields", {"1/list=1", "2/list=1", "1/on=1"}, "1 3 -")
            .row("what is taken is no choice", {"1/list=1", "1/on=1", "2/list=1", "2/number=1"}, "1 3 -")
            .row("nor what stands for the unknown",
                 {"1/list=1", "1/on=1", "2/list=1", "2/on=1", "2/number=x"}, "1 3 -")
            .row("the last one yields backwards",
                 {"1/list=1", "1/number=3", "2/list=1", "2/number=3", "1/on=1"}, "3 1 -")
            .row("none is left", {"1/list=1", "1/on=1", "2/list=1", "2/on=1", "3/on=1", "3/list=1"}, "1 3 -")
            .row("one is given back",
                 {"1/list=1", "1/on=1", "2/list=1", "2/on=1", "3/on=1", "3/list=1", "2/on=0"}, "1 3 3");
    }
    void sharedLists()
    {
        QFETCH(QStringList, edits);
        for (const QString& step : edits)
            values_.edit("SOLE" + step.section('=', 0, 0), step.section('=', 1));
        QStringList numbers;
        for (const char* row : {"1", "2", "3"})
            numbers << values_.value(QString("SOLE%1/number").arg(row));
        QTEST(numbers.join(' '), "numbers");
    }

    void moreRules()
    {
        const auto edit = [&](const char* path, const char* text) { values_.edit(path, text); };
        edit("B/row", "2");
        QCOMPARE(values_.value("B/fresh"), QString("1"));
        edit("B/fresh", "5");
        edit("B/row", "3");
        QCOMPARE(values_.value("B/fresh"), QString("5"));
        QVERIFY(values_.holds(kTable.all<Enable>()[0]));
        edit("SOLE1/on", "1");
        QVERIFY(!values_.holds(kTable.all<Enable>()[0]));
    }

    // An element without a key of its own is not there, and one that nothing reads stays as it is.
    void emptyElements()
    {
        XmlDocument out(QString(), "DEVICE");
        writeTo(*out.root(), values_);
        QVERIFY(out.text().contains("<B ") && !out.text().contains("EMPTY") && !out.text().contains("<C "));
        XmlDocument in(QByteArray("<DEVICE><S><B byte=\"01\"/></S></DEVICE>"), "DEVICE");
        const QByteArray before = in.text();
        readFrom(*in.root(), values_);
        QCOMPARE(in.text(), before);
    }

    void defaults()
    {
        QCOMPARE(values_.value("A/blank"), QString());
        QCOMPARE(written("A/blank"), QString("0"));
        QCOMPARE(values_.value("A/address"), QString());
        QCOMPARE(written("A/address"), QString("none"));
        QCOMPARE(values_.value("R2/n2"), QString("2"));
        QVERIFY(!isWritten("A/delay") && !isWritten("A/CHILD/own") && !isWritten("A/server"));
        read({{"S/A/whole", "4"}});
        QCOMPARE(values_.value("A/address"), QString("none"));
        QCOMPARE(values_.value("A/model"), QString("key IN"));
        QCOMPARE(values_.value("A/one"), QString());
    }

    void childrenFollowTheirSibling()
    {
        read({{"S/A/use", "AIN"}, {"S/A/CHILD/own", "9"}});
        QCOMPARE(values_.value("A/CHILD/own"), QString("9"));
        QCOMPARE(values_.value("A/CHILD/shared"), QString("7"));
        QCOMPARE(values_.value("A/shared"), QString("7"));
        QVERIFY(isWritten("A/CHILD/shared") && !isWritten("A/delay"));
        edit("use", "NU");
        QVERIFY(!isWritten("A/CHILD/own"));
        QCOMPARE(values_.value("A/CHILD/own"), QString("9"));
        read({{"S/A/use", "NU"}, {"S/A/CHILD/shared", "5"}});
        QCOMPARE(values_.value("A/shared"), QString("0"));
    }

    // A group without stored values is not in the file, and a read leaves it alone.
    void windowGroups()
    {
        values_.edit("W/alone", "5");
        XmlDocument in(documentWith({{"S/W/alone", "7"}}), "DEVICE");
        readFrom(*in.root(), values_);
        QCOMPARE(values_.value("W/alone"), QString("5"));
        XmlDocument out(QString(), "DEVICE");
        writeTo(*out.root(), values_);
        QVERIFY(!out.text().contains("<W"));
        values_.reset();
        QCOMPARE(values_.value("W/alone"), QString("3"));
    }

    void edits_data()
    {
        DataTable<QStringList, QString>({"edits", "changed"})
            .row("nothing new", {"whole=5"}, "")
            .row("no such setting", {"nothing=5"}, "")
            .row("limited", {"whole=1000"}, "whole=90")
            .row("no whole number", {"blank=7", "blank=12abc"}, "blank=0")
            .row("beyond what a read takes", {"wrapped=255600"}, "wrapped=255600")
            .row("pulls another, once", {"whole=7"}, "whole=7 flag=0")
            .row("pulls back", {"flag=0"}, "flag=0 whole=8")
            .row("a preset", {"preset=1", "preset=0"}, "preset=0 one=a two=b")
            .row("a preset once more", {"preset=1", "one=z", "preset=1"}, "one=c")
            .row("a preset that leaves a field", {"one=z", "two=y", "preset=1"}, "preset=1 one=c")
            .row("only with another", {"whole=6", "whole=5", "use=AIN", "whole=6"}, "whole=6 alone=9")
            .row("bound at any time", {"line=3", "conditions=101", "line=0"}, "line=0 conditions=100")
            .row("first handle pushes", {"low=5700"}, "low=5700 high=6200")
            .row("first handle at the end", {"low=31000"}, "low=30500 high=31000")
            .row("second handle pushes", {"high=5200"}, "high=5200 low=4700")
            .row("second handle at the end", {"high=0"}, "high=500 low=0")
            .row("hysteresis moves the first", {"left=25", "right=31", "hysteresis=9"},
                 "hysteresis=9 left=21")
            .row("a use brings its range", {"shared=20", "use=AIN", "shared=400"}, "shared=400")
            .row("and takes it away", {"use=AIN", "shared=400", "use=NU"}, "use=NU shared=20")
            .row("shorter lists", {"form=3", "line=3"}, "line=3 form=1 lists=001")
            .row("what they lack", {"line=3", "lists=102"}, "lists=100");
    }
    void edits()
    {
        QFETCH(QStringList, edits);
        QStringList changed;
        for (const QString& step : edits) {
            changed.clear();
            for (const int row : values_.edit("A/" + step.section('=', 0, 0), step.section('=', 1)))
                changed << values_.row(row).key + '=' + values_.value(row);
        }
        QTEST(changed.join(' '), "changed");
    }

    void orderOfRules()
    {
        vlk::Values values(kOrder);
        QStringList changed;
        for (const int row : values.edit("O/low", "7"))
            changed << values.row(row).key + '=' + values.value(row);
        QCOMPARE(changed.join(' '),
                 QString("low=7 high=8 list=1 second=1 ranged=5 use=1 set=1 preset=2 held=3"));
    }

    void rulesAndReads()
    {
        // A plain read runs no rule but those that say so, and what is read last wins.
        read({{"S/A/whole", "7"}, {"S/A/flag", "1"}, {"S/A/speed", "1"}, {"S/A/conditions", "111"}});
        QCOMPARE(values_.value("A/flag"), QString("1"));
        QCOMPARE(values_.value("A/conditions"), QString("100"));
        QCOMPARE(values_.value("A/late"), QString("0"));
        read({{"S/A/speed", "1"}, {"S/A/late", "6"}, {"S/A/one", "c"}, {"S/A/address", "host"}});
        QCOMPARE(values_.value("A/late"), QString("6"));
        QCOMPARE(values_.value("A/preset"), QString("1"));
        QCOMPARE(values_.value("A/server"), QString("1"));
        // Two values of the file that are too near to each other: the first one gives way.
        read({{"S/A/low", "5700"}, {"S/A/high", "5900"}});
        QCOMPARE(values_.value("A/low"), QString("5400"));
        // A read wraps what an edit left.
        values_.edit("A/wrapped", "255600");
        XmlDocument in(documentWith({{"S/A/wrapped", "255600"}}), "DEVICE");
        readFrom(*in.root(), values_);
        QCOMPARE(values_.value("A/wrapped"), QString("82800"));
    }

    // What a document holds already stays where a group keeps it, and goes where one does not.
    void overSeveralSections_data()
    {
        const QString unused = "<Q page=Q owner=1><C state=a><I ign=0/></C></Q>";
        DataTable<QString, QString, QString>({"file", "over", "after"})
            .row("nothing", "", "", "<P mask=0000></P>" + unused)
            .row("kept, carried over", "", "<P mask='1111' other='1'/><Q other='1'/>",
                 "<P mask=0011 other=1></P>" + unused)
            .row("settles", "<Q><C state='b'><I ign='0'/></C></Q>", "", "<P mask=0000></P>" + unused)
            .row("element without its key", "<Q><C state='b'><I a='1'/></C></Q>", "",
                 "<P mask=0000></P><Q page=Q owner=1><C state=b><I ign=1/></C></Q>")
            .row("not offered", "<Q><C state='c'/></Q>", "", "<P mask=0000></P>" + unused)
            .row("read and written under other conditions", "<Q owner='1'><E use='1'/></Q>", "",
                 "<P mask=0100></P><Q page=Q owner=1><C state=a><I ign=0/></C><E use=1/></Q>")
            .row("not readable", "<Q owner='2'><E use='1'/></Q>", "",
                 "<P mask=0000></P><Q page=Q owner=2><C state=a><I ign=0/></C></Q>");
    }
    void overSeveralSections()
    {
        QFETCH(QString, file);
        QFETCH(QString, over);
        vlk::Values wide(kWide);
        XmlDocument in(("<DEVICE>" + file + "</DEVICE>").toLatin1(), "DEVICE");
        XmlDocument out(("<DEVICE>" + over + "</DEVICE>").toLatin1(), "DEVICE");
        readFrom(*in.root(), wide);
        writeTo(*out.root(), wide);
        QString after = out.text();
        after.remove(QRegularExpression("[\\n\\t\"]|<\\?.*\\?>|</?DEVICE>"));
        QTEST(after, "after");
    }

    void anotherOrderOfReading()
    {
        vlk::Values late(kLate);
        XmlDocument in(documentWith({{"LATE/L/low", "40"}, {"LATE/L/high", "42"}, {"LATE/L/gap", "1"}}),
                       "DEVICE");
        readFrom(*in.root(), late);
        QCOMPARE(late.value("L/low") + ' ' + late.value("L/high"), QString("40 42"));
    }

    void texts_data()
    {
        DataTable<QString, QString, QString>({"key", "value", "text"})
            .row("flag", "flag", "1", "wrd_001")
            .row("flag of another value", "line", "3", "wrd_001")
            .row("volts", "volts", "2010", "2.01 abbr_011")
            .row("off", "offOr", "0", "wrd_002")
            .row("choice", "use", "AIN", "analogue")
            .row("unknown code", "use", "N/A", "N/A")
            .row("period", "period", "3720", "1 h 2 min")
            .row("digits", "digits", "101", "first, third")
            .row("mask", "fields", "11110101", "first, both, any 7, list: pair")
            .row("text", "text", "abc", "abc")
            .row("secret", "pin", "1234", "•••")
            .row("no secret", "pin", "", "");
    }
    void texts()
    {
        QFETCH(QString, key);
        QFETCH(QString, value);
        QTEST(valueText(values_, values_.rowAt("A/" + key), value), "text");
    }

private:
    void read(const QVector<QPair<QString, QString>>& values)
    {
        values_.reset();
        XmlDocument in(documentWith(values), "DEVICE");
        readFrom(*in.root(), values_);
    }
    void edit(const char* key, const char* text) { values_.edit(QString("A/") + key, text); }
    QString written(const char* path) const { return values_.written(values_.rowAt(path)); }
    bool isWritten(const char* path) const { return values_.isWritten(values_.rowAt(path)); }

    vlk::Values values_{kTable};
};

QTEST_GUILESS_MAIN(SettingsKindsTest)
#include "tst_settings_kinds.moc"
