#pragma once

// Every key of a configuration document, in the order of the document.

#include <QString>

#include <functional>

struct CXmlSection;

namespace vlk::review {

// `take(path, text)` gets each key's path from the section on and its text, of which settings read what a
// section carries (xml_text.h), and the path of an element that is empty and unknown, with an empty text. The
// second element of a name is "POINTS[2]", the second attribute of an element "angle[2]". The attributes of
// the root and `page` of a section are no keys.
void eachKey(CXmlSection& root, const std::function<void(const QString& path, const QString& text)>& take);

} // namespace vlk::review
