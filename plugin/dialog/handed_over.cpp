#include "dialog/handed_over.h"

#include "dialog/configuration_review.h"

namespace vlk {

HandedOver handedOver(const ConfigurationReview& review, const QByteArray& document)
{
    HandedOver told{document, {}};
    for (const review::Difference& difference : review.edits().all()) {
        if (review.isUnedited(difference) || difference.isAlong)
            told.notes.insert(difference.path, review.noteKey(review.edits(), difference));
        else
            told.edited.insert(difference.path);
    }
    return told;
}

} // namespace vlk
