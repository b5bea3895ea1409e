#pragma once

// The way to the plug-in: loads the library, keeps its handle and carries messages in both directions. One
// link exists at a time, because the plug-in calls back through a plain function.
//
// Messages sent while no plug-in is loaded go nowhere.

#include "check/plugin_names.h"
#include "plugin/host/host_interface.h"

#include <QLibrary>
#include <QObject>

namespace workbench {

class Languages;

class PluginLink : public QObject
{
    Q_OBJECT

public:
    explicit PluginLink(QObject* parent = nullptr);
    ~PluginLink() override;

    // On failure error() is a text for the user.
    bool load(const QString& path);
    bool isLoaded() const { return receive_ != nullptr; }
    QString error() const { return error_; }
    QString path() const { return library_.fileName(); }

    QString modelName() const;
    QString displayName() const;
    // "3.3.0.2"
    QString version() const;

    void send(vlk::Message id, void* p1 = nullptr, void* p2 = nullptr);

    // One function a message that carries something.
    void setMode(int mode);
    void setPaths(const QString& telemetry, const QString& configurations);
    void attachTracker(const QString& model, const QString& text1, const QString& text2,
                       quint64 capabilities);
    // An empty path opens a new configuration.
    void openConfiguration(const QString& path, bool full, bool fromFile);
    void openTelemetry(const QString& configuration);
    // Kind 0 is the browser, kind 1 the table.
    void showStoredFile(const QString& path, int kind);
    QString balanceCode();
    // Once, then after each write with what the plug-in's file held.
    void promiseConfirmations();
    void confirmWrite(const QByteArray& content);
    // What the tracker of the open configuration holds, where no write of that has come out right.
    void tellHeld(const QByteArray& content);
    // Whether its window has taken that over.
    bool hasTakenOver();
    // Offers the texts of every language, until they are withdrawn; `languages` lives as long.
    void offerTexts(Languages& languages);
    void withdrawTexts();
    // Nothing runs in a plug-in that does not know these two.
    vlk::EndedSave endSave();
    vlk::RunningWork runningWork();
    // Whether the plug-in can apply presets.
    bool appliesPresets();
    // Shows what the preset would change in the configuration that is open.
    void showPreset(const QString& path);

Q_SIGNALS:
    // A message from the plug-in, to be answered or obeyed.
    void received(vlk::Message id, void* p1, void* p2);
    // For the log, both directions: before the receiver sees the message, or after it when the receiver fills
    // a parameter.
    void passed(vlk::Direction direction, quint32 id, const void* p1, const void* p2);

private:
    static void callback(void* device, std::uint32_t id, void* p1, void* p2);
    template <class Carry>
    void pass(vlk::Direction direction, quint32 id, const void* p1, const void* p2, Carry carry);

    QLibrary library_;
    QString error_;
    vlk::LibraryInfo info_{};
    void* handle_ = nullptr;
    vlk::ReceiveMessageFunction receive_ = nullptr;
};

} // namespace workbench
