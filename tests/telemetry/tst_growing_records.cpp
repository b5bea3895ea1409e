// Records that come live while a saved period is shown: which of them join it, and what is told of them.

#include "saving_view.h"
#include "support/answers.h"

using vlk::Message;

class GrowingRecordsTest : public QObject, private SavingView
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { start(); }
    void init()
    {
        open();
        QFile::remove(file_);
    }

    // A period that reaches up to the present grows by what the tracker sends, as long as it is there.
    void growsByLiveRecords()
    {
        const auto show = [this] {
            press("label_SavedInPart_Action1");
            press("pushButton_Get_Current");
            return ScriptedHost::window("VLK_Widget_Tmi_Table");
        };
        send(Message::RecordByNumber, 8);
        startSave(7, 8);
        QWidget* records = show();
        auto* table = ScriptedHost::child<QTableView>(records, "tableWidget");
        const auto rows = [table] { return table->model()->rowCount(); };
        const auto number = [table](int row) {
            QAbstractItemModel* const model = table->model();
            int column = 0;
            while (model->headerData(column, Qt::Horizontal).toString() != "tmizta_123")
                ++column;
            return model->index(row, column).data().toString();
        };
        for (const qint64 each : {9, 8, 9, 11})
            send(Message::RecordByNumber, each);
        QCOMPARE(rows(), 4);
        QCOMPARE(number(3), QString("11"));
        // What the file lacks is told, and which of them nobody has read.
        const auto told = [records] { return ScriptedHost::child<QLabel>(records, "label_Damage")->text(); };
        QCOMPARE(told(), QString("rec_543 rec_544"));
        // Where the user is, what is selected and the filter stay.
        table->selectRow(2);
        QTest::keyClick(table, Qt::Key_Down, Qt::ShiftModifier);
        const QModelIndexList selected = table->selectionModel()->selectedRows();
        QVERIFY(selected.size() > 1);
        send(Message::RecordByNumber, 12);
        QCOMPARE(table->selectionModel()->selectedRows(), selected);
        QCOMPARE(table->currentIndex().row(), 3);
        send(Message::RecordByNumber, Extra + 13); // which brings a column
        QCOMPARE(number(table->currentIndex().row()), QString("11"));
        auto* filter = ScriptedHost::child<QLineEdit>(records, "lineEdit_Filter");
        QTest::keyClicks(filter, "NumPage > 7 and NumPage != 15");
        QTest::keyClick(filter, Qt::Key_Return);
        for (const qint64 each : {14, 15})
            send(Message::RecordByNumber, each);
        QCOMPARE(rows(), 6);
        QCOMPARE(number(5), QString("14"));
        QCOMPARE(ScriptedHost::child<QLabel>(records, "label_Count")->text(), QString("rec_052"));
        table->sortByColumn(table->horizontalHeader()->logicalIndex(0), Qt::DescendingOrder);
        send(Message::RecordByNumber, 16);
        QCOMPARE(number(0), QString("16"));
        QCOMPARE(number(table->currentIndex().row()), QString("11"));
        host.send(Message::TrackerDetached);
        QCOMPARE(told(), QString("rec_543 rec_544 rec_545"));
        // Nobody can read them again now: they do not go unasked.
        answerBox("wrd_031", "rec_680");
        records->close();
        QVERIFY(records->isVisible());
        const qint32 asTable = 1;
        answerBox("wrd_031", "rec_744");
        host.send(Message::ShowStoredFile, &file_, &asTable);
        QCOMPARE(rows(), 7);
        open();
        // They are not told as records of the tracker that comes next.
        QCOMPARE(text("label_SavedInPart"), QString());
        send(Message::RecordByNumber, 17);
        QCOMPARE(rows(), 7);
        // It ended before what is already known.
        startSave(7, 8);
        answerBox("rec_745", "rec_744");
        show();
        QCOMPARE(told(), QString());
        send(Message::RecordByNumber, 18);
        QCOMPARE(rows(), 2);
        // What a cancelled save has fetched ends nothing: in front of its last record some are missing.
        startSave(7, 30);
        press("pushButton_Save_Cancel");
        send(Message::RecordByNumber, 8);
        show();
        send(Message::RecordByNumber, 31);
        QCOMPARE(rows(), 2);
    }

    // Shown again the period has its rows and what is told of them; behind another file it is the file's
    // alone.
    void growsOnceMore()
    {
        startSave(7, 8);
        press("label_SavedInPart_Action1");
        press("pushButton_Get_Current");
        send(Message::RecordByNumber, 11);
        QWidget* const records = ScriptedHost::window("VLK_Widget_Tmi_Table");
        const auto seen = [records] {
            return qMakePair(ScriptedHost::child<QTableView>(records, "tableWidget")->model()->rowCount(),
                             ScriptedHost::child<QLabel>(records, "label_Damage")->text());
        };
        QCOMPARE(seen(), qMakePair(3, QString("rec_543 rec_544")));
        ScriptedHost::child<QAbstractButton>(records, "label_Damage_Close")->click();
        records->close();
        send(Message::RecordByNumber, 12);
        QCOMPARE(seen(), qMakePair(4, QString()));
        press("label_SavedInPart_Action1");
        QCOMPARE(seen(), qMakePair(4, QString("rec_543 rec_544")));
        // Closed it keeps them as long as the tracker is there; behind other records they would be gone.
        const qint32 asTable = 1;
        answerBox("rec_745", "rec_744");
        host.send(Message::ShowStoredFile, &file_, &asTable);
        QTRY_COMPARE(seen(), qMakePair(2, QString()));
        press("label_SavedInPart_Action1");
        QCOMPARE(seen(), qMakePair(2, QString()));
        send(Message::RecordByNumber, 9);
        QCOMPARE(seen(), qMakePair(3, QString("rec_543")));
        host.send(Message::TrackerDetached);
        answerBox("rec_681", "rec_680");
        QVERIFY(records->close());
        QVERIFY(!records->isVisible());
    }

    // The present state comes under the number of the latest record, which is another one.
    void presentStateHasNoNumber()
    {
        startSave(7, 8);
        press("label_SavedInPart_Action1");
        press("pushButton_Get_Current");
        QWidget* const records = ScriptedHost::window("VLK_Widget_Tmi_Table");
        QAbstractItemModel* const model = ScriptedHost::child<QTableView>(records, "tableWidget")->model();
        const auto sendPresent = [this](qint64 number) {
            OpenedView::send(Message::CurrentRecord, behind(3, record(number)).leftJustified(101, '\0'));
        };
        const auto numbers = [model] {
            QStringList numbers;
            for (int row = 0; row < model->rowCount(); ++row)
                numbers << model->index(row, 0).data().toString();
            return numbers;
        };
        const auto* const told = ScriptedHost::child<QLabel>(records, "label_Damage");
        for (const qint64 each : {8, 9, 9})
            sendPresent(each);
        QCOMPARE(numbers(), (QStringList{"7", "8", "–"}));
        QCOMPARE(told->text(), QString("rec_543 rec_544"));
        send(Message::RecordByNumber, 9);
        QCOMPARE(numbers(), (QStringList{"7", "8", "–", "9"}));
        QCOMPARE(told->text(), QString("rec_543")); // none is missing now
        const int time = 2;
        QCOMPARE(model->index(2, time).data(), model->index(3, time).data());
    }
};

QTEST_MAIN(GrowingRecordsTest)
#include "tst_growing_records.moc"
