#include "dialog/file_names.h"

#include "base/clock.h"
#include "base/file_name.h"
#include "base/replace_file.h"
#include "link/device.h"
#include "typing/file_error.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>

namespace vlk {

namespace {

// Files may be carried to a system that does not tell the case of letters.
QString freeName(const PathQuestion& question)
{
    const QStringList taken = vlkDevice ? QDir(vlkDevice->xmlFolder()).entryList() : QStringList();
    QString free = question.name;
    for (int number = 2; taken.contains(free + QLatin1Char('.') + question.suffix, Qt::CaseInsensitive);
         ++number)
        free = QStringLiteral("%1 (%2)").arg(question.name, QString::number(number));
    return free;
}

QString askPath(QWidget* parent, const PathQuestion& question, const QString& dialogName)
{
    if (!vlkDevice)
        return {};
    const QString path =
        QStringLiteral("%1/%2.%3").arg(vlkDevice->xmlFolder(), question.name, question.suffix);
    QFileDialog dialog(parent, question.caption, path, question.filter);
    dialog.setObjectName(dialogName);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    // Set in the dialog, so that it asks about the file with the suffix before it is replaced.
    dialog.setDefaultSuffix(question.suffix);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace

QString configurationPathToWrite(const QString& part)
{
    return QStringLiteral("%1/vlk_%2_%3.xml")
        .arg(QDir::currentPath(), part, now().toString(QStringLiteral("d-MM-yy-H-m")));
}

QString askConfigurationPath(QWidget* parent, const QString& objectName)
{
    const auto text = [](const char* key) { return QCoreApplication::translate("vlk", key); };
    const QString name = QStringLiteral("%1(%2)").arg(asFileName(objectName, QStringLiteral("_")),
                                                      now().toString(QStringLiteral("dd-MM-yy hh_mm_ss")));
    return askPath(parent,
                   {text("cfgwnd_003"), name, QStringLiteral("%1 XML (*.xml)").arg(text("cfgwnd_004")),
                    QStringLiteral("xml")},
                   {});
}

QString askPathToSave(QWidget* parent, const PathQuestion& question)
{
    PathQuestion free = question;
    free.name = freeName(question);
    return askPath(parent, free, QStringLiteral("fileDialog_Told"));
}

QString saveAsAsked(const QString& path, const QByteArray& content, bool isPrivate)
{
    QString reason;
    const bool isSaved =
        isPrivate ? replacePrivateFile(path, content, &reason) : replaceFile(path, content, &reason);
    return isSaved ? QString()
                   : QCoreApplication::translate("vlk", "rev_198")
                         .arg(QDir::toNativeSeparators(path), fileErrorText(reason));
}

Notice savedNotice(const QString& path)
{
    const QString text = QCoreApplication::translate("vlk", "rev_218");
    return {Mark::right, text.arg(QDir::toNativeSeparators(path)), {}};
}

} // namespace vlk
