#pragma once

// The filters that were applied last, the latest first, as they are kept: with names of elements and codes,
// which read alike in every language.

#include <QStringList>

namespace vlk {

QStringList latestFilters();
// An empty one is none.
void keepFilter(const QString& filter);

} // namespace vlk
