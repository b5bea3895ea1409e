#pragma once

// What is to be said of a configuration beside its changes, in the words of the plug-in.

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>
#include <optional>

namespace workbench {

struct SettingAdvice
{
    bool isError = false;
    QString page; // the three are empty where the text says it all
    QString group;
    QString caption;
    QString text;
    bool isTyped = false; // was not taken as it was typed: the field holds something else, which may be right

    // "Data transfer, SIM card 1, PIN: …"
    QString line() const;
};

// None when it cannot be looked at.
using Advise = std::function<std::optional<QVector<SettingAdvice>>(const QByteArray& document)>;

// What was refused while typing, a line a field, comes behind the errors and before all else. Of one field
// one sentence: an error of what it holds now says more than what was refused.
void addRefused(QVector<SettingAdvice>* advice, const QStringList& refused);

// Errors and what was refused, a line each: what a user has to look at again once it is saved or written.
QStringList toLookAt(const QVector<SettingAdvice>& advice);

} // namespace workbench
