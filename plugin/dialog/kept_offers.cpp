#include "dialog/kept_offers.h"

#include "base/translated.h"
#include "review/quick_reach.h"
#include "review/setting_words.h"
#include "xml/xml_document.h"

#include <QFile>
#include <QLocale>

#include <algorithm>
#include <utility>

namespace vlk {

namespace {

bool isBroughtBack(const KeptOffer& offer)
{
    return offer.replaced && !offer.isTakenBack;
}

QString captionOf(int key)
{
    const review::FileKey& place = review::FileKeys::all()[key];
    return placeText(review::wordsOf(review::FileKeys::all().layout(place.table), place.rows.front()));
}

} // namespace

void KeptOffers::read(const QString& folder, const QString& subject)
{
    offers_.clear();
    for (review::KeptUnsaved& kept : review::keptUnsaved(folder, subject)) {
        XmlDocument after(kept.unsaved.after, QStringLiteral("DEVICE"));
        std::vector<int> keys = editedKeys(kept.unsaved);
        std::vector<int> own = ownKeys(kept.unsaved);
        QMap<QString, QString> alone = heldByQuickAlone(kept.unsaved);
        KeptOffer offer{std::move(kept), std::move(keys), std::move(own), std::move(alone),
                        review::FileState::ofDocument(*after.root())};
        if (isInNewer(offer))
            QFile::remove(offer.kept.path);
        else
            offers_.push_back(std::move(offer));
    }
}

// Brought back once, and kept again with the edits that followed, when the process died.
bool KeptOffers::isInNewer(const KeptOffer& offer) const
{
    return std::ranges::any_of(offers_, [&](const KeptOffer& newer) {
        return (offer.alone.isEmpty() || newer.alone == offer.alone) &&
               std::ranges::all_of(offer.keys, [&](int key) {
                   return std::ranges::find(newer.keys, key) != newer.keys.end() &&
                          newer.after.at(key) == offer.after.at(key);
               });
    });
}

bool KeptOffers::hasNoPlace(const KeptOffer& offer) const
{
    return review_.isQuick() && offer.kept.unsaved.quick.isEmpty() &&
           std::ranges::any_of(
               offer.own, [this](int key) { return review::isFixedByQuick(key) && review_.isUnedited(key); });
}

int KeptOffers::changes(const KeptOffer& offer, const std::vector<int>& keys) const
{
    const review::FileState& now = review_.differences().after();
    return static_cast<int>(
        std::ranges::count_if(keys, [&](int key) { return !(offer.after.at(key) == now.at(key)); }));
}

int KeptOffers::changesOf(const KeptOffer& offer) const
{
    int count = changes(offer, offer.own);
    if (review_.isQuick() != offer.kept.unsaved.quick.isEmpty())
        count = review::countOf(offer.kept.unsaved, count, static_cast<int>(offer.own.size()));
    return std::max(count, 1);
}

void KeptOffers::follow(KeptOffer& offer) const
{
    const review::FileState& now = review_.differences().after();
    const auto isBrought = [&](int key) { return now.at(key) == offer.brought->at(key); };
    if (changes(offer, offer.keys) == 0 || (offer.brought && std::ranges::all_of(offer.keys, isBrought)))
        offer.isTakenBack = false;
    else if (offer.replaced &&
             std::ranges::all_of(offer.keys, [&](int key) { return now.at(key) == offer.replaced->at(key); }))
        offer.isTakenBack = true;
}

QString KeptOffers::replacedBy(const KeptOffer& offer) const
{
    const review::Differences& edits = review_.edits();
    QStringList names;
    for (const int key : offer.own) {
        if (!review_.isOwn(key) || offer.after.at(key) == edits.after().at(key))
            continue;
        names << captionOf(key);
    }
    constexpr int most = 2;
    return names.size() > most ? QLocale().toString(names.size()) : names.join(QStringLiteral("; "));
}

QStringList KeptOffers::broughtOtherwise() const
{
    const review::Differences& edits = review_.edits();
    QStringList told;
    for (const KeptOffer& offer : offers_) {
        if (!offer.brought || !isThere(offer))
            continue;
        for (const int key : offer.own) {
            const review::Held& now = edits.after().at(key);
            const bool isOther = !(now == offer.after.at(key)) && now == offer.brought->at(key);
            if (!isOther || !now.isThere || !offer.after.at(key).isThere)
                continue;
            const QString value = review_.textOf(edits, edits.differenceAt(key)).afterText;
            told << QStringLiteral("%1: %2").arg(captionOf(key),
                                                 value.isEmpty() ? translated("rev_753") : value);
        }
    }
    return told;
}

bool KeptOffers::isThere(const KeptOffer& offer) const
{
    return isBroughtBack(offer) && (review_.isQuick() || !offer.isInFullAlone);
}

bool KeptOffers::isOver(const KeptOffer& offer) const
{
    return offer.isClosed || isThere(offer) || changes(offer, offer.keys) == 0;
}

void KeptOffers::bringBack(KeptOffer& offer, const EditHistory::Words& words)
{
    offer.replaced = review_.differences().after();
    offer.brought.reset();
    offer.isTakenBack = false;
    review_.bringBack(offer.kept.unsaved, words);
    offer.brought = review_.differences().after();
    offer.isInFullAlone = review_.isQuick() && (changes(offer, offer.own) > 0 || hasNoPlace(offer));
}

void KeptOffers::drop()
{
    for (KeptOffer& offer : offers_) {
        const bool isOver =
            isThere(offer) ? !offer.isInFullAlone : changes(offer, offer.keys) == 0 && !hasNoPlace(offer);
        if (offer.isDiscarded || (isOver && alone(offer) == 0))
            offer.isClosed |= QFile::remove(offer.kept.path);
    }
}

} // namespace vlk
