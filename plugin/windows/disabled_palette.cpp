#include "windows/disabled_palette.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace vlk {

namespace {

QColor between(const QColor& one, const QColor& other)
{
    return {(one.red() + other.red()) / 2, (one.green() + other.green()) / 2,
            (one.blue() + other.blue()) / 2};
}

class PaletteKeeper : public QObject
{
public:
    explicit PaletteKeeper(QWidget* window) : QObject(window) { set(window); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::ApplicationPaletteChange)
            set(static_cast<QWidget*>(watched));
        return QObject::eventFilter(watched, event);
    }

private:
    static void set(QWidget* window)
    {
        window->setPalette(withReadableDisabledText(QApplication::palette(window)));
    }
};

} // namespace

QPalette withReadableDisabledText(QPalette palette)
{
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, between(palette.color(QPalette::Active, role), window));
    return palette;
}

void keepDisabledTextReadable(QWidget* window)
{
    window->installEventFilter(new PaletteKeeper(window));
}

} // namespace vlk
