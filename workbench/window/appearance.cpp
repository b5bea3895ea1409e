#include "window/appearance.h"

#include "check/plugin_names.h"
#include "typing/kept_palette.h"

#include <QApplication>
#include <QPalette>

namespace workbench {

namespace {

struct Colours
{
    QRgb window, base, alternate, button, text, link, highlight, highlightedText;
};

QPalette paletteOf(const Colours& colours)
{
    const QColor window(colours.window);
    const QColor button(colours.button);
    const QColor text(colours.text);
    QPalette palette(text, button, button.lighter(140), button.darker(200), button.darker(140), text,
                     Qt::white, QColor(colours.base), window);
    palette.setColor(QPalette::AlternateBase, colours.alternate);
    palette.setColor(QPalette::ToolTipBase, colours.alternate);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::Link, colours.link);
    palette.setColor(QPalette::LinkVisited, colours.link);
    palette.setColor(QPalette::Highlight, colours.highlight);
    palette.setColor(QPalette::HighlightedText, colours.highlightedText);
    const QColor pale = between(text, window);
    palette.setColor(QPalette::PlaceholderText, pale);
    palette.setColor(QPalette::Disabled, QPalette::Base, window);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, pale);
    return withReadableDisabledText(palette);
}

} // namespace

void apply(Appearance appearance)
{
    static constexpr Colours light{0xffefefefu, 0xffffffffu, 0xfff7f7f7u, 0xffefefefu,
                                   0xff000000u, 0xff004aadu, 0xff308cc6u, 0xffffffffu};
    static constexpr Colours dark{0xff2b2d30u, 0xff1e1f22u, 0xff26282bu, 0xff35373au,
                                  0xffe6e6e6u, 0xff8ab8ffu, 0xff3878c2u, 0xffffffffu};
    // An empty palette has all of its colours from the system, as they are and as they come to be.
    QApplication::setPalette(appearance == Appearance::System
                                 ? QPalette()
                                 : paletteOf(appearance == Appearance::Dark ? dark : light));
}

} // namespace workbench
