#include "window/telemetry_tour.h"

#include "tracker/simulated_tracker.h"

#include <QAbstractButton>
#include <QLabel>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTextEdit>

namespace {

constexpr const char* kNumber = "label_Event_NumPage_Value";

void expect(bool condition, const QString& otherwise)
{
    if (!condition)
        throw TourFailure(otherwise);
}

QString recordNumber()
{
    return Tour::find<QLabel>(kNumber)->text();
}

QWidget* view()
{
    return Tour::find<QLabel>(kNumber)->window();
}

QString pageOnShow()
{
    return view()->findChild<QStackedWidget*>(QStringLiteral("stackedWidget"))->currentWidget()->objectName();
}

void press(const char* button)
{
    Tour::find<QAbstractButton>(button)->click();
}

void openTelemetry(Tour& tour)
{
    tour.window().setLanguage(QStringLiteral("ru"));
    tour.window().session().liveTelemetry();
    tour.waitFor([] { return Tour::findVisible(kNumber) && pageOnShow() == QLatin1String("page_Zeta3"); },
                 QStringLiteral("a record in the telemetry window"));
}

void photographTabs(Tour& tour, const QString& stem)
{
    auto* page = view()->findChild<QWidget*>(QStringLiteral("page_Zeta3"));
    auto* tabs = page->findChild<QTabWidget*>();
    expect(tabs && tabs->count() == 4, QStringLiteral("the record has not its four tabs"));
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        tour.picture(QStringLiteral("%1-%2.png").arg(stem).arg(tab + 1), view());
    }
    tabs->setCurrentIndex(0);
}

void everyField(Tour& tour)
{
    tour.window().setLanguage(QStringLiteral("en"));
    tour.window().session().tracker().setFullDataSet(true);
    const QString before = recordNumber();
    press("pushButton_Get_Prev");
    tour.waitFor([&] { return recordNumber() != before; }, QStringLiteral("the record before"));
    photographTabs(tour, QStringLiteral("telemetry-full"));
    tour.window().session().tracker().setFullDataSet(false);
}

void walkBack(Tour& tour)
{
    for (int step = 0; step < 3; ++step) {
        const qlonglong before = recordNumber().toLongLong();
        press("pushButton_Get_Prev");
        tour.waitFor([before] { return recordNumber().toLongLong() == before - 1; },
                     QStringLiteral("record %1").arg(before - 1));
    }
    expect(Tour::find<QAbstractButton>("pushButton_Get_Next")->isEnabled(),
           QStringLiteral("there is no way forward after walking back"));
}

void extraPacket(Tour& tour)
{
    press("pushButton_Func");
    press("pushButton_Get_Current_RFID");
    tour.waitFor([] { return pageOnShow() == QLatin1String("page_ZetaExt"); },
                 QStringLiteral("an extra packet"));
    tour.picture(QStringLiteral("telemetry-packet.png"), view());
}

void tachograph(Tour& tour)
{
    press("pushButton_Taho");
    press("pushButton_Quest");
    tour.waitFor([] { return !Tour::find<QTextEdit>("textEdit_Quest")->toPlainText().isEmpty(); },
                 QStringLiteral("an answer of the tachograph"));
    QWidget* dialog = Tour::find<QTextEdit>("textEdit_Quest")->window();
    tour.picture(QStringLiteral("tachograph.png"), dialog);
    dialog->close();
}

void closeTelemetry(Tour& tour)
{
    tour.window().session().link().send(vlk::Message::CloseWindows);
    tour.waitFor([] { return !Tour::findVisible(kNumber); }, QStringLiteral("the end of the window"));
}

// In a production mode the same window shows the page with the limits of the test bench.
void production(Tour& tour)
{
    tour.window().setMode(1);
    tour.window().session().liveTelemetry();
    tour.waitFor(
        [] { return Tour::findVisible(kNumber) && pageOnShow() == QLatin1String("page_Production"); },
        QStringLiteral("the production page"));
    tour.picture(QStringLiteral("production.png"), view());
    closeTelemetry(tour);
    tour.window().setMode(0);
}

} // namespace

namespace vlk {

std::vector<Tour::Step> telemetryTour()
{
    return {
        {QStringLiteral("open live telemetry"), openTelemetry},
        {QStringLiteral("show the present record"),
         [](Tour& tour) { photographTabs(tour, QStringLiteral("telemetry")); }},
        {QStringLiteral("show a record with every field"), everyField},
        {QStringLiteral("walk back"), walkBack},
        {QStringLiteral("show an extra packet"), extraPacket},
        {QStringLiteral("ask the tachograph"), tachograph},
        {QStringLiteral("close live telemetry"), closeTelemetry},
        {QStringLiteral("show the production page"), production},
    };
}

} // namespace vlk
