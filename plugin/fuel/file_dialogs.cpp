#include "fuel/file_dialogs.h"

#include "fuel/table/fuel_file.h"
#include "fuel/table/fuel_sensors.h"

#include <QFileDialog>
#include <QFileInfo>

namespace vlk {

QString askFuelFileToSave(QWidget* parent, const QString& caption, const QString& proposed,
                          const QString& suffix)
{
    QFileDialog dialog(parent, caption, fuelFolder(QFileInfo(proposed).path()), QLatin1String("*.") + suffix);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    // To a name with a point in it the dialog adds none by itself.
    const QString name = QFileInfo(proposed).fileName();
    dialog.setDefaultSuffix(suffix);
    dialog.selectFile(name.contains(QLatin1Char('.')) ? name + QLatin1Char('.') + suffix : name);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    QString path = dialog.selectedFiles().value(0);
    rememberFuelFolder(path);
    return path;
}

QString askFuelFileToLoad(QWidget* parent, const QString& folder, const QStringList& suffixes)
{
    return QFileDialog::getOpenFileName(parent, fuelWord("wrd_023"), fuelFolder(folder),
                                        QLatin1String("*.") + suffixes.join(QLatin1String(";;*.")));
}

} // namespace vlk
