#pragma once

// Where a command writes to: standard output, or a file that is there as a whole once the command is through.

#include <QFile>

#include <memory>

namespace workbench::command {

class Output
{
public:
    // Who may read the file: others as far as its folder and the system say, or its owner alone.
    enum class Readers { Usual, Owner };

    // Empty, or "-": standard output.
    Output(const QString& name, Readers readers);
    // Where the texts are gone: the complaint, with a place for the reason.
    Output(const QString& name, Readers readers, const QString& complaint);

    // Whether a file could be put in its place now; if not, close() tells why.
    bool isReachable();
    void write(const QByteArray& bytes);
    // What holds nothing that could be masked, and much of it.
    void writeRecords(const QByteArray& bytes);
    // Puts the file in its place. False with a complaint when not everything could be written.
    bool close();

    // Nothing is to be written after all; a file stays as it was.
    void drop() { isDropped_ = true; }

    bool isFile() const { return !name_.isEmpty(); }
    // A file that spreadsheets open: they look for a mark in front of UTF-8.
    bool isSpreadsheet() const { return name_.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive); }
    // A file that could be written, and nothing is in it.
    bool isEmptyFile() const { return isFile() && fault_.isEmpty() && kept_->size() == 0; }
    // Something that is masked was written.
    bool hasMask() const { return hasMask_; }

private:
    void open();
    void takeError();
    void putInPlace();

    QString name_;
    Readers readers_;
    QString complaint_;
    // Where the output is collected: beside the file, without a name, or where that cannot be among the
    // temporary files. Null for standard output.
    std::unique_ptr<QFile> kept_;
    bool isBeside_ = false;
    QString fault_;
    bool isDropped_ = false;
    bool hasMask_ = false;
};

// A line on standard error, or on standard output for a program that reads: "NAME: TEXT".
QByteArray complaint(const QString& name, const QString& text);
QByteArray complaintAsJson(const QString& name, const QString& text);

void writeError(const QByteArray& lines);

} // namespace workbench::command
