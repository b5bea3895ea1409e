#pragma once

// Settings as a person reads them, in the present language.

#include "base/shown_text.h"
#include "review/mask_field.h"
#include "settings/values.h"

namespace vlk {

QString captionText(const Setting& setting);
// The heading that the setting stands under, behind those that it stands under itself: "Sensor 1 / Values:
// 2".
QString headingText(const Setting& setting);
// The text of an item in a list.
QString codeText(const Code& code);
// The texts of those of the codes "NS+|NB+" that are offered.
QStringList codeTexts(const Setting& setting, const char* codes);

// What positions of a mask (maskPart()) say: the item of a list, "Yes", or which half of a field is on.
QString fieldValueText(const MaskField& field, const QString& part);

// In place of a secret.
inline constexpr const char* kSecretDots = "•••";

// The value with its unit: "100 km/h", "on", "1 d 2 h", "NB+" as its label. A secret is told by dots.
QString valueText(const Values& values, int row);
// The text of another value of that setting, as a file holds it.
QString valueText(const Values& values, int row, const QString& value);
// The text of a value, also of a secret; `unit` is that of now.
QString valueText(const Setting& setting, const QString& value, const char* unit);

} // namespace vlk
