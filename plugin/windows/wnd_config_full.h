#pragma once

// What settings pages and their embedded forms may ask of the window around them: names of user parameters,
// jumps to other tabs, live values and what else goes to the tracker. This base answers nothing and goes
// nowhere; VLK_Widget_Config_Full does. All are names that others know: some have no caller here.

#include <QWidget>

class VLK_Wnd_Config_Full : public QWidget
{
    Q_OBJECT

public:
    explicit VLK_Wnd_Config_Full(QWidget* parent = nullptr);

    // Stored code of a user parameter from its display text, and the way back; empty when nobody knows it.
    virtual QString userParamCode(const QString& text);
    virtual QString userParamText(const QString& code);
    virtual void hook3() {}
    virtual void gotoInputLines() {}
    virtual void gotoRs() {}
    virtual void gotoBluetooth() {}
    virtual void gotoAccel() {}
    virtual void gotoAccelPlain() {}

    // The monitor of live values; config_monitor.h tells how it goes on. Periods in milliseconds, lists as
    // "21,22,23". Requests go out while the tab that they belong to is current.
    virtual void startAccelMonitor(bool /*on*/, int /*periodMs*/) {}
    virtual void startLinesMonitor(bool /*on*/, const QByteArray& /*list*/, int /*periodMs*/) {}
    virtual void pollCurrentTab() {}
    virtual void requestAccel() {}
    virtual void requestAccelResult() {}
    virtual void requestLines(const QByteArray& /*list*/) {}

    virtual void startBtSearch() {}
    virtual void cancelBtSearch() {}
    virtual void getCanLogProgram() {}
    virtual void setCanLogProgram(int /*value*/) {}
    virtual void sendSystemWaitEnd() {}

    // A form offers a value to the record's free fields, or takes it back: code, name, an addition to the
    // name or nothing, bytes.
    virtual void addUserParam(const QString& /*code*/, const QString& /*name*/, const QString& /*third*/,
                              int /*size*/)
    {
    }
    virtual void deleteUserParam(const QString& /*code*/, const QString& /*name*/, const QString& /*third*/,
                                 int /*size*/)
    {
    }
};

// The full window, from its construction on; pages reach it through this.
extern VLK_Wnd_Config_Full* vlkConfigFull;
