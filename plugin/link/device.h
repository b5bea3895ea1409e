#pragma once

// What the windows ask of the device object above them: what the host told about itself and the tracker, and
// the way out for messages (requests.h has a typed function for each). VLK_Device_R7106 is the one that
// answers.

#include "base/translated.h"
#include "link/messages.h"

namespace vlk {

class Device
{
public:
    virtual void send(Message id, void* p1 = nullptr, void* p2 = nullptr) = 0;

    // Folder of telemetry files, "./Data/TMI/" until the host gives another; of configuration files likewise.
    virtual QString tmiFolder() const = 0;
    virtual QString xmlFolder() const = 0;

    virtual QString model() const = 0;
    virtual QString vendor() const = 0;
    virtual QString trackerId1() const = 0;
    virtual QString trackerId2() const = 0;
    virtual quint64 capabilityMask() const = 0;
    virtual int mode() const = 0;
    // Modes 1 and 2; every other one is an ordinary one.
    bool isProduction() const { return mode() == 1 || mode() == 2; }
    // Whether the host has said that it will tell of each configuration that it was written.
    virtual bool confirmsWrites() const = 0;
    // First three version numbers, "3.3.0".
    virtual QString fileVersion() const = 0;

    // Balance request code of the last configuration file read, kBalanceUssdSize bytes with their NUL.
    virtual char* balanceUssd() = 0;
    // Who asked for the live key: 1 the telemetry view, 0 nobody.
    virtual void setLiveOwner(int owner) = 0;

    // Shows a help page of the host; an empty name asks for nothing.
    virtual void showHelp(const QString& page) = 0;
    // Shows a titled text in the text dialog.
    virtual void showText(const QString& title, const QString& html) = 0;
    // Texts in that language, "ru" or "en"; an empty function where the host offers none.
    virtual TextSource textsIn(const char* language) const = 0;

protected:
    ~Device() = default;
};

} // namespace vlk

// Null until the host has called Initialize.
extern vlk::Device* vlkDevice;
