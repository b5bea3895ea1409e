#pragma once

// What the workbench changes of the system's style, for the windows of the plug-in too: message boxes have
// the marks and line icons of all other windows, buttons of dialogs have words alone, and disabled text can
// be read.

#include <QProxyStyle>

namespace vlk {

class HouseStyle : public QProxyStyle
{
    Q_OBJECT

public:
    // Over the style that the application has.
    static void setUp();

    using QProxyStyle::polish;
    void polish(QPalette& palette) override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override;

private:
    using QProxyStyle::QProxyStyle;
};

} // namespace vlk
