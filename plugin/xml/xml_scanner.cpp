#include "xml/xml_scanner.h"

#include <algorithm>

namespace vlk {

namespace {

bool isSpace(QChar sign)
{
    return sign == QLatin1Char(' ') || sign == QLatin1Char('\n') || sign == QLatin1Char('\t') ||
           sign == QLatin1Char('\r');
}

bool isQuote(QChar sign)
{
    return sign == QLatin1Char('"') || sign == QLatin1Char('\'');
}

bool endsName(QChar sign)
{
    // Letters lie behind all of these.
    return sign <= QLatin1Char('>') &&
           (isSpace(sign) || sign == QLatin1Char('=') || sign == QLatin1Char('/') ||
            sign == QLatin1Char('>') || sign == QLatin1Char('<'));
}

} // namespace

XmlScanner::Token XmlScanner::next()
{
    for (;;) {
        at_ = text_.indexOf(QLatin1Char('<'), at_);
        if (at_ < 0 || at_ + 1 >= text_.size()) {
            at_ = text_.size();
            return Token::None;
        }
        const QChar sign = text_[at_ + 1];
        if (sign != QLatin1Char('!') && sign != QLatin1Char('?'))
            break;
        if (!skipMarkup())
            return Token::None;
    }
    tag_.begin = at_++;
    const bool isEnd = text_[at_] == QLatin1Char('/');
    at_ += isEnd;
    name_ = scanName();
    scanAttributes();
    tag_.end = at_;
    return isEnd ? Token::End : Token::Start;
}

bool XmlScanner::skipTo(QLatin1String end)
{
    const int found = text_.indexOf(end, at_);
    at_ = found < 0 ? text_.size() : found + end.size();
    return found >= 0;
}

// A comment, an instruction, text in CDATA or a document type.
bool XmlScanner::skipMarkup()
{
    const QStringView rest = QStringView(text_).mid(at_);
    if (rest.startsWith(QLatin1String("<!--")))
        return skipTo(QLatin1String("-->"));
    if (rest.startsWith(QLatin1String("<![CDATA[")))
        return skipTo(QLatin1String("]]>"));
    if (rest.startsWith(QLatin1String("<?")))
        return skipTo(QLatin1String("?>"));
    QChar quote;
    for (; at_ < text_.size(); ++at_) {
        const QChar sign = text_[at_];
        if (!quote.isNull())
            quote = sign == quote ? QChar() : quote;
        else if (isQuote(sign))
            quote = sign;
        else if (sign == QLatin1Char('>'))
            return true;
    }
    return false;
}

void XmlScanner::skipSpace()
{
    while (at_ < text_.size() && isSpace(text_[at_]))
        ++at_;
}

TextSpan XmlScanner::scanName()
{
    const int begin = at_;
    at_ =
        static_cast<int>(std::ranges::find_if(text_.begin() + begin, text_.end(), endsName) - text_.begin());
    return {begin, at_};
}

// Up to the end of the tag, or to where the next one begins.
void XmlScanner::scanAttributes()
{
    attributes_.clear();
    isClosed_ = false;
    for (;;) {
        skipSpace();
        if (at_ >= text_.size() || text_[at_] == QLatin1Char('<'))
            return;
        if (text_[at_] == QLatin1Char('>')) {
            isClosed_ = text_[at_ - 1] == QLatin1Char('/');
            ++at_;
            return;
        }
        Attribute attribute;
        attribute.name = scanName();
        skipSpace();
        if (at_ >= text_.size() || text_[at_] != QLatin1Char('=')) {
            at_ += attribute.name.isEmpty() && at_ < text_.size() && text_[at_] == QLatin1Char('/');
            continue;
        }
        ++at_;
        skipSpace();
        if (at_ >= text_.size() || !isQuote(text_[at_]))
            continue;
        const int end = text_.indexOf(text_[at_], at_ + 1);
        attribute.value = {at_ + 1, end < 0 ? text_.size() : end};
        at_ = attribute.end = end < 0 ? text_.size() : end + 1;
        attributes_.push_back(attribute);
    }
}

bool isOfBearableSize(const QString& text)
{
    constexpr int mostAttributes = 1000;
    constexpr int mostElements = 100'000;
    // Each attribute has an equals sign, and most documents have no more of these in all.
    if (text.size() <= mostElements && std::ranges::count(text, QLatin1Char('=')) <= mostAttributes)
        return true;
    XmlScanner scanner(text);
    int elements = 0;
    for (auto token = scanner.next(); token != XmlScanner::Token::None; token = scanner.next()) {
        if (token == XmlScanner::Token::Start)
            ++elements;
        if (elements > mostElements || static_cast<int>(scanner.attributes().size()) > mostAttributes)
            return false;
    }
    return true;
}

} // namespace vlk
