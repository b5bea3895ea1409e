#include "xml/xml_section.h"

#include "base/number_text.h"
#include "xml/serialize.h"
#include "xml/xml_text.h"

#include <QHash>

#include <algorithm>

namespace {

QString asciiOnly(QString text)
{
    std::ranges::replace_if(
        text, [](QChar character) { return character.unicode() >= 0x80; },
        QChar(QChar::ReplacementCharacter));
    return text;
}

} // namespace

namespace {

std::unique_ptr<CSerialize> opened(const QString& path)
{
    auto document = std::make_unique<CSerialize>(path);
    return document->load() ? std::move(document) : nullptr;
}

} // namespace

CXmlSection::CXmlSection(const QString& path, const QString& rootName) : CXmlSection(opened(path), rootName)
{
}

CXmlSection::CXmlSection(std::unique_ptr<CSerialize> document, const QString& rootName)
{
    if (!document)
        return;
    node_ = document->node(nullptr, rootName);
    document_ = document.release();
    buildTable();
}

CXmlSection::CXmlSection(CSerialize* document, CXmlNode* node) : document_(document), node_(node)
{
    buildTable();
}

void CXmlSection::buildTable()
{
    if (!node_)
        return;
    table_.reserve(node_->attributes.size() + node_->children.size());
    const auto add = [this](const CXmlAttribute& read, CXmlNode* node) {
        table_.push_back({vlk::sectionText(read.name), vlk::sectionText(read.value), node, !node});
    };
    for (const CXmlAttribute& attribute : node_->attributes)
        add(attribute, nullptr);
    for (const auto& child : node_->children)
        add(*child, child.get());
}

CXmlSection* CXmlSection::section(const QString& name, CXmlNode::Kind kind) const
{
    return child(name, kind).release();
}

CXmlSectionPtr CXmlSection::child(const QString& name, CXmlNode::Kind kind) const
{
    if (!document_)
        return nullptr;
    return std::make_unique<CXmlSection>(document_, document_->node(node_, name, kind));
}

CXmlSectionPtr CXmlSection::existing(const QString& name) const
{
    CXmlNode* const child = node_ ? node_->child(name) : nullptr;
    return child ? std::make_unique<CXmlSection>(document_, child) : nullptr;
}

CXmlSection* CXmlSection::firstChild(const QString& name)
{
    scanName_ = vlk::sectionText(name);
    scanPosition_ = 0;
    return nextChild();
}

CXmlSection* CXmlSection::nextChild()
{
    while (scanPosition_ < table_.size()) {
        const CXmlRecord& record = table_[scanPosition_++];
        if (record.name != scanName_)
            continue;
        if (record.node)
            return new CXmlSection(document_, record.node);
        // An attribute is passed as an entry that holds nothing.
        return record.isAttribute ? new CXmlSection(nullptr, nullptr) : nullptr;
    }
    return nullptr;
}

std::size_t CXmlSection::position(const QString& name) const
{
    const auto find = [this](const QString& key) {
        return std::ranges::find_if(table_, [&](const CXmlRecord& record) { return record.name == key; });
    };
    auto found = find(name);
    // Only a name that a section cannot carry stands there as something else.
    if (found == table_.end()) {
        const QString carried = vlk::sectionText(name);
        if (carried != name)
            found = find(carried);
    }
    return static_cast<std::size_t>(found - table_.begin());
}

const QString* CXmlSection::find(const QString& name) const
{
    const std::size_t entry = position(name);
    return entry < table_.size() ? &table_[entry].value : nullptr;
}

int CXmlSection::getInt(const QString& name, int fallback) const
{
    const QString* const text = find(name);
    return text ? vlk::leadingInt(*text) : fallback;
}

float CXmlSection::getFloat(const QString& name, float fallback) const
{
    const QString* const text = find(name);
    return text ? static_cast<float>(vlk::leadingDouble(*text)) : fallback;
}

double CXmlSection::getDouble(const QString& name, double fallback) const
{
    const QString* const text = find(name);
    return text ? vlk::leadingDouble(*text) : fallback;
}

QString CXmlSection::getString(const QString& name, const QString& fallback) const
{
    const QString* const text = find(name);
    return text ? *text : fallback;
}

void CXmlSection::setInt(const QString& name, int value)
{
    setString(name, QString::number(value));
}

void CXmlSection::setString(const QString& name, const QString& value)
{
    const std::size_t entry = position(name);
    if (entry == table_.size())
        table_.push_back({vlk::sectionText(name), {}, nullptr});
    table_[entry].value = vlk::sectionText(value);
}

void CXmlSection::setText(const QString& name, const char* chars)
{
    setString(name, QString::fromLocal8Bit(chars));
}

void CXmlSection::setChildValue(const QString& name, const QString& value)
{
    if (!document_)
        return;
    CXmlNode* const child = document_->node(node_, name);
    child->value = vlk::sectionText(value);
    child->kind = CXmlNode::Text;
}

void CXmlSection::commit()
{
    if (!node_)
        return;
    QHash<QString, CXmlNode*> firstChildren;
    for (const auto& child : node_->children) {
        if (!firstChildren.contains(child->name))
            firstChildren.insert(child->name, child.get());
    }
    for (const CXmlRecord& record : table_) {
        if (CXmlNode* const child = firstChildren.value(record.name))
            child->value = asciiOnly(record.value);
        else
            node_->setAttribute(record.name, record.value);
    }
}

void CXmlSection::clear()
{
    table_.clear();
    if (document_)
        document_->clearContent(node_);
}
