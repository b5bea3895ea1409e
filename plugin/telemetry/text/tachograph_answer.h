#pragma once

// What a tachograph tells through the tracker, as the lines of text that people read. An answer is a byte
// array whose byte 6 is its kind: 0 the state of a file, 1 the state of the tachograph, 3 and 4 the cards of
// the two drivers, 5 the tachograph's own data. Other kinds are ignored, and so is an answer without a kind.
// An answer that is shorter than its layout gives the lines whose bytes are there.
//
// Lines are rich text; what comes from the tracker is escaped in them. Times are local.

#include <QByteArray>
#include <QDateTime>
#include <QStringList>

#include <optional>

namespace vlk {

struct TachographAnswer
{
    enum class Subject { Nothing, Question, File };

    Subject subject = Subject::Nothing;
    QStringList lines;
    // The name of a file that is ready to be fetched, with file answers that say so.
    std::optional<QString> readyFile;
};

// `time` is the moment that lines about files carry.
TachographAnswer tachographAnswer(const QByteArray& answer, const QDateTime& time);

// The line for the end of fetching a file.
QString tachographFetchedLine(bool done);

} // namespace vlk
