#pragma once

#include "host/host_interface.h"
#include "link/device.h"

#include <QTemporaryDir>

// The device object as windows see it, without a library around it: messages go to the given callback.
class TestDevice : public vlk::Device
{
public:
    void initialize(vlk::HostCallback callback)
    {
        callback_ = callback;
        vlkDevice = this;
    }

    void send(vlk::Message id, void* p1, void* p2) override
    {
        if (callback_)
            callback_(this, static_cast<std::uint32_t>(id), p1, p2);
    }
    QString tmiFolder() const override { return QStringLiteral("./Data/TMI/"); }
    QString xmlFolder() const override { return xmlFolder_.path(); }
    QString model() const override { return QStringLiteral("R-7106"); }
    QString vendor() const override { return QStringLiteral("VELTRONIKA"); }
    QString trackerId1() const override { return {}; }
    QString trackerId2() const override { return {}; }
    quint64 capabilityMask() const override { return capabilities; }
    int mode() const override { return 0; }
    bool confirmsWrites() const override { return confirms; }
    QString fileVersion() const override { return QStringLiteral("3.3.0"); }
    char* balanceUssd() override { return balanceUssd_; }
    void setLiveOwner(int /*owner*/) override {}
    void showHelp(const QString& /*page*/) override {}
    void showText(const QString& /*title*/, const QString& /*html*/) override {}
    vlk::TextSource textsIn(const char* language) const override
    {
        return texts ? [this, language](const char* key) { return texts(language, key); } : vlk::TextSource();
    }

    quint64 capabilities = 0;
    bool confirms = false;
    std::function<QString(QString language, QString key)> texts;

private:
    vlk::HostCallback callback_ = nullptr;
    QTemporaryDir xmlFolder_;
    char balanceUssd_[vlk::kBalanceUssdSize] = {};
};

inline TestDevice& device()
{
    static TestDevice onlyOne;
    return onlyOne;
}
