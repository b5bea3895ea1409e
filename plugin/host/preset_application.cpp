#include "host/preset_application.h"

#include "base/whole_file.h"
#include "dialog/widget_config.h"
#include "host/file_questions.h"
#include "review/compare_files.h"
#include "review/edit_file.h"
#include "settings/all_settings.h"
#include "xml/xml_document.h"

#include <QFileInfo>

namespace vlk {

namespace {

void tellMisfit(PresetApplication& asked, const review::PresetProblem& problem, review::Secrets secrets)
{
    ++asked.misfits;
    if (!asked.takeMisfit)
        return;
    const review::DifferenceText text = textOf(problem, secrets);
    PresetMisfit misfit;
    misfit.reason = static_cast<std::uint32_t>(problem.what);
    misfit.path = &problem.path;
    misfit.page = &text.page;
    misfit.group = &text.group;
    misfit.caption = &text.caption;
    misfit.value = &text.before;
    misfit.note = &text.note;
    asked.takeMisfit(asked.context, &misfit);
}

void tellChanges(PresetApplication& asked, XmlDocument& before, XmlDocument& after, review::Secrets secrets)
{
    Configuration loaded(allSettings());
    loaded.read(*after.root());
    const review::Differences changes(review::FileState::ofDocument(*before.root()),
                                      review::FileState::ofDocument(*after.root()));
    for (const review::Difference& change : changes.all()) {
        ++asked.changes;
        if (!asked.takeChange)
            continue;
        const int table = change.key < 0 ? 0 : review::FileKeys::all()[change.key].table;
        const review::DifferenceText text = textOf(changes, change, loaded.tables()[table], secrets);
        const FileDifference told = toldDifference(change, text);
        asked.takeChange(asked.context, &told);
    }
}

// Empty when the target holds the text.
QString write(const QString& target, const QString& source, const QByteArray& text)
{
    const QFileInfo old(target);
    if (old.exists() && !old.isWritable())
        return qt_error_string(EACCES);
    QSaveFile file(target);
    QString reason;
    // A copy is as closed to others as what it is of.
    const auto content = [&](QSaveFile& opened) {
        return (old.exists() || opened.setPermissions(QFile::permissions(source))) &&
               opened.write(text) == text.size();
    };
    saveWhole(file, content, &reason);
    return reason;
}

PresetApplication::Outcome applyToFile(PresetApplication& asked, XmlDocument& preset)
{
    const auto secrets = asked.showSecrets == 1 ? review::Secrets::Shown : review::Secrets::Masked;
    const QString device = QStringLiteral("DEVICE");
    const QByteArray text = review::configurationText(*asked.file);
    XmlDocument before(text, device);
    if (!before.isOpen())
        return PresetApplication::FileUnreadable;
    const review::EditedFile edited = review::withPreset(text, *preset.root());
    for (const review::PresetProblem& problem : edited.problems)
        tellMisfit(asked, problem, secrets);
    if (asked.misfits > 0 && asked.leaveOutMisfits != 1)
        return PresetApplication::Refused;
    XmlDocument after(edited.text, device);
    tellChanges(asked, before, after, secrets);
    const bool isThere =
        asked.target && edited.text == text &&
        QFileInfo(*asked.target).canonicalFilePath() == QFileInfo(*asked.file).canonicalFilePath();
    if (!asked.target || isThere)
        return PresetApplication::Done;
    const QString reason = write(*asked.target, *asked.file, edited.text);
    if (asked.reason)
        *asked.reason = reason;
    return reason.isEmpty() ? PresetApplication::Done : PresetApplication::NotWritten;
}

} // namespace

void applyPreset(PresetApplication& asked, VLK_Widget_Config* open)
{
    if (!asked.preset)
        return;
    asked.changes = asked.misfits = 0;
    XmlDocument preset(review::configurationText(*asked.preset), QStringLiteral("DEVICE"));
    if (!preset.isOpen())
        asked.outcome = PresetApplication::PresetUnreadable;
    else if (asked.file)
        asked.outcome = applyToFile(asked, preset);
    else
        asked.outcome = open && open->showPreset(*asked.preset) ? PresetApplication::Shown
                                                                : PresetApplication::NothingOpen;
}

} // namespace vlk
