#pragma once

// How a table of settings reads a document and writes it. `root` is the element DEVICE.

#include "settings/values.h"

struct CXmlSection;

namespace vlk {

// A document that could not be read changes nothing.
void readFrom(const CXmlSection& root, Values& values);
void writeTo(CXmlSection& root, const Values& values);

} // namespace vlk
