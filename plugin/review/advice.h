#pragma once

// What contradicts itself in a configuration or is not filled in yet, across all of its pages: a sensor in
// use whose field the record lacks, two devices on one address, a server without a port. The rules are rows
// of data (advice_rules.cpp).

#include <QHash>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

namespace vlk {
class Configuration;
} // namespace vlk

namespace vlk::review {

// A hint is worth a look or waits for the user, a warning loses something, an error cannot work.
enum class Severity : std::uint8_t { Hint, Warning, Error };

struct Mend
{
    QString path;
    QString value;
};

struct Finding
{
    const char* rule = "";
    Severity severity = Severity::Hint;
    const char* text = "";   // translation key
    QStringList arguments{}; // of the text, in the language of the moment
    QStringList paths{};     // of the settings that it names; the first one is where to go
    // Which parts it speaks of where it names settings of many parts (setting_parts.h).
    std::vector<std::pair<QString, int>> parts{};
    std::vector<Mend> mends{}; // edits after which it is gone; none where only the user can know
};

// In the order of the rules. `configuration` holds the tables of allSettings(). Mends belong to the values
// that it has now: after the edits of one finding, ask anew. `unread`: what the file holds that no setting
// reads, by path.
std::vector<Finding> advise(const Configuration& configuration, const QHash<QString, QString>& unread = {});

// As a sentence, in the language of the moment.
QString adviceText(const Finding& finding);

} // namespace vlk::review
