#include "fuel/file_dialogs.h"

#include "fuel/table/fuel_sensors.h"

#include <QFileDialog>
#include <QFileInfo>

namespace vlk {

QString askFuelFileToSave(QWidget* parent, const QString& caption, const QString& proposed,
                          const QString& suffix)
{
    QFileDialog dialog(parent, caption, QFileInfo(proposed).path(), QLatin1String("*.") + suffix);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    // To a name with a point in it the dialog adds none by itself.
    const QString name = QFileInfo(proposed).fileName();
    dialog.setDefaultSuffix(suffix);
    dialog.selectFile(name.contains(QLatin1Char('.')) ? name + QLatin1Char('.') + suffix : name);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString askFuelFileToLoad(QWidget* parent, const QString& folder, const QString& suffix)
{
    return QFileDialog::getOpenFileName(parent, fuelWord("wrd_023"), folder, QLatin1String("*.") + suffix);
}

} // namespace vlk
