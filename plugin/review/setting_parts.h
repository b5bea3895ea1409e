#pragma once

// The parts of a setting that windows show one by one: the fields of a record, the events of an output. They
// are counted from 0, in the order of the setting's row.

#include "settings/setting.h"

#include <vector>

namespace vlk::review {

// Whether windows have a place for it: some settings are in the file alone.
bool canBeShown(const Setting& setting);
// 0 for a setting that is one whole.
int partCount(const Setting& setting);
// Whether windows show it.
bool isPartShown(const Setting& setting, int part);
QString partCaption(const Setting& setting, int part);
// What the part holds in a value, and the value with what the part holds in another one; as a file has them.
QString partOf(const Setting& setting, int part, const QString& value);
QString withPart(const Setting& setting, int part, const QString& value, const QString& from);
// Whether what the part holds switches something on, or chooses it.
bool isPartOn(const Setting& setting, int part, const QString& held);
// Those in which two values differ; -1 alone for a setting that is one whole.
std::vector<int> differingParts(const Setting& setting, const QString& value, const QString& other);
// As a person reads what the part holds, in the present language.
QString partText(const Setting& setting, int part, const QString& held);

} // namespace vlk::review
