#pragma once

// Knows what becomes of the files that the plug-in saves, about which no message tells. A file that the user
// named in a dialog is looked for on the disk, where it has to appear or to change; a save that failed, and
// one that got a part of its period only, are told by the plug-in in its log.

#include "window/plugin_log.h"

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QObject>
#include <QPointer>
#include <QVector>
#include <QWidget>

#include <functional>

class QFileDialog;

namespace workbench {

// How much of a period a file holds.
struct SavedPart
{
    qint64 records;
    qint64 all;
    QString until; // as the plug-in writes times
};

class SaveWatch : public QObject
{
    Q_OBJECT

public:
    // True while a window is open that saves at once when its dialog has closed; a file that is not there
    // then will not come.
    using SavesAtOnce = std::function<bool()>;

    SaveWatch(const PluginLog& log, const QWidget* mainWindow, SavesAtOnce savesAtOnce);

    // In which the file was named that is looked for; null when that window is gone.
    QWidget* window() const { return window_; }

Q_SIGNALS:
    // For a file of the plug-in, to save or to load.
    void asked();
    void saved(const QString& path);
    // These two come from the event loop, when the plug-in is done.
    void savedInPart(const QString& path, const workbench::SavedPart& part);
    // The path, and the reason where one is known.
    void failed(const QString& path, const QString& reason);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    // A name that the file may get, and what was there.
    struct Candidate
    {
        QString path;
        QDateTime changed;
        qint64 size;
    };

    static Candidate present(const QString& path);
    void noteFailure(const QString& message);
    void notePart(const QString& message, const QStringList& parts);
    void forget(const QString& message);
    void follow(const QFileDialog& dialog);
    void look(bool last);

    const QWidget* mainWindow_;
    SavesAtOnce savesAtOnce_;
    QVector<Candidate> awaited_;
    QPointer<QWidget> window_;
    QFileSystemWatcher folder_;
};

} // namespace workbench
