#include "dialog/unsaved_bar.h"

#include "typing/file_error.h"
#include "xml/xml_document.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLocale>

#include <algorithm>
#include <limits>
#include <utility>

namespace vlk {

namespace {

// Numbers of notices that are no offers. Behind what the last press has led to, what a write would remove
// comes before what can be brought back.
constexpr int kFailure = 0;
constexpr int kReplaced = -1;
constexpr int kLeftOut = -2;
constexpr int kFile = -3;
constexpr int kDamaged = -4;
constexpr int kOtherwise = -5;
// Behind the offers.
constexpr int kTakenForUsed = std::numeric_limits<int>::max();

QString words(const char* key)
{
    return QCoreApplication::translate("vlk", key);
}

QString nameOf(const review::Unsaved& unsaved)
{
    return words("rev_140").arg(momentOf(unsaved));
}

} // namespace

UnsavedBar::UnsavedBar(ConfigurationReview& review, QWidget* parent)
    : NoticeBar(parent, QStringLiteral("label_Unsaved")), review_(review), offers_(review)
{
    connect(&review_, &ConfigurationReview::changed, this, &UnsavedBar::refresh);
    connect(this, &NoticeBar::closed, this, [this](int number) {
        if (number > kFailure && number < kTakenForUsed)
            offers_.at(number).isClosed = true;
        if (number == kReplaced)
            endReplaced();
        if (number == kDamaged) {
            review::setKnown(damaged_.takeLast());
            tellDamaged();
        }
    });
}

void UnsavedBar::begin(const QString& folder, const QString& subject)
{
    for (int number = 1; number <= offers_.count(); ++number)
        end(number);
    end(kFailure);
    end(kFile);
    end(kReplaced);
    end(kOtherwise);
    otherwise_.clear();
    replaced_.clear();
    toldReplaced_ = 0;
    for (auto& [number, sensors] : sensors_)
        end(number);
    sensors_.clear();
    offers_.read(folder, subject);
    damaged_ = review::setDamagedAside(folder, subject);
    tellDamaged();
    drop();
    refresh();
}

void UnsavedBar::tellDamaged()
{
    if (damaged_.isEmpty())
        return end(kDamaged);
    tell(kDamaged, [path = QDir::toNativeSeparators(QDir::cleanPath(damaged_.last()))] {
        return Notice{Mark::Invalid, words("rev_350").arg(path), {}};
    });
}

// An offer whose changes are there is over, and comes again when they are taken back. Of what only the quick
// window has the full one cannot say that it is there.
void UnsavedBar::refresh()
{
    for (int number = 1; number <= offers_.count(); ++number) {
        KeptOffer& offer = offers_.at(number);
        offers_.follow(offer);
        const bool isOver = offers_.isOver(offer);
        const int count = isOver ? 0 : offers_.changesOf(offer);
        const int alone = offer.isClosed ? 0 : offers_.alone(offer);
        const QString replaces = isOver ? QString() : offers_.replacedBy(offer);
        if (count == offer.told && alone == offer.toldAlone && replaces == offer.replaces)
            continue;
        offer.told = count;
        offer.toldAlone = alone;
        offer.replaces = replaces;
        if (count > 0 || alone > 0)
            tellOffer(number);
        else
            end(number);
    }
    if (QStringList otherwise = offers_.broughtOtherwise(); otherwise != otherwise_) {
        otherwise_ = std::move(otherwise);
        if (otherwise_.isEmpty())
            end(kOtherwise);
        else
            tell(kOtherwise, [this] {
                const QString settings = offers_.broughtOtherwise().join(QStringLiteral("; "));
                return Notice{Mark::Advice, words("rev_772").arg(settings), {}};
            });
    }
    using Review = ConfigurationReview;
    tellSensors(kTakenForUsed, {{"rev_371", &Review::takenForUsed}});
    if (review_.isQuick()) {
        tellSensors(kLeftOut, {{"rev_435", &Review::leftOut}, {"rev_503", &Review::madeAnew}});
    } else {
        tellSensors(kLeftOut, {{"rev_750", &Review::leftOut}, {"rev_751", &Review::madeAnew}}, [this] {
            const auto bring = [this] { review_.bringBackMade([] { return words("rev_752"); }); };
            return std::vector{Notice::Action{words("rev_142"), bring}};
        });
    }
    const std::size_t count = replaced().size();
    if (std::exchange(toldReplaced_, count) == count)
        return;
    if (count == 0)
        return end(kReplaced);
    tell(kReplaced, [this] { return noticeOfReplaced(); });
}

std::vector<int> UnsavedBar::replaced() const
{
    std::vector<int> keys = replacedWithAll();
    std::erase_if(keys, [this](int key) { return !review_.isOwn(key); });
    return keys;
}

std::vector<int> UnsavedBar::replacedWithAll() const
{
    std::vector<int> keys = replaced_;
    const review::FileState& now = review_.edits().after();
    std::erase_if(keys, [&](int key) { return !(now.at(key) == unreplaced_.at(key)); });
    return keys;
}

void UnsavedBar::tellReplaced(std::vector<int> keys)
{
    // What was told before and not taken over still stands here.
    for (const int key : replacedWithAll()) {
        if (std::ranges::find(keys, key) == keys.end())
            keys.push_back(key);
    }
    replaced_ = std::move(keys);
    unreplaced_ = review_.edits().after();
    refresh();
}

void UnsavedBar::endReplaced()
{
    replaced_.clear();
    refresh();
}

Notice UnsavedBar::noticeOfReplaced()
{
    const Notice::Action take{words("rev_761"), [this] {
                                  review_.bringBack(replacedWithAll(), [] { return words("rev_762"); });
                                  Q_EMIT tookOver();
                              }};
    const Notice::Action show{words("rev_141"), [this] {
                                  review_.compareWith(ConfigurationReview::Against::File);
                                  Q_EMIT shown();
                              }};
    const QString count = QLocale().toString(static_cast<int>(replaced().size()));
    return {Mark::Advice, words("rev_760").arg(count), {take, show}};
}

void UnsavedBar::tellSensors(int number, std::vector<Sentence> sentences,
                             const std::function<std::vector<Notice::Action>()>& actions)
{
    const auto text = [this, all = std::move(sentences)] {
        QStringList told;
        for (const auto& [key, which] : all) {
            if (const QStringList sensors = (review_.*which)(); !sensors.isEmpty())
                told << words(key).arg(sensors.join(QStringLiteral(", ")));
        }
        return told.join(QLatin1Char(' '));
    };
    const QString now = text();
    if (std::exchange(sensors_[number], now) == now)
        return;
    if (now.isEmpty())
        return end(number);
    tell(number, [text, actions] {
        return Notice{Mark::Advice, text(), actions ? actions() : std::vector<Notice::Action>()};
    });
}

void UnsavedBar::tellOffer(int number)
{
    tell(number, [this, number] { return noticeOf(number); });
}

Notice UnsavedBar::noticeOf(int number)
{
    const KeptOffer& offer = offers_.at(number);
    const review::Unsaved& unsaved = offer.kept.unsaved;
    const QString alone = QLocale().toString(offer.toldAlone);
    QString text = offer.told == 0
                       ? words("rev_770").arg(alone, momentOf(unsaved))
                       : QStringLiteral("%1: %2 (%3)")
                             .arg(words("rev_345"), QLocale().toString(offer.told), momentOf(unsaved));
    if (offer.told > 0 && offer.toldAlone > 0)
        text += QStringLiteral(". ") + words("rev_771").arg(alone);
    if (!offer.replaces.isEmpty())
        text += QStringLiteral(". ") + words("rev_721").arg(offer.replaces);
    if (unsaved.inFile > 0 && QFile::exists(unsaved.file))
        text += QStringLiteral(". ") + words("rev_434").arg(QDir::toNativeSeparators(unsaved.file),
                                                            QLocale().toString(unsaved.inFile));
    const Notice::Action show{words("rev_141"), [this, number] { showOffer(number); }};
    const Notice::Action bring{words("rev_142"), [this, number] { bringBack(number); }};
    const Notice::Action drop{words("rev_143"), [this, number] { discard(number, true); }};
    const Notice::Action keep{words("rev_147"), [this, number] { discard(number, false); }};
    if (offer.isDiscarded)
        return {Mark::Advice, words("rev_146").arg(nameOf(offer.kept.unsaved)), {keep}};
    if (offer.told == 0)
        return {Mark::Advice, text, {drop}};
    return {Mark::Advice, text, // What gives them back stays where it is.
            offer.isShown ? std::vector{drop, bring} : std::vector{show, bring}};
}

void UnsavedBar::showOffer(int number)
{
    KeptOffer& offer = offers_.at(number);
    offer.isShown = true;
    XmlDocument edited(withEdits(review_.document(), offer.kept.unsaved), QStringLiteral("DEVICE"));
    review_.compareWith(review::FileState::ofDocument(*edited.root()),
                        [unsaved = offer.kept.unsaved] { return nameOf(unsaved); });
    tellOffer(number);
    Q_EMIT shown();
}

void UnsavedBar::bringBack(int number)
{
    offers_.bringBack(offers_.at(number), [] { return words("rev_144"); });
    refresh();
    endComparison();
}

void UnsavedBar::discard(int number, bool isDiscarded)
{
    offers_.at(number).isDiscarded = isDiscarded;
    tellOffer(number);
    endComparison();
}

void UnsavedBar::endComparison()
{
    if (!review_.otherName().isEmpty())
        review_.compareWith(ConfigurationReview::Against::File);
}

void UnsavedBar::tellFile(const std::function<Notice()>& notice)
{
    if (notice().mark == Mark::Right)
        tellNews(kFile, notice);
    else
        tell(kFile, notice);
}

void UnsavedBar::endFile()
{
    end(kFile);
}

void UnsavedBar::tellFailure(const QString& reason)
{
    if (reason.isEmpty())
        end(kFailure);
    else
        tell(kFailure, [this, reason] {
            const Notice::Action save{words("rev_722"), [this] { Q_EMIT saveWanted(); }};
            return Notice{Mark::Invalid, words("rev_145").arg(fileErrorText(reason)), {save}};
        });
}

bool UnsavedBar::escape()
{
    if (!isOnShow(kFailure) || isAncestorOf(window()->focusWidget()) || review_.edited() == 0)
        return false;
    takeFocus();
    return true;
}

void UnsavedBar::tellKeptAgain()
{
    tellNews(kFailure, [] { return Notice{Mark::Right, words("rev_502"), {}}; });
}

} // namespace vlk
