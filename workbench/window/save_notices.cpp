#include "window/save_notices.h"

#include "typing/file_error.h"
#include "window/host_session.h"
#include "window/languages.h"
#include "window/message_box.h"
#include "window/plugin_windows.h"
#include "window/recent_files.h"
#include "window/status_line.h"
#include "window/stored_file.h"
#include "window/trouble_text.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <iterator>
#include <utility>

namespace workbench {

namespace {

// The files for the tracker lie in the current folder under names of the plug-in's own.
bool isForTracker(const QString& path)
{
    const QFileInfo file(path);
    return file.dir() == QDir::current() && file.fileName().startsWith(QLatin1String("vlk_"));
}

} // namespace

QString savedPartText(const QString& path, const SavedPart& part)
{
    return text("wb_saved_part")
        .arg(QDir::toNativeSeparators(path), number(part.records), number(part.all), part.until);
}

SaveNotices::SaveNotices(const PluginLog& log, HostSession& session, const PluginWindows& windows,
                         RecentFiles& recent, StatusLine& status, QWidget* mainWindow)
    : session_(session), recent_(recent), status_(status), mainWindow_(mainWindow),
      watch_(log, mainWindow, [&windows] { return windows.modal() != nullptr; }), typing_(log)
{
    // The configuration's window is modal and saves when its dialog has closed; a period is saved when all of
    // its records have come.
    connect(&watch_, &SaveWatch::saved, this, &SaveNotices::tellSaved);
    connect(&watch_, &SaveWatch::savedInPart, this, &SaveNotices::tellSavedInPart);
    connect(&watch_, &SaveWatch::failed, this, &SaveNotices::tellFailed);
    connect(&watch_, &SaveWatch::asked, this, [this] { status_.clear(StatusLine::Command); });
    connect(&watch_, &SaveWatch::asked, this, &SaveNotices::asked);
    connect(&watch_, &SaveWatch::saved, this, &SaveNotices::ended);
    connect(&watch_, &SaveWatch::savedInPart, this, &SaveNotices::ended);
    connect(&watch_, &SaveWatch::failed, this, &SaveNotices::ended);
    connect(&log, &PluginLog::warned, this,
            [this](PluginLog::Topic topic, const QString& category, const QString& message) {
                if (topic == PluginLog::Topic::Saved)
                    toldChanges_ = {category, message};
                if (topic == PluginLog::Topic::SavedCut)
                    cut_ = PluginLog::parts(category, message);
            });
    connect(&session_.link(), &PluginLink::passed, this, [this](vlk::Direction, quint32 id) {
        if (id == static_cast<quint32>(vlk::Message::OpenConfiguration))
            typing_.forget();
    });
}

void SaveNotices::tellSaved(const QString& path)
{
    const QString shown = QDir::toNativeSeparators(path);
    const StoredFile kind = storedFileKind(path);
    if (kind != StoredFile::Unknown && kind != StoredFile::Calibration)
        recent_.add(path, TelemetryWindow::Browser);
    const QStringList cut = std::exchange(cut_, {});
    if (kind == StoredFile::Configuration) {
        tellConfiguration(path);
    } else if (cut.value(0) == path) {
        Q_EMIT savedCut(
            [shown, volumes = cut.value(1)] {
                return sentences(
                    {text("wb_saved").arg(shown) + QLatin1Char('.'), text("wb_740").arg(volumes)});
            },
            watch_.window());
    } else {
        Q_EMIT saved([shown] { return text("wb_saved").arg(shown); }, watch_.window());
    }
}

void SaveNotices::tellSavedInPart(const QString& path, const SavedPart& part)
{
    if (storedFileKind(path) == StoredFile::Telemetry)
        recent_.add(path, TelemetryWindow::Browser);
    const bool isGone = !session_.tracker().attached();
    Q_EMIT partSaved(path, part);
    warn([path, part, isGone] {
        return sentences({savedPartText(path, part), isGone ? text("wb_saved_part_unplugged") : QString(),
                          text("wb_do_part")});
    });
}

void SaveNotices::tellConfiguration(const QString& path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    const QByteArray content = file.readAll();
    // What a review before a write would show as errors.
    QVector<SettingAdvice> advice = session_.comparer().advise(content).value_or(QVector<SettingAdvice>());
    addRefused(&advice, typing_.lines());
    typing_.forget();
    const QStringList again = toLookAt(advice);
    const auto sentence = [path, told = std::exchange(toldChanges_, {}), again] {
        QStringList lines{told.message.startsWith(path + QLatin1String(": "))
                              ? PluginLog::words(told.category, told.message)
                              : text("wb_saved").arg(QDir::toNativeSeparators(path))};
        if (!again.isEmpty())
            lines << text("wb_typed") << again;
        return lines.join(QLatin1Char('\n'));
    };
    if (again.isEmpty())
        Q_EMIT saved(sentence, watch_.window());
    else
        warn(sentence);
}

void SaveNotices::tellFailed(const QString& path, const QString& reason)
{
    if (isForTracker(path)) {
        session_.writeNotSaved(path, reason);
        return;
    }
    warn([shown = QDir::toNativeSeparators(path), reason] {
        return sentences({reason.isEmpty()
                              ? text("wb_save_failed").arg(shown)
                              : text("wb_save_failed_why").arg(shown, vlk::fileErrorText(reason)),
                          text(isAboutRoom(reason) ? "wb_do_save" : "wb_do_save_elsewhere")});
    });
}

void SaveNotices::warn(const Sentence& sentence)
{
    status_.tell(StatusLine::Command, sentence);
    showWarning(sentence(), mainWindow_);
}

} // namespace workbench
