#include "window/edit_tour.h"

#include "catalogue/field_catalogue.h"
#include "tracker/configuration_values.h"
#include "window/write_report_text.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QSet>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableView>

#include <algorithm>
#include <memory>

namespace workbench {

namespace {

using tracker::ConfigurationValues;

enum Page { Transfer, DataSet, Track, System, Serial, Temperature, LinesIn, Accel, LinesOut, Bluetooth };

// With which decimal sign a number is typed.
enum class Sign { OfLanguage, OfTheOther };

struct Edit
{
    const char* widget;
    // Two values as the file holds them; the one that the tracker does not hold yet is set, so that every run
    // changes something.
    const char* one;
    const char* two;
    const char* path;
    Page page;
    // Where the value is one sign of a long text: its position.
    int position = -1;
    // What else may change with it: keys whose paths begin so.
    const char* pulls = nullptr;
    Sign sign = Sign::OfLanguage;
};

constexpr Edit kEdits[] = {
    {"lineEdit_Name", "KAMAZ 5490 A123BC", "KAMAZ 5490 B456CE", "TRANS/OBJECT/name", Transfer},
    {"GPRSSrv_lineEdit_IP_DNS_Main", "fleet.example.com", "gate.example.com", "TRANS/SRV1/addr", Transfer},
    {"GPRSSrv_spinBox_Port_Main", "5555", "6666", "TRANS/SRV1/port", Transfer},
    {"checkBox_State_2", "1", "0", "PROTOCOL/ZETA/mask", DataSet, field("State2")},
    {"spinBox_ParkingStop", "45", "60", "TRACK/MOVESENS/stopTimer", Track},
    {"doubleSpinBox_RejectCoord_maxHDOP", "3.1", "3.2", "TRACK/COORDFLT/maxHDOP", Track, -1, nullptr,
     Sign::OfTheOther},
    {"TimeZone_spinBox_Value", "5", "7", "SYSTEM/TIME/zone", System},
    {"AllowDecretTime_checkBox", "1", "0", "SYSTEM/TIME/DST", System},
    {"lineEdit_NTP_Srv_4", "time.example.com", "clock.example.com", "SYSTEM/NTP/ntpSrv4", System},
    {"comboBox_RS485_Owner_1", "TPMS", "FLDS", "RS485/OPTIONS/owner1", Serial, -1, "RS485/"},
    {"comboBox_RS485_Parity", "1", "2", "RS485/OPTIONS/parity", Serial},
    {"doubleSpinBox_Left_Temp_1", "-20.0", "-15.5", "TEMPSENS/SENS1/min", Temperature},
    {"spinBox_Hyst_2", "3", "4", "TEMPSENS/SENS2/hyst", Temperature},
    {"lineEdit_Name_In2", "Rear door", "Side door", "SENSORS/IN2/name", LinesIn},
    {"comboBox_NormState_In2", "NS-", "NB-", "SENSORS/IN2/normState", LinesIn},
    {"spinBox_UI_Kalman", "4", "6", "SENSORS/IN3/IN3AIN/filterLvl", LinesIn},
    {"doubleSpinBox_Level_SH1", "45.5", "55.5", "ACCEL/SENSORS/sh1", Accel},
    {"lineEdit_Name_O1", "Siren", "Buzzer", "OUTPUTS/LINE1/nickname", LinesOut},
    {"comboBox_UseAs_O1", "GP", "ZUM", "OUTPUTS/LINE1/mode", LinesOut, -1, "OUTPUTS/LINE1/onDelay"},
    {"lineEdit_Name_Sens_1", "TD_100001", "TD_100002", "BLUETOOTH/SENS1/name", Bluetooth},
};

QString valueOf(const Edit& edit, const ConfigurationValues& values)
{
    const QString text = values.text(QLatin1String(edit.path));
    return edit.position < 0 ? text : text.mid(edit.position, 1);
}

QString shownBy(QWidget* widget)
{
    if (const auto* line = qobject_cast<QLineEdit*>(widget))
        return line->text();
    if (const auto* list = qobject_cast<QComboBox*>(widget))
        return list->currentData().toString();
    if (const auto* number = qobject_cast<QSpinBox*>(widget))
        return QString::number(number->value());
    if (const auto* number = qobject_cast<QDoubleSpinBox*>(widget))
        return QString::number(number->value(), 'f', number->decimals());
    const auto* button = qobject_cast<QAbstractButton*>(widget);
    Tour::expect(button, QStringLiteral("%1 cannot be edited").arg(widget->objectName()));
    return button->isChecked() ? QStringLiteral("1") : QStringLiteral("0");
}

QChar decimalSign(Sign sign)
{
    const bool comma = (QLocale().decimalPoint() == QLatin1Char(',')) == (sign == Sign::OfLanguage);
    return QLatin1Char(comma ? ',' : '.');
}

void enter(QWidget* widget, const QString& value, const Edit& edit, Qt::Key end)
{
    if (auto* list = qobject_cast<QComboBox*>(widget))
        list->setCurrentIndex(list->findData(value));
    else if (auto* button = qobject_cast<QAbstractButton*>(widget))
        Tour::check(button, value == QLatin1String("1"));
    else if (qobject_cast<QDoubleSpinBox*>(widget))
        Tour::type(widget, QString(value).replace(QLatin1Char('.'), decimalSign(edit.sign)), end);
    else
        Tour::type(widget, value, end);
}

// The widget of an edit, on its page.
QWidget* widgetOf(const Edit& edit)
{
    Tour::find<QTabWidget>("tabWidget")->setCurrentIndex(edit.page);
    return Tour::find<QWidget>(edit.widget);
}

// What the steps hand on to each other.
struct Notebook
{
    ConfigurationValues before;
    QStringList values; // as set, in the order of the table
    std::unique_ptr<RoadReport> report;
    QByteArray taken; // the tracker's document
};

void readTracker(Tour& tour)
{
    Tour::expectOpened(tour.window().session().readConfiguration(true));
    tour.waitFor([] { return Tour::findVisible("tabWidget"); }, QStringLiteral("the full window"));
    Tour::find<QTabWidget>("tabWidget")->setCurrentIndex(Transfer);
}

void editPages(Tour& tour, Notebook& book)
{
    book.before = tour.window().session().tracker().configuration();
    if (auto* group = qobject_cast<QGroupBox*>(Tour::findVisible("GPRSSrv_groupBox_Main")))
        group->setChecked(true);
    QSet<int> pages;
    for (const Edit& edit : kEdits) {
        QWidget* widget = widgetOf(edit);
        Tour::expect(widget->isEnabled(), QStringLiteral("%1 is disabled").arg(QLatin1String(edit.widget)));
        const QString value =
            QLatin1String(valueOf(edit, book.before) == QLatin1String(edit.one) ? edit.two : edit.one);
        // One field ends with Tab, the next with Enter.
        enter(widget, value, edit, book.values.size() % 2 == 0 ? Qt::Key_Tab : Qt::Key_Enter);
        book.values.append(value);
        pages.insert(edit.page);
    }
    const auto* tabs = Tour::find<QTabWidget>("tabWidget");
    for (int page = 0; page < tabs->count(); ++page)
        Tour::expect(pages.contains(page),
                     QStringLiteral("nothing was edited on the page %1").arg(tabs->tabText(page)));
}

void writeTracker(Tour& tour, Notebook& book)
{
    QObject context;
    QObject::connect(&tour.window().session().road(), &WriteRoad::ended, &context,
                     [&book](const RoadReport& r) { book.report = std::make_unique<RoadReport>(r); });
    Tour::press("pushButton_LoadToDevice");
    tour.waitFor([] { return Tour::findVisible("dialog_Review"); }, QStringLiteral("the review"));
    auto* write = qobject_cast<QAbstractButton*>(Tour::findVisible("pushButton_Write"));
    tour.waitFor([write] { return write && write->isEnabled(); }, QStringLiteral("the button of the review"));
    tour.picture(QStringLiteral("review.png"), write->window());
    write->click();
    tour.waitFor([&book] { return book.report != nullptr; }, QStringLiteral("the tracker's report"));
    tour.save(QStringLiteral("report.txt"), plainText(*book.report).toUtf8());
    Tour::expect(book.report->outcome == RoadReport::Outcome::Confirmed, summary(*book.report));
    Tour::expect(!QFile::exists(book.report->request.file),
                 QStringLiteral("the written file was left behind: %1").arg(book.report->request.file));
    Tour::expect(book.report->backup > 0, QStringLiteral("no backup was made"));
    if (QWidget* dialog = Tour::findVisible("dialog_Report")) {
        tour.picture(QStringLiteral("report.png"), dialog);
        dialog->close();
    }
}

bool isPulled(const QString& path)
{
    return std::ranges::any_of(
        kEdits, [&](const Edit& edit) { return edit.pulls && path.startsWith(QLatin1String(edit.pulls)); });
}

// Every edited key is other than before and holds what was edited, and no key changed that has no reason to.
void checkTaken(Tour& tour, Notebook& book)
{
    book.taken = tour.window().session().tracker().readConfiguration().document;
    tour.save(QStringLiteral("configuration.xml"), book.taken);
    const ConfigurationValues after(book.taken);
    QSet<QString> edited;
    for (std::size_t i = 0; i < std::size(kEdits); ++i) {
        const Edit& edit = kEdits[i];
        const QString path = QLatin1String(edit.path);
        const QString value = valueOf(edit, after);
        const QString wanted = book.values[static_cast<int>(i)];
        Tour::expect(
            value == wanted,
            QStringLiteral("%1 was edited to \"%2\", and the tracker holds \"%3\"").arg(path, wanted, value));
        Tour::expect(value != valueOf(edit, book.before),
                     QStringLiteral("%1 was \"%2\" before it was edited, too").arg(path, value));
        edited.insert(path);
    }
    Tour::expect(book.report->settings.size() >= edited.size(), QStringLiteral("the report is too short"));
    for (const WrittenSetting& setting : std::as_const(book.report->settings)) {
        const SettingChange& change = setting.change;
        Tour::expect(edited.contains(change.path) || isPulled(change.path),
                     QStringLiteral("%1 was not edited, and changed from \"%2\" to \"%3\"")
                         .arg(change.path, change.before, change.after));
    }
}

void checkShown(const Notebook& book)
{
    for (std::size_t i = 0; i < std::size(kEdits); ++i) {
        const QString shown = shownBy(widgetOf(kEdits[i]));
        const QString wanted = book.values[static_cast<int>(i)];
        Tour::expect(shown == wanted, QStringLiteral("%1 shows \"%2\", and the tracker holds \"%3\"")
                                          .arg(QLatin1String(kEdits[i].widget), shown, wanted));
    }
}

// The window gives back the whole of what it read, key by key and sign by sign.
void saveReadBack(Tour& tour, const Notebook& book)
{
    const QString path = tour.folder().absoluteFilePath(QStringLiteral("read-back.xml"));
    tour.whenModal<QFileDialog>([path](QFileDialog& dialog) { Tour::giveName(dialog, path); });
    Tour::press("pushButton_SaveToFile");
    QFile file(path);
    Tour::expect(file.open(QIODevice::ReadOnly), QStringLiteral("%1 was not saved").arg(path));
    const QByteArray document = file.readAll();
    const ConfigurationValues saved(document);
    const ConfigurationValues held(book.taken);
    for (const QString& key : held.paths() + saved.paths())
        Tour::expect(saved.contains(key) && held.contains(key) && saved.text(key) == held.text(key),
                     QStringLiteral("the tracker holds \"%1\" in %2, and the window saved \"%3\"")
                         .arg(held.text(key), key, saved.text(key)));
    Tour::expect(document == book.taken,
                 QStringLiteral("%1 has the tracker's values, but is not the file that it holds").arg(path));
}

// The backup that the write has left, against what the tracker holds now.
void lookAtHistory(Tour& tour)
{
    tour.window().session().link().send(Message::CloseWindows);
    tour.window().findChild<QAction*>(QStringLiteral("action_History"))->trigger();
    const auto* table = Tour::find<QTableView>("tableView_History");
    Tour::expect(table->model()->rowCount() >= static_cast<int>(std::size(kEdits)),
                 QStringLiteral("the history shows too few differences"));
    tour.picture(QStringLiteral("history.png"), table->window());
    table->window()->close();
}

} // namespace

std::vector<Tour::Step> editTour()
{
    auto book = std::make_shared<Notebook>();
    return {
        {QStringLiteral("read the tracker's configuration"), readTracker},
        {QStringLiteral("edit a value on every page"), [book](Tour& tour) { editPages(tour, *book); }},
        {QStringLiteral("write it to the tracker"), [book](Tour& tour) { writeTracker(tour, *book); }},
        {QStringLiteral("compare what the tracker took"), [book](Tour& tour) { checkTaken(tour, *book); }},
        {QStringLiteral("read it back into the window"),
         [book](Tour& tour) {
             readTracker(tour);
             checkShown(*book);
         }},
        {QStringLiteral("save what came back, equal to what the tracker holds"),
         [book](Tour& tour) { saveReadBack(tour, *book); }},
        {QStringLiteral("look at the backup in the history"), lookAtHistory},
        {QStringLiteral("open the configuration again"), readTracker},
    };
}

} // namespace workbench
