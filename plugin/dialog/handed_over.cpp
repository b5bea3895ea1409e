#include "dialog/handed_over.h"

#include "dialog/configuration_review.h"

#include <algorithm>

namespace vlk {

HandedOver handedOver(const ConfigurationReview& review, const std::vector<int>& replaced,
                      const QByteArray& document)
{
    HandedOver told{document, {}};
    for (const review::Difference& difference : review.edits().all()) {
        if (std::ranges::find(replaced, difference.key) != replaced.end())
            told.notes.insert(difference.path, "rev_763");
        else if (review.isUnedited(difference) || difference.isAlong)
            told.notes.insert(difference.path, review.noteKey(review.edits(), difference));
        else
            told.edited.insert(difference.path);
    }
    return told;
}

} // namespace vlk
