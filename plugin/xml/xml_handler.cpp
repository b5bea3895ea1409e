#include "xml/xml_handler.h"

#include "xml/xml_text.h"

#include <QSet>

#include <algorithm>

bool CXmlDefaultHandler::startDocument()
{
    root_.reset();
    current_ = nullptr;
    depth_ = 0;
    return true;
}

bool CXmlDefaultHandler::startElement(const QString&, const QString&, const QString& qualifiedName,
                                      const QXmlAttributes& attributes)
{
    if (++depth_ > kMaxDepth)
        return false;
    const QString name = vlk::unescapeName(qualifiedName);
    sawContent_ = false;
    if (current_) {
        current_ = current_->addChild(name);
    } else {
        root_ = std::make_unique<CXmlNode>(name);
        current_ = root_.get();
    }
    if (const int count = attributes.length(); count > 0) {
        current_->kind = CXmlNode::Attributed;
        current_->attributes.reserve(static_cast<std::size_t>(count));
        // The reader passes on a name that stands twice; the first one counts. Most elements have a handful
        // of attributes, which are sooner compared than hashed.
        constexpr int few = 64;
        QSet<QString> seen;
        for (int i = 0; i < count; ++i) {
            const QString name = attributes.qName(i);
            const auto known = seen.size();
            if (count > few)
                seen.insert(name);
            const auto isNamed = [&name](const CXmlAttribute& other) { return other.isNamed(name); };
            const bool isFirst =
                count > few ? seen.size() > known : std::ranges::none_of(current_->attributes, isNamed);
            (isFirst ? current_->attributes : current_->passedOver)
                .push_back({name, vlk::decodeValue(attributes.value(i))});
        }
        sawContent_ = true;
    }
    return true;
}

bool CXmlDefaultHandler::endElement(const QString&, const QString&, const QString&)
{
    if (!current_)
        return false;
    --depth_;
    if (!sawContent_)
        current_->kind = CXmlNode::Text;
    current_ = current_->parent;
    return true;
}

bool CXmlDefaultHandler::characters(const QString& text)
{
    sawContent_ = true;
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty() || !current_)
        return true;
    current_->value = vlk::decodeValue(trimmed);
    current_->kind = CXmlNode::Text;
    return true;
}

std::unique_ptr<CXmlNode> CXmlDefaultHandler::takeRoot()
{
    current_ = nullptr;
    return std::move(root_);
}
