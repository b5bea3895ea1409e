#include "dialog/panel_memory.h"

#include "base/settings_file.h"
#include "link/device.h"

#include <QFile>
#include <QSettings>

namespace vlk {

namespace {

const QString kOpen = QStringLiteral("open");
const QString kHeight = QStringLiteral("height");

QString memory()
{
    return settingsFile(vlkDevice ? vlkDevice->xmlFolder() : QString(), "review-panel.ini");
}

} // namespace

PanelMemory PanelMemory::load()
{
    PanelMemory loaded;
    const QString file = memory();
    if (file.isEmpty() || !QFile::exists(file))
        return loaded;
    const QSettings store(file, QSettings::IniFormat);
    loaded.open = store.value(kOpen, loaded.open).toInt();
    loaded.height = store.value(kHeight, loaded.height).toInt();
    return loaded;
}

void PanelMemory::save() const
{
    const QString file = memory();
    if (file.isEmpty())
        return;
    QSettings store(file, QSettings::IniFormat);
    store.setValue(kOpen, open);
    store.setValue(kHeight, height);
}

} // namespace vlk
