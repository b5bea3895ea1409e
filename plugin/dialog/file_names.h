#pragma once

// Names of the configuration files that the windows make.

#include "base/last_folder.h"
#include "typing/notice_bar.h"

#include <QString>

class QWidget;

namespace vlk {

// In the process's current folder, named after `part` and the time: where a configuration goes for the host
// to bring it into the tracker.
QString configurationPathToWrite(const QString& part);

// Asks the user for a file in the folder of configurations, suggesting a name made of the object's name and
// the time. A name without a suffix gets ".xml". Empty when the user cancels.
QString askConfigurationPath(QWidget* parent, const QString& objectName);

// Asks like askConfigurationPath with another question, name and kind: `filter` names the kind and `suffix`
// is what a name without one gets, as the one that is suggested. A name that is taken gets a number, so that
// what is there is not replaced by a press of Enter. It begins in the folder of the last file of that kind.
// For windows that tell themselves what became of the file: by the name of the dialog a host knows that it
// need not.
struct PathQuestion
{
    FileKind kind;
    QString caption;
    QString name;
    QString filter;
    QString suffix;
};
QString askPathToSave(QWidget* parent, const PathQuestion& question);
QString askPathToOpen(QWidget* parent, FileKind kind, const QString& caption, const QString& filter);

// Saves a whole file, readable by its owner alone where it is private. Empty when it is saved, else the
// sentence that says why not.
QString saveAsAsked(const QString& path, const QByteArray& content, bool isPrivate);
// That it is saved.
Notice savedNotice(const QString& path);

} // namespace vlk
