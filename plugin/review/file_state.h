#pragma once

// What stands at every key of a configuration file: of a document as it is, of what the next save of a
// configuration would write, or what missing keys read as. Two of them are compared by `meaning`, so that
// another spelling of a value is none.

#include "document/configuration.h"
#include "review/change.h"
#include "review/file_keys.h"

struct CXmlSection;

namespace vlk::review {

struct Held
{
    bool isThere = false;
    QString text;
    QString meaning;     // the text in the spelling of a save; as it stands where a load loses some of it
    bool isWhole = true; // it loses nothing
    // An edit takes the text as it stands and a load does not: of a period it drops whole days, and no item
    // of a list it takes for one. Windows save it all the same.
    bool isOfEdit = false;
    // What a save writes after a load, if it writes the key, and why that is not what stands here.
    bool isSaved = false;
    QString saved;
    Change change = Change::None;
    int row = -1; // the setting that holds it; of a document's key that a load passes over, the first one

    bool operator==(const Held& other) const { return isThere == other.isThere && meaning == other.meaning; }
};

// What no setting reads, and a save drops: a key, or an element without any (document_walk.h).
struct Stranger
{
    QString path;
    QString text;
};

// The sections that a save of the table empties before it writes them.
QStringList sectionsMadeAnew(const TableLayout& layout);

class FileState
{
public:
    FileState();
    // The document as it stands; `root` is its element DEVICE. Of one that could not be read nothing is
    // there.
    static FileState ofDocument(CXmlSection& root);
    // The state of a document that has been loaded already; `saved` is what a save would write then. `paths`:
    // of all keys, in the order of the document.
    static FileState ofDocument(CXmlSection& root, const Configuration& loaded);
    static FileState ofDocument(CXmlSection& root, const Configuration& loaded, const FileState& saved,
                                QStringList* paths);
    // What a save writes now.
    static FileState ofConfiguration(const Configuration& configuration);
    // What the keys that a save writes now would read as if they were missing.
    static FileState ofDefaults(const Configuration& configuration);

    const Held& at(int key) const { return held_[key]; }
    const std::vector<Stranger>& strangers() const { return strangers_; }
    // Their texts by path.
    QHash<QString, QString> unread() const;
    bool isDocument() const { return kind_ == Kind::Document; }
    bool isDefaults() const { return kind_ == Kind::Defaults; }

    // Takes the values of one of the tables of a configuration after an edit.
    void take(const Values& values);
    // Takes one key as it is there.
    void take(int key, const FileState& from) { held_[key] = from.held_[key]; }
    // Lays the quick window's values over those of the full one, as its save does.
    void lay(const Values& quick);

private:
    enum class Kind { Configuration, Document, Defaults };

    void hold(int key, int row, const QString& text);
    void takeText(int key, const QString& text, const Configuration& loaded);

    std::vector<Held> held_; // by key
    std::vector<Stranger> strangers_;
    Kind kind_ = Kind::Configuration;
};

} // namespace vlk::review
