// Any document through the settings alone and through the windows: both make the same file of it, the widgets
// show what it holds, and what was saved is loaded and saved as it stands.

#include "dialog/config_pages.h"
#include "dialog/form_config_light.h"
#include "dialog/widget_config_full.h"
#include "review/difference_text.h"
#include "review/preset.h"
#include "settings/all_settings.h"
#include "settings/quick_settings.h"
#include "support/device.h"
#include "support/disagreements.h"
#include "support/setting_samples.h"

#include <QApplication>
#include <QLoggingCategory>

#include <cstdlib>

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

QByteArray throughTheWindow(VLK_Widget_Config_Full& window, const QByteArray& file)
{
    window.setDefaults();
    vlk::XmlDocument in(file, "DEVICE");
    vlk::XmlDocument out(QString(), "DEVICE");
    window.pages().forEach([&](auto& page) {
        page.loadFromXml(in.root());
        page.saveToXml(out.root());
        require(disagreements(page.settings().binder()).isEmpty());
    });
    return out.text();
}

QByteArray throughTheWindow(VLK_Form_Config_Light& form, const QByteArray& file)
{
    form.setDefaults();
    vlk::XmlDocument in(file, "DEVICE");
    vlk::XmlDocument out(QString(), "DEVICE");
    form.loadFromXml(in.root());
    form.saveToXml(out.root());
    require(disagreements(form.settings().binder()).isEmpty());
    return out.text();
}

template <class Window, class Settings>
void holdAgainst(Window& window, Settings& settings, const QByteArray& file)
{
    const QByteArray alone = readAndWritten(settings, file);
    require(throughTheWindow(window, file) == alone);
    const QByteArray again = savedAgain(settings, alone);
    require(readAndWritten(settings, again) == again);
    require(throughTheWindow(window, alone) == again);
}

// What the load did to it, told, taken back, and laid over another configuration.
void review(const QByteArray& file)
{
    vlk::XmlDocument document(file, "DEVICE");
    vlk::Configuration loaded(vlk::allSettings());
    loaded.read(*document.root());
    const vlk::review::Differences differences(vlk::review::FileState::ofDocument(*document.root()),
                                               vlk::review::FileState::ofConfiguration(loaded));
    std::vector<int> keys;
    for (const vlk::review::Difference& difference : differences.all()) {
        const int table = difference.key < 0 ? 0 : vlk::review::FileKeys::all()[difference.key].table;
        textOf(differences, difference, loaded.tables()[table]);
        if (difference.key >= 0)
            keys.push_back(difference.key);
    }
    takeOver(loaded, differences.before(), withNeeded(differences, keys));
    vlk::review::applied(*document.root(), loaded);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QApplication application(*argc, *argv);
    QLoggingCategory::setFilterRules("vlk.xml=false");
    device().initialize(nullptr);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static VLK_Widget_Config_Full window;
    static vlk::Configuration configuration(vlk::allSettings());
    const QByteArray file(reinterpret_cast<const char*>(data), static_cast<int>(size));
    holdAgainst(window, configuration, file);
    static VLK_Form_Config_Light form;
    static vlk::Values quick(vlk::kQuickSettings);
    holdAgainst(form, quick, file);
    review(file);
    return 0;
}
