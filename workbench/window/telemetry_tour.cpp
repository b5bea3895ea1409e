#include "window/telemetry_tour.h"

#include "tracker/simulated_tracker.h"
#include "window/languages.h"
#include "window/live_telemetry.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTabWidget>
#include <QTextEdit>
#include <QTimer>

namespace workbench {

namespace {

using tracker::Protocol;

tracker::SimulatedTracker& trackerOf(Tour& tour)
{
    return tour.window().session().tracker();
}

QTabWidget* tabs()
{
    auto* page = live::window()->findChild<QWidget*>(QStringLiteral("page_Zeta3"));
    auto* tabs = page->findChild<QTabWidget*>();
    Tour::expect(tabs && tabs->count() == 4, QStringLiteral("the record has not its four tabs"));
    return tabs;
}

void photographTabs(Tour& tour, const QString& stem)
{
    for (const QString& code : Languages::codes()) {
        tour.window().setLanguage(code);
        for (int tab = 0; tab < tabs()->count(); ++tab) {
            tabs()->setCurrentIndex(tab);
            tour.picture(QStringLiteral("%1-%2-%3.png").arg(stem, code).arg(tab + 1), live::window());
        }
    }
    tabs()->setCurrentIndex(0);
}

void openTelemetry(Tour& tour)
{
    live::open(tour);
    photographTabs(tour, QStringLiteral("telemetry"));
}

void everyField(Tour& tour)
{
    trackerOf(tour).setFullDataSet(true);
    live::ask(tour, "pushButton_Get_Prev");
    photographTabs(tour, QStringLiteral("telemetry-full"));
}

void walkBack(Tour& tour)
{
    for (int step = 0; step < 3; ++step) {
        const qlonglong before = live::number().toLongLong();
        live::ask(tour, "pushButton_Get_Prev");
        Tour::expect(live::number().toLongLong() == before - 1,
                     QStringLiteral("behind record %1 comes %2").arg(before).arg(live::number()));
    }
    Tour::expect(Tour::find<QAbstractButton>("pushButton_Get_Next")->isEnabled(),
                 QStringLiteral("there is no way forward after walking back"));
}

// What a user switches shows in the present record, once that is confirmed.
void controls(Tour& tour)
{
    constexpr int sensorsTab = 1;
    constexpr double kilometres = 123456.75;
    tour.whenModal<QInputDialog>([](QInputDialog& dialog) {
        dialog.setDoubleValue(kilometres);
        dialog.accept();
    });
    Tour::press("pushButton_Run");
    const auto agree = [](QMessageBox& question) {
        for (QAbstractButton* button : question.buttons()) {
            if (question.buttonRole(button) == QMessageBox::AcceptRole)
                button->click();
        }
    };
    tour.whenModal<QMessageBox>([&tour, agree](QMessageBox& question) {
        tour.picture(QStringLiteral("telemetry-mileage.png"), &question);
        agree(question);
    });
    tour.waitFor([] { return Tour::findVisible("label_WindowNotice"); },
                 QStringLiteral("what became of the mileage"));
    tabs()->setCurrentIndex(sensorsTab);
    Tour::find<QComboBox>("comboBox_Out")->setCurrentIndex(1);
    live::ask(tour, "pushButton_Get_Current");
    const QString before = live::textOf("label_Out_Value_2");
    const char* other =
        before == live::textOf("label_Out_Value_1") ? "pushButton_Out_On" : "pushButton_Out_Off";
    // Asked for unless the vehicle stands.
    QTimer person;
    QObject::connect(&person, &QTimer::timeout, &person, [agree] {
        if (auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            agree(*question);
    });
    person.start(50);
    Tour::press(other);
    // The record is asked for anew by itself.
    tour.waitFor([before] { return live::textOf("label_Out_Value_2") != before; },
                 QStringLiteral("output 2 in its new state"));
    tour.picture(QStringLiteral("telemetry-output.png"), live::window());
    tabs()->setCurrentIndex(0);
    const QString mileage = live::textOf("label_Navi_Way_Value");
    Tour::expect(std::abs(mileage.toDouble() - kilometres) < 50,
                 QStringLiteral("the mileage is %1").arg(mileage));
    trackerOf(tour).setFullDataSet(false);
}

void keyAndTag(Tour& tour)
{
    tour.window().setLanguage(QStringLiteral("ru"));
    live::showFunctions();
    for (const auto& [button, field] :
         {std::pair("pushButton_TM", "lineEdit_TM"), std::pair("pushButton_RFID", "lineEdit_RFID")}) {
        auto* edit = Tour::find<QLineEdit>(field);
        Tour::press(button);
        tour.waitFor([edit] { return !edit->text().isEmpty(); },
                     QStringLiteral("a number in %1").arg(QLatin1String(field)));
    }
    tour.picture(QStringLiteral("telemetry-keys.png"), live::window());
}

void extraPackets(Tour& tour)
{
    live::ask(tour, "pushButton_Get_Current_RFID");
    Tour::expect(live::page() == QLatin1String("page_ZetaExt"),
                 QStringLiteral("the tag's record is no packet"));
    tour.picture(QStringLiteral("telemetry-packet.png"), live::window());
    live::showFunctions();
    live::ask(tour, "pushButton_Get_Current_Touch");
    tour.picture(QStringLiteral("telemetry-packet-key.png"), live::window());
}

void tachograph(Tour& tour)
{
    live::showFunctions();
    Tour::press("pushButton_Taho");
    auto* answer = Tour::find<QTextEdit>("textEdit_Quest");
    QWidget* dialog = answer->window();
    auto* question = Tour::find<QComboBox>("comboBox_Quest");
    Tour::press("pushButton_Create");
    auto* load = Tour::find<QAbstractButton>("pushButton_Load");
    tour.waitFor([load] { return load->isEnabled(); }, QStringLiteral("a file of the tachograph"));
    for (const QString& code : Languages::codes()) {
        tour.window().setLanguage(code);
        for (int i = 0; i < question->count(); ++i) {
            question->setCurrentIndex(i);
            answer->clear();
            Tour::press("pushButton_Quest");
            tour.waitFor([answer] { return !answer->toPlainText().isEmpty(); },
                         QStringLiteral("an answer of the tachograph"));
            tour.picture(QStringLiteral("tachograph-%1-%2.png").arg(code).arg(i + 1), dialog);
        }
    }
    const QString path = tour.folder().filePath(QStringLiteral("card.ddd"));
    QFile::remove(path);
    tour.whenModal<QFileDialog>([path](QFileDialog& fileDialog) { Tour::giveName(fileDialog, path); });
    auto* told = Tour::find<QTextEdit>("textEdit_File");
    const QString before = told->toPlainText();
    Tour::press("pushButton_Load");
    tour.waitFor([&] { return QFile::exists(path) && told->toPlainText() != before; },
                 QStringLiteral("a file fetched from the tachograph"));
    tour.picture(QStringLiteral("tachograph-file.png"), dialog);
    dialog->close();
}

// Records of the earlier versions have forms of their own.
void earlierProtocols(Tour& tour)
{
    for (const auto& [protocol, form] :
         {std::pair(Protocol::Protocol2, "page_Zeta2"), std::pair(Protocol::Protocol1, "page_Zeta1")}) {
        trackerOf(tour).setProtocol(protocol);
        live::ask(tour, "pushButton_Get_Current");
        Tour::expect(live::page() == QLatin1String(form), QStringLiteral("shown is %1").arg(live::page()));
        tour.picture(QStringLiteral("telemetry-%1.png").arg(live::page()), live::window());
    }
    trackerOf(tour).setProtocol(Protocol::AsConfigured);
    live::close(tour);
}

QColor colourOf(const char* label)
{
    return Tour::find<QLabel>(label)->palette().color(QPalette::WindowText);
}

// In a production mode the same window shows the page with the limits of the test bench.
void production(Tour& tour)
{
    struct Case
    {
        int mode;
        bool badBoard;
        const char* language;
    };
    constexpr Case cases[] = {{1, false, "en"}, {1, true, "ru"}, {2, false, "ru"}, {2, true, "en"}};
    for (const Case& c : cases) {
        tour.window().setLanguage(QLatin1String(c.language));
        tour.window().setMode(c.mode);
        trackerOf(tour).setFaults({.badBoard = c.badBoard});
        live::open(tour);
        Tour::expect(live::page() == QLatin1String("page_Production"),
                     QStringLiteral("shown is %1").arg(live::page()));
        const auto expectRed = [&c](const char* label, bool red) {
            Tour::expect(
                (colourOf(label) == Qt::red) == red,
                QStringLiteral("%1 has the wrong colour in mode %2").arg(QLatin1String(label)).arg(c.mode));
        };
        expectRed("label_Analog_Reserv_Value", c.badBoard);
        expectRed("label_Analog_Ain3_Value", c.badBoard);
        // A good board has no fix in a tunnel.
        if (c.badBoard)
            expectRed("label_Navi_Valid_Value", c.mode == 1);
        tour.picture(
            QStringLiteral("production-%1%2.png").arg(c.mode).arg(QLatin1String(c.badBoard ? "-bad" : "")),
            live::window());
        live::close(tour);
    }
    trackerOf(tour).setFaults({});
    tour.window().setMode(0);
}

} // namespace

std::vector<Tour::Step> telemetryTour()
{
    return {
        {QStringLiteral("open live telemetry"), openTelemetry},
        {QStringLiteral("show a record with every field"), everyField},
        {QStringLiteral("walk back"), walkBack},
        {QStringLiteral("switch an output and set the mileage"), controls},
        {QStringLiteral("read a key and a tag"), keyAndTag},
        {QStringLiteral("show extra packets"), extraPackets},
        {QStringLiteral("ask the tachograph"), tachograph},
        {QStringLiteral("show records of the earlier protocols"), earlierProtocols},
        {QStringLiteral("show the production page"), production},
    };
}

} // namespace workbench
