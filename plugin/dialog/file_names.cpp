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

QString askPath(QWidget* parent, const PathQuestion& question, const QString& dialogName)
{
    if (!vlkDevice)
        return {};
    QFileDialog dialog(parent, question.caption, vlkDevice->xmlFolder() + QLatin1Char('/') + question.name,
                       question.filter);
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
    const QString name = QStringLiteral("%1(%2).xml")
                             .arg(asFileName(objectName, QStringLiteral("_")),
                                  now().toString(QStringLiteral("dd-MM-yy hh_mm_ss")));
    return askPath(parent,
                   {text("cfgwnd_003"), name, QStringLiteral("%1 XML (*.xml)").arg(text("cfgwnd_004")),
                    QStringLiteral("xml")},
                   {});
}

QString askPathToSave(QWidget* parent, const PathQuestion& question)
{
    return askPath(parent, question, QStringLiteral("fileDialog_Told"));
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
