#pragma once

// One entry of a section's table: an attribute or a child element of the section's node, by name and value.
// Both texts have been through vlk::sectionText, so they hold at most 255 bytes of windows-1251. An entry
// that was set and not read has no node.

#include <QString>

class CXmlNode;

struct CXmlRecord
{
    QString name;
    QString value;
    CXmlNode* node = nullptr;
};
