#include "dialog/handed_over.h"

#include "dialog/configuration_review.h"
#include "review/difference_text.h"

namespace vlk {

HandedOver handedOver(const ConfigurationReview& review, const QByteArray& document)
{
    HandedOver told{document, {}};
    for (const review::Difference& difference : review.edits().all()) {
        if (review.isUnedited(difference) || difference.isAlong)
            told.notes.insert(difference.path, review.textOf(review.edits(), difference).note);
        else
            told.edited.insert(difference.path);
    }
    return told;
}

} // namespace vlk
