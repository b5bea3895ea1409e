#include "window/file_opener.h"

#include "check/telemetry_file_check.h"
#include "window/host_session.h"
#include "window/languages.h"
#include "window/message_box.h"
#include "window/recent_files.h"
#include "window/stored_file.h"
#include "window/trouble_text.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QSortFilterProxyModel>

namespace workbench {

namespace {

// Calibration tables lie in the same folder and have the same suffix.
class WithoutCalibration : public QSortFilterProxyModel
{
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void sort(int column, Qt::SortOrder order) override { sourceModel()->sort(column, order); }

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override
    {
        const QModelIndex index = sourceModel()->index(row, 0, parent);
        const QString path = index.data(QFileSystemModel::FilePathRole).toString();
        return !path.endsWith(QLatin1String(".xml"), Qt::CaseInsensitive) ||
               storedFileKind(path) != StoredFile::Calibration;
    }
};

QString askTelemetryPath(QWidget* parent, const QString& folder)
{
    QFileDialog dialog(parent, text("wb_browse_caption"), folder,
                       text("wb_type_telemetry") + QStringLiteral(" (*.xml *.tmi)"));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setProxyModel(new WithoutCalibration(&dialog));
    dialog.setFileMode(QFileDialog::ExistingFile);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace

FileOpener::FileOpener(HostSession& session, Settings& settings, RecentFiles& recent, QWidget* mainWindow)
    : QObject(mainWindow), session_(session), settings_(settings), recent_(recent), mainWindow_(mainWindow)
{
}

void FileOpener::open(const QString& path, TelemetryWindow window)
{
    if (!QFileInfo(path).isFile()) {
        recent_.remove(path);
        Q_EMIT failed([path] { return text("wb_file_missing").arg(path); });
        return;
    }
    const StoredFile kind = storedFileKind(path);
    if (kind == StoredFile::Telemetry)
        openTelemetry(path, window);
    else if (kind == StoredFile::Calibration)
        Q_EMIT failed([path] { return text("wb_file_calibration").arg(path); });
    else if (kind == StoredFile::Preset && session_.link().appliesPresets())
        applyPreset(path);
    else
        openConfiguration(path, window);
}

QString FileOpener::askConfiguration()
{
    QString path = QFileDialog::getOpenFileName(mainWindow_, text("wb_open_caption"),
                                                settings_.openingFolder(DataKind::Configuration),
                                                text("wb_type_configuration") + QStringLiteral(" (*.xml)"));
    if (!path.isEmpty())
        settings_.setOpenedFrom(DataKind::Configuration, path);
    return path;
}

void FileOpener::chooseConfiguration()
{
    const QString path = askConfiguration();
    if (!path.isEmpty())
        open(path, TelemetryWindow::Browser);
}

void FileOpener::chooseTelemetry(TelemetryWindow window)
{
    const QString path = askTelemetryPath(mainWindow_, settings_.openingFolder(DataKind::Telemetry));
    if (path.isEmpty())
        return;
    settings_.setOpenedFrom(DataKind::Telemetry, path);
    switch (storedFileKind(path)) {
    case StoredFile::Telemetry:
        openTelemetry(path, window);
        break;
    case StoredFile::Configuration:
    case StoredFile::Preset:
        Q_EMIT failed([path] { return text("wb_file_no_telemetry").arg(path); });
        break;
    case StoredFile::Calibration:
        Q_EMIT failed([path] { return text("wb_file_calibration").arg(path); });
        break;
    case StoredFile::Unknown:
        Q_EMIT failed([path] { return text("wb_file_unknown").arg(path); });
        break;
    }
}

void FileOpener::openTelemetry(const QString& path, TelemetryWindow window)
{
    if (const auto problem = checkTelemetryFile(path)) {
        Q_EMIT failed([path, problem] {
            return sentences(
                {text("wb_open_failed").arg(path), reasonOf(*problem), text("wb_do_telemetry_file")});
        });
        return;
    }
    recent_.add(path, window);
    session_.link().showStoredFile(path, static_cast<int>(window));
    Q_EMIT opened();
}

void FileOpener::openConfiguration(const QString& path, TelemetryWindow window)
{
    if (const Sentence failure = session_.openConfiguration(path, settings_.fullWindow())) {
        Q_EMIT failed(failure);
        return;
    }
    recent_.add(path, window);
    Q_EMIT opened();
}

void FileOpener::applyPreset(const QString& preset)
{
    Sentence failure = session_.whyNotOpened(preset);
    if (!failure && !openFor(preset, &failure))
        return;
    if (failure) {
        Q_EMIT failed(failure);
        return;
    }
    recent_.add(preset, TelemetryWindow::Browser);
    Q_EMIT opened();
    session_.link().showPreset(preset);
}

bool FileOpener::openFor(const QString& preset, Sentence* failure)
{
    enum Way { Tracker, File, New };
    std::vector<std::pair<Way, const char*>> ways{
        {Tracker, "wb_preset_read"}, {File, "wb_preset_open"}, {New, "wb_preset_new"}};
    if (!session_.tracker().attached())
        ways.erase(ways.begin());
    QStringList verbs;
    for (const auto& [way, key] : ways)
        verbs << text(key);
    const int chosen = choose(text("wb_preset_question").arg(QFileInfo(preset).fileName()), verbs,
                              QStringLiteral("messageBox_Preset"), mainWindow_);
    if (chosen < 0)
        return false;
    const bool full = settings_.fullWindow();
    switch (ways[chosen].first) {
    case Tracker:
        *failure = session_.readConfiguration(full);
        break;
    case File: {
        const QString path = askConfiguration();
        if (path.isEmpty())
            return false;
        *failure = storedFileKind(path) == StoredFile::Preset
                       ? [path] { return text("wb_preset_second").arg(path); }
                       : session_.openConfiguration(path, full);
        if (!*failure)
            recent_.add(path, TelemetryWindow::Browser);
        break;
    }
    case New:
        session_.newConfiguration(full);
        break;
    }
    return true;
}

} // namespace workbench
