#include "windows/binder/adapter.h"

#include "settings/value_text.h"
#include "windows/binder/bound_forms.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>

namespace vlk {

Adapter::Adapter(Edits& edits, int row) : edits_(edits), row_(row) {}

const Setting& Adapter::setting() const
{
    return values().setting(row_);
}

const Values& Adapter::values() const
{
    return edits_.values();
}

void Adapter::edited(const QString& value)
{
    edits_.edited(row_, value);
}

void Adapter::caption(QWidget* widget, const QString& suffix)
{
    caption(widget, setting().captionKey, setting().captionFormat, suffix);
}

void Adapter::caption(QWidget* widget, const char* key, const char* format, const QString& suffix)
{
    if (!key || !*key)
        return;
    const Caption parts = captionParts(key, format, setting().number);
    const QString plain = inOneLine(parts.before + QLatin1Char(' ') + parts.after);
    widget->setAccessibleName(suffix.isEmpty() ? plain : QStringLiteral("%1, %2").arg(plain, suffix));
    if (QLabel* label = edits_.forms().labelOf(widget))
        label->setText(parts.before);
    else if (auto* button = qobject_cast<QAbstractButton*>(widget))
        button->setText(parts.before);
    else if (auto* box = qobject_cast<QGroupBox*>(widget))
        box->setTitle(parts.before);
    if (QLabel* after = edits_.forms().labelBehind(widget))
        after->setText(parts.after);
}

} // namespace vlk
