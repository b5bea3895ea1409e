#include "window/settings.h"

#include "window/languages.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace workbench {

namespace {

const QString kLanguageKey = QStringLiteral("language");
const QString kModeKey = QStringLiteral("mode");
const QString kAppearanceKey = QStringLiteral("appearance");
const QString kFullWindowKey = QStringLiteral("fullWindow");
const QString kReviewKey = QStringLiteral("reviewAlways");
const QString kBackupDaysKey = QStringLiteral("backupDays");
const QString kTelemetryKey = QStringLiteral("folders/telemetry");
const QString kConfigurationKey = QStringLiteral("folders/configuration");
const QString kOpenedTelemetryKey = QStringLiteral("folders/openedTelemetry");
const QString kOpenedConfigurationKey = QStringLiteral("folders/openedConfiguration");
const QString kRecentKey = QStringLiteral("recentFiles");
const QString kCutShortKey = QStringLiteral("cutShort");
const QString kTableKey = QStringLiteral("recentFilesInTable");

const QString& openedKey(DataKind kind)
{
    return kind == DataKind::Telemetry ? kOpenedTelemetryKey : kOpenedConfigurationKey;
}

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
    const QString code = store_->value(kLanguageKey).toString();
    return Languages::isKnown(code) ? code : Languages::ofSystem();
}

void Settings::setLanguage(const QString& code)
{
    runLanguage_.reset();
    store_->setValue(kLanguageKey, code);
}

int Settings::mode() const
{
    if (runMode_)
        return *runMode_;
    const int mode = store_->value(kModeKey, 0).toInt();
    return mode >= 0 && mode <= 2 ? mode : 0;
}

void Settings::setMode(int mode)
{
    runMode_.reset();
    store_->setValue(kModeKey, mode);
}

Appearance Settings::appearance() const
{
    const int value = store_->value(kAppearanceKey, 0).toInt();
    return value >= 0 && value <= static_cast<int>(Appearance::Dark) ? Appearance(value) : Appearance::System;
}

void Settings::setAppearance(Appearance appearance)
{
    store_->setValue(kAppearanceKey, static_cast<int>(appearance));
}

bool Settings::fullWindow() const
{
    return store_->value(kFullWindowKey, true).toBool();
}

void Settings::setFullWindow(bool full)
{
    store_->setValue(kFullWindowKey, full);
}

bool Settings::reviewAlways() const
{
    return store_->value(kReviewKey, true).toBool();
}

void Settings::setReviewAlways(bool always)
{
    store_->setValue(kReviewKey, always);
}

int Settings::backupDays() const
{
    return std::max(0, store_->value(kBackupDaysKey, 0).toInt());
}

void Settings::setBackupDays(int days)
{
    store_->setValue(kBackupDaysKey, days);
}

QString Settings::telemetryFolder() const
{
    return store_->value(kTelemetryKey).toString();
}

QString Settings::configurationFolder() const
{
    return store_->value(kConfigurationKey).toString();
}

void Settings::setFolders(const QString& telemetry, const QString& configuration)
{
    if (telemetry != telemetryFolder())
        store_->remove(kOpenedTelemetryKey);
    if (configuration != configurationFolder())
        store_->remove(kOpenedConfigurationKey);
    store_->setValue(kTelemetryKey, telemetry);
    store_->setValue(kConfigurationKey, configuration);
}

QString Settings::openingFolder(DataKind kind) const
{
    QString last = store_->value(openedKey(kind)).toString();
    if (!last.isEmpty() && QFileInfo(last).isDir())
        return last;
    return kind == DataKind::Telemetry ? telemetryFolder() : configurationFolder();
}

void Settings::setOpenedFrom(DataKind kind, const QString& path)
{
    store_->setValue(openedKey(kind), QFileInfo(path).absolutePath());
}

QVector<RecentFile> Settings::recentFiles() const
{
    const QStringList paths = store_->value(kRecentKey).toStringList().mid(0, kRecentLimit);
    const QStringList inTable = store_->value(kTableKey).toStringList();
    QVector<RecentFile> files;
    for (const QString& path : paths)
        files.append({path, inTable.contains(path) ? TelemetryWindow::Table : TelemetryWindow::Browser});
    return files;
}

void Settings::setRecentFiles(const QVector<RecentFile>& files)
{
    QStringList paths;
    QStringList inTable;
    for (const RecentFile& file : files.mid(0, kRecentLimit)) {
        paths.append(file.path);
        if (file.window == TelemetryWindow::Table)
            inTable.append(file.path);
    }
    store_->setValue(kRecentKey, paths);
    store_->setValue(kTableKey, inTable);
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

void Settings::setCutShort(const QStringList& parts)
{
    store_->setValue(kCutShortKey, parts);
}

QStringList Settings::takeCutShort()
{
    QStringList parts = store_->value(kCutShortKey).toStringList();
    store_->remove(kCutShortKey);
    return parts;
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
