#include "window/file_comparer.h"

#include "base/whole_file.h"
#include "tracker/configuration_values.h"
#include "window/plugin_link.h"

namespace workbench {

namespace {

using tracker::ConfigurationValues;

// A null text is "no such key"; an empty value is a value.
QString there(const QString& text)
{
    return text.isNull() ? QStringLiteral("") : text;
}

std::optional<SettingChanges> compareKeys(const QByteArray& before, const QByteArray& after)
{
    const ConfigurationValues one(before);
    const ConfigurationValues other(after);
    if (!one.error().isEmpty() || !other.error().isEmpty())
        return {};
    SettingChanges changes;
    const auto valueOf = [](const ConfigurationValues& values, const QString& path) {
        return values.contains(path) ? there(values.text(path)) : QString();
    };
    const auto add = [&](const QString& path) {
        const QString was = valueOf(one, path);
        const QString is = valueOf(other, path);
        changes.append({path, {}, {}, {}, was, is, was, is});
    };
    for (const QString& path : other.paths()) {
        if (!one.contains(path) || one.text(path) != other.text(path))
            add(path);
    }
    for (const QString& path : one.paths()) {
        if (!other.contains(path))
            add(path);
    }
    return changes;
}

QString orNull(const QString* text)
{
    return text ? there(*text) : QString();
}

SettingChange::Cause causeOf(const FileDifference& told)
{
    using Cause = SettingChange::Cause;
    switch (told.cause) {
    case FileDifference::Edited:
        return Cause::Edited;
    case FileDifference::Unedited:
        return Cause::Unedited;
    case FileDifference::Opened:
        return Cause::Opened;
    default:
        return Cause::Unknown;
    }
}

} // namespace

QString FileComparer::put(const char* name, const QByteArray& document) const
{
    QSaveFile file(folder_.filePath(QLatin1String(name)));
    return saveWhole(file, document) ? file.fileName() : QString();
}

bool FileComparer::check(const QByteArray& document, FileCheck asked) const
{
    const QString path = put("looked-at.xml", document);
    asked.file = &path;
    if (path.isEmpty())
        return false;
    link_.send(vlk::Message::CheckFile, &asked);
    QFile::remove(path);
    return asked.outcome != FileCheck::Unreadable;
}

std::optional<QVector<SettingAdvice>> FileComparer::advise(const QByteArray& document) const
{
    QVector<SettingAdvice> advice;
    FileCheck asked;
    asked.context = &advice;
    asked.take = [](void* context, const FileRemark* told) {
        const bool isError = told->severity == FileRemark::Error;
        // What a load makes of it is the plug-in's business, unless it cannot work.
        const QString group = told->size < sizeof(FileRemark) ? QString() : orNull(told->group);
        if (told->kind == FileRemark::Advice || isError)
            static_cast<QVector<SettingAdvice>*>(context)->append(
                {isError, orNull(told->page), group, orNull(told->caption), orNull(told->text)});
    };
    return check(document, asked) ? std::optional(advice) : std::nullopt;
}

QStringList FileComparer::unknownKeys(const QByteArray& document) const
{
    QStringList paths;
    FileCheck asked;
    asked.context = &paths;
    asked.take = [](void* context, const FileRemark* told) {
        if (told->kind == FileRemark::Finding && !told->caption)
            static_cast<QStringList*>(context)->append(*told->path);
    };
    check(document, asked);
    return paths;
}

QByteArray FileComparer::bring(const QByteArray& document, const QByteArray& other,
                               const QStringList& paths) const
{
    const QString file = put("present.xml", document);
    const QString from = put("from.xml", other);
    QByteArray content;
    BroughtSettings asked;
    asked.file = &file;
    asked.from = &from;
    asked.paths = &paths;
    asked.content = &content;
    if (!file.isEmpty() && !from.isEmpty())
        link_.send(vlk::Message::BringSettings, &asked);
    QFile::remove(file);
    QFile::remove(from);
    return asked.outcome == BroughtSettings::Done ? content : document;
}

std::optional<SettingChanges> FileComparer::compare(const QByteArray& before, const QByteArray& after) const
{
    auto changes = compareWritten(before, after);
    if (!changes)
        return {};
    for (SettingChange& change : *changes) {
        change.cause = SettingChange::Cause::Unknown;
        change.note.clear();
    }
    return changes;
}

std::optional<SettingChanges> FileComparer::compareWritten(const QByteArray& before,
                                                           const QByteArray& after) const
{
    const QString first = put("before.xml", before);
    const QString second = put("after.xml", after);
    SettingChanges changes;
    FileComparison asked;
    asked.before = &first;
    asked.after = &second;
    asked.context = &changes;
    asked.take = [](void* context, const FileDifference* told) {
        SettingChange change{*told->path,
                             *told->page,
                             *told->group,
                             *told->caption,
                             orNull(told->before),
                             orNull(told->after),
                             orNull(told->beforeText),
                             orNull(told->afterText)};
        if (told->size >= sizeof(FileDifference)) {
            change.cause = causeOf(*told);
            change.note = orNull(told->note);
            change.readsAlike = told->readsAlike != 0;
        }
        static_cast<SettingChanges*>(context)->append(change);
    };
    if (!first.isEmpty() && !second.isEmpty())
        link_.send(vlk::Message::CompareFiles, &asked);
    QFile::remove(first);
    QFile::remove(second);
    if (asked.outcome == FileComparison::Done)
        return changes;
    return asked.outcome == FileComparison::None ? compareKeys(before, after) : std::nullopt;
}

} // namespace workbench
