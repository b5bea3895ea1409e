// What becomes of kept edits when the configuration is written to the tracker.

#include "host/unsaved_window.h"
#include "support/data_table.h"

class WrittenEditsTest : public QObject, private UnsavedWindow
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { start(); }
    void init() { begin(); }

    // From then on the tracker has what was written; a file that was opened stays as it is.
    void comparedWithWhatIsWritten()
    {
        for (const QString source : {"tracker", "file"}) {
            open(source, false);
            edit(false);
            const auto* count = child<QToolButton>("toolButton_Differences");
            QVERIFY(count->text() != "0");
            written(false);
            QCOMPARE(count->text() == "0", source == "tracker");
            press("pushButton_Light_ConfigFull");
            const auto* mark =
                child<QWidget>("page_Full")->findChild<QWidget*>("mark_GPRSSrv_spinBox_Port_Main");
            QCOMPARE(mark && mark->isVisible(), source == "file");
            press("toolButton_Differences");
            QCOMPARE(child<QComboBox>("comboBox_Against")->itemText(0),
                     QString(source == "tracker" ? "rev_255" : "rev_109"));
        }
    }

    // What the file still holds is kept there; what the tracker held before a write is an edit.
    void takenBackBehindAWrite()
    {
        for (const QString source : {"file", "tracker"}) {
            open(source);
            edit();
            written();
            press("toolButton_Undo");
            press("toolButton_Undo");
            window->close();
            QCOMPARE(files().size(), source == "tracker" ? 1 : 0);
        }
    }

    // A new configuration is the tracker's once it is written, and so is what is edited from then on.
    void goesOnInTheTracker()
    {
        open("new");
        edit();
        written();
        type(child<QSpinBox>("spinBox_RegTimer"), "<All>61<Tab>");
        window->close();
        open("new");
        QVERIFY(offer().isEmpty());
        open("tracker");
        QCOMPARE(offer(), QString("rev_345: 1"));
        QCOMPARE(files().size(), 1);
    }

    // From the host's word on a message that hands it over is not enough, and what was edited since stays.
    void confirmed()
    {
        vlk::WriteConfirmation told;
        host_.send(Message::ConfirmWrite);
        for (const quint32 size : {0U, 4U}) {
            told.size = size;
            host_.send(Message::ConfirmWrite, &told);
        }
        edit();
        written();
        QCOMPARE(files().size(), 0);

        told.size = sizeof told;
        host_.send(Message::ConfirmWrite, &told);
        told.step = vlk::WriteConfirmation::Confirmed;
        type(child<QLineEdit>("lineEdit_Name"), "<All>again");
        const QByteArray first = written();
        QCOMPARE(files().size(), 1);
        type(child<QSpinBox>("spinBox_RegTimer"), "<All>61<Tab>");
        written(); // which the host refuses
        told.content = &first;
        host_.send(Message::ConfirmWrite, &told);
        open("tracker");
        host_.send(Message::ConfirmWrite, &told);
        open("file");
        QCOMPARE(offer(), QString("rev_345: 1"));
        press("label_Unsaved_Action2");
        written();
        open("tracker");
        told.size = offsetof(vlk::WriteConfirmation, content); // the last one
        host_.send(Message::ConfirmWrite, &told);
        QCOMPARE(files().size(), 0);
    }

    // What the tracker has taken in part is edited no longer.
    void takenInPart()
    {
        open("tracker");
        vlk::WriteConfirmation told;
        told.size = sizeof told;
        host_.send(Message::ConfirmWrite, &told);
        edit();
        const QByteArray taken = written().replace("10.0.0.1", "telemetry.example.com");
        told.step = vlk::WriteConfirmation::Held;
        told.content = &taken;
        host_.send(Message::ConfirmWrite, &told);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^1 changes are kept: "));
        window->close();
        open("tracker");
        window->close();
    }

    // What the tracker was brought back to is taken over as the tracker holds it.
    void takesOver()
    {
        open("tracker");
        vlk::WriteConfirmation told;
        told.size = sizeof told;
        host_.send(Message::ConfirmWrite, &told);
        const QByteArray first = written();
        child<QComboBox>("comboBox_NormState_In2")->setCurrentIndex(0);
        const QByteArray second = written();
        told.step = vlk::WriteConfirmation::Confirmed;
        told.content = &second;
        host_.send(Message::ConfirmWrite, &told);
        told.step = vlk::WriteConfirmation::Held;
        told.content = &first;
        host_.send(Message::ConfirmWrite, &told);
        press("label_Unsaved_Action1");
        QCOMPARE(written(), first);
    }

    // A write that its run did not see the end of is tried again by the next run, which knows of it by what
    // the tracker has now alone.
    void confirmedInTheNextRun_data()
    {
        DataTable<QString, bool> table({"source", "full"});
        for (const char* source : {"tracker", "new", "file"})
            table.row(source, source, true);
        table.row("quick", "tracker", false);
    }
    void confirmedInTheNextRun()
    {
        QFETCH(QString, source);
        QFETCH(bool, full);
        host_.send(Message::ConfirmWrite);
        open(source, full);
        edit(full);
        vlk::WriteConfirmation told;
        told.step = vlk::WriteConfirmation::Confirmed;
        const QByteArray content = written(full);
        told.content = &content;
        const QString kept = files().value(0);
        QVERIFY(QFile::copy(kept, kept.chopped(qstrlen(".unsaved")) + "0.unsaved"));
        auto unsaved = vlk::review::unsavedIn(kept);
        QVERIFY(unsaved);
        unsaved->subject = "tracker firmware\n2"; // which has not got it
        const QString other = vlk::review::recoveryPath(kept_->path(), unsaved->subject);
        QString reason;
        QVERIFY(vlk::review::keepUnsaved(other, *unsaved, &reason));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^changes are written: "));
        host_.send(Message::ConfirmWrite, &told);
        QCOMPARE(files(), QStringList{other});
    }
};

QTEST_MAIN(WrittenEditsTest)
#include "tst_written_edits.moc"
