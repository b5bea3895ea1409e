#pragma once

// Lets nothing be typed into a line that a file of the configuration would hold otherwise (xml/xml_text.h),
// nor what the pattern forbids, where there is one.

#include <QRegularExpressionValidator>

namespace vlk {

class CarriedText : public QRegularExpressionValidator
{
    Q_OBJECT

public:
    using QRegularExpressionValidator::QRegularExpressionValidator;

    State validate(QString& text, int& place) const override;
};

} // namespace vlk
