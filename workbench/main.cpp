#include "typing/file_error.h"
#include "window/command_line.h"
#include "window/configuration_tour.h"
#include "window/data_folder.h"
#include "window/display_guard.h"
#include "window/end_signals.h"
#include "window/files_tour.h"
#include "window/fuel_tour.h"
#include "window/house_style.h"
#include "window/installed_files.h"
#include "window/line_icon.h"
#include "window/quick_tour.h"
#include "window/settings.h"
#include "window/telemetry_tour.h"
#include "window/tour.h"

#include <QApplication>
#include <QMessageBox>
#include <QTextCodec>
#include <QTimer>

#include <cstdio>
#include <memory>

namespace {

constexpr int kFailed = 1;

void nameApplication()
{
    QCoreApplication::setApplicationName(QStringLiteral("vlk-workbench"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VLK_VERSION));
}

// In a locale without letters beyond ASCII the paths of files with such names would not survive.
void useUtf8InPlaceOfAscii()
{
    const QByteArray name = QTextCodec::codecForLocale()->name();
    if (name == "US-ASCII" || name == "ANSI_X3.4-1968" || name == "ISO-8859-1")
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

// Help, version and complaints need no display. The sentence about a missing one is found here too, because
// it cannot be looked up while the application is in the making.
workbench::CommandLine readCommandLine(int& argc, char* argv[], QString& noDisplay)
{
    const QCoreApplication application(argc, argv);
    nameApplication();
    useUtf8InPlaceOfAscii();
    workbench::Languages languages;
    languages.set(workbench::CommandLine::languageOf(QCoreApplication::arguments())
                      .value_or(workbench::Languages::ofSystem()));
    noDisplay = workbench::text("wb_no_display").arg(QCoreApplication::arguments().value(0));
    workbench::CommandLine line = workbench::CommandLine::parse(QCoreApplication::arguments());
    // Nobody looks at a tour, so it asks for no display unless it is told which.
    if (!line.tour.isEmpty() && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (line.exitCode)
        std::fprintf(*line.exitCode == 0 ? stdout : stderr, "%s\n", qPrintable(line.message.trimmed()));
    return line;
}

// Without a usable data folder there is nothing to run with.
int complain(const workbench::DataFolder& folder, bool withBox)
{
    const QString sentence =
        folder.isInUse() ? workbench::text("wb_data_in_use").arg(folder.error())
                         : workbench::text("wb_data_unwritable").arg(vlk::fileErrorText(folder.error()));
    std::fprintf(stderr, "%s\n", qPrintable(sentence));
    if (withBox)
        QMessageBox::warning(nullptr, workbench::text("wb_title"), sentence);
    return kFailed;
}

std::unique_ptr<QApplication> makeApplication(int& argc, char* argv[], const QString& noDisplay)
{
    const workbench::DisplayGuard guard(noDisplay, kFailed);
    return std::make_unique<QApplication>(argc, argv);
}

bool runTour(workbench::WorkbenchWindow& window, const QString& folder)
{
    workbench::Tour tour(window, folder);
    tour.add(workbench::configurationTour());
    tour.add(workbench::quickTour());
    tour.add(workbench::telemetryTour());
    tour.add(workbench::fuelTour());
    tour.add(workbench::filesTour());
    return tour.run();
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QString noDisplay;
    const workbench::CommandLine line = readCommandLine(argc, argv, noDisplay);
    if (line.exitCode)
        return *line.exitCode;

    const auto application = makeApplication(argc, argv, noDisplay);
    nameApplication();
    workbench::HouseStyle::setUp();
    QApplication::setWindowIcon(workbench::applicationIcon());

    // A tour leaves the user's own tracker alone.
    const QTemporaryDir tourData;
    const bool isTour = !line.tour.isEmpty();
    const workbench::DataFolder folder(isTour && line.data.isEmpty() ? tourData.path() : line.data);
    workbench::Languages languages;
    if (!folder.isUsable()) {
        languages.set(line.language.value_or(workbench::Languages::ofSystem()));
        return complain(folder, !isTour);
    }
    workbench::Settings settings(folder.settingsFile());
    settings.setForThisRun(line.language, line.mode);
    languages.set(settings.language());
    workbench::apply(settings.appearance());

    workbench::WorkbenchWindow window(folder, settings, languages);
    window.show();
    const bool started = window.start(workbench::pluginPath());
    if (folder.isTemporary())
        window.tellOfRun(
            [&] { return workbench::text("wb_data_temporary").arg(vlk::fileErrorText(folder.error())); });
    else if (settings.wasDamaged() && started)
        window.tellOfRun([] { return workbench::text("wb_settings_damaged"); });

    if (isTour) {
        // It drives the file dialogs by the names of their widgets.
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        const bool good = runTour(window, line.tour);
        window.close();
        return good ? 0 : kFailed;
    }
    if (!line.open.isEmpty() && started)
        QTimer::singleShot(0, &window, [&] { window.openFile(line.open); });
    const workbench::EndSignals endSignals(window);
    return QApplication::exec();
}
