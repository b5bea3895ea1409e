#include "dialog/configuration_review.h"

#include "review/compare_files.h"
#include "review/take_over.h"
#include "settings/all_settings.h"
#include "xml/xml_document.h"

#include <algorithm>

namespace vlk {

using review::Differences;
using review::FileKeys;
using review::FileState;

ConfigurationReview::ConfigurationReview(EditHistory& history, std::function<bool()> isQuick, QObject* parent)
    : QObject(parent), history_(history), isQuick_(std::move(isQuick)), present_(allSettings())
{
    connect(&history_, &EditHistory::changed, this, &ConfigurationReview::refresh);
}

void ConfigurationReview::hold(const PageSettings& page)
{
    if (const int table = FileKeys::all().tableOf(page.values().table()); table >= 0)
        present_.tables()[table].putBack(page.values().held());
}

void ConfigurationReview::begin(CXmlSection* root)
{
    for (const PageSettings* page : history_.pages())
        hold(*page);
    asItCame_ = root ? FileState::ofDocument(*root) : now();
    against_ = Against::file;
    history_.begin();
}

bool ConfigurationReview::compareWith(Against against, const QString& path)
{
    FileState before = asItCame_;
    if (against == Against::defaults) {
        before = FileState::ofDefaults(present_);
    } else if (against == Against::otherFile) {
        XmlDocument document(review::configurationText(path), QStringLiteral("DEVICE"));
        if (!document.isOpen())
            return false;
        before = FileState::ofDocument(*document.root());
    }
    against_ = against;
    differences_ = Differences(std::move(before), now());
    Q_EMIT changed();
    return true;
}

Configuration ConfigurationReview::configuration() const
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

PageSettings* ConfigurationReview::pageOf(int table) const
{
    for (PageSettings* page : history_.pages()) {
        if (FileKeys::all().tableOf(page->values().table()) == table)
            return page;
    }
    return nullptr;
}

const Values* ConfigurationReview::valuesOf(int table) const
{
    const PageSettings* page = pageOf(table);
    return page ? &page->values() : nullptr;
}

std::vector<int> ConfigurationReview::keysOf(const PageSettings& page, int row)
{
    const FileKeys& all = FileKeys::all();
    const int table = all.tableOf(page.values().table());
    if (table >= 0)
        return all.heldBy(table, row);
    const int key = all.at(page.values().row(row).filePath);
    return key < 0 ? std::vector<int>() : std::vector<int>{key};
}

review::Hit ConfigurationReview::settingAt(const QString& path) const
{
    for (int table = 0; table < FileKeys::all().tables(); ++table) {
        const TableLayout& layout = FileKeys::all().layout(table);
        const int row =
            path.startsWith(layout.prefix()) ? layout.rowAt(path.mid(layout.prefix().size())) : -1;
        if (row >= 0)
            return {.table = table, .row = row};
    }
    return {};
}

FileState ConfigurationReview::now() const
{
    FileState state = FileState::ofConfiguration(present_);
    if (isQuick_())
        state.lay(history_.pages().back()->values());
    return state;
}

// One table of the full window at a time; the quick window's values lie over all.
void ConfigurationReview::refresh(const QVector<int>& pages)
{
    for (const int page : pages)
        hold(*history_.pages()[page]);
    const bool isQuick = isQuick_();
    const bool isWhole = isQuick || isQuick != wasQuick_ || pages.size() == int(history_.pages().size());
    wasQuick_ = isQuick;
    if (isWhole) {
        const FileState state = now();
        edited_ = Differences(asItCame_, state);
        differences_ = against_ == Against::file ? edited_ : Differences(differences_.before(), state);
    } else {
        for (const int page : pages) {
            edited_.update(history_.pages()[page]->values());
            differences_.update(history_.pages()[page]->values());
        }
    }
    advice_.reset();
    Q_EMIT changed();
}

const std::vector<review::Finding>& ConfigurationReview::advice() const
{
    if (!advice_)
        advice_ = advise();
    return *advice_;
}

std::vector<review::Finding> ConfigurationReview::advise() const
{
    QHash<QString, QString> unread;
    for (const review::Stranger& stranger : asItCame_.strangers())
        unread.insert(stranger.path, stranger.text);
    if (!isQuick_())
        return review::advise(present_, unread);
    Configuration written = present_;
    XmlDocument document(QString(), QStringLiteral("DEVICE"));
    written.write(*document.root());
    history_.pages().back()->values().write(*document.root());
    document.root()->commit();
    written.read(*document.root());
    return review::advise(written, unread);
}

void ConfigurationReview::mend(const std::vector<review::Mend>& mends, const EditHistory::Words& words)
{
    history_.asOne(words, [&] {
        for (const review::Mend& mend : mends) {
            const review::Hit setting = settingAt(mend.path);
            if (PageSettings* page = pageOf(setting.table); page && setting.row >= 0)
                page->binder().set(setting.row, mend.value);
        }
    });
}

void ConfigurationReview::takeOver(const std::vector<int>& keys, const EditHistory::Words& words)
{
    history_.settle();
    takeOverFrom(differences_, keys, words);
}

void ConfigurationReview::bringBack(const std::vector<int>& keys, const EditHistory::Words& words)
{
    history_.settle();
    takeOverFrom(edited_, keys, words);
}

void ConfigurationReview::takeOverFrom(const Differences& differences, const std::vector<int>& keys,
                                       const EditHistory::Words& words)
{
    Configuration changed = configuration();
    review::takeOver(changed, differences, keys);
    history_.asOne(words, [&] {
        for (PageSettings* page : history_.pages()) {
            const auto found = std::ranges::find_if(changed.tables(), [&](const Values& values) {
                return &values.table() == &page->values().table();
            });
            if (found != changed.tables().end())
                page->putBack(found->held());
        }
        if (!isQuick_())
            return;
        XmlDocument document(QString(), QStringLiteral("DEVICE"));
        changed.write(*document.root());
        document.root()->commit();
        history_.pages().back()->load(document.root());
    });
}

} // namespace vlk
