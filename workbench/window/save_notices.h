#pragma once

// Tells what became of the files that the plug-in saves: a saved one stands in the status line and among the
// recent files, one that was not saved is told with its reason, one that holds a part of its period with how
// much that is, one that holds damaged records with their number, and one that holds other numbers than were
// typed, or errors, with those.

#include "window/save_watch.h"
#include "window/sentence.h"
#include "window/typing_notices.h"

namespace workbench {

// How much of its period a file holds, in words.
QString savedPartText(const QString& path, const SavedPart& part);

class HostSession;
class PluginWindows;
class RecentFiles;
class StatusLine;

class SaveNotices : public QObject
{
    Q_OBJECT

public:
    SaveNotices(const PluginLog& log, HostSession& session, const PluginWindows& windows, RecentFiles& recent,
                StatusLine& status, QWidget* mainWindow);

    // For the one who tells of a written configuration.
    TypingNotices& typing() { return typing_; }

Q_SIGNALS:
    // For another file: what was said of an earlier one holds no longer.
    void asked();
    // A file was saved that the window that saved it should tell of too.
    void saved(const workbench::Sentence& sentence, QWidget* window);
    // One that holds less than the window has.
    void savedCut(const workbench::Sentence& sentence, QWidget* window);
    void partSaved(const QString& path, const workbench::SavedPart& part);
    // A save is over, well or not.
    void ended();

private:
    void tellSaved(const QString& path);
    void tellSavedInPart(const QString& path, const SavedPart& part);
    void tellConfiguration(const QString& path);
    void warn(const Sentence& sentence);
    void tellFailed(const QString& path, const QString& reason);

    HostSession& session_;
    RecentFiles& recent_;
    StatusLine& status_;
    QWidget* mainWindow_;
    SaveWatch watch_;
    TypingNotices typing_;
    struct
    {
        QString category;
        QString message;
    } toldChanges_;   // of the configuration that is being saved
    QStringList cut_; // path and volumes of the file that is being saved, if it lost fractions
};

} // namespace workbench
