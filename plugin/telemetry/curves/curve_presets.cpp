#include "telemetry/curves/curve_presets.h"

#include "telemetry/shown/records_memory.h"
#include "telemetry/text/item_names.h"

#include <QFile>
#include <QSettings>

namespace vlk {

namespace {

const QString kPresetArray = QStringLiteral("presets");
const QString kPresetName = QStringLiteral("name");
const QString kPresetItems = QStringLiteral("items");
const QString kChosenName = QStringLiteral("chosen/name");
const QString kChosenItems = QStringLiteral("chosen/items");

QString presetsFile()
{
    return recordsMemory("curves.ini");
}

} // namespace

const std::vector<BuiltInPreset>& builtInPresets()
{
    static const std::vector<BuiltInPreset> presets = {
        {"rec_160",
         "* LevelRS485_1..16 LevelRS232 CAN_FuelLevel.litres CAN_FuelLevel.percent CAN_LevelFiltr.litres "
         "FfsFuel Speed",
         "Module1.7 StateIn1..3.0..7"},
        {"rec_161", "Power Reserv StateU_Ain1..8", "State.1 State.6 Module1.7 StateIn1..3.0..7"},
        {"rec_162", "GSM StateNGauge.satellites NaviHDop", "Module1.5..6 StateNGauge.fix"},
        {"rec_163", "Temp1..8 HPrecisionTemp1..4 RefrTemp1..3 RefrTempAir CAN_Temp",
         "Module1.7 RefrState1.0 StateIn1..3.0..7"},
        {"rec_164", "Speed CAN_Speed CAN_EngineTurns CAN_EngineLoad AccelModule",
         "Module1.7 StateNGauge.fix StateIn1..3.0..7"},
    };
    return presets;
}

QStringList presetItems(const char* list)
{
    QStringList names;
    items::forEachName(list, [&](std::string_view, const items::ItemName& name, int) {
        const std::string_view text(name);
        names << QString::fromLatin1(text.data(), static_cast<int>(text.size()));
    });
    return names;
}

std::vector<CurvePreset> keptPresets()
{
    std::vector<CurvePreset> presets;
    const QString file = presetsFile();
    if (file.isEmpty() || !QFile::exists(file))
        return presets;
    QSettings store(file, QSettings::IniFormat);
    const int count = store.beginReadArray(kPresetArray);
    for (int i = 0; i < count; ++i) {
        store.setArrayIndex(i);
        presets.push_back({store.value(kPresetName).toString(), store.value(kPresetItems).toStringList()});
    }
    return presets;
}

void keepPresets(const std::vector<CurvePreset>& presets)
{
    const QString file = presetsFile();
    if (file.isEmpty())
        return;
    QSettings store(file, QSettings::IniFormat);
    store.remove(kPresetArray);
    store.beginWriteArray(kPresetArray, static_cast<int>(presets.size()));
    for (int i = 0; i < static_cast<int>(presets.size()); ++i) {
        store.setArrayIndex(i);
        store.setValue(kPresetName, presets[i].name);
        store.setValue(kPresetItems, presets[i].items);
    }
}

CurvePreset chosenCurves()
{
    const QString file = presetsFile();
    if (file.isEmpty() || !QFile::exists(file))
        return {};
    const QSettings store(file, QSettings::IniFormat);
    return {store.value(kChosenName).toString(), store.value(kChosenItems).toStringList()};
}

void keepChosenCurves(const CurvePreset& chosen)
{
    const QString file = presetsFile();
    if (file.isEmpty())
        return;
    QSettings store(file, QSettings::IniFormat);
    store.setValue(kChosenName, chosen.name);
    store.setValue(kChosenItems, chosen.items);
}

} // namespace vlk
