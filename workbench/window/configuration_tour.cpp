#include "window/configuration_tour.h"

#include "window/languages.h"
#include "window/write_report_text.h"

#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QScrollArea>
#include <QSet>
#include <QSpinBox>
#include <QTabWidget>
#include <QTcpServer>

#include <memory>

namespace {

// What the steps hand on to each other.
struct Edit
{
    QString path;
    QString after;
};

struct Notebook
{
    QVector<Edit> edits;
    std::unique_ptr<tracker::WriteReport> report;
};

// One of two values, whichever the tracker does not hold yet, so that every run changes something.
template <class Value>
Value other(const Value& present, const Value& one, const Value& two)
{
    return present == one ? two : one;
}

void typeText(Notebook& book, const char* widget, const char* path, const QString& one, const QString& two)
{
    auto* edit = vlk::Tour::find<QLineEdit>(widget);
    vlk::Tour::expect(edit->isEnabled(), QStringLiteral("%1 is disabled").arg(QLatin1String(widget)));
    const QString text = other(edit->text(), one, two);
    edit->setText(text);
    book.edits.append({QLatin1String(path), text});
}

void readTracker(vlk::Tour& tour)
{
    const QString failure = tour.window().session().readConfiguration(true);
    vlk::Tour::expect(failure.isEmpty(), failure);
    tour.waitFor([] { return vlk::Tour::findVisible("lineEdit_Name"); }, QStringLiteral("the Transfer page"));
}

void editPage(Notebook& book)
{
    typeText(book, "lineEdit_Name", "TRANS/OBJECT/name", QStringLiteral("KAMAZ 5490 A123BC"),
             QStringLiteral("KAMAZ 5490 B456CE"));
    if (auto* group = qobject_cast<QGroupBox*>(vlk::Tour::findVisible("GPRSSrv_groupBox_Main")))
        group->setChecked(true);
    typeText(book, "GPRSSrv_lineEdit_IP_DNS_Main", "TRANS/SRV1/addr", QStringLiteral("fleet.example.com"),
             QStringLiteral("gate.example.com"));
    auto* port = vlk::Tour::find<QSpinBox>("GPRSSrv_spinBox_Port_Main");
    port->setValue(other(port->value(), 5555, 6666));
    book.edits.append({QStringLiteral("TRANS/SRV1/port"), QString::number(port->value())});
}

void writeTracker(vlk::Tour& tour, Notebook& book)
{
    QObject context;
    QObject::connect(
        &tour.window().session(), &vlk::HostSession::configurationWritten, &context,
        [&book](const tracker::WriteReport& r) { book.report = std::make_unique<tracker::WriteReport>(r); });
    vlk::Tour::press("pushButton_LoadToDevice");
    tour.waitFor([&book] { return book.report != nullptr; }, QStringLiteral("the tracker's report"));
    tour.save(QStringLiteral("report.txt"), vlk::plainText(*book.report).toUtf8());
    vlk::Tour::expect(book.report->accepted, vlk::summary(*book.report));
    vlk::Tour::expect(!QFile::exists(book.report->file),
                      QStringLiteral("the written file was left behind: %1").arg(book.report->file));
    if (QWidget* dialog = vlk::Tour::findVisible("dialog_Report")) {
        tour.picture(QStringLiteral("report.png"), dialog);
        dialog->close();
    }
}

// What the tracker reports as changed is what was edited, no more and no less.
void compare(const Notebook& book)
{
    QStringList lines;
    for (const tracker::KeyChange& change : book.report->changed)
        lines.append(change.path + QLatin1Char('=') + change.after);
    for (const tracker::KeyChange& change : book.report->removed)
        lines.append(change.path + QLatin1String(" removed"));
    for (const tracker::KeyChange& change : book.report->added)
        lines.append(change.path + QLatin1String(" added"));
    QStringList wanted;
    for (const Edit& edit : book.edits)
        wanted.append(edit.path + QLatin1Char('=') + edit.after);
    lines.sort();
    wanted.sort();
    vlk::Tour::expect(lines == wanted,
                      QStringLiteral("the tracker reports\n  %1\nbut edited was\n  %2")
                          .arg(lines.join(QLatin1String("\n  ")), wanted.join(QLatin1String("\n  "))));
}

void checkTaken(vlk::Tour& tour, const Notebook& book)
{
    tour.save(QStringLiteral("configuration.xml"),
              tour.window().session().tracker().readConfiguration().document);
    compare(book);
}

void takePictures(vlk::Tour& tour)
{
    auto* tabs = vlk::Tour::find<QTabWidget>("tabWidget_Main");
    auto* pages = vlk::Tour::find<QTabWidget>("tabWidget");
    for (const QString& code : vlk::Languages::codes()) {
        tour.window().setLanguage(code);
        tour.picture(QStringLiteral("transfer-%1.png").arg(code),
                     vlk::Tour::find<QLineEdit>("lineEdit_Name")->window());
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
void lookAround(vlk::Tour& tour)
{
    auto* operators = vlk::Tour::find<QComboBox>("Transfer_comboBox_GSM_Operator_1");
    QWidget* page = operators;
    while (qobject_cast<QScrollArea*>(page) == nullptr && page->parentWidget() != nullptr)
        page = page->parentWidget();
    auto* area = qobject_cast<QScrollArea*>(page);
    vlk::Tour::expect(area != nullptr, QStringLiteral("the page does not scroll"));
    const auto photograph = [&tour](const char* name, const QString& picture) {
        tour.waitFor([name] { return vlk::Tour::findVisible(name); }, QLatin1String(name));
        QWidget* window = vlk::Tour::findVisible(name)->window();
        tour.picture(picture, window);
        window->close();
    };
    for (const QString& code : vlk::Languages::codes()) {
        tour.window().setLanguage(code);
        // Automatic: the last but the one for the user's own access point.
        operators->setCurrentIndex(operators->count() - 2);
        vlk::Tour::press("pushButton_AutoAPN_1");
        photograph("treeWidget_ListApn", QStringLiteral("operators-%1.png").arg(code));
        vlk::Tour::press("pushButton_RListOperSim_1");
        photograph("treeWidget_List", QStringLiteral("roaming-%1.png").arg(code));
        vlk::Tour::press("pushButton_Help");
        photograph("textBrowser_Help", QStringLiteral("help-%1.png").arg(code));
        area->ensureVisible(0, area->widget()->height());
        tour.picture(QStringLiteral("transfer-end-%1.png").arg(code), area->window());
        area->ensureVisible(0, 0);
    }
}

// Every item of a list that shows a form of its own, in both languages; the item before comes back.
void walkItems(vlk::Tour& tour, const char* name, const char* picture)
{
    auto* pages = vlk::Tour::find<QTabWidget>("tabWidget");
    const int before = pages->currentIndex();
    for (int page = 0; page < pages->count() && !vlk::Tour::findVisible(name); ++page)
        pages->setCurrentIndex(page);
    auto* list = vlk::Tour::find<QComboBox>(name);
    const int current = list->currentIndex();
    if (auto* area = qobject_cast<QScrollArea*>(pages->currentWidget()))
        area->ensureWidgetVisible(list->parentWidget());
    for (const QString& code : vlk::Languages::codes()) {
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
void testServer(vlk::Tour& tour)
{
    QTcpServer server;
    vlk::Tour::expect(server.listen(QHostAddress::LocalHost), server.errorString());
    vlk::Tour::find<QLineEdit>("GPRSSrv_lineEdit_IP_DNS_Main")->setText(server.serverAddress().toString());
    vlk::Tour::find<QSpinBox>("GPRSSrv_spinBox_Port_Main")->setValue(server.serverPort());
    QString answer;
    tour.whenModal<QMessageBox>([&](QMessageBox& box) {
        tour.picture(QStringLiteral("server-test.png"), &box);
        answer = box.text();
        box.accept();
    });
    vlk::Tour::press("GPRSSrv_toolButton_Test_Main");
    tour.waitFor([&answer] { return !answer.isEmpty(); }, QStringLiteral("the answer of a server test"),
                 60'000);
}

void closeWindow(vlk::Tour& tour)
{
    tour.window().session().link().send(vlk::Message::CloseWindows);
    tour.waitFor([] { return !vlk::Tour::findVisible("lineEdit_Name"); },
                 QStringLiteral("the end of the window"));
}

} // namespace

namespace vlk {

std::vector<Tour::Step> configurationTour()
{
    auto book = std::make_shared<Notebook>();
    return {
        {QStringLiteral("load the plug-in"),
         [](Tour& tour) {
             Tour::expect(tour.window().session().link().isLoaded(), tour.window().session().link().error());
             tour.picture(QStringLiteral("start.png"), &tour.window());
         }},
        {QStringLiteral("read the tracker's configuration"), readTracker},
        {QStringLiteral("edit the Transfer page"), [book](Tour&) { editPage(*book); }},
        {QStringLiteral("write it to the tracker"), [book](Tour& tour) { writeTracker(tour, *book); }},
        {QStringLiteral("compare what the tracker took"), [book](Tour& tour) { checkTaken(tour, *book); }},
        {QStringLiteral("take pictures in both languages"), takePictures},
        {QStringLiteral("look at what the page opens"), lookAround},
        {QStringLiteral("walk the devices on the serial line"),
         [](Tour& tour) { walkItems(tour, "comboBox_RS485_Owner_1", "rs"); }},
        {QStringLiteral("walk the types of Bluetooth sensor"),
         [](Tour& tour) { walkItems(tour, "comboBox_Type_Sens_1", "bluetooth"); }},
        {QStringLiteral("test a server"), testServer},
        {QStringLiteral("close the window"), closeWindow},
    };
}

} // namespace vlk
