// One setting of each file.

#include "command/commands.h"

#include "command/configuration_input.h"
#include "command/each_file.h"
#include "command/file_names.h"
#include "command/json_line.h"
#include "review/file_state.h"
#include "review/preset.h"
#include "review/value_text.h"
#include "settings/all_settings.h"
#include "window/languages.h"
#include "xml/xml_document.h"

#include <QFileInfo>

namespace workbench::command {

using vlk::review::FileKeys;
using vlk::review::FileState;
using vlk::review::Held;

namespace {

struct Setting
{
    QString value;
    QString words;
    bool isLacking;
};

Setting settingAt(int key, vlk::XmlDocument& document, const Call& call)
{
    vlk::Configuration configuration(vlk::allSettings());
    configuration.read(*document.root());
    const Held held = FileState::ofDocument(*document.root(), configuration).at(key);
    const Held missing = FileState::ofDefaults(configuration).at(key);
    const vlk::review::FileKey& place = FileKeys::all()[key];
    const int row = held.isThere ? held.row : missing.isThere ? missing.row : place.rows.front();
    const vlk::Values& values = configuration.tables()[place.table];
    const vlk::Setting& setting = values.setting(values.holder(row));

    Setting found{held.meaning, {}, !held.isThere};
    if (found.isLacking)
        found.value = missing.isThere ? missing.meaning : loadDefault(values.setting(row));
    const bool isHidden = values.row(row).base->secret && !call.secrets && !found.value.isEmpty();
    found.words = isHidden                        ? valueText(values, row, found.value)
                  : held.isThere && !held.isWhole ? found.value
                                                  : valueText(setting, found.value, values.unitKey(row));
    if (isHidden)
        found.value = found.words;
    if (found.value.isNull())
        found.value = QStringLiteral("");
    return found;
}

} // namespace

int get(const Call& call, Output& output)
{
    const QString path = call.settings.first();
    const int key = FileKeys::all().at(path);
    if (key < 0) {
        writeError(complaint(QStringLiteral("r7106"), text("cli_030").arg(path)));
        return Failed;
    }
    const bool isAlone = call.files.size() == 1 && !QFileInfo(call.files.first()).isDir();
    const auto told = [&](const File& file, const Setting& setting) {
        if (call.json)
            return JsonLine()
                .add("file", readable(file.name))
                .add("path", path)
                .add("value", setting.value)
                .add("text", setting.words)
                .addRaw("lacking", setting.isLacking ? "true" : "false")
                .line();
        const QString line =
            isAlone ? setting.value
                    : inOneLine(file.name) + QStringLiteral(": ") + valueInOneLine(setting.value);
        return (line + QLatin1Char('\n')).toUtf8();
    };
    return eachFile(
        call.files,
        [&](const File& file) {
            return withConfiguration(call, file, [&](const QByteArray&, vlk::XmlDocument& document) {
                const Setting setting = settingAt(key, document, call);
                // It leaves alone what it lacks: a default would be no value of it.
                if (setting.isLacking && vlk::review::saysPreset(*document.root()))
                    return refusal(call, file.name, text("cli_332"));
                return Outcome{told(file, setting), {}, Nothing};
            });
        },
        output);
}

} // namespace workbench::command
