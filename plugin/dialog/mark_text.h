#pragma once

// What the marks at settings say of their changes, in the language of the moment.

#include "dialog/configuration_review.h"

namespace vlk {

// "Changed, was: 4000", by the key of the words in front.
QString withColon(const char* key, const QString& told);

// What a list stood at whose choice is worked out from other settings; null where it stands there still.
QString choiceBefore(const ConfigurationReview& review, const PageSettings& page, int row);
// What moved a setting that keeps a distance from it; empty where it was edited itself.
QString moverText(const ConfigurationReview& review, const PageSettings& page, int row);
// `part`: of a setting that is shown in parts, -1 for the whole.
QString changeText(const ConfigurationReview& review, const PageSettings& page, int row, int part);

} // namespace vlk
