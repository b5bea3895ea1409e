#include "telemetry/view/damage_text.h"

#include "base/translated.h"
#include "telemetry/shown/records_notices.h"
#include "typing/notice_bar.h"

#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QStringList>

#include <algorithm>
#include <span>

namespace vlk {

namespace {

// Keys by FileDamage::Kind: %1 is where it begins, %2 where reading went on. The counts of records say
// themselves that they differ.
constexpr const char* kSentences[] = {"tmiw_190", "tmiw_191", "tmiw_192", "tmiw_193",
                                      "tmiw_194", nullptr,    "rec_660"};
constexpr std::size_t kInBar = 2;
constexpr std::size_t kInBox = 20;
constexpr std::size_t kMostActions = 2;

QString number(qint64 value)
{
    return QLocale().toString(value);
}

// Where no byte is lost a record lacks its end alone.
const char* sentenceOf(const FileDamage& place, bool isTakenApart)
{
    if (place.kind == FileDamage::SharedLine && isTakenApart)
        return "rec_742";
    return place.kind == FileDamage::Records && place.bytes == 0 ? "rec_380" : kSentences[place.kind];
}

struct Damage
{
    std::vector<FileDamage> places;
    qint64 whole;
    qint64 announced;
    int hidden;
    bool mayHideMore;
};

Damage damageOf(const TelemetryContents& contents)
{
    const auto isCount = [](const FileDamage& damage) { return damage.kind == FileDamage::RecordCount; };
    const bool countDiffers = std::ranges::any_of(contents.damages, isCount);
    std::vector<FileDamage> places = contents.damages;
    std::erase_if(places, isCount);
    const qint64 whole = qint64{contents.records.size()} - std::ssize(contents.damaged);
    return {std::move(places), whole, countDiffers ? contents.announced.value_or(0) : whole, contents.hidden,
            contents.mayHideMore};
}

// A loss of as many bytes as a record has leaves one of two halves that is whole by its length: where the
// file lacks as many records as their numbers do in one place alone, the one before that place. -1 for none.
int mixedRecord(const TelemetryContents& contents, const Damage& damage)
{
    const auto isChecksum = [](const FileDamage& place) { return place.kind == FileDamage::RecordsChecksum; };
    const qint64 lost = damage.announced - damage.whole;
    if (lost <= 0 || damage.places.size() != 1 || !isChecksum(damage.places.front()))
        return -1;
    const auto numberAt = [&](int record) { return qint64{recordNumberOf(*contents.records.at(record))}; };
    int found = -1;
    qint64 before = numberAt(0);
    for (int record = 1; record < contents.records.size(); ++record) {
        const qint64 missing = numberAt(record) - before - 1;
        before += missing + 1;
        if (missing == 0)
            continue;
        if (missing != lost || found >= 0)
            return -1;
        found = record - 1;
    }
    return found;
}

QStringList sentences(const Damage& damage, std::size_t most)
{
    QStringList said{damage.announced == damage.whole
                         ? translated("tmiw_188").arg(number(damage.whole))
                         : translated("tmiw_189").arg(number(damage.whole), number(damage.announced))};
    const std::size_t told = std::min(damage.places.size(), most);
    for (const FileDamage& place : std::span(damage.places).first(told))
        said << QString(translated(sentenceOf(place, !damage.mayHideMore)))
                    .replace(QLatin1String("%1"), number(place.offset))
                    .replace(QLatin1String("%2"), number(place.offset + place.bytes));
    if (damage.places.size() > told)
        said << translated("tmiw_198").arg(number(static_cast<qint64>(damage.places.size() - told)));
    // How many share lines is not known before they are taken apart.
    if (damage.mayHideMore)
        said << translated("rec_743");
    else if (damage.hidden > 0)
        said << translated("rec_076").arg(number(damage.hidden));
    return said;
}

void showAll(QWidget* window, const Damage& damage)
{
    QMessageBox box(QMessageBox::Warning, translated("wrd_004"),
                    sentences(damage, kInBox).join(QLatin1Char('\n')), QMessageBox::NoButton, window);
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    box.addButton(translated("wrd_003"), QMessageBox::AcceptRole);
    box.exec();
}

} // namespace

void tellPart(NoticeBar* bar, const TelemetryContents& contents, const std::function<void(int record)>& goTo)
{
    bar->end(PartNotice);
    const int last = contents.records.size() - 1;
    if (last < 1 || !contents.damaged.empty() || contents.hidden > 0 || contents.mayHideMore)
        return;
    const auto numberAt = [&contents](int record) { return recordNumberOf(*contents.records.at(record)); };
    const auto hole = holeOfPart(last + 1, numberAt(0), numberAt(last - 1), numberAt(last));
    if (!hole)
        return;
    bar->tell(PartNotice, [goTo, last, hole = *hole] {
        return Notice{
            Mark::Advice,
            translated("rec_472").arg(number(hole.missing()), number(hole.before), number(hole.behind)),
            {{translated("tmiw_200"), [goTo, last] { goTo(last - 1); }}}};
    });
}

void tellStrayed(NoticeBar* bar, const std::vector<int>& records, const std::function<void(int record)>& goTo)
{
    if (records.empty())
        return bar->end(StrayedNotice);
    bar->tell(StrayedNotice, [goTo, first = records.front(), count = std::ssize(records)] {
        return Notice{Mark::Advice,
                      translated("rec_601").arg(number(count)),
                      {{translated("tmiw_200"), [goTo, first] { goTo(first); }}}};
    });
}

void tellDamage(NoticeBar* bar, const TelemetryContents& contents, const DamageActions& actions)
{
    if (contents.damages.empty()) {
        bar->end(DamageNotice);
        return;
    }
    // Damage of the header, or somewhere among the records, has no place to go to.
    const auto place = std::ranges::find_if(contents.damages, [](const FileDamage& damage) {
        return damage.kind == FileDamage::Records || damage.kind == FileDamage::CutShort;
    });
    const auto records = contents.records.size();
    const Damage found = damageOf(contents);
    const int mixed = records == 0 ? -1 : mixedRecord(contents, found);
    const int record =
        place == contents.damages.end() || records == 0 ? mixed : std::min(place->record, records - 1);
    const QString mixedNumber = mixed < 0 ? QString() : number(recordNumberOf(*contents.records.at(mixed)));
    bar->tell(DamageNotice, [bar, actions, record, mixedNumber, damage = found] {
        QStringList said = sentences(damage, kInBar);
        if (!mixedNumber.isEmpty())
            said << translated("rec_682").arg(mixedNumber, number(damage.announced - damage.whole));
        Notice notice{Mark::Advice, said.join(QLatin1Char(' ')), {}};
        if (damage.hidden > 0 || damage.mayHideMore)
            notice.actions.push_back({translated("rec_077"), actions.bringBack});
        if (record >= 0)
            notice.actions.push_back(
                {translated("tmiw_200"), [goTo = actions.goTo, record] { goTo(record); }});
        if (damage.places.size() > kInBar && notice.actions.size() < kMostActions)
            notice.actions.push_back(
                {translated("tmiw_201"), [bar, damage] { showAll(bar->window(), damage); }});
        return notice;
    });
}

void tellCancelled(NoticeBar* bar, const std::function<void()>& again)
{
    bar->tell(DamageNotice, [again] {
        return Notice{Mark::Advice, translated("rec_074"), {{translated("rec_075"), again}}};
    });
}

} // namespace vlk
