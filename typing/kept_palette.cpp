#include "typing/kept_palette.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace vlk {

namespace {

using Change = QPalette (*)(QPalette);

class PaletteKeeper : public QObject
{
public:
    PaletteKeeper(QWidget* widget, Change change) : QObject(widget), change_(change) { set(widget); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* widget = static_cast<QWidget*>(watched);
        // Only windows are told when the palette of the application changes.
        if (event->type() == (widget->isWindow() ? QEvent::ApplicationPaletteChange : QEvent::PaletteChange))
            set(widget);
        return QObject::eventFilter(watched, event);
    }

private:
    void set(QWidget* widget) const { widget->setPalette(change_(QApplication::palette(widget))); }

    const Change change_;
};

} // namespace

void keepPalette(QWidget* widget, Change change)
{
    widget->installEventFilter(new PaletteKeeper(widget, change));
}

QColor between(const QColor& one, const QColor& other)
{
    return {(one.red() + other.red()) / 2, (one.green() + other.green()) / 2,
            (one.blue() + other.blue()) / 2};
}

QPalette withReadableDisabledText(QPalette palette)
{
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, between(palette.color(QPalette::Active, role), window));
    return palette;
}

QPalette ofPresentValue(QPalette palette)
{
    palette.setColor(QPalette::Base, Qt::transparent);
    palette.setColor(QPalette::Disabled, QPalette::Text, palette.color(QPalette::Active, QPalette::Text));
    return palette;
}

QPalette ofOldValue(QPalette palette)
{
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    const QColor grey = between(palette.color(QPalette::Active, QPalette::Text), window);
    palette.setColor(QPalette::Text, grey);
    return palette;
}

} // namespace vlk
