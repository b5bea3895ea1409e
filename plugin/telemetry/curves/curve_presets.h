#pragma once

// Which curves and bands are shown together: those that come with the program, and the user's own, which are
// kept in the host's folder of configurations. Without such a folder nothing is kept.

#include <QStringList>

#include <vector>

namespace vlk {

struct CurvePreset
{
    QString name; // shown; that of a built-in one in the language in use
    QStringList items;
};

// Names of items apart by blanks; "*" stands for computed columns.
struct BuiltInPreset
{
    const char* title;
    const char* curves;
    const char* states;
};

const std::vector<BuiltInPreset>& builtInPresets();
// The names of a list, families such as "Temp1..8" spelled out.
QStringList presetItems(const char* list);

std::vector<CurvePreset> keptPresets();
void keepPresets(const std::vector<CurvePreset>& presets);

// What the user chose last: the title of a built-in preset, the name of an own one, or items alone.
CurvePreset chosenCurves();
void keepChosenCurves(const CurvePreset& chosen);

} // namespace vlk
