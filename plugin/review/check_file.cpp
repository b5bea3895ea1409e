#include "review/check_file.h"

#include "base/model_text.h"
#include "base/translated.h"
#include "base/version.h"
#include "document/values_document.h"
#include "review/compare_files.h"
#include "settings/all_settings.h"
#include "settings/quick_settings.h"
#include "xml/xml_document.h"
#include "xml/xml_section.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <optional>
#include <utility>

namespace vlk::review {

namespace {

// "TRACK[2]/POINTS" is a second "TRACK/POINTS".
QString withoutNumbers(const QString& path)
{
    static const QRegularExpression number(QStringLiteral("\\[\\d+\\]"));
    return path.contains(QLatin1Char('[')) ? QString(path).remove(number) : path;
}

class FileCheck
{
public:
    FileCheck(CXmlSection& root, Secrets secrets) : root_(root), secrets_(secrets)
    {
        loaded_.read(root);
        FileState saved = FileState::ofConfiguration(loaded_);
        FileState document = FileState::ofDocument(root, loaded_, saved, &paths_);
        differences_ = {std::move(document), std::move(saved)};
        for (Difference& difference : differences_.all())
            changed_.insert(difference.path, difference);
    }

    std::vector<FileRemark> run()
    {
        for (const QString& path : std::as_const(paths_))
            lookAt(path);
        lookAtRoot("model", modelText(), Severity::Warning, "rev_024");
        lookAtRoot("version", fileVersionText(), Severity::Hint, "rev_025");
        addAdvice();
        return std::move(remarks_);
    }

private:
    void lookAt(const QString& path)
    {
        const FileKeys& keys = FileKeys::all();
        const QString section = path.left(path.indexOf(QLatin1Char('/')));
        const QString known = withoutNumbers(path);
        if (!keys.hasElement(section)) {
            if (!seen_.contains(section))
                add(section, keys.hasElement(withoutNumbers(section)) ? "rev_023" : "rev_022");
            seen_.insert(section);
            return;
        }
        const bool isDoubled =
            seen_.contains(path) || (known != path && (keys.at(known) >= 0 || keys.hasElement(known)));
        seen_.insert(path);
        if (isDoubled)
            add(path, "rev_023", known);
        else if (changed_.contains(path))
            addChanged(changed_.value(path));
    }

    // A sensor that the file lacks reads as one in use, but a file of quick setup lacks those that are not.
    void readQuick(Values& quick)
    {
        static constexpr std::pair<const char*, const char*> sensors[] = {
            {"RS485/FS1/", "RS485/sensor1"},
            {"RS485/FS2/", "RS485/sensor2"},
            {"BLUETOOTH/SENS3/", "BLUETOOTH/sensor3"},
            {"BLUETOOTH/SENS4/", "BLUETOOTH/sensor4"}};
        readFrom(root_, quick);
        for (const auto& [element, sensor] : sensors) {
            const auto isOfIt = [start = QLatin1String(element)](const QString& path) {
                return path.startsWith(start);
            };
            const bool isThere = std::ranges::any_of(paths_, isOfIt);
            if (!isThere)
                quick.edit(QLatin1String(sensor), QStringLiteral("0"));
        }
    }

    // Quick setup has keys of its own, and would write this one as it stands; of a field of the record it
    // switches on a half. Full setup drops the one and completes the other.
    bool isOfQuickSetup(const Difference& difference)
    {
        const bool isItsOwn = difference.key < 0 || difference.change == Change::Completed;
        const int row = isItsOwn ? layoutOf(kQuickSettings).rowAt(difference.path) : -1;
        if (row < 0)
            return false;
        if (!quick_)
            readQuick(quick_.emplace(kQuickSettings));
        return quick_->isWritten(row) && quick_->written(row) == difference.before;
    }

    // Names the setting at `known`, if there is one.
    void add(const QString& path, const char* textKey, const QString& known = {})
    {
        FileRemark remark{.path = path, .paths = {path}, .text = translated(textKey)};
        name(&remark, known);
        remarks_.push_back(remark);
    }

    void addChanged(const Difference& difference)
    {
        const int table = difference.key < 0 ? 0 : FileKeys::all()[difference.key].table;
        const DifferenceText text = textOf(differences_, difference, loaded_.tables()[table], secrets_);
        FileRemark remark{.path = difference.path, .paths = {difference.path}, .text = text.note};
        const bool isOfQuick = isOfQuickSetup(difference);
        if (isOfQuick)
            remark.severity = Severity::Hint;
        if (difference.key >= 0 || isOfQuick) {
            name(&remark, text);
            const QString change = difference.after.isNull()
                                       ? text.beforeText
                                       : QStringLiteral("%1 \u2192 %2").arg(text.beforeText, text.afterText);
            if (!change.isEmpty())
                remark.text = QStringLiteral("%1. %2").arg(change, text.note);
        }
        remarks_.push_back(remark);
    }

    void lookAtRoot(const char* attribute, const QString& ours, Severity severity, const char* textKey)
    {
        const QString name = QString::fromLatin1(attribute);
        const QString theirs = root_.getString(name);
        if (theirs.isEmpty() || theirs == ours)
            return;
        const QString path = QStringLiteral("DEVICE/") + name;
        remarks_.push_back({.kind = FileRemark::Kind::Advice,
                            .severity = severity,
                            .path = path,
                            .paths = {path},
                            .text = translated(textKey).arg(theirs, ours)});
    }

    void addAdvice()
    {
        for (const Finding& finding : advise(loaded_, differences_.before().unread())) {
            FileRemark remark{.kind = FileRemark::Kind::Advice,
                              .severity = finding.severity,
                              .path =
                                  finding.mends.empty() ? finding.paths.value(0) : finding.mends.front().path,
                              .paths = finding.paths,
                              .text = adviceText(finding)};
            if (!remark.paths.contains(remark.path))
                remark.paths.prepend(remark.path);
            name(&remark, remark.path);
            remarks_.push_back(remark);
        }
    }

    static void name(FileRemark* remark, const QString& path)
    {
        const int key = FileKeys::all().at(path);
        if (key < 0)
            return;
        const FileKey& place = FileKeys::all()[key];
        name(remark, wordsOf(FileKeys::all().layout(place.table), place.rows.front()));
    }

    static void name(FileRemark* remark, const SettingWords& words)
    {
        remark->page = words.page;
        remark->group = words.group;
        remark->caption = words.caption;
    }

    CXmlSection& root_;
    Secrets secrets_;
    Configuration loaded_{allSettings()};
    std::optional<Values> quick_; // read when asked for
    QStringList paths_;           // of the document's keys
    Differences differences_;
    QHash<QString, Difference> changed_;
    QSet<QString> seen_;
    std::vector<FileRemark> remarks_;
};

} // namespace

std::vector<FileRemark> checkDocument(CXmlSection& root, Secrets secrets)
{
    return FileCheck(root, secrets).run();
}

bool checkFile(const QString& path, Secrets secrets, const std::function<void(const FileRemark&)>& take)
{
    XmlDocument document(configurationText(path), QStringLiteral("DEVICE"));
    if (!document.isOpen())
        return false;
    for (const FileRemark& remark : checkDocument(*document.root(), secrets))
        take(remark);
    return true;
}

} // namespace vlk::review
