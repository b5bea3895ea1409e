// The filter of the window of records: what is typed, offered and kept, and what is on show behind it.

#include "records_window.h"
#include "support/data_table.h"

using namespace vlk;

class RecordsFilterTest : public QObject, private RecordsWindow
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { start(); }

    void filter_data()
    {
        DataTable<QString, QStringList, QString>({"typed", "numbers", "told"})
            .row("event by its words", "Code = \"event 35\"", {"1007", "1030"}, {})
            .row("event that the file lacks", "Code = \"event 41\"", {}, {})
            .row("event that there is not", "Code = \"events 41\"", {}, "rec_005")
            .row("conditions", "NumPage < 1003 and not IN1 = 1", {"1000", "1002"}, {})
            .row("nothing", "Power < 1", {}, {})
            .row("column that the file lacks", "Power > 1 or GSM > 1", {}, "rec_512")
            .row("fault", "NumPage < ", {}, "rec_005");
    }
    void filter()
    {
        QFETCH(QString, typed);
        QFETCH(QStringList, numbers);
        QFETCH(QString, told);
        show(drive());
        QCOMPARE(text("label_Count"), QString("rec_051"));
        type("lineEdit_Filter", typed);
        pressInFilter(Qt::Key_Return);
        QVERIFY(window->isVisible());
        QTEST(text("label_FilterFault"), "told");
        QCOMPARE(child("label_FilterFault")->isVisible(), !told.isEmpty());
        if (!told.isEmpty()) {
            QCOMPARE(this->numbers().size(), 40);
            return;
        }
        QCOMPARE(this->numbers(), numbers);
        QCOMPARE(text("label_Count"), QString("rec_052"));
        QCOMPARE(table_->findChild<QWidget*>("pushButton_Empty")->isVisible(), numbers.isEmpty());
        const auto* frozen = child<QTableView>("tableWidget_Frozen");
        QTRY_COMPARE(frozen->height() > frozen->horizontalHeader()->height(), !numbers.isEmpty());
        // A filter that cannot be read shows nothing: what is on show is told with the fault.
        type("lineEdit_Filter", "Power > fast");
        pressInFilter(Qt::Key_Return);
        QCOMPARE(text("label_FilterFault"), QString("rec_005 rec_511"));
        QCOMPARE(text("label_Count"), QString("rec_052"));
        type("lineEdit_Filter", typed);
        pressInFilter(Qt::Key_Return);
        // Sorting keeps to them, and Esc gives back what is applied before it closes the window.
        table_->sortByColumn(column("NumPage"), Qt::DescendingOrder);
        QCOMPARE(this->numbers().size(), numbers.size());
        type("lineEdit_Filter", "Pow");
        QVERIFY(popup());
        pressInFilter(Qt::Key_Escape); // what is offered goes first
        pressInFilter(Qt::Key_Escape);
        QCOMPARE(child<QLineEdit>("lineEdit_Filter")->text(), typed);
        QVERIFY(window->isVisible());
        if (numbers.isEmpty()) {
            table_->findChild<QPushButton*>("pushButton_Empty")->click();
        } else {
            table_->setCurrentIndex(cell(0, "NumPage"));
            choose("rec_063");
        }
        QCOMPARE(this->numbers().size(), numbers.isEmpty() ? 40 : 1);
        // The button in the field empties it for good.
        type("lineEdit_Filter", "NumPage < 1003");
        pressInFilter(Qt::Key_Return);
        QCOMPARE(this->numbers().size(), 3);
        for (auto* button : child<QLineEdit>("lineEdit_Filter")->findChildren<QToolButton*>()) {
            if (button->defaultAction()->objectName() == "_q_qlineeditclearaction")
                button->click();
        }
        QTRY_COMPARE(this->numbers().size(), 40);
    }

    // Any column makes a filter; all of them make one of an hour around the record.
    void filterByCell_data()
    {
        DataTable<QString, QString, int>({"column", "choice", "count"})
            .row("a number", "Power", "rec_063", 1)
            .row("a time", "Time", "rec_063", 1)
            .row("an event", "Code", "rec_063", 2)
            .row("a state", "IN1", "rec_063", 20)
            .row("a place", "Longitude", "rec_063", 40)
            .row("an hour", "Power", "rec_425", 38);
    }
    void filterByCell()
    {
        QFETCH(QString, column);
        QFETCH(QString, choice);
        show(drive());
        table_->setCurrentIndex(cell(7, column));
        choose(qPrintable(choice));
        QCOMPARE(text("label_FilterFault"), QString());
        QTEST(numbers().size(), "count");
        QVERIFY(numbers().contains("1007"));
    }

    // The latest one first, for all files, in words of the language of the moment.
    void latestFilters()
    {
        show(drive());
        auto* line = child<QLineEdit>("lineEdit_Filter");
        for (const char* typed : {"NumPage < 1003", "Door (IN1) = 1", "Power > ", "NumPage < 1003"}) {
            type("lineEdit_Filter", typed);
            pressInFilter(Qt::Key_Return);
        }
        show(drive());
        QCOMPARE(line->text(), QString());
        line->setFocus();
        QTest::keyClick(line, Qt::Key_Down);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu);
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
        QCOMPARE(line->text(), QString("Door (IN1) = \"tmizta_033\""));
        QCOMPARE(numbers().size(), 20);
    }

    // The words of an event are known in both languages; in another one the filter stands in its words.
    void otherLanguage()
    {
        OfferedTexts offered;
        offered.fill = [](void*, const char* language, const char* key, QString* text) {
            if (qstrcmp(language, "ru") == 0 && qstrcmp(key, "event 35") == 0)
                *text = QStringLiteral("Начало заправки");
        };
        host_.send(Message::OfferTexts, &offered);
        show(drive());
        auto* line = child<QLineEdit>("lineEdit_Filter");
        const QString typed = QStringLiteral("Code = \"начало заправки\"");
        const QString turned = QStringLiteral("tmizta_124 = \"event 35\"");
        for (const char* unread : {"", "Pow"}) {
            line->setText(typed);
            pressInFilter(Qt::Key_Return);
            QCOMPARE(text("label_FilterFault"), QString());
            QCOMPARE(numbers(), QStringList({"1007", "1030"}));
            if (*unread)
                line->setText(unread);
            host_.send(Message::LanguageChanged);
            QCOMPARE(line->text(), *unread ? QString(unread) : turned);
            QCOMPARE(numbers().size(), 2);
        }
        QTest::keyClick(line, Qt::Key_Escape);
        QCOMPARE(line->text(), turned);
        host_.send(Message::OfferTexts);
    }

    // The current record, at which a cursor stands, is there again with the filter gone.
    void keptRecord()
    {
        show(drive());
        table_->setCurrentIndex(cell(5, "NumPage"));
        type("lineEdit_Filter", "NumPage < 1003");
        pressInFilter(Qt::Key_Return);
        table_->setFocus();
        QCOMPARE(numbers().size(), 3);
        QVERIFY(!table_->currentIndex().isValid() && !table_->selectionModel()->hasSelection());
        // Esc takes one thing after the other back before it closes the window.
        child<QWidget>("plot_Curves")->setFocus();
        QTest::keyClick(child<QWidget>("plot_Curves"), Qt::Key_B);
        QTest::keyClick(table_, Qt::Key_F, Qt::ControlModifier);
        table_->setFocus();
        for (const int rows : {3, 3, 40}) {
            QVERIFY(window->isVisible());
            QTest::keyClick(table_, Qt::Key_Escape);
            QCOMPARE(numbers().size(), rows);
        }
        QCOMPARE(table_->currentIndex().row(), 5);
        child<QLineEdit>("lineEdit_Filter")->setFocus();
        QTest::keyClick(child<QLineEdit>("lineEdit_Filter"), Qt::Key_Escape);
        QCOMPARE(QApplication::focusWidget(), table_);
        QTest::keyClick(table_, Qt::Key_Escape);
        QVERIFY(!window->isVisible());
    }

    // What passes is in sight where it is, else the first of what does.
    void placeInFiltered()
    {
        show(drive());
        table_->setCurrentIndex(cell(39, "NumPage"));
        const auto isInSight = [this](int row) {
            const QRect place = table_->visualRect(cell(row, "NumPage"));
            return place.top() >= 0 && place.bottom() <= table_->viewport()->height();
        };
        const std::pair<const char*, int> filters[] = {
            {"NumPage > 1004", 34}, {"NumPage < 1035", 0}, {"NumPage < 1002", 0}, {"", 39}};
        for (const auto& [filter, row] : filters) {
            type("lineEdit_Filter", filter);
            pressInFilter(Qt::Key_Return);
            QCoreApplication::processEvents();
            QVERIFY2(isInSight(row), filter);
        }
    }

    void completion()
    {
        show(drive());
        auto* line = child<QLineEdit>("lineEdit_Filter");
        // Before all others what the file has, as it stands in the heads.
        type("lineEdit_Filter", "x");
        pressInFilter(Qt::Key_Backspace);
        QVERIFY(popup());
        const char* const heads[] = {"tmizta_123", "tmizta_124", "tmizta_125"};
        for (int row = 0; row < 3; ++row)
            QCOMPARE(popup()->model()->index(row, 0).data().toString(), QString(heads[row]));
        type("lineEdit_Filter", "Lati");
        QAbstractItemView* offered = popup();
        QVERIFY(offered);
        QTest::keyClick(offered, Qt::Key_Down);
        QTest::keyClick(offered, Qt::Key_Return);
        QCOMPARE(line->text(), QString("Latitude "));
        QCOMPARE(numbers().size(), 40);
        // Enter takes nothing that was not gone to.
        QTest::keyClicks(line, "> 56,4 and Pow");
        QVERIFY(popup());
        pressInFilter(Qt::Key_Return);
        QCOMPARE(text("label_FilterFault"), QString("rec_005"));
        line->setText("Latitude > 56,4");
        pressInFilter(Qt::Key_Return);
        QCOMPARE(text("label_FilterFault"), QString());
    }
};

QTEST_MAIN(RecordsFilterTest)
#include "tst_records_filter.moc"
