#pragma once

// What settings pages and their embedded forms may ask of the window around them: names of user parameters
// and jumps to other tabs. This base answers nothing and goes nowhere; VLK_Widget_Config_Full does.

#include <QWidget>

class VLK_Wnd_Config_Full : public QWidget
{
    Q_OBJECT

public:
    explicit VLK_Wnd_Config_Full(QWidget* parent = nullptr);

    // Stored code of a user parameter from its display text, and the way back; empty when nobody knows it.
    virtual QString userParamCode(const QString& text);
    virtual QString userParamText(const QString& code);
    virtual void hook3();
    virtual void gotoInputLines();
    virtual void gotoRs();
    virtual void gotoBluetooth();
    virtual void gotoAccel();
    virtual void gotoAccelPlain();
};
