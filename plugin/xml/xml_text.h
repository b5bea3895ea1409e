#pragma once

// The text rules of configuration and calibration documents: how element names and values stand in the file,
// and what of a text a section carries.

#include <QString>

namespace vlk {

// Bytes of a name or value, counted in windows-1251, that a section carries; the rest is cut off.
inline constexpr int kSectionTextLimit = 255;

// Element names: a character that XML forbids there stands in the file as "_code_" ("A B" as "A_32_B").
QString escapeName(const QString& name);
QString unescapeName(const QString& name);

// Values: what the writer encodes, and what the reader decodes once more after the XML parser has done its
// own decoding. Control characters, for which XML has no form, are written as "?".
QString encodeValue(const QString& value);
QString decodeValue(const QString& value);

// What is left of a text after its way through a section: only characters of windows-1251, up to the first
// NUL, cut at kSectionTextLimit.
QString sectionText(const QString& text);

} // namespace vlk
