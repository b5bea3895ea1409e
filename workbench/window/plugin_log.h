#pragma once

// Listens to the log of the whole process for what the plug-in tells there and the user has to know. Which
// categories are heard, and what their warnings are about, is one row each; everything is passed on to
// whoever listened before.
//
// One instance at a time.

#include <QObject>

namespace vlk {

class PluginLog : public QObject
{
    Q_OBJECT

public:
    enum class Topic {
        SaveFailed,  // "PATH: REASON"
        SavedInPart, // "PATH: N of M records, until TIME"
        Typing,      // "FIELD: what became of a number that was still being typed", for the user as it stands
    };

    explicit PluginLog(QObject* parent = nullptr);
    ~PluginLog() override;

Q_SIGNALS:
    // Comes on the thread of this object. Where the warning was logged there it comes within that call, so
    // that it is known before what follows it, and whoever takes it only makes a note: what is logged until
    // then reaches nobody.
    void warned(vlk::PluginLog::Topic topic, const QString& category, const QString& text);

private:
    static void listen(QtMsgType type, const QMessageLogContext& context, const QString& message);
};

} // namespace vlk
