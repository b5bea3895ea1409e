// What a person sees of the windows of the workbench and of those of telemetry and calibration: nothing is
// cut, nothing scrolls sideways and the distances are those of the house, in either language, on screens as
// small as they come.

#include "opened_workbench.h"
#include "support/data_table.h"
#include "support/distances.h"
#include "support/files.h"
#include "support/letters.h"
#include "window/folders_dialog.h"
#include "window/house_style.h"

#include <QtTest>
#include <QtWidgets>

namespace {

QWidget* windowOf(const char* name)
{
    for (QWidget* candidate : QApplication::topLevelWidgets()) {
        if (qstrcmp(candidate->metaObject()->className(), name) == 0 && candidate->isVisible())
            return candidate;
    }
    return nullptr;
}

void click(QWidget* window, const char* button)
{
    auto* found = window ? window->findChild<QAbstractButton*>(button) : nullptr;
    if (!found)
        qFatal("no button %s", button);
    found->click();
}

int titleRoom(const QGroupBox* group)
{
    QStyleOptionGroupBox option;
    option.initFrom(group);
    option.text = group->title();
    option.subControls = QStyle::SC_GroupBoxLabel;
    const QRect label =
        group->style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, group);
    return std::min(label.width(), group->width() - label.left());
}

// What the words of a widget take beyond the room that they have.
int excess(const QWidget* widget)
{
    if (const auto* group = qobject_cast<const QGroupBox*>(widget)) {
        QFont font = group->font();
        font.setWeight(QFont::DemiBold);
        return QFontMetrics(font).size(Qt::TextShowMnemonic, group->title()).width() - titleRoom(group);
    }
    const auto words = [widget](const QString& text) {
        return widget->fontMetrics().size(Qt::TextShowMnemonic, text).width();
    };
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
        return words(button->text()) - widget->width();
    const auto* label = qobject_cast<const QLabel*>(widget);
    // Others shorten what they hold, and tell it whole in their tool tip.
    if (!label || label->wordWrap() || qstrcmp(label->metaObject()->className(), "QLabel") != 0 ||
        label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored || label->minimumWidth() == 1)
        return 0;
    return words(label->text()) - label->width();
}

QString cutIn(const QWidget* window)
{
    QStringList cut;
    for (const QWidget* widget : window->findChildren<QWidget*>()) {
        if (!widget->isVisible())
            continue;
        if (excess(widget) > 0)
            cut << QStringLiteral("%1 by %2").arg(widget->objectName()).arg(excess(widget));
        const auto* area = qobject_cast<const QScrollArea*>(widget);
        if (area && area->horizontalScrollBar()->maximum() > 0)
            cut << QStringLiteral("%1 scrolls by %2")
                       .arg(area->objectName())
                       .arg(area->horizontalScrollBar()->maximum());
        const auto* table = qobject_cast<const QTableView*>(widget);
        if (table && table->verticalHeader()->defaultSectionSize() != table->fontMetrics().height() + 8)
            cut << table->objectName() + " is high";
    }
    const QString letters = sharedLetters(window);
    return (cut + oddDistances(window) + (letters.isEmpty() ? QStringList() : QStringList(letters)))
        .join("; ");
}

} // namespace

class LooksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsCut_data()
    {
        DataTable<QString, QSize> table({"language", "size"});
        for (const char* language : {"ru", "en"}) {
            for (const QSize size : {QSize(960, 460), QSize(1016, 564)})
                table.row(qPrintable(QStringLiteral("%1 %2").arg(language).arg(size.width())), language,
                          size);
        }
    }
    void nothingIsCut()
    {
        QFETCH(QString, language);
        QFETCH(QSize, size);
        OpenedWorkbench bench;
        QVERIFY(bench.start(VLK_PLUGIN));
        // The plug-in's windows have the language that they had last.
        for (const QString& other : workbench::Languages::codes())
            bench.window.setLanguage(other);
        bench.window.setLanguage(language);
        const auto look = [&size](QWidget* window) {
            if (!window)
                return QStringLiteral("it is not there");
            window->resize(size.boundedTo(window->size().expandedTo(size)));
            QCoreApplication::processEvents();
            if (window->width() > size.width() || window->height() > size.height())
                return QStringLiteral("it is larger than the screen");
            for (auto* tabs : window->findChildren<QTabWidget*>()) {
                for (int i = 0; i < tabs->count(); ++i) {
                    tabs->setCurrentIndex(i);
                    QCoreApplication::processEvents();
                    const QString cut = cutIn(window);
                    if (!cut.isEmpty())
                        return tabs->tabText(i) + ": " + cut;
                }
            }
            return cutIn(window);
        };
        QCOMPARE(look(&bench.window), QString());
        bench.action("action_Faults")->trigger();
        QCOMPARE(cutIn(bench.window.findChild<QDialog*>("dialog_Faults")), QString());
        workbench::FoldersDialog folders({}, {}, &bench.window);
        folders.show();
        QCOMPARE(cutIn(&folders), QString());

        bench.action("action_Telemetry")->trigger();
        QWidget* telemetry = windowOf("VLK_Widget_Tmi_View");
        QTRY_COMPARE(telemetry->findChild<QStackedWidget*>("stackedWidget")->currentIndex(), 3);
        QCOMPARE(look(telemetry), QString());
        click(telemetry, "pushButton_Func");
        QCOMPARE(look(telemetry), QString());
        // What its bar offers when a period is saved, or is being ended.
        for (const char* key : {"rec_080", "tmiw_303"})
            QCOMPARE(sharedLetters(telemetry, {QCoreApplication::translate("vlk", key)}), QString());
        click(telemetry, "pushButton_Taho");
        QCOMPARE(look(windowOf("VLK_Form_TMI_Taho")), QString());
        click(telemetry, "pushButton_FuelSensor");
        QWidget* calibration = windowOf("VLK_Form_TMI_Fuel_Sensors");
        QCOMPARE(look(calibration), QString());
        const QByteArray page =
            "<Page type=\"176\" ver=\"30\" format=\"111\">\n<NumPage>1</NumPage>\n</Page>\n";
        const QString file =
            writeFile(bench.root.filePath("one.xml"),
                      "<?xml version=\"1.0\"?>\n<TMI model=\"R-7106\">\n" + page + "</TMI>\n");
        bench.window.openFile(file, workbench::TelemetryWindow::Browser);
        QCOMPARE(look(windowOf("VLK_Widget_Tmi_Page")), QString());
        bench.window.openFile(file, workbench::TelemetryWindow::Table);
        QCOMPARE(look(windowOf("VLK_Widget_Tmi_Table")), QString());
        click(telemetry, "pushButton_Get_Current_RFID");
        QTRY_COMPARE(telemetry->findChild<QStackedWidget*>("stackedWidget")->currentIndex(), 4);
        QCOMPARE(look(telemetry), QString());
    }

    void presentValuesAndDisabledText()
    {
        OpenedWorkbench bench;
        QVERIFY(bench.start(VLK_PLUGIN));
        bench.action("action_Telemetry")->trigger();
        QWidget* telemetry = windowOf("VLK_Widget_Tmi_View");
        const auto* key = telemetry->findChild<QLineEdit*>("lineEdit_TM");
        QVERIFY(!key->hasFrame() && (key->focusPolicy() & Qt::TabFocus) == 0);
        QCOMPARE(key->font().weight(), static_cast<int>(QFont::DemiBold));
        const auto light = [telemetry](QPalette::ColorRole role) {
            const QColor colour = telemetry->palette().color(QPalette::Disabled, role);
            return 0.05 + std::pow(colour.lightnessF(), 2.2);
        };
        const double contrast = light(QPalette::Window) / light(QPalette::WindowText);
        QVERIFY2(contrast > 3, qPrintable(QString::number(contrast)));
    }

    void emptyListsHelp()
    {
        OpenedWorkbench bench;
        QVERIFY(bench.start(VLK_PLUGIN));
        QVERIFY(QTest::qWaitForWindowActive(&bench.window));
        auto* tabs = bench.window.findChild<QTabWidget*>("tabWidget_Main");
        tabs->setCurrentIndex(tabs->count() - 1);
        auto* table = bench.window.findChild<QTableView*>("tableView_Log");
        auto* words = bench.window.findChild<QLineEdit*>("lineEdit_LogFilter");
        const auto* note = table->findChild<QLabel*>("label_Empty");
        QTRY_VERIFY(table->model()->rowCount() > 2 && !note->isVisible());
        table->setFocus();
        QTest::keyClick(table, Qt::Key_F, Qt::ControlModifier);
        QVERIFY(words->hasFocus());
        QTest::keyClicks(words, "no such message");
        QVERIFY(note->isVisible());
        QCOMPARE(note->text(), QString("Nothing matches."));
        table->findChild<QPushButton*>("pushButton_Empty")->click();
        QVERIFY(!note->isVisible() && words->text().isEmpty());
        // Rows go to other programs with their heads, all where none is chosen; heads alone do not.
        const auto copied = [table] {
            table->setFocus();
            QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
            return QApplication::clipboard()->text().split('\n');
        };
        table->selectRow(1);
        const QStringList lines = copied();
        QCOMPARE(lines.size(), 3);
        QVERIFY(lines[0].startsWith("Time\t") && lines[1].contains("\t2004\tSetHostMode\t"));
        table->clearSelection();
        QCOMPARE(copied().size(), table->model()->rowCount() + 2);
        QApplication::clipboard()->setText("kept");
        words->setText("no such message");
        QCOMPARE(copied(), QStringList("kept"));
        words->clear();
        QTest::keyClick(words, Qt::Key_Escape);
        QVERIFY(table->hasFocus());
    }

    void statusLine()
    {
        OpenedWorkbench bench;
        QVERIFY(bench.start(VLK_PLUGIN));
        QVERIFY(bench.text("label_StatusLasting").startsWith("R-7106 86"));
        QCOMPARE(bench.text("label_StatusTime"), QString());
        bench.window.session().tracker().detach();
        QVERIFY(bench.text("label_StatusLasting").startsWith("No tracker attached"));
        bench.window.tellOfRun([] { return QStringLiteral("told"); });
        QVERIFY(QTime::fromString(bench.text("label_StatusTime"), "HH:mm:ss").isValid());
    }
};

// With room on the screen for windows of the sizes that are looked at, and with the letters of a desktop.
int main(int argc, char* argv[])
{
    qputenv("QT_SCALE_FACTOR", "0.5");
    QApplication application(argc, argv);
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
    workbench::HouseStyle::setUp();
    LooksTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_looks.moc"
