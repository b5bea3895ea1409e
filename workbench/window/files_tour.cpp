#include "window/files_tour.h"

#include "window/live_telemetry.h"

#include <QAbstractButton>
#include <QDateTimeEdit>
#include <QFile>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QSlider>
#include <QTableView>

namespace workbench {

namespace {

// Records of a long save before it is cancelled.
constexpr int kEnough = 150;
const QString kPart = QStringLiteral("part.xml");

void setPeriod(const QDateTime& first, const QDateTime& last)
{
    live::showFunctions();
    Tour::find<QDateTimeEdit>("dateTimeEdit_First")->setDateTime(first);
    Tour::find<QDateTimeEdit>("dateTimeEdit_Last")->setDateTime(last);
}

// The time of the record on show, as the window's zone has it, which the fields of the period have too.
QDateTime timeOnShow()
{
    const QString format = QStringLiteral("HH:mm:ss dd.MM.yyyy");
    QDateTime time =
        QDateTime::fromString(live::textOf("label_Event_DateTime_Value").left(format.size()), format);
    Tour::expect(time.isValid(), QStringLiteral("the event panel shows no time"));
    time.setTimeSpec(Tour::find<QDateTimeEdit>("dateTimeEdit_Show")->dateTime().timeSpec());
    return time;
}

bool isSaving()
{
    return Tour::findVisible("pushButton_Save_Cancel") != nullptr;
}

// Starts a save and gives its file the name when the dialog asks for it.
void startSave(Tour& tour, const char* button, const QString& name)
{
    const QString path = tour.folder().filePath(name);
    QFile::remove(path);
    tour.whenModal<QFileDialog>([path](QFileDialog& dialog) { Tour::giveName(dialog, path); });
    Tour::press(button);
}

QByteArray fileIn(const Tour& tour, const QString& name)
{
    QFile file(tour.folder().filePath(name));
    Tour::expect(file.open(QIODevice::ReadOnly), QStringLiteral("%1 was not saved").arg(name));
    return file.readAll();
}

// Shows a record, behind which comes that of the time that is given, and then none in the next second: the
// fields of the period know no more than seconds, and an event may stand in the same one as a point of the
// track. Packets between the two would have lines of another number in some forms.
QDateTime findTwoRecords(Tour& tour)
{
    constexpr std::size_t enough = 4;
    std::vector<QDateTime> times; // of records that follow each other, the last one first
    while (times.size() < enough) {
        live::ask(tour, "pushButton_Get_Prev");
        if (live::page() != QLatin1String("page_Zeta3")) {
            times.clear();
            continue;
        }
        const QDateTime time = timeOnShow();
        if (!times.empty() && time.secsTo(times.back()) <= 1)
            times.clear();
        times.push_back(time);
    }
    live::ask(tour, "pushButton_Get_Next");
    return times[1];
}

void savePeriod(Tour& tour)
{
    tour.window().setLanguage(QStringLiteral("en"));
    live::open(tour);
    const QDateTime last = findTwoRecords(tour);
    setPeriod(timeOnShow(), last);
    for (const auto& [button, ending] : {std::pair("pushButton_SaveToFile", "xml"),
                                         {"pushButton_SaveToExcel", "csv"},
                                         {"pushButton_SaveFileToServer", "tmi"}}) {
        const QString name = QStringLiteral("two.%1").arg(QLatin1String(ending));
        startSave(tour, button, name);
        tour.waitFor([&] { return !isSaving() && QFile::exists(tour.folder().filePath(name)); },
                     QStringLiteral("a file of two records"));
    }
    Tour::expect(fileIn(tour, QStringLiteral("two.xml")).count("<NumPage>") == 2,
                 QStringLiteral("two.xml has not two records"));
}

void refuseOneRecord(Tour& tour)
{
    const QDateTime time = timeOnShow();
    setPeriod(time, time.addSecs(1));
    QString told;
    tour.whenModal<QMessageBox>([&](QMessageBox& box) {
        tour.picture(QStringLiteral("saving-refused.png"), &box);
        told = box.text();
        box.accept();
    });
    Tour::press("pushButton_SaveToFile");
    tour.waitFor([&] { return !told.isEmpty() && !isSaving(); }, QStringLiteral("a refusal"));
}

// Weeks of records, of which a cancel keeps what came.
void saveAndCancel(Tour& tour)
{
    const QDateTime last = timeOnShow();
    setPeriod(last.addDays(-20), last);
    startSave(tour, "pushButton_SaveToFile", kPart);
    const auto came = [] {
        auto* bar = qobject_cast<QProgressBar*>(Tour::findVisible("progressBar_Time"));
        return bar && bar->maximum() > 1000 && bar->value() >= kEnough;
    };
    tour.waitFor(came, QStringLiteral("the progress of a long save"), 60'000);
    tour.picture(QStringLiteral("saving.png"), live::window());
    Tour::press("pushButton_Save_Cancel");
    tour.waitFor([] { return !isSaving(); }, QStringLiteral("the end of a cancelled save"));
    Tour::expect(fileIn(tour, kPart).count("<Page") >= kEnough, QStringLiteral("the cancel lost records"));
    live::close(tour);
}

void browse(Tour& tour)
{
    for (const QString& name : {QStringLiteral("two.tmi"), kPart}) {
        tour.window().openFile(tour.folder().filePath(name));
        tour.waitFor([] { return Tour::findVisible("horizontalSlider"); }, QStringLiteral("the browser"));
        const int records = Tour::find<QSlider>("horizontalSlider")->maximum();
        Tour::expect(records >= 1, QStringLiteral("%1 shows no records").arg(name));
    }
    auto* slider = Tour::find<QSlider>("horizontalSlider");
    const QString first = live::number();
    // The slider runs by record numbers; behind the records that came before the cancel it has nothing to
    // show.
    slider->setValue(kEnough / 2);
    Tour::expect(live::number() != first, QStringLiteral("the slider moves nothing"));
    for (const QString& code : {QStringLiteral("ru"), QStringLiteral("en")}) {
        tour.window().setLanguage(code);
        tour.picture(QStringLiteral("browser-%1.png").arg(code), slider->window());
    }
    Tour::press("pushButton_Close");
}

void showTable(Tour& tour)
{
    tour.window().openFile(tour.folder().filePath(kPart), TelemetryWindow::Table);
    tour.waitFor([] { return Tour::findVisible("tableWidget"); }, QStringLiteral("the table"));
    auto* table = Tour::find<QTableView>("tableWidget");
    const QAbstractItemModel* model = table->model();
    Tour::expect(model->rowCount() > 100, QStringLiteral("the table has %1 rows").arg(model->rowCount()));
    for (const QString& code : {QStringLiteral("ru"), QStringLiteral("en")}) {
        tour.window().setLanguage(code);
        tour.picture(QStringLiteral("table-%1.png").arg(code), table->window());
    }
    const QVariant first = model->index(0, 0).data();
    table->sortByColumn(0, Qt::DescendingOrder);
    Tour::expect(model->index(0, 0).data() != first, QStringLiteral("the table does not sort"));
    table->window()->close();
}

} // namespace

std::vector<Tour::Step> filesTour()
{
    return {
        {QStringLiteral("save a period in every form"), savePeriod},
        {QStringLiteral("have a period of one record refused"), refuseOneRecord},
        {QStringLiteral("cancel a long save"), saveAndCancel},
        {QStringLiteral("browse the saved files"), browse},
        {QStringLiteral("show a saved file as a table"), showTable},
    };
}

} // namespace workbench
