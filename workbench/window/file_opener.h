#pragma once

// Opens what the user chose, dropped or named: a configuration in the configuration window, telemetry in the
// browser or the table. A preset is not opened, since every setting that it lacks would stand at its default:
// the user says which configuration is opened for it. A file that cannot be shown is told with its reason and
// opens nothing.

#include "window/sentence.h"
#include "window/settings.h"

#include <QObject>

class QWidget;

namespace workbench {

class HostSession;
class RecentFiles;

class FileOpener : public QObject
{
    Q_OBJECT

public:
    FileOpener(HostSession& session, Settings& settings, RecentFiles& recent, QWidget* mainWindow);

    void open(const QString& path, TelemetryWindow window);

    // Ask for the file first.
    void chooseConfiguration();
    void chooseTelemetry(TelemetryWindow window);

Q_SIGNALS:
    // What the user asked for did not open: what says why and what to do.
    void failed(const workbench::Sentence& sentence);
    void opened();

private:
    // Telemetry alone will do.
    void openTelemetry(const QString& path, TelemetryWindow window);
    void openConfiguration(const QString& path, TelemetryWindow window);
    void applyPreset(const QString& preset);
    // Opens the configuration that the user wants for the preset. False when he wants none after all.
    bool openFor(const QString& preset, Sentence* failure);
    QString askConfiguration();

    HostSession& session_;
    Settings& settings_;
    RecentFiles& recent_;
    QWidget* mainWindow_;
};

} // namespace workbench
