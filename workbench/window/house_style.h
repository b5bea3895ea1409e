#pragma once

// What the workbench changes of the system's style, for the windows of the plug-in too: message boxes have
// the marks and line icons of all other windows, and buttons of dialogs have words alone.

#include <QProxyStyle>

namespace vlk {

class HouseStyle : public QProxyStyle
{
    Q_OBJECT

public:
    // Over the style that the application has.
    static void setUp();

    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override;

private:
    using QProxyStyle::QProxyStyle;
};

} // namespace vlk
