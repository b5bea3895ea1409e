#include "dialog/file_names.h"

#include "base/clock.h"
#include "base/file_name.h"
#include "base/replace_file.h"
#include "link/device.h"
#include "typing/file_error.h"
#include "windows/save_dialog.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>

namespace vlk {

namespace {

// Files may be carried to a system that does not tell the case of letters.
QString freeName(const QString& folder, const PathQuestion& question)
{
    const QStringList taken = QDir(folder).entryList();
    QString free = question.name;
    for (int number = 2; taken.contains(free + QLatin1Char('.') + question.suffix, Qt::CaseInsensitive);
         ++number)
        free = QStringLiteral("%1 (%2)").arg(question.name, QString::number(number));
    return free;
}

} // namespace

QString configurationPathToWrite(const QString& part)
{
    return QStringLiteral("%1/vlk_%2_%3.xml")
        .arg(QDir::currentPath(), part, now().toString(QStringLiteral("d-MM-yy-H-m")));
}

QString askConfigurationPath(QWidget* parent, const QString& objectName)
{
    if (!vlkDevice)
        return {};
    const auto text = [](const char* key) { return QCoreApplication::translate("vlk", key); };
    const QString path = QStringLiteral("%1/%2(%3).xml")
                             .arg(vlkDevice->xmlFolder(), asFileName(objectName, QStringLiteral("_")),
                                  now().toString(QStringLiteral("dd-MM-yy hh_mm_ss")));
    SaveDialog dialog(parent, text("cfgwnd_003"), path,
                      QStringLiteral("%1 XML (*.xml)").arg(text("cfgwnd_004")), QStringLiteral("xml"));
    return dialog.ask();
}

QString askPathToSave(QWidget* parent, const PathQuestion& question)
{
    if (!vlkDevice)
        return {};
    const QString folder = lastFolder(question.kind, vlkDevice->xmlFolder());
    SaveDialog dialog(parent, question.caption,
                      QStringLiteral("%1/%2.%3").arg(folder, freeName(folder, question), question.suffix),
                      question.filter, question.suffix);
    dialog.setObjectName(QStringLiteral("fileDialog_Told"));
    QString path = dialog.ask();
    if (!path.isEmpty())
        rememberFolder(question.kind, path);
    return path;
}

QString askPathToOpen(QWidget* parent, FileKind kind, const QString& caption, const QString& filter)
{
    QString path = QFileDialog::getOpenFileName(
        parent, caption, lastFolder(kind, vlkDevice ? vlkDevice->xmlFolder() : QString()), filter);
    if (!path.isEmpty())
        rememberFolder(kind, path);
    return path;
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
    return {Mark::Right, text.arg(QDir::toNativeSeparators(path)), {}};
}

} // namespace vlk
