#pragma once

// The files that the plug-in wanted to be written, from that moment until the tracker holds what is in them:
// taken aside into a folder of their own, each under a name that nothing else takes, since the plug-in names
// its files by the minute; by their names they lie in the order of time. Passwords stand in them: only their
// owner can read them.

#include <QDateTime>
#include <QString>

namespace workbench {

class UnwrittenFiles
{
public:
    // Made with the first file.
    explicit UnwrittenFiles(const QString& folder) : folder_(folder) {}

    struct Taken
    {
        QString file; // where it is from now on; where it cannot be moved, it stays where it is
        bool wasThere = false;
    };
    // With what is in it, which is kept once, however often it was to be written.
    Taken take(const QString& path, const QByteArray& document, const QDateTime& now) const;
    // The tracker holds this: all files of it have done their work.
    void drop(const QByteArray& document) const;
    // Those that nobody has come back to for three months.
    void dropOld(const QDateTime& now) const;

private:
    QString folder_;
};

} // namespace workbench
