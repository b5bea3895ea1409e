#include "window/save_watch.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace workbench {

namespace {

// "Configuration XML (*.xml)" gives ".xml"; nothing where the filter takes any name.
QString suffixOf(const QString& filter)
{
    static const QRegularExpression pattern(QStringLiteral("\\*(\\.\\w+)"));
    return pattern.match(filter).captured(1);
}

} // namespace

SaveWatch::SaveWatch(const PluginLog& log, const QWidget* mainWindow, SavesAtOnce savesAtOnce)
    : mainWindow_(mainWindow), savesAtOnce_(std::move(savesAtOnce))
{
    connect(&log, &PluginLog::warned, this,
            [this](PluginLog::Topic topic, const QString& category, const QString& text) {
                if (topic == PluginLog::Topic::SaveFailed)
                    noteFailure(text);
                else if (topic == PluginLog::Topic::SavedInPart)
                    notePart(text, PluginLog::parts(category, text));
            });
    QCoreApplication::instance()->installEventFilter(this);
    connect(&folder_, &QFileSystemWatcher::directoryChanged, this, [this] { look(false); });
}

// What is known of the file that a message names must not be looked for on the disk.
void SaveWatch::forget(const QString& message)
{
    const auto isNamed = [&message](const Candidate& file) { return message.startsWith(file.path); };
    if (std::ranges::any_of(awaited_, isNamed))
        awaited_.clear();
}

// The plug-in is in the middle of its save in this and the next.
void SaveWatch::noteFailure(const QString& message)
{
    forget(message);
    const int colon = message.indexOf(QLatin1String(": "));
    const QString path = message.left(colon);
    const QString reason = colon < 0 ? QString() : message.mid(colon + 2);
    QMetaObject::invokeMethod(
        this, [this, path, reason] { Q_EMIT failed(path, reason); }, Qt::QueuedConnection);
}

void SaveWatch::notePart(const QString& message, const QStringList& parts)
{
    if (parts.size() < 4)
        return;
    forget(message);
    const SavedPart part{parts[1].toLongLong(), parts[2].toLongLong(), parts[3]};
    QMetaObject::invokeMethod(
        this, [this, path = parts[0], part] { Q_EMIT savedInPart(path, part); }, Qt::QueuedConnection);
}

bool SaveWatch::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::Show)
        return false;
    auto* dialog = qobject_cast<QFileDialog*>(object);
    // The workbench's own dialogs tell of themselves, and so do windows that give theirs this name.
    if (!dialog || dialog->objectName() == QLatin1String("fileDialog_Told") ||
        (dialog->parentWidget() && dialog->parentWidget()->window() == mainWindow_))
        return false;
    Q_EMIT asked();
    if (dialog->acceptMode() != QFileDialog::AcceptSave)
        return false;
    connect(dialog, &QFileDialog::accepted, this, [this, dialog] { follow(*dialog); });
    return false;
}

SaveWatch::Candidate SaveWatch::present(const QString& path)
{
    const QFileInfo file(path);
    return {path, file.lastModified(), file.exists() ? file.size() : -1};
}

void SaveWatch::follow(const QFileDialog& dialog)
{
    const QString path = dialog.selectedFiles().value(0);
    if (path.isEmpty())
        return;
    awaited_ = {present(path)};
    window_ = dialog.parentWidget() ? dialog.parentWidget()->window() : nullptr;
    // A name without a suffix may get one.
    const QString suffix = suffixOf(dialog.selectedNameFilter());
    if (QFileInfo(path).suffix().isEmpty() && !suffix.isEmpty())
        awaited_.append(present(path + suffix));
    if (!folder_.directories().isEmpty())
        folder_.removePaths(folder_.directories());
    folder_.addPath(QFileInfo(path).path());
    // The dialog goes before the file is saved; what is posted then comes when the plug-in is done with it.
    connect(&dialog, &QObject::destroyed, this, [this] {
        QMetaObject::invokeMethod(
            this, [this] { look(savesAtOnce_()); }, Qt::QueuedConnection);
    });
}

void SaveWatch::look(bool last)
{
    for (const Candidate& file : qAsConst(awaited_)) {
        const Candidate now = present(file.path);
        // A document that is about to be saved may stand there empty.
        if (now.size <= 0 || (now.size == file.size && now.changed == file.changed))
            continue;
        awaited_.clear();
        Q_EMIT saved(now.path);
        return;
    }
    if (!last || awaited_.isEmpty())
        return;
    const QString path = awaited_.first().path;
    awaited_.clear();
    Q_EMIT failed(path, {});
}

} // namespace workbench
