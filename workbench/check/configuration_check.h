#pragma once

// Whether bytes are a whole configuration of a model: XML in the encoding that it declares, with one root
// DEVICE. The plug-in takes what it cannot read for an empty configuration and says nothing, so whoever hands
// it one asks here first.
//
// Nothing of the content is looked at but the model. A document without a model passes: files of other tools
// lack it.

#include <QByteArray>
#include <QString>

#include <optional>

namespace workbench {

struct ConfigurationProblem
{
    enum Kind {
        Empty,
        TooLarge,
        CutShort, // the bytes end before the document does
        Damaged,  // the markup breaks off or makes no sense
        ForeignRoot,
        ForeignModel
    };

    Kind kind;
    qint64 bytes;  // that there are
    qint64 line;   // where it shows, from 1
    qint64 column; // of the last sign that was read, from 1
    QString found; // the root or the model that is there instead
};

// Bytes; the plug-in reads no more.
inline constexpr qint64 kLargestConfiguration = 4'000'000;

// None for a whole configuration.
std::optional<ConfigurationProblem> checkConfiguration(const QByteArray& document, const QString& model);

} // namespace workbench
