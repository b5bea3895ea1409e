#include "window/settings.h"

#include "window/languages.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace workbench {

namespace {

const QString languageKey = QStringLiteral("language");
const QString modeKey = QStringLiteral("mode");
const QString appearanceKey = QStringLiteral("appearance");
const QString fullWindowKey = QStringLiteral("fullWindow");
const QString reviewKey = QStringLiteral("reviewAlways");
const QString backupDaysKey = QStringLiteral("backupDays");
const QString telemetryKey = QStringLiteral("folders/telemetry");
const QString configurationKey = QStringLiteral("folders/configuration");
const QString recentKey = QStringLiteral("recentFiles");
const QString tableKey = QStringLiteral("recentFilesInTable");

QString layoutKey(const QString& name)
{
    return QStringLiteral("layout/") + name;
}

// QSettings reads past bytes that no ini file has; they mean that the file is not what was written.
bool isDamaged(const QString& file, const QSettings& store)
{
    store.allKeys(); // parses the file, which QSettings puts off
    QFile raw(file);
    return store.status() == QSettings::FormatError ||
           (raw.open(QIODevice::ReadOnly) && raw.readAll().contains('\0'));
}

} // namespace

Settings::Settings(const QString& file) : store_(std::make_unique<QSettings>(file, QSettings::IniFormat))
{
    damaged_ = isDamaged(file, *store_);
    if (!damaged_)
        return;
    store_.reset();
    const QString aside = file + QStringLiteral(".damaged");
    QFile::remove(aside);
    QFile::rename(file, aside);
    store_ = std::make_unique<QSettings>(file, QSettings::IniFormat);
}

void Settings::setForThisRun(std::optional<QString> language, std::optional<int> mode)
{
    runLanguage_ = std::move(language);
    runMode_ = mode;
}

QString Settings::language() const
{
    if (runLanguage_)
        return *runLanguage_;
    const QString code = store_->value(languageKey).toString();
    return Languages::isKnown(code) ? code : Languages::ofSystem();
}

void Settings::setLanguage(const QString& code)
{
    runLanguage_.reset();
    store_->setValue(languageKey, code);
}

int Settings::mode() const
{
    if (runMode_)
        return *runMode_;
    const int mode = store_->value(modeKey, 0).toInt();
    return mode >= 0 && mode <= 2 ? mode : 0;
}

void Settings::setMode(int mode)
{
    runMode_.reset();
    store_->setValue(modeKey, mode);
}

Appearance Settings::appearance() const
{
    const int value = store_->value(appearanceKey, 0).toInt();
    return value >= 0 && value <= int(Appearance::Dark) ? Appearance(value) : Appearance::System;
}

void Settings::setAppearance(Appearance appearance)
{
    store_->setValue(appearanceKey, int(appearance));
}

bool Settings::fullWindow() const
{
    return store_->value(fullWindowKey, true).toBool();
}

void Settings::setFullWindow(bool full)
{
    store_->setValue(fullWindowKey, full);
}

bool Settings::reviewAlways() const
{
    return store_->value(reviewKey, true).toBool();
}

void Settings::setReviewAlways(bool always)
{
    store_->setValue(reviewKey, always);
}

int Settings::backupDays() const
{
    return qMax(0, store_->value(backupDaysKey, 0).toInt());
}

void Settings::setBackupDays(int days)
{
    store_->setValue(backupDaysKey, days);
}

QString Settings::telemetryFolder() const
{
    return store_->value(telemetryKey).toString();
}

QString Settings::configurationFolder() const
{
    return store_->value(configurationKey).toString();
}

void Settings::setFolders(const QString& telemetry, const QString& configuration)
{
    store_->setValue(telemetryKey, telemetry);
    store_->setValue(configurationKey, configuration);
}

QVector<RecentFile> Settings::recentFiles() const
{
    const QStringList paths = store_->value(recentKey).toStringList().mid(0, recentLimit);
    const QStringList inTable = store_->value(tableKey).toStringList();
    QVector<RecentFile> files;
    for (const QString& path : paths)
        files.append({path, inTable.contains(path) ? TelemetryWindow::Table : TelemetryWindow::Browser});
    return files;
}

void Settings::setRecentFiles(const QVector<RecentFile>& files)
{
    QStringList paths;
    QStringList inTable;
    for (const RecentFile& file : files.mid(0, recentLimit)) {
        paths.append(file.path);
        if (file.window == TelemetryWindow::Table)
            inTable.append(file.path);
    }
    store_->setValue(recentKey, paths);
    store_->setValue(tableKey, inTable);
}

void Settings::addRecentFile(const QString& path, TelemetryWindow window)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    removeRecentFile(absolute);
    QVector<RecentFile> files = recentFiles();
    files.prepend({absolute, window});
    setRecentFiles(files);
}

void Settings::removeRecentFile(const QString& path)
{
    QVector<RecentFile> files = recentFiles();
    const auto gone = std::remove_if(files.begin(), files.end(),
                                     [&path](const RecentFile& file) { return file.path == path; });
    files.erase(gone, files.end());
    setRecentFiles(files);
}

QByteArray Settings::layout(const QString& name) const
{
    return store_->value(layoutKey(name)).toByteArray();
}

void Settings::setLayout(const QString& name, const QByteArray& state)
{
    store_->setValue(layoutKey(name), state);
}

} // namespace workbench
