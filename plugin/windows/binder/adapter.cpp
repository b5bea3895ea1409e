#include "windows/binder/adapter.h"

#include "review/value_text.h"
#include "windows/binder/bound_forms.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>

namespace vlk {

Adapter::Adapter(Edits& edits, int row) : edits_(edits), row_(row) {}

void Adapter::edited(const QString& value)
{
    edits_.edited(row_, value);
}

void Adapter::caption(QWidget* widget, const QString& suffix)
{
    caption(widget, shown().captionKey, shown().captionFormat, suffix);
}

void Adapter::caption(QWidget* widget, const char* key, const char* format, const QString& suffix)
{
    if (!key || !*key)
        return;
    const Caption parts = captionParts(key, format, shown().numbers.outer);
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
