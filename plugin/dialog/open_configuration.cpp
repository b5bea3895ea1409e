#include "dialog/open_configuration.h"

#include "document/configuration_text.h"
#include "document/values_document.h"
#include "review/file_keys.h"
#include "review/take_over.h"
#include "settings/all_settings.h"
#include "settings/quick_settings.h"
#include "xml/xml_document.h"

#include <algorithm>

namespace vlk {

using review::FileKeys;

namespace {

// The quick window reads an access point of no known operator as the automatic choice. Where it has another
// one than before, the operator is the one that the full window finds.
void followPresets(const Presets& presets, const Values& before, const Values& read,
                   const Configuration& configuration, std::vector<QString>* held)
{
    const bool isSame = std::ranges::all_of(
        presets.fields, [&](const Path& field) { return read.value(field.row) == before.value(field.row); });
    if (!presets.other || isSame)
        return;
    const int trigger = presets.trigger.row;
    (*held)[trigger] = configuration.value(read.row(trigger).path);
    for (const Sets& rule : read.table().all<Sets>()) {
        if (rule.when.row == trigger)
            (*held)[rule.path.row] = read.value(rule.path.row);
    }
}

} // namespace

Configuration OpenConfiguration::inFull() const
{
    Configuration all(allSettings());
    for (Values& values : all.tables()) {
        for (const PageSettings* page : history_.pages()) {
            if (&page->values().table() == &values.table())
                values.putBack(page->values().held());
        }
    }
    return all;
}

void OpenConfiguration::write(CXmlSection& root) const
{
    inFull().write(root);
    if (isQuick())
        writeTo(root, quickPage().values());
    root.commit();
}

QByteArray OpenConfiguration::document() const
{
    XmlDocument document(QString(), QStringLiteral("DEVICE"));
    write(*document.root());
    return document.text();
}

QByteArray OpenConfiguration::rewritten(const QByteArray& document) const
{
    XmlDocument written(QString(), QStringLiteral("DEVICE"));
    configurationIn(document).write(*written.root());
    if (isQuick()) {
        Values quick(kQuickSettings);
        readFrom(*XmlDocument(document, QStringLiteral("DEVICE")).root(), quick);
        writeTo(*written.root(), quick);
    }
    return written.text();
}

QMap<QString, QString> OpenConfiguration::quickValues() const
{
    QMap<QString, QString> texts;
    if (!isQuick())
        return texts;
    const Values& values = quickPage().values();
    for (int row = 0; row < values.count(); ++row)
        texts.insert(values.row(row).path, values.held()[row]);
    return texts;
}

Configuration OpenConfiguration::written() const
{
    Configuration all = inFull();
    if (isQuick()) {
        XmlDocument document(QString(), QStringLiteral("DEVICE"));
        write(*document.root());
        review::readAsEdited(all, *document.root());
    }
    return all;
}

PageSettings* OpenConfiguration::pageOf(int table) const
{
    for (PageSettings* page : history_.pages()) {
        if (FileKeys::all().tableOf(page->values().table()) == table)
            return page;
    }
    return nullptr;
}

const Values* OpenConfiguration::valuesOf(int table) const
{
    const PageSettings* page = pageOf(table);
    return page ? &page->values() : nullptr;
}

void OpenConfiguration::bringBack(const review::Unsaved& unsaved, const EditHistory::Words& words)
{
    history_.settle();
    const auto brought = [&](const Configuration& present, const QByteArray& now) {
        XmlDocument edited(withEdits(now, unsaved), QStringLiteral("DEVICE"));
        Configuration changed = inFull();
        review::readAsEdited(changed, *edited.root());
        XmlDocument unedited(now, QStringLiteral("DEVICE"));
        Configuration unchanged = inFull();
        review::readAsEdited(unchanged, *unedited.root());
        review::keepTheRest(changed, present, unchanged);
        review::keepUnwritten(changed, inFull());
        return changed;
    };
    const QByteArray now = document();
    const Configuration changed = brought(written(), now);
    // They belong to the configuration on which they were made, but for what the full window loses.
    put({.inFull = isQuick() ? brought(inFull(), documentOf(inFull())) : changed, .written = changed},
        now == unsaved.before ? unsaved.quick : heldByQuickAlone(unsaved), words);
}

void OpenConfiguration::put(const Changed& changed, const QMap<QString, QString>& quick,
                            const EditHistory::Words& words)
{
    const QByteArray now = document();
    history_.asOne(words, [&] {
        for (PageSettings* page : history_.pages()) {
            const std::vector<Values>& tables = changed.inFull.tables();
            const auto found = std::ranges::find_if(
                tables, [&](const Values& values) { return &values.table() == &page->values().table(); });
            if (found != tables.end())
                page->putBack(found->held());
        }
        if (!isQuick())
            return;
        XmlDocument document(QString(), QStringLiteral("DEVICE"));
        changed.written.write(*document.root());
        document.root()->commit();
        PageSettings& page = quickPage();
        const Values before = page.values();
        Values unchanged = before;
        readFrom(*XmlDocument(now, QStringLiteral("DEVICE")).root(), unchanged);
        page.load(document.root());
        Values read = page.values();
        review::keepTheRest(read, before, unchanged);
        std::vector<QString> held = read.held();
        for (const Presets& presets : read.table().all<Presets>())
            followPresets(presets, before, page.values(), changed.written, &held);
        for (auto value = quick.begin(); value != quick.end(); ++value) {
            if (const int row = page.rowAt(value.key()); row >= 0)
                held[row] = value.value();
        }
        page.putBack(held);
    });
}

} // namespace vlk
