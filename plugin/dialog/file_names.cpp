#include "dialog/file_names.h"

#include "base/clock.h"
#include "base/file_name.h"
#include "link/device.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>

namespace vlk {

QString configurationPathToWrite(const QString& part)
{
    return QStringLiteral("%1/vlk_%2_%3.xml")
        .arg(QDir::currentPath(), part, now().toString(QStringLiteral("d-MM-yy-H-m")));
}

QString askConfigurationPath(QWidget* parent, const QString& objectName)
{
    if (!vlkDevice)
        return {};
    const QString name = asFileName(objectName, QStringLiteral("_"));
    const QString suggested =
        QStringLiteral("%1/%2(%3).xml")
            .arg(vlkDevice->xmlFolder(), name, now().toString(QStringLiteral("dd-MM-yy hh_mm_ss")));
    const auto text = [](const char* key) { return QCoreApplication::translate("vlk", key); };
    QFileDialog dialog(parent, text("cfgwnd_003"), suggested,
                       QStringLiteral("%1 XML (*.xml)").arg(text("cfgwnd_004")));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    // Set in the dialog, so that it asks about the file with the suffix before it is replaced.
    dialog.setDefaultSuffix(QStringLiteral("xml"));
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace vlk
