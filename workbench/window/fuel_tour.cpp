#include "window/fuel_tour.h"

#include "tracker/simulated_tracker.h"
#include "tracker/tank.h"
#include "window/languages.h"
#include "window/live_telemetry.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QTabWidget>
#include <QTableWidget>
#include <QTextEdit>

#include <cmath>

namespace workbench {

namespace {

constexpr std::size_t kTank = 5; // D5, a saddle
constexpr int kTab = 4;          // the same sensor among those of RS-485
constexpr int kPours[] = {0, 20, 50};
constexpr int kTrackerTab = 2;

QWidget* window()
{
    return Tour::find<QLineEdit>("lineEdit_Title")->window();
}

template <class Widget>
Widget* inForm(const char* name)
{
    const QString sensor = QLatin1String(tracker::kTanks[kTank].sensor);
    auto* form = window()->findChild<QWidget*>(sensor);
    auto* widget = form ? form->findChild<Widget*>(QLatin1String(name)) : nullptr;
    Tour::expect(widget, QStringLiteral("no %1 for %2").arg(QLatin1String(name), sensor));
    return widget;
}

QString content(const Tour& tour, const QString& name)
{
    QFile file(tour.folder().filePath(name));
    Tour::expect(file.open(QIODevice::ReadOnly), QStringLiteral("%1 was not saved").arg(name));
    return QString::fromLatin1(file.readAll());
}

void openCalibration(Tour& tour)
{
    live::open(tour);
    live::showFunctions();
    Tour::press("pushButton_FuelSensor");
    auto* groups = window()->findChild<QTabWidget*>(QStringLiteral("tabWidget"));
    groups->setCurrentIndex(1);
    qobject_cast<QTabWidget*>(groups->currentWidget())->setCurrentIndex(kTab);
    Tour::find<QTabWidget>("tabWidget_Main")->setCurrentIndex(kTrackerTab);
    Tour::find<QComboBox>("comboBox_Tank")->setCurrentIndex(kTank);
    Tour::press("pushButton_Drain");
}

// A pour, a value that has come to rest, a point.
void calibrate(Tour& tour)
{
    const tracker::Tank& tank = tracker::kTanks[kTank];
    const auto* value = inForm<QLineEdit>("lineEdit_Param");
    int litres = 0;
    for (const int pour : kPours) {
        if (pour > 0)
            Tour::press(qPrintable(QStringLiteral("pushButton_Pour_%1").arg(pour)));
        litres += pour;
        const double wanted = tracker::sensorValue(tank, tracker::fuelHeight(tank, litres));
        constexpr double tolerance = 25;
        const auto atRest = [wanted](double reading) { return std::abs(reading - wanted) < tolerance; };
        // The window may still show what was there before the tracker's first answer.
        tour.waitFor([&] { return atRest(tour.window().session().tracker().fuelReading(kTank)); },
                     QStringLiteral("a sensor at rest"), 30'000);
        tour.waitFor([&] { return !value->text().isEmpty() && atRest(value->text().toDouble()); },
                     QStringLiteral("its live value"));
        inForm<QLineEdit>("lineEdit_Volume")->setText(QString::number(litres));
        inForm<QAbstractButton>("pushButton_Add")->click();
    }
    Tour::expect(inForm<QTableWidget>("tableWidget")->rowCount() == static_cast<int>(std::size(kPours)),
                 QStringLiteral("the table has not all points"));
    tour.picture(QStringLiteral("tank.png"), &tour.window());
    for (const QString& code : Languages::codes()) {
        tour.window().setLanguage(code);
        tour.picture(QStringLiteral("calibration-%1.png").arg(code), window());
    }
}

void save(Tour& tour, const char* button, const QString& name)
{
    const QString path = tour.folder().filePath(name);
    tour.whenModal<QFileDialog>([path](QFileDialog& dialog) { Tour::giveName(dialog, path); });
    Tour::press(button);
}

void saveTables(Tour& tour)
{
    inForm<QLineEdit>("lineEdit_Name")->setText(QStringLiteral("Tank 5"));
    save(tour, "pushButton_Save_Excel", QStringLiteral("calibration.csv"));
    Tour::expect(content(tour, QStringLiteral("calibration.csv")).count(QStringLiteral("\r\n")) ==
                     1 + static_cast<int>(std::size(kPours)),
                 QStringLiteral("the CSV file has not a line a point"));
    save(tour, "pushButton_Save_Xml", QStringLiteral("calibration.xml"));
    Tour::expect(content(tour, QStringLiteral("calibration.xml")).contains(QStringLiteral("param_U=\"70\"")),
                 QStringLiteral("the XML file lacks the last point"));
}

// The dialog of the toolkit has a printer that writes PDF files.
void printReport(Tour& tour)
{
    Tour::press("pushButton_Print");
    auto* report = Tour::find<QTextEdit>("textEdit_Report");
    for (const QString& code : Languages::codes()) {
        tour.window().setLanguage(code);
        report->window()->close();
        window()->findChild<QAbstractButton*>(QStringLiteral("pushButton_Print"))->click();
        tour.picture(QStringLiteral("calibration-report-%1.png").arg(code), report->window());
    }
    const QString path = tour.folder().filePath(QStringLiteral("calibration.pdf"));
    QFile::remove(path);
    tour.whenModal<QDialog>([path](QDialog& dialog) {
        auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("filename"));
        Tour::expect(dialog.inherits("QPrintDialog") && name, QStringLiteral("this is no print dialog"));
        name->setText(path);
        dialog.accept();
    });
    report->window()->findChild<QAbstractButton*>(QStringLiteral("pushButton_Print"))->click();
    Tour::expect(content(tour, QStringLiteral("calibration.pdf")).startsWith(QStringLiteral("%PDF")),
                 QStringLiteral("the report is no PDF file"));
    report->window()->close();
    window()->close();
    live::close(tour);
}

} // namespace

std::vector<Tour::Step> fuelTour()
{
    return {
        {QStringLiteral("open the calibration window"), openCalibration},
        {QStringLiteral("calibrate a tank"), calibrate},
        {QStringLiteral("save the calibration"), saveTables},
        {QStringLiteral("print the calibration report"), printReport},
    };
}

} // namespace workbench
