#pragma once

// The section of one settings page: its name, the groups of keys below it in the order of the file, and
// children that others read and write (an embedded form, a dialog). Loading and saving follow from that.

#include "windows/key_group.h"

namespace vlk {

class KeySection
{
public:
    // A child of the section that is no plain group of keys; any of the three may be empty.
    struct Child
    {
        std::function<void(CXmlSection& section)> load;
        std::function<void(CXmlSection& section)> save;
        std::function<void()> reset;
    };

    explicit KeySection(const char* name) : name_(QString::fromLatin1(name)) {}

    // Groups and children are walked in the order in which they were added.
    KeySection& add(const KeyGroup& group);
    KeySection& add(Child child);

    const QString& name() const { return name_; }
    const std::vector<KeyGroup>& groups() const { return groups_; }

    // Reads the section below `root`, the element DEVICE. A document that did not parse changes nothing.
    void load(CXmlSection* root) const;
    // Writes the section anew, with the attribute `page` equal to its name.
    void save(CXmlSection* root) const;
    void reset() const;

private:
    QString name_;
    std::vector<KeyGroup> groups_;
    std::vector<Child> children_; // one a group, and one for each child of its own
};

} // namespace vlk
