#include "base/model_text.h"

namespace vlk {

namespace {

QString& model()
{
    static QString text = QStringLiteral("R-7106");
    return text;
}

} // namespace

const QString& modelText()
{
    return model();
}

void setModelText(const QString& text)
{
    model() = text;
}

} // namespace vlk
