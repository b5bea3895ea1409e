#include "fuel/file_dialogs.h"

#include "fuel/table/fuel_file.h"
#include "fuel/table/fuel_sensors.h"
#include "windows/save_dialog.h"

#include <QFileDialog>
#include <QFileInfo>

namespace vlk {

QString askFuelFileToSave(QWidget* parent, const QString& caption, const QString& proposed,
                          const QString& suffix)
{
    SaveDialog dialog(parent, caption, fuelFolder(QFileInfo(proposed).path()), QLatin1String("*.") + suffix,
                      suffix);
    // To a name with a point in it the dialog adds none by itself.
    const QString name = QFileInfo(proposed).fileName();
    dialog.selectFile(name.contains(QLatin1Char('.')) ? name + QLatin1Char('.') + suffix : name);
    QString path = dialog.ask();
    if (!path.isEmpty())
        rememberFuelFolder(path);
    return path;
}

QString askFuelFileToLoad(QWidget* parent, const QString& folder, const QStringList& suffixes)
{
    return QFileDialog::getOpenFileName(parent, fuelWord("wrd_023"), fuelFolder(folder),
                                        QLatin1String("*.") + suffixes.join(QLatin1String(";;*.")));
}

} // namespace vlk
