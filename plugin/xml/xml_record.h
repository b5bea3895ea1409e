#pragma once

// One entry of a section's table: an attribute or a child element of the section's node, by name and value.
// Both texts have been through vlk::sectionText, so they hold at most 255 bytes of windows-1251. An
// attribute has no node, nor has an entry that was set and not read.

#include <QString>

class CXmlNode;

struct CXmlRecord
{
    QString name;
    QString value;
    CXmlNode* node = nullptr;
    bool isAttribute = false;
};
