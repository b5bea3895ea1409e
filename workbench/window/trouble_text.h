#pragma once

// What went wrong, in words for the user: whole sentences in the language in use.

#include "check/configuration_check.h"
#include "check/record_check.h"
#include "check/telemetry_file_check.h"

#include <QDateTime>

#include <initializer_list>

namespace workbench {

class Backups;

// Sentences side by side; empty ones are left out.
QString sentences(std::initializer_list<QString> parts);

// Why an answer or a file is said to be no configuration, or to hold no telemetry.
QString reasonOf(const ConfigurationProblem& problem);
// Which backup cannot be read as a configuration of the model, and why; empty where it can.
QString damageOf(const Backups& backups, int backup, const QString& model);
QString reasonOf(const TelemetryFileProblem& problem);
// A few words without a full stop, for a list.
QString noteOn(const AnswerProblem& problem);

// Whether there was no room on the disk, from the words of the system.
bool isAboutRoom(const QString& systemText);
// What to do about a file that could not be saved for this reason.
QString adviceOnDisk(const QString& systemText);

// A whole number as the language writes it, a moment and its time of day.
QString number(qint64 value);
QString moment(const QDateTime& time);
QString timeOfDay(const QDateTime& time);

} // namespace workbench
