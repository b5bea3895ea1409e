#include "window/configuration_tour.h"

#include "window/edit_tour.h"
#include "window/languages.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QScrollArea>
#include <QSpinBox>
#include <QTabWidget>
#include <QTcpServer>

namespace workbench {

namespace {

void loadPlugin(Tour& tour)
{
    const PluginLink& link = tour.window().session().link();
    Tour::expect(link.isLoaded(), link.error());
    tour.picture(QStringLiteral("start.png"), &tour.window());
}

void takePictures(Tour& tour)
{
    auto* tabs = Tour::find<QTabWidget>("tabWidget_Main");
    auto* pages = Tour::find<QTabWidget>("tabWidget");
    pages->setCurrentIndex(0);
    for (const QString& code : Languages::codes()) {
        tour.window().setLanguage(code);
        tour.picture(QStringLiteral("transfer-%1.png").arg(code),
                     Tour::find<QLineEdit>("lineEdit_Name")->window());
        for (int page = pages->count() - 1; page >= 0; --page) {
            pages->setCurrentIndex(page);
            tour.picture(QStringLiteral("page-%1-%2.png").arg(code).arg(page + 1), pages->window());
        }
        for (int tab = tabs->count() - 1; tab >= 0; --tab) {
            tabs->setCurrentIndex(tab);
            tour.picture(QStringLiteral("workbench-%1-%2.png").arg(code).arg(tab + 1), &tour.window());
        }
    }
}

// What the page opens beside itself, and its lower end, in both languages.
void lookAround(Tour& tour)
{
    auto* operators = Tour::find<QComboBox>("Transfer_comboBox_GSM_Operator_1");
    QWidget* page = operators;
    while (!qobject_cast<QScrollArea*>(page) && page->parentWidget())
        page = page->parentWidget();
    auto* area = qobject_cast<QScrollArea*>(page);
    Tour::expect(area, QStringLiteral("the page does not scroll"));
    const auto photograph = [&tour](const char* name, const QString& picture) {
        tour.waitFor([name] { return Tour::findVisible(name); }, QLatin1String(name));
        QWidget* window = Tour::findVisible(name)->window();
        tour.picture(picture, window);
        window->close();
    };
    for (const QString& code : Languages::codes()) {
        tour.window().setLanguage(code);
        // Automatic: the last but the one for the user's own access point.
        operators->setCurrentIndex(operators->count() - 2);
        Tour::press("pushButton_AutoAPN_1");
        photograph("treeWidget_ListApn", QStringLiteral("operators-%1.png").arg(code));
        Tour::press("pushButton_RListOperSim_1");
        photograph("treeWidget_List", QStringLiteral("roaming-%1.png").arg(code));
        Tour::press("pushButton_Help");
        photograph("textBrowser_Help", QStringLiteral("help-%1.png").arg(code));
        area->ensureVisible(0, area->widget()->height());
        tour.picture(QStringLiteral("transfer-end-%1.png").arg(code), area->window());
        area->ensureVisible(0, 0);
    }
}

// Every item of a list that shows a form of its own, in both languages; the item before comes back.
void walkItems(Tour& tour, const char* name, const char* picture)
{
    auto* pages = Tour::find<QTabWidget>("tabWidget");
    const int before = pages->currentIndex();
    for (int page = 0; page < pages->count() && !Tour::findVisible(name); ++page)
        pages->setCurrentIndex(page);
    auto* list = Tour::find<QComboBox>(name);
    const int current = list->currentIndex();
    if (auto* area = qobject_cast<QScrollArea*>(pages->currentWidget()))
        area->ensureWidgetVisible(list->parentWidget());
    for (const QString& code : Languages::codes()) {
        tour.window().setLanguage(code);
        for (int item = 0; item < list->count(); ++item) {
            list->setCurrentIndex(item);
            const QString value = list->itemData(item).toString().toLower();
            tour.picture(
                QStringLiteral("%1-%2-%3.png")
                    .arg(QLatin1String(picture), code, value.isEmpty() ? QStringLiteral("none") : value),
                pages->window());
        }
    }
    list->setCurrentIndex(current);
    pages->setCurrentIndex(before);
}

// A server of this machine, found by its address, so that no name has to be looked up.
void testServer(Tour& tour)
{
    QTcpServer server;
    Tour::expect(server.listen(QHostAddress::LocalHost), server.errorString());
    Tour::type(Tour::find<QLineEdit>("GPRSSrv_lineEdit_IP_DNS_Main"), server.serverAddress().toString(),
               Qt::Key_Tab);
    Tour::type(Tour::find<QSpinBox>("GPRSSrv_spinBox_Port_Main"), QString::number(server.serverPort()),
               Qt::Key_Enter);
    QString answer;
    tour.whenModal<QMessageBox>([&](QMessageBox& box) {
        tour.picture(QStringLiteral("server-test.png"), &box);
        answer = box.text();
        box.accept();
    });
    Tour::press("GPRSSrv_toolButton_Test_Main");
    tour.waitFor([&answer] { return !answer.isEmpty(); }, QStringLiteral("the answer of a server test"),
                 60'000);
}

void closeWindow(Tour& tour)
{
    tour.window().session().link().send(vlk::Message::CloseWindows);
    tour.waitFor([] { return !Tour::findVisible("lineEdit_Name"); }, QStringLiteral("the end of the window"));
}

} // namespace

std::vector<Tour::Step> configurationTour()
{
    std::vector<Tour::Step> steps = editTour();
    steps.insert(steps.begin(), {QStringLiteral("load the plug-in"), loadPlugin});
    steps.insert(steps.end(), {
                                  {QStringLiteral("take pictures in both languages"), takePictures},
                                  {QStringLiteral("look at what the page opens"), lookAround},
                                  {QStringLiteral("walk the devices on the serial line"),
                                   [](Tour& tour) { walkItems(tour, "comboBox_RS485_Owner_1", "rs"); }},
                                  {QStringLiteral("walk the types of Bluetooth sensor"),
                                   [](Tour& tour) { walkItems(tour, "comboBox_Type_Sens_1", "bluetooth"); }},
                                  {QStringLiteral("test a server"), testServer},
                                  {QStringLiteral("close the window"), closeWindow},
                              });
    return steps;
}

} // namespace workbench
