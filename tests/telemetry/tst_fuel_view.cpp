// The list of refuellings and drains and the summary beside it, as a user works them.

#include "fuel/table/fuel_file.h"
#include "support/answers.h"
#include "support/data_table.h"
#include "support/device.h"
#include "support/files.h"
#include "support/records.h"
#include "support/whole_files.h"
#include "telemetry/files/telemetry_file.h"
#include "telemetry/fuel_view/fuel_view.h"
#include "telemetry/fuel_view/summary_view.h"
#include "telemetry/record/record_head.h"
#include "telemetry/view/filter_field.h"
#include "telemetry/view/period_file.h"
#include "telemetry/view/records_model.h"
#include "typing/notice_bar.h"

#include <QClipboard>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPrinter>
#include <QTableView>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QToolButton>
#include <QtTest>

using namespace vlk;

namespace {

constexpr quint32 kStart = 1'780'000'000;

// Forty minutes of a vehicle that stands; after the twentieth 60 litres are gone.
TelemetryContents drained(quint32 minutes = 40, quint32 noise = 1)
{
    TelemetryContents contents;
    for (quint32 i = 0; i < minutes; ++i) {
        const RecordParts parts{{"NumPage", i + 1},
                                {"Code", 2},
                                {"Time", kStart + i * 60},
                                {"Speed", 0},
                                {"LevelRS485_1", (i < 20 ? 3120 : 2510) + i * 7919 % noise}};
        contents.records.add(30, parts.mask, parts.block);
    }
    contents.records.setUtcOffset(3 * 3600);
    return contents;
}

// Translates by key, as a host does.
class EnglishTexts : public QTranslator
{
public:
    QString translate(const char* /*context*/, const char* key, const char* /*note*/, int n) const override
    {
        return QTranslator::translate(nullptr, key, nullptr, n);
    }
};

} // namespace

class FuelViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
        QVERIFY(texts_.load("en", VLK_TEXTS) && QCoreApplication::installTranslator(&texts_));
    }
    void init()
    {
        records_ = std::make_unique<ShownRecords>();
        bar_ = std::make_unique<NoticeBar>(nullptr, "label_Told");
        view_ = std::make_unique<FuelView>(records_.get(), nullptr, bar_.get());
        records_->setContents(drained());
        view_->resize(700, 400);
        view_->show();
        QApplication::setActiveWindow(view_.get());
        good_ = file("tank.xml", "<FUEL type='D1'><TABLE><DATA param_U='0' param_V='0'/>"
                                 "<DATA param_U='400' param_V='4000'/></TABLE></FUEL>");
    }

    void namesVehicles_data()
    {
        const QDateTime time({2026, 11, 24}, {6, 0});
        DataTable<QString, QString>({"file", "vehicle"})
            .row("as it was proposed", periodFileName("Рейс 71", time, time) + ".xml", "Рейс 71")
            .row("exported again", "/f/Van 7 2026-11-24 06-00 - 2026-11-25 06-00 (2).csv", "Van 7")
            .row("without a vehicle", periodFileName({}, time, time) + ".xml", {})
            .row("another name", "/f/KAMAZ-5490 2026-11-24.2.xml", "KAMAZ-5490 2026-11-24.2");
    }
    void namesVehicles()
    {
        QFETCH(QString, file);
        QTEST(vehicleOfFile(file), "vehicle");
    }

    void listsAndLooks()
    {
        QSignalSpy changed(view_.get(), &FuelView::fuelChanged);
        choose(good_);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(view_->litres().size(), std::size_t{40});
        const auto copied = [this] {
            QTest::mouseClick(view_->findChild<QPushButton*>("pushButton_CopyFuel"), Qt::LeftButton);
            return QApplication::clipboard()->text();
        };
        QVERIFY(copied().contains("-61"));
        QCOMPARE(row(), QStringList({"▼ Drain", "28.05.2026 23:45", "312", "251", "-61", "–"}));
        QTest::keyClick(table(), Qt::Key_Down);
        QCOMPARE(records_->current(), 19);
        QTest::keyClick(table(), Qt::Key_Return);
        QCOMPARE(records_->inSight(), (TimeSpan{kStart + 19 * 60 - 900.0, kStart + 20 * 60 + 900.0}));

        auto* fall = view_->findChild<QDoubleSpinBox*>("doubleSpinBox_FuelFall");
        fall->setFocus();
        fall->selectAll();
        QTest::keyClicks(fall, "61.5");
        QTest::keyClick(fall, Qt::Key_Return);
        QCOMPARE(fall->value(), 61.5);
        QCOMPARE(table()->model()->rowCount(), 0);
        records_->setContents(TelemetryContents{});
        QVERIFY(view_->litres().empty() && view_->events().empty());
    }

    // Another drain, and the line that was chosen stays so while the user looks elsewhere.
    void grows()
    {
        choose(good_);
        QTest::keyClick(table(), Qt::Key_Down);
        records_->setCurrent(5);
        table()->selectAll();
        for (quint32 i = 40; i < 60; ++i) {
            const QByteArray record = RecordParts{
                {"NumPage", i + 1},
                {"Time", kStart + i * 60},
                {"Speed", 0},
                {"LevelRS485_1", 2000}}.bytes();
            records_->append(bytesAt(record.constData(), record.size()));
        }
        QCOMPARE(table()->model()->rowCount(), 2);
        QCOMPARE(table()->currentIndex().row(), 0);
        QCOMPARE(table()->selectionModel()->selectedRows().size(), 1);
        QTest::mouseClick(view_->findChild<QPushButton*>("pushButton_CopyFuel"), Qt::LeftButton);
        QCOMPARE(QApplication::clipboard()->text().count('\n'), 3);
        QCOMPARE(records_->current(), 5);
        for (const auto& [key, modifiers, line, record] :
             {std::tuple(Qt::Key_End, Qt::ControlModifier, 1, 39),
              {Qt::Key_Home, Qt::ControlModifier, 0, 19},
              {Qt::Key_End, Qt::NoModifier, 1, 39}}) {
            QTest::keyClick(table(), key, modifiers);
            QCOMPARE(records_->current(), record);
            const QModelIndexList chosen = table()->selectionModel()->selectedRows();
            QVERIFY(chosen.size() == 1 && chosen.front().row() == line);
        }
        QCOMPARE(static_cast<int>(view_->litres().size()), 60);
    }

    void saysWhatIsWrongWithATable_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("news");
        QTest::addColumn<int>("rows");
        const QByteArray rows = "<TABLE><DATA param_U='0' param_V='1'/><DATA param_U='400' param_V='4000'/>";
        QTest::newRow("another sensor of the kind") << "<FUEL type='D2'>" + rows + "</TABLE></FUEL>"

                                                    << "The table is of D2, the sensor chosen is: RS-485 "
                                                       "Fuel level 1. Check that it is the right table."
                                                    << 1;
        QTest::newRow("another kind") << "<FUEL type='A3'>" + rows + "</TABLE></FUEL>"

                                      << "The table of A3 does not suit: RS-485 Fuel level 1 measures "
                                         "something else. Choose another table."
                                      << 0;
        QTest::newRow("falls back")
            << "<FUEL type='D1'>" + rows + "<DATA param_U='500' param_V='9'/></TABLE></FUEL>"
            << "table.xml: The readings of the calibration table fall while the volume rises" << 0;
        QTest::newRow("no order") << QByteArray("x;y\n0;1\n400;4000\n")
                                  << "table.xml: The headings of the calibration table do not tell which "
                                     "column is the volume. Call it Volume, l"
                                  << 0;
    }
    void saysWhatIsWrongWithATable()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, news);
        QFETCH(int, rows);
        const QString path = file("table.xml", content);
        rememberFuelFolder(path);
        QString proposed;
        choose(path, &proposed);
        QCOMPARE(proposed, folder_.path());
        auto* label = view_->findChild<QLabel*>("label_FuelNews");
        QVERIFY(label->isVisible());
        QCOMPARE(label->text(), news);
        QCOMPARE(table()->model()->rowCount(), rows);
    }

    // Esc asks, and Esc again goes back to the table: what was typed is not lost but by the button.
    void asksBeforeATypedTableGoes()
    {
        whenOpen<QDialog>([](QDialog& dialog) {
            QTest::keyClicks(dialog.findChild<QLineEdit*>("lineEdit_Param"), "9");
            auto* line = dialog.findChild<QLineEdit*>("lineEdit_Volume");
            QTest::keyClicks(line, "1");
            QTest::keyClick(line, Qt::Key_Return);
            whenOpen<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
            QTest::keyClick(&dialog, Qt::Key_Escape);
            QVERIFY(dialog.isVisible());
            answerBox("Discard");
            QTest::keyClick(&dialog, Qt::Key_Escape);
            QVERIFY(!dialog.isVisible());
        });
        QMenu* menu = view_->findChild<QToolButton*>("toolButton_FuelTanks")->menu();
        Q_EMIT menu->aboutToShow();
        menu->actions().last()->trigger();
    }

    // A dialog that is given up leaves no dead end: a table can be typed, with either decimal sign.
    void typesATable()
    {
        rememberFuelFolder(good_);
        choose({});
        const auto* news = view_->findChild<QLabel*>("label_FuelNews");
        QVERIFY(news->isVisible() && news->text().contains("type"));
        whenOpen<QDialog>([](QDialog& dialog) {
            const auto press = [&dialog](const char* button) {
                QTest::keyClick(dialog.findChild<QPushButton*>(button), Qt::Key_Space);
            };
            press("pushButton_TakeTable");
            QVERIFY(dialog.isVisible());
            QCOMPARE(dialog.findChild<QLabel*>("label_TypedTable")->text(),
                     QString("The calibration table has no rows"));
            for (const auto& [volume, level] : {std::pair("0", "0"), {"200,5", "2005"}, {"400", "4000"}}) {
                QTest::keyClicks(dialog.findChild<QLineEdit*>("lineEdit_Param"), level);
                auto* line = dialog.findChild<QLineEdit*>("lineEdit_Volume");
                QTest::keyClicks(line, volume);
                QTest::keyClick(line, Qt::Key_Return);
                dialog.findChild<QLineEdit*>("lineEdit_Param")->clear();
            }
            press("pushButton_TakeTable");
            QVERIFY(!dialog.isVisible());
        });
        QMenu* menu = view_->findChild<QToolButton*>("toolButton_FuelTanks")->menu();
        Q_EMIT menu->aboutToShow();
        menu->actions().last()->trigger();
        QVERIFY(!news->isVisible());
        const QString told = bar_->findChild<QLabel*>("label_Told")->text();
        QVERIFY2(QFileInfo::exists(told.section(": ", 1)), qPrintable(told));
        QCOMPARE(view_->litres().front(), 200.5 + (3120 - 2005) / 1995.0 * 199.5);
        QCOMPARE(table()->model()->rowCount(), 1);
    }

    // What a damaged record shows is not measured: the drain stays, and the list tells of the records left
    // out.
    void leavesOutDamaged()
    {
        const QString path = folder_.filePath("damaged.xml");
        const TelemetryContents whole = drained();
        QVERIFY(saveTelemetryFile(path, TelemetryForm::Xml, whole.records, whole.origin));
        QByteArray content = readFile(path);
        for (int damaged = 0, at = 0; damaged < 3; ++damaged) {
            at = content.indexOf("2510<", at);
            content.replace(at, 4, damaged == 0 ? "2x10" : "25y0");
        }
        writeFile(path, content);
        records_->setContents(*readTelemetryFile(path));
        choose(good_);
        QCOMPARE(table()->model()->rowCount(), 1);
        QCOMPARE(row().mid(2, 3), QStringList({"312", "251", "-61"}));
        QVERIFY(view_->findChild<QLabel*>("label_FuelNews")->text().contains("left out here: 3."));
    }

    // Nor is what happened at a time that cannot be right.
    void leavesOutDamagedTimes()
    {
        TelemetryContents contents = drained();
        const RecordParts strayed{{"NumPage", 100}, {"Time", kStart + 90 * 86'400}};
        contents.records.add(30, strayed.mask, strayed.block);
        const RecordParts behind{{"NumPage", 101}, {"Time", kStart + 40 * 60}};
        contents.records.add(30, behind.mask, behind.block);
        records_->setContents(std::move(contents));
        choose(good_);
        QVERIFY(view_->findChild<QLabel*>("label_FuelNews")->text().contains("left out here: 1."));
    }

    // Its end hides the drain: the list tells of it, not that nothing happened alone.
    void saysThatATableIsTooShort()
    {
        choose(file("short.csv", "Level;Volume, l\n0;0\n2510;251\n"));
        QCOMPARE(table()->model()->rowCount(), 0);
        const auto* news = view_->findChild<QLabel*>("label_FuelNews");
        QVERIFY(news->isVisible());
        QVERIFY2(news->text().startsWith("20 of 40 readings of RS-485 Fuel level 1 are beyond the ends"),
                 qPrintable(news->text()));
    }

    void saysWhatATableDoesNotTellApart()
    {
        choose(file("blind.csv", "Level;Volume, l\n0;0\n2800;251\n2800;312\n4100;410\n"));
        const auto* news = view_->findChild<QLabel*>("label_FuelNews");
        QVERIFY2(
            news->text().contains("RS-485 Fuel level 1 has one reading for several volumes (2,800: 251–312"),
            qPrintable(news->text()));
    }

    // Its scale ends at 1023, all that is above it is an error.
    void headsInAnotherLanguage()
    {
        const auto isWhole = [this] {
            const QHeaderView* heads = table()->horizontalHeader();
            bool isWhole = true;
            for (int column = 0; column < heads->count() - 1; ++column)
                isWhole = isWhole && heads->sectionSize(column) >= heads->sectionSizeHint(column);
            return isWhole;
        };
        {
            EnglishTexts russian;
            QVERIFY(russian.load("ru", VLK_TEXTS) && QCoreApplication::installTranslator(&russian));
            view_->retranslate();
            QVERIFY(isWhole());
        }
        view_->retranslate();
        QVERIFY(isWhole());
    }

    void saysThatATableGivesNoVolume()
    {
        choose(file("small.csv", "Level;Volume, l\n1;0\n1000;400\n"));
        QVERIFY(table()->findChild<QLabel*>("label_Empty")->text().startsWith("No volume can be computed"));
    }

    void saysThatAThresholdIsBelowTheNoise()
    {
        records_->setContents(drained(200, 300));
        choose(good_);
        const QString news = view_->findChild<QLabel*>("label_FuelNews")->text();
        QVERIFY2(news.startsWith("Fall from 10.0\u00a0l is below the noise of the level, "),
                 qPrintable(news));
        const auto* fall = view_->findChild<QDoubleSpinBox*>("doubleSpinBox_FuelFall");
        QVERIFY(fall->toolTip().contains("there may be false ones"));
    }

    void savesAndPrints()
    {
        choose(good_);
        const QString path = folder_.filePath("list.csv");
        view_->setTitle("Van 7");
        QString proposed;
        answerFile(folder_.filePath("list"), &proposed);
        QTest::mouseClick(view_->findChild<QPushButton*>("pushButton_SaveFuel"), Qt::LeftButton);
        const QList<QByteArray> lines = readFile(path).split('\n');
        QVERIFY(proposed.endsWith("/Van 7 Refuellings and drains.csv"));
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines[1],
                 QByteArray("Drain;2026-05-28T23:45:40+03:00;2026-05-28T23:46:40+03:00;312.0;251.0;-61.0;;;"
                            "RS-485 Fuel level 1\r"));
        QTest::keyClick(table(), Qt::Key_Down);
        TimeSpan asked;
        view_->setVehicle("KAMAZ");
        const auto paint = [&asked](QPainter& painter, const QSize& size, const TimeSpan& span) {
            asked = span;
            painter.drawLine(0, 0, size.width(), size.height());
        };
        view_->setPictures(paint, paint, [](const TimeSpan&) { return QString("Track of then"); });
        choose(file("short.csv", "Level;Volume, l\n0;0\n3119;311.9\n"));
        QTextDocument sheet;
        view_->writeSheet(sheet);
        // Curve and track as lines, and what the list does not see.
        QPrinter printer;
        printer.setOutputFileName(folder_.filePath("sheet.pdf"));
        sheet.print(&printer);
        QVERIFY(!readFile(folder_.filePath("sheet.pdf")).contains("/Subtype /Image"));
        QVERIFY(sheet.toPlainText().contains("20 of 40 readings of RS-485 Fuel level 1 are beyond"));
        QVERIFY(sheet.toPlainText().contains("KAMAZ") && sheet.toPlainText().contains("-60.9"));
        QVERIFY(sheet.toPlainText().contains("28.05.2026 23:45 – 23:46"));
        QVERIFY(sheet.toPlainText().contains("Track of then"));
        QVERIFY(asked.contains(kStart + 20 * 60));
    }

    // Litres are among the curves; whoever filters them is told that only readings can be.
    void filterOfLitres_data()
    {
        DataTable<QString, bool>({"typed", "told"})
            .row("by name", "Speed = 0 and fuel > 100", true)
            .row("with unit, in quotes", "\"Fuel, l\" > 100", true)
            .row("in the other language", "Speed = 0 and топливо > 100", true)
            .row("another name", "Fueling > 100", false);
    }
    void filterOfLitres()
    {
        QFETCH(QString, typed);
        TestDevice device;
        device.texts = [](const QString& language, const QString& key) {
            return language == "ru" && key == "rec_295" ? QStringLiteral("Топливо") : key;
        };
        const QScopedValueRollback<Device*> present(vlkDevice, &device);
        records_->setComputed({{"litres", "Fuel", "l", {}, "rec_295"}});
        RecordsModel model(records_.get(), nullptr);
        FilterField field(records_.get(), &model, nullptr);
        field.apply(typed);
        const QString said = field.findChild<QLabel*>("label_FilterFault")->text();
        QVERIFY(!said.isEmpty());
        QTEST(said.contains("\" is computed with a calibration table"), "told");
    }

    // Records that come meanwhile count, with fuel in them or without.
    void summaryGrows()
    {
        SummaryView summary(records_.get());
        connect(view_.get(), &FuelView::fuelChanged, &summary,
                [&] { summary.setFuel(view_->litres(), view_->events()); });
        summary.show();
        const auto* model = summary.findChild<QTableView*>("tableView_Summary")->model();
        const auto counted = [model] { return model->index(15, 1).data().toString(); };
        QCOMPARE(counted(), QString("40"));
        const QByteArray record = RecordParts{{"NumPage", 41}, {"Time", kStart + 40 * 60}}.bytes();
        records_->append(bytesAt(record.constData(), record.size()));
        QCOMPARE(counted(), QString("41"));
    }

    void summary()
    {
        choose(good_);
        SummaryView summary(records_.get());
        summary.setTitle("Van 7");
        summary.setFuel(view_->litres(), view_->events());
        summary.show();
        const auto* model = summary.findChild<QTableView*>("tableView_Summary")->model();
        const auto value = [model](const char* key) {
            for (int i = 0; i < model->rowCount(); ++i) {
                if (model->index(i, 0).data() == QLatin1String(key))
                    return model->index(i, 1).data().toString();
            }
            return QString();
        };
        QCOMPARE(value("Standing, h:min"), QString("0:39"));
        QCOMPARE(value("Drains"), QString("1"));
        QCOMPARE(value("Drained, l"), QString("61"));
        QCOMPARE(value("Used, l"), QString("0.0"));
        QCOMPARE(value("Records"), QString("40"));
        QTest::mouseClick(summary.findChild<QPushButton*>("pushButton_CopySummary"), Qt::LeftButton);
        QVERIFY(QApplication::clipboard()->text().contains("Standing, h:min\t0:39"));
        QString proposed;
        answerFile(folder_.filePath("summary"), &proposed);
        QTest::mouseClick(summary.findChild<QPushButton*>("pushButton_SaveSummary"), Qt::LeftButton);
        QVERIFY(proposed.endsWith("/Van 7 Summary.csv"));
        QVERIFY(readFile(folder_.filePath("summary.csv")).contains("Standing, h:min;0:39"));
        records_->setInSight({kStart, kStart + 600.0});
        QCOMPARE(value("Records"), QString("11"));
        auto* over = summary.findChild<QComboBox*>("comboBox_SummaryOver");
        records_->setPassing({5, 9});
        QTest::keyClick(over, Qt::Key_Down);
        QCOMPARE(value("Records"), QString("5"));
        QTest::keyClick(over, Qt::Key_Down);
        const auto* note = summary.findChild<QLabel*>("label_Empty");
        QVERIFY(note->isVisible() && note->text().startsWith("Choose several rows"));
        records_->setChosen({19, 7, 21});
        QCOMPARE(value("Records"), QString("15"));
        QCOMPARE(value("Drained, l"), QString("61"));
        QTest::keyClick(over, Qt::Key_Down);
        QCOMPARE(model->rowCount(), 2); // midnight in between, by the zone of the records
        QCOMPARE(model->index(0, 15).data(), QVariant("34"));
        records_->setContents(TelemetryContents{});
        QCOMPARE(model->rowCount(), 0);
        // What no record tells is a dash, not 0.
        TelemetryContents silent;
        for (quint32 i = 0; i < 3; ++i) {
            const RecordParts parts{{"NumPage", i}, {"Time", kStart + i * 60}};
            silent.records.add(30, parts.mask, parts.block);
        }
        QTest::keyClick(over, Qt::Key_Home);
        records_->setContents(std::move(silent));
        summary.setFuel({}, {});
        for (const char* key :
             {"Distance, km", "Moving, h:min", "Standing, h:min", "Ignition on, h:min", "Refuellings",
              "Refuelled, l", "Drains", "Drained, l", "Without a fix, h:min"})
            QCOMPARE(value(key), QStringLiteral("–"));
        QCOMPARE(value("Records"), QString("3"));
        // A number of four figures is one in a spreadsheet, too.
        records_->setContents(drained(1200));
        QCOMPARE(value("Records"), QString("1,200"));
        answerFile(folder_.filePath("long"));
        QTest::mouseClick(summary.findChild<QPushButton*>("pushButton_SaveSummary"), Qt::LeftButton);
        const QByteArray csv = readFile(folder_.filePath("long.csv"));
        QVERIFY2(csv.contains("Records;1200\r") && csv.contains("Used, l;\r"), csv.constData());
        QVERIFY2(csv.contains("From;2026-05-28T23:26:40+03:00\r"), csv.constData());
        QTest::mouseClick(summary.findChild<QPushButton*>("pushButton_CopySummary"), Qt::LeftButton);
        QVERIFY(QApplication::clipboard()->text().contains("Records\t1200\n"));
        QVERIFY(QApplication::clipboard()->text().contains("From\t28.05.2026 23:26\n"));
    }

private:
    QString file(const char* name, const QByteArray& content) const
    {
        return writeFile(folder_.filePath(name), content);
    }
    // By the menu: the sensor, then its table in the dialog.
    void choose(const QString& table, QString* proposed = nullptr)
    {
        QMenu* menu = view_->findChild<QToolButton*>("toolButton_FuelTanks")->menu();
        Q_EMIT menu->aboutToShow();
        answerFile(table, proposed);
        menu->actions().first()->trigger();
    }
    QTableView* table() const { return view_->findChild<QTableView*>("tableView_Fuel"); }
    QStringList row() const
    {
        QStringList cells;
        for (int column = 0; column < table()->model()->columnCount(); ++column)
            cells << table()->model()->index(0, column).data().toString();
        return cells;
    }

    EnglishTexts texts_;
    QTemporaryDir folder_;
    std::unique_ptr<ShownRecords> records_;
    std::unique_ptr<NoticeBar> bar_;
    std::unique_ptr<FuelView> view_;
    QString good_;
};

QTEST_MAIN(FuelViewTest)
#include "tst_fuel_view.moc"
