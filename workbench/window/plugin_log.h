#pragma once

// Listens to the log of the whole process for what the plug-in tells there and the user has to know. Which
// categories are heard, what their warnings are about and how they are said to the user is one row each;
// everything is passed on to whoever listened before.
//
// One instance at a time.

#include <QObject>
#include <QStringList>

namespace workbench {

class PluginLog : public QObject
{
    Q_OBJECT

public:
    enum class Topic {
        SaveFailed,  // "PATH: REASON"
        Saved,       // "PATH: N since opened", a configuration and what has changed in it
        SavedInPart, // "PATH: N of M records, until TIME"
        SavedCut,    // "PATH: volumes that lost their fraction"
        Typing,      // "FIELD: what became of a number that was still being typed", for the user as it stands
        Retyped,     // "FIELD", of which that holds no longer
        File,        // something of a file that was opened, to be told in words()
        Damage,      // the same; the window that it is about tells it too
        Written,     // edits of what it names, which were kept, are in the tracker now
    };

    explicit PluginLog(QObject* parent = nullptr);
    ~PluginLog() override;

    // What a message is made of, in the order of its form; empty where it has another form, or no row.
    static QStringList parts(const QString& category, const QString& message);
    // What a warning says, in the language in use; empty where its category has no row.
    static QString words(const QString& category, const QString& message);

Q_SIGNALS:
    // Comes on the thread of this object. Where the warning was logged there it comes within that call, so
    // that it is known before what follows it, and whoever takes it only makes a note: what is logged until
    // then reaches nobody.
    void warned(workbench::PluginLog::Topic topic, const QString& category, const QString& text);

private:
    static void listen(QtMsgType type, const QMessageLogContext& context, const QString& message);
};

} // namespace workbench
