#include "review/file_state.h"

#include "review/document_walk.h"
#include "settings/all_settings.h"
#include "xml/xml_section.h"

namespace vlk::review {

namespace {

// What settings read missing keys as, by table and row, before ranges and other rules.
const QString& plainDefault(int table, int row)
{
    static thread_local std::vector<std::vector<QString>> texts(FileKeys::all().tables());
    std::vector<QString>& own = texts[table];
    const TableLayout& layout = FileKeys::all().layout(table);
    own.resize(layout.rows.size());
    // Some of them are texts of the present language or of the model.
    const auto* text = layout.rows[row].setting->as<Text>();
    if (own[row].isNull() || (text && text->load.follows()))
        own[row] = loadDefault(*layout.rows[row].setting);
    return own[row];
}

Taken takenAs(const Values& values, int row, const QString& text, Source source = Source::File)
{
    const int holder = values.holder(row);
    return takenAs(values.setting(holder), {text, values.value(holder), values.limits(holder), source});
}

QString defaultOf(const Values& values, int table, int row)
{
    const QString& text = plainDefault(table, row);
    const QString now = values.written(row);
    return text == now ? now : takenAs(values, row, text).value;
}

} // namespace

QStringList sectionsMadeAnew(const TableLayout& layout)
{
    QStringList sections;
    for (const TableLayout::Element& element : layout.elements) {
        if (element.path.size() == 1 && element.group->save != ElementSave::KeepsOthers)
            sections << element.path.first();
    }
    return sections;
}

FileState::FileState() : held_(FileKeys::all().count()) {}

FileState FileState::ofConfiguration(const Configuration& configuration)
{
    FileState state;
    for (const Values& values : configuration.tables())
        state.take(values);
    return state;
}

FileState FileState::ofDefaults(const Configuration& configuration)
{
    FileState state;
    state.kind_ = Kind::Defaults;
    for (const Values& values : configuration.tables())
        state.take(values);
    return state;
}

FileState FileState::ofDocument(CXmlSection& root)
{
    if (!root.document())
        return {};
    Configuration loaded(allSettings());
    loaded.read(root);
    return ofDocument(root, loaded);
}

FileState FileState::ofDocument(CXmlSection& root, const Configuration& loaded)
{
    QStringList paths;
    return ofDocument(root, loaded, ofConfiguration(loaded), &paths);
}

FileState FileState::ofDocument(CXmlSection& root, const Configuration& loaded, const FileState& saved,
                                QStringList* paths)
{
    FileState state = saved;
    state.kind_ = Kind::Document;
    for (Held& held : state.held_) {
        held.isThere = false;
        held.text = held.meaning = QString();
        held.change = held.isSaved ? Change::Missing : Change::None;
    }
    eachKey(root, [&](const QString& path, const QString& text) {
        paths->append(path);
        const int key = FileKeys::all().at(path);
        if (key < 0)
            state.strangers_.push_back({path, text});
        else if (!state.held_[key].isThere)
            state.takeText(key, text, loaded);
    });
    return state;
}

QHash<QString, QString> FileState::unread() const
{
    QHash<QString, QString> unread;
    for (const Stranger& stranger : strangers_)
        unread.insert(stranger.path, stranger.text);
    return unread;
}

void FileState::takeText(int key, const QString& text, const Configuration& loaded)
{
    Held& held = held_[key];
    if (held.row < 0)
        held.row = FileKeys::all()[key].rows.front();
    const Values& values = loaded.tables()[FileKeys::all()[key].table];
    const Taken taken = takenAs(values, held.row, text);
    held.isThere = true;
    held.text = text;
    held.isWhole = isWhole(taken.change);
    held.isOfEdit = !held.isWhole && takenAs(values, held.row, text, Source::Edit).value == text;
    held.meaning = held.isWhole ? taken.value : text;
    const bool isRuled = held.isWhole && held.isSaved && held.saved != held.meaning;
    held.change = isRuled ? Change::ByRule : taken.change;
}

void FileState::take(const Values& values)
{
    const int table = FileKeys::all().tableOf(values.table());
    if (table < 0)
        return;
    for (int key = FileKeys::all().firstOf(table); key < FileKeys::all().firstOf(table + 1); ++key)
        held_[key] = {};
    for (int row = 0; row < values.count(); ++row) {
        const int key = FileKeys::all().of(table, row);
        if (key < 0 || !values.isWritten(row))
            continue;
        hold(key, row, isDefaults() ? defaultOf(values, table, row) : values.written(row));
    }
}

// Holds the text as it stands, as a load and a save would leave it.
void FileState::hold(int key, int row, const QString& text)
{
    Held& held = held_[key];
    held.row = row;
    held.isThere = held.isSaved = true;
    held.text = held.meaning = held.saved = text;
}

void FileState::lay(const Values& quick)
{
    for (const QString& section : sectionsMadeAnew(quick.layout())) {
        for (int table = 0; table < FileKeys::all().tables(); ++table) {
            if (FileKeys::all().layout(table).section != section)
                continue;
            for (int key = FileKeys::all().firstOf(table); key < FileKeys::all().firstOf(table + 1); ++key)
                held_[key] = {};
        }
    }
    strangers_.clear();
    for (int row = 0; row < quick.count(); ++row) {
        const TableLayout::Row& place = quick.row(row);
        if (!quick.isWritten(row) || place.key == QLatin1String("page"))
            continue;
        const int key = FileKeys::all().at(place.filePath);
        if (key < 0) {
            strangers_.push_back({place.filePath, quick.written(row)});
            continue;
        }
        const Held& held = held_[key];
        const bool keepsText = place.base->onSave == OnSave::Document && held.isThere;
        hold(key, held.row < 0 ? FileKeys::all()[key].rows.front() : held.row,
             keepsText ? quick.written(row, held.text) : quick.written(row));
    }
}

} // namespace vlk::review
