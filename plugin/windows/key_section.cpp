#include "windows/key_section.h"

#include "xml/xml_section.h"

#include <QLoggingCategory>

#include <utility>

namespace vlk {

namespace {
Q_LOGGING_CATEGORY(lcKeys, "vlk.keys")
}

KeySection& KeySection::add(const KeyGroup& group)
{
    for (const QString& problem : group.problems())
        qCCritical(lcKeys, "%s/%s", qUtf8Printable(name_), qUtf8Printable(problem));
    groups_.push_back(group);
    return add(Child{[group](CXmlSection& section) { group.load(section); },
                     [group](CXmlSection& section) { group.save(section); }, [group] { group.reset(); }});
}

KeySection& KeySection::add(Child child)
{
    children_.push_back(std::move(child));
    return *this;
}

void KeySection::load(CXmlSection* root) const
{
    const CXmlSectionPtr section = root ? root->child(name_) : nullptr;
    if (!section)
        return;
    for (const Child& child : children_) {
        if (child.load)
            child.load(*section);
    }
}

void KeySection::save(CXmlSection* root) const
{
    const CXmlSectionPtr section = root ? root->child(name_) : nullptr;
    if (!section)
        return;
    section->clear();
    section->setString(QStringLiteral("page"), name_);
    for (const Child& child : children_) {
        if (child.save)
            child.save(*section);
    }
    section->commit();
}

void KeySection::reset() const
{
    for (const Child& child : children_) {
        if (child.reset)
            child.reset();
    }
}

} // namespace vlk
