// Saving a period from the telemetry view: a host's answers in, files out.

#include "saving_view.h"
#include "support/data_table.h"
#include "support/full_disk.h"

using vlk::Message;

class SaveSequenceTest : public QObject, private SavingView
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        start("<TRANS><OBJECT name=\"Van 7/2\"/></TRANS>");
        host.onSend = [this](Message message, void* p1, void* /*p2*/) {
            if (message == Message::RequestRecordOfPeriod || message == Message::RequestRecordByTime)
                times_ << *static_cast<QDateTime*>(p1);
            if (message != Message::RequestRecordByNumber)
                return;
            asked_ << *static_cast<quint32*>(p1);
            if (answersAtOnce_)
                send(Message::RecordByNumber, asked_.constLast());
        };
    }

    void init()
    {
        open();
        asked_.clear();
        times_.clear();
        file_ = folder.filePath("period.xml");
        QFile::remove(file_);
    }

    void collecting_data()
    {
        DataTable<Numbers, Numbers, Numbers>({"answers", "asked", "saved"})
            .row("two", {7, 8}, {}, {7, 8})
            .row("three", {7, 9, 8}, {8}, {7, 8, 9})
            .row("gaps", {7, 20, 12, 13, 19}, {8, 13, 14}, {7, 12, 13, 19, 20})
            .row("duplicates", {7, 11, 8, 8, 9, 8, 10}, {8, 9, 10}, {7, 8, 9, 10, 11})
            .row("duplicate of the first", {7, 10, 7, 7, 8, 9}, {8, 8, 9}, {7, 7, 8, 9, 10})
            .row("beyond the last", {7, 10, 12}, {8}, {7, 12, 10})
            .row("too short", {7, 9, Short, 8}, {8}, {7, 8, 9})
            .row("other kinds", {Extra + 7, 10, Protocol2 + 8, Extra + 9}, {8, 9}, {7, 8, 9, 10})
            .row("highest numbers", {0xfffffffd, 0xffffffff, 0xfffffffe}, {0xfffffffe},
                 {0xfffffffd, 0xfffffffe, 0xffffffff});
    }
    void collecting()
    {
        QFETCH(Numbers, answers);
        startSave(answers[0], answers[1]);
        for (int i = 2; i < answers.size(); ++i) {
            QVERIFY(!QFile::exists(file_) && !isIdle());
            send(Message::RecordByNumber, answers[i]);
        }
        QTEST(asked_, "asked");
        QTEST(saved(), "saved");
        QVERIFY(isIdle());
    }

    void barTellsOfSilence()
    {
        startSave(7, 20);
        send(Message::RecordByNumber, 8);
        const auto* bar = child<QProgressBar>("progressBar_Time");
        const QColor usual = bar->palette().color(QPalette::Highlight);
        QTRY_COMPARE(bar->format(), QString("tmiw_290"));
        QVERIFY(bar->palette().color(QPalette::Highlight) != usual);
        send(Message::RecordByNumber, 9);
        QCOMPARE(bar->format(), QString("%p%"));
        QCOMPARE(bar->palette().color(QPalette::Highlight), usual);
    }

    void refused_data()
    {
        // seconds from the first editor to the last
        DataTable<int, qint64, qint64>({"seconds", "first", "last"})
            .row("reversed", -1, 7LL, 8LL)
            .row("no time between", 0, 7LL, 8LL)
            .row("one record", 1, 7LL, 7LL)
            .row("last before first", 1, 8LL, 7LL)
            .row("nothing in it", 1, Short, 7LL);
    }
    void refused()
    {
        QFETCH(int, seconds);
        QFETCH(qint64, first);
        QFETCH(qint64, last);
        child<QDateTimeEdit>("dateTimeEdit_Last")
            ->setDateTime(child<QDateTimeEdit>("dateTimeEdit_First")->dateTime().addSecs(seconds));
        QStringList seen;
        ScriptedHost::whenModal([&seen](QWidget* modal) {
            auto* box = qobject_cast<QMessageBox*>(modal);
            seen = QStringList{box->windowTitle(), box->text(), box->buttons().value(0)->text()};
            box->buttons().constFirst()->click();
        });
        press("pushButton_SaveToFile");
        QCOMPARE(times_.size(), seconds > 0 ? 1 : 0);
        send(Message::RecordOfPeriod, first, 13);
        send(Message::RecordByTime, last, 13);
        QCOMPARE(seen, (QStringList{"wrd_004", seconds > 0 ? "tmiw_155" : "tmiw_154", "wrd_003"}));
        QVERIFY(isIdle() && asked_.isEmpty());
    }

    // A period that is another one than was typed is not read for minutes without a word.
    void notTaken()
    {
        auto* first = child<QDateTimeEdit>("dateTimeEdit_First");
        first->setFocus();
        first->selectAll();
        QTest::keyClicks(first, "31.02.2026");
        press("pushButton_SaveToFile");
        QVERIFY(times_.isEmpty() && first->window()->focusWidget() == first);
        QVERIFY(child<QLabel>("label_SavedInPart")->text().startsWith("typed_date"));
        startSave(7, 8);
        QCOMPARE(times_.size(), 2);
        QVERIFY(child<QLabel>("label_SavedInPart")->text() != "typed_date");
    }

    // The editors show the zone, the host is asked in UTC; each button has its filter and its form.
    void boundsAndForms()
    {
        child<QSpinBox>("spinBox_TimeOffset")->setValue(3);
        const QDateTime first(QDate(2025, 2, 1), QTime(15, 0), Qt::UTC);
        child<QDateTimeEdit>("dateTimeEdit_First")->setDateTime(first);
        child<QDateTimeEdit>("dateTimeEdit_Last")->setDateTime(first.addSecs(60));
        startSave(7, 8);
        QCOMPARE(times_, (QVector<QDateTime>{first.addSecs(-10800), first.addSecs(-10740)}));
        QCOMPARE(filter_, QString("tmiw_179 (*.xml)"));
        QCOMPARE(proposed_, QString("Van 7_2 2025-02-01 15-00 - 2025-02-01 15-01.xml"));
        QVERIFY(readFile(file_).contains("<TMI model=\"R-7106\" ") &&
                readFile(file_).contains("offset=\"10800\""));
        file_ = folder.filePath("period.csv");
        startSave(7, 8, "pushButton_SaveToExcel");
        QCOMPARE(filter_, QString("tmiw_180 (*.csv)"));
        QVERIFY(readFile(file_).count("\r\n") == 3 && readFile(file_).contains("=\"7\";"));
        file_ = folder.filePath("period.tmi");
        startSave(7, 8, "pushButton_SaveFileToServer");
        QCOMPARE(filter_, QString("tmiw_181 (*.tmi)"));
        QCOMPARE(readFile(file_).mid(128),
                 QByteArray("\x2c\0", 2) + record(7) + QByteArray("\x2c\0", 2) + record(8));
        const QString noName = folder.filePath("absent.xml");
        host.send(Message::OpenTelemetry, &noName);
        startSave(7, 8);
        QVERIFY2(proposed_.startsWith("text two 20"), qPrintable(proposed_));
    }

    void progressAndCancel()
    {
        // The time in which the user looks for a name is none of the save's.
        nowGiven_ = [] { QTest::qWait(2100); };
        startSave(7, 307);
        for (qint64 i = 8; i < 108; ++i)
            send(Message::RecordByNumber, i);
        auto* bar = child<QProgressBar>("progressBar_Time");
        QCOMPARE(bar->value(), 100);
        QCOMPARE(bar->maximum(), 300);
        QString shown;
        for (const char* name : {"ProgressBar_Time", "Packet_Cur", "Packet_Separator", "Packet_End",
                                 "Time_Cur", "Time_Separator", "Time_End"})
            shown += text((QByteArray("label_") + name).constData());
        QVERIFY2(QRegularExpression("^tmiw_152102/30000:00:0[01]/00:\\d\\d:\\d\\d$").match(shown).hasMatch(),
                 qPrintable(shown));
        for (const char* name :
             {"groupBox_Btn_Get", "pushButton_Get_Current_Touch", "pushButton_Get_Current_RFID"})
            QVERIFY(!isOn(name));
        QVERIFY(!bar->isHidden());
        QCOMPARE(child<QWidget>("groupBox_Btn_Save")->toolTip(), QString("tmiw_176"));
        // Nothing happens until the tracker answers, and that answer is not in the file.
        press("pushButton_Save_Cancel");
        QVERIFY(!isIdle() && !QFile::exists(file_));
        send(Message::RecordByNumber, 108);
        QVERIFY(isIdle());
        QCOMPARE(saved().size(), 102);
        QCOMPARE(saved().mid(100), (Numbers{107, 307}));
        // A save that is whole takes down what was said of the last one.
        QVERIFY(!child<QLabel>("label_SavedInPart")->isHidden());
        startSave(7, 8);
        QCOMPARE(text("label_SavedInPart"), QString("rec_081"));
        // The only way to its records stays: the cross of the host's notice above it may have gone by then.
        QVERIFY(child<QWidget>("label_SavedInPart_Close")->isHidden());
        // Its records are looked at without being read again.
        QFile::remove(file_);
        press("label_SavedInPart_Action1");
        auto* table =
            ScriptedHost::child<QTableView>(ScriptedHost::window("VLK_Widget_Tmi_Table"), "tableWidget");
        QVERIFY(table && table->isVisible());
        QCOMPARE(table->model()->rowCount(), 2);
    }

    // Five minutes that were read whole are not lost to a part of them.
    void partKeepsTheFileBefore()
    {
        startSave(7, 8);
        const QByteArray whole = readFile(file_);
        startSave(7, 20);
        send(Message::RecordByNumber, 8);
        press("pushButton_Save_Cancel");
        send(Message::RecordByNumber, 9);
        QCOMPARE(readFile(folder.filePath("period (tmiw_293).xml")), whole);
        QCOMPARE(saved(), (Numbers{7, 8, 20}));
        QVERIFY(text("label_SavedInPart").contains("tmiw_294"));
        // What is pressed next is answered in front of it, and it stays behind.
        press("pushButton_Clear");
        QCOMPARE(text("label_SavedInPart"), QString("tmiw_267"));
        press("label_SavedInPart_Close");
        QVERIFY(text("label_SavedInPart").contains("tmiw_294"));
    }

    // A key that is pressed once too often switches nothing on; afterwards the focus is where it was.
    void focusWhileSaving()
    {
        QApplication::setActiveWindow(window);
        auto* button = child<QPushButton>("pushButton_SaveToFile");
        button->setFocus();
        giveName(file_);
        QTest::keyClick(button, Qt::Key_Space);
        QTest::keyClick(window->focusWidget(), Qt::Key_Space);
        const auto* automatic = child<QCheckBox>("checkBox_Get_Auto_TMI");
        QVERIFY(!isIdle() && !automatic->isChecked() && !automatic->isEnabled());
        QCOMPARE(automatic->toolTip(), QString("tmiw_176"));
        send(Message::RecordOfPeriod, 7, 13);
        send(Message::RecordByTime, 9, 13);
        QCOMPARE(window->focusWidget(), child<QWidget>("pushButton_Save_Cancel"));
        send(Message::RecordByNumber, 8);
        QVERIFY(automatic->isEnabled() && automatic->toolTip().isEmpty());
        QCOMPARE(window->focusWidget(), button);
    }

    void cancelBeforeTheName()
    {
        press("pushButton_SaveToFile");
        QCOMPARE(text("label_ProgressBar_Time"), QString("tmiw_026"));
        // Escape is Cancel, however often it is pressed.
        for (int i = 0; i < 2; ++i)
            QTest::keyClick(window, Qt::Key_Escape);
        QVERIFY(window->isVisible() && !isIdle());
        QCOMPARE(text("label_SavedInPart"), QString("tmiw_302"));
        vlk::RunningWork work;
        host.send(Message::GetRunningWork, &work);
        QVERIFY(work.saving == 1 && work.cancelled == 1);
        send(Message::RecordOfPeriod, 7, 13);
        QVERIFY(isIdle() && window->isVisible());
        QCOMPARE(text("label_SavedInPart"), QString());
        // A cancelled save can be ended at once, without a record.
        press("pushButton_SaveToFile");
        QTest::keyClick(window, Qt::Key_Escape);
        press("label_SavedInPart_Action1");
        QVERIFY(isIdle() && text("label_SavedInPart").isEmpty());
        // The next save knows nothing of it. A tracker that goes away takes the file dialog with it.
        press("pushButton_SaveToFile");
        send(Message::RecordOfPeriod, 7, 13);
        ScriptedHost::whenModal([this](QWidget* modal) {
            send(Message::RecordByNumber, 8); // nobody asked for it
            QVERIFY(modal->isVisible());
            host.send(Message::TrackerDetached);
            QVERIFY(!modal->isVisible());
        });
        send(Message::RecordByTime, 20, 13);
        QVERIFY(isIdle() && window->isHidden() && asked_.isEmpty() && !QFile::exists(file_));
    }

    // Where records have come, a key or a cross that is pressed by habit ends nothing.
    void asksBeforeItEnds_data()
    {
        DataTable<bool, QString, Numbers>({"byCross", "answer", "saved"})
            .row("Esc, twice", false, "", Numbers{7, 8, 9, 10})
            .row("Esc and the verb", false, "tmiw_311", Numbers{7, 8, 10})
            .row("cross, Esc", true, "", Numbers{7, 8, 9, 10})
            .row("cross and the verb", true, "tmiw_311", Numbers{7, 8, 10})
            .row("too late", false, "late", Numbers{7, 8, 9, 10});
    }
    void asksBeforeItEnds()
    {
        QFETCH(bool, byCross);
        QFETCH(QString, answer);
        startSave(7, 10);
        send(Message::RecordByNumber, 8);
        bool isAsked = false;
        ScriptedHost::whenModal([&](QWidget* modal) {
            auto* box = qobject_cast<QMessageBox*>(modal);
            isAsked = box && box->text().contains("tmiw_310");
            for (QAbstractButton* button : box->buttons()) {
                if (button->text() == answer)
                    return button->click();
            }
            if (answer.isEmpty())
                return QTest::keyClick(box, Qt::Key_Escape);
            send(Message::RecordByNumber, 9); // the last that was missing
            QVERIFY(!box->isVisible());
        });
        if (byCross)
            window->windowHandle()->close();
        else
            QTest::keyClick(window, Qt::Key_Escape);
        QTRY_VERIFY(isAsked);
        QCOMPARE(window->isVisible(), !byCross || answer.isEmpty());
        if (answer.isEmpty())
            send(Message::RecordByNumber, 9);
        QTEST(saved(), "saved");
        QVERIFY(isIdle());
    }

    // A period counts as the last one when its file is named.
    void remembersThePeriod()
    {
        const vlk::Paths paths{folder.path(), {}, {}, {}};
        host.send(Message::SetPaths, &paths);
        const QDateTime day(QDate(2025, 2, 1), QTime(), Qt::UTC);
        for (const auto& [hour, isCancelled] : {std::pair(8, false), std::pair(9, true)}) {
            child<QDateTimeEdit>("dateTimeEdit_First")->setDateTime(day.addSecs(qint64{hour} * 3600));
            file_ = isCancelled ? QString() : folder.filePath("period.xml");
            startSave(7, 8);
            window->close();
            openAgain();
            press("toolButton_LastPeriod");
            QCOMPARE(child<QDateTimeEdit>("dateTimeEdit_First")->time(), QTime(8, 0));
        }
    }

    void endedFromOutside_data()
    {
        DataTable<Message>({"message"})
            .row("closed", Message::CloseWindows)
            .row("detached", Message::TrackerDetached)
            .row("opened again", Message::OpenTelemetry)
            .row("automatic requests", Message{});
    }
    // The file is written once, with what came.
    void endedFromOutside()
    {
        QFETCH(Message, message);
        startSave(7, 20);
        send(Message::RecordByNumber, 8);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("period.xml: 3 of 14 records"));
        const QString none;
        host.send(message, &none);
        child<QCheckBox>("checkBox_Get_Auto_TMI")->setChecked(message == Message{});
        QCOMPARE(saved(), (Numbers{7, 8, 20}));
        QCOMPARE(text("label_SavedInPart").startsWith("tmiw_266 "), message == Message::TrackerDetached);
        QFile::remove(file_);
        child<QCheckBox>("checkBox_Get_Auto_TMI")->setChecked(false);
        QVERIFY(isIdle());
        send(Message::RecordByNumber, 9);
        QCOMPARE(text("label_Event_NumPage_Value"), QString("9"));
        host.send(Message::CloseWindows);
        QVERIFY(!QFile::exists(file_));
    }

    void requestsAreKeptApart()
    {
        startSave(7, 9);
        send(Message::ClearedRecord, Protocol2 + 50, 70);
        send(Message::RecordByNumber, 8);
        QCOMPARE(saved(), (Numbers{7, 8, 9}));
        // Records are shown again from the next request of the user on.
        send(Message::RecordByNumber, 4);
        QCOMPARE(text("label_Event_NumPage_Value"), QString());
        press("pushButton_Get_Current");
        send(Message::RecordByNumber, 4);
        QCOMPARE(text("label_Event_NumPage_Value"), QString("4"));
    }

    // A host that answers before the request returns must not use up the stack.
    void answersWithinRequests()
    {
        const QScopedValueRollback atOnce(answersAtOnce_, true);
        startSave(1, 20000);
        QCOMPARE(saved().size(), 20000);
    }

    void failedSave_data()
    {
        // What is given when the name is asked for once more, nothing for Cancel; how often it failed.
        DataTable<QString, bool, QString, int>({"file", "fullDisk", "second", "failures"})
            .row("full disk", "period.xml", true, "period.xml", 2)
            .row("full disk, given up", "period.xml", true, "", 1)
            .row("folder gone", "gone/period.xml", false, "", 1)
            .row("folder gone, another", "gone/period.xml", false, "period2.xml", 1);
    }
    // What was there before stays; the log of failed saves has the reason, the window says that it failed.
    // The records are kept for another name.
    void failedSave()
    {
        QFETCH(QString, file);
        QFETCH(bool, fullDisk);
        QFETCH(QString, second);
        QFile::remove(folder.filePath("period2.xml"));
        QDir(folder.path()).mkdir("gone");
        file_ = folder.filePath(file);
        if (fullDisk)
            startSave(7, 8);
        const QByteArray before = readFile(file_);
        startSave(7, 9);
        QDir(folder.path()).rmdir("gone");
        static QStringList told;
        told.clear();
        const auto tell = [](QtMsgType type, const QMessageLogContext& context, const QString& message) {
            if (type == QtWarningMsg && QByteArray(context.category) == "vlk.save")
                told << message;
        };
        const QtMessageHandler usual = qInstallMessageHandler(tell);
        {
            const FullDisk disk(fullDisk ? 20 : RLIM_INFINITY);
            giveName(second.isEmpty() ? QString() : folder.filePath(second));
            send(Message::RecordByNumber, 8);
        }
        qInstallMessageHandler(usual);
        QTEST(static_cast<int>(told.size()), "failures");
        QVERIFY2(told[0].startsWith(file_ + ": ") && told[0].size() > file_.size() + 5, qPrintable(told[0]));
        QCOMPARE(readFile(file_), before);
        QVERIFY(QDir(folder.path()).entryList({"period.*.*"}).isEmpty());
        const bool isSaved = second == "period2.xml";
        QCOMPARE(text("label_ProgressBar_Time"), isSaved ? QString() : QString("tmiw_182"));
        file_ = folder.filePath(second);
        if (isSaved)
            QCOMPARE(saved(), (Numbers{7, 8, 9}));
        press("pushButton_Get_Current");
        QVERIFY(isIdle());
    }

    // Once the file is written nothing more is waited for, though it may want another name.
    void endsWhatIsToldOfACancelledSave()
    {
        startSave(7, 9);
        press("pushButton_Save_Cancel");
        QCOMPARE(text("label_SavedInPart"), QString("tmiw_302"));
        std::optional<QString> told;
        ScriptedHost::whenModal([&](QWidget* dialog) {
            told = text("label_SavedInPart");
            dialog->close();
        });
        {
            const FullDisk disk(20);
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("period.xml: "));
            send(Message::RecordByNumber, 8);
        }
        QCOMPARE(told, std::optional(QString()));
        QCOMPARE(text("label_ProgressBar_Time"), QString("tmiw_182"));
    }

    // A name that cannot be written is refused when it is given, and the dialog stays for another.
    void unwritableName_data()
    {
        DataTable<QString, rlim_t>({"name", "room"})
            .row("folder missing", "link.xml", RLIM_INFINITY)
            .row("no room at all", "new.xml", 0);
    }
    void unwritableName()
    {
        QFETCH(QString, name);
        QFETCH(rlim_t, room);
        QFile::link(folder.filePath("missing/period.xml"), folder.filePath("link.xml"));
        const QString good = std::exchange(file_, folder.filePath(name));
        std::optional<FullDisk> disk(room);
        QString said;
        nowGiven_ = [&] {
            ScriptedHost::whenModal([&](QWidget* modal) {
                auto* box = qobject_cast<QMessageBox*>(modal);
                said = box->text();
                disk.reset();
                giveName(good);
                box->buttons().constFirst()->click();
            });
        };
        startSave(7, 8);
        QCOMPARE(said, QString("tmiw_187"));
        QCOMPARE(std::exchange(file_, good), folder.filePath(name));
        QCOMPARE(saved(), (Numbers{7, 8}));
        QVERIFY(!QFile::exists(folder.filePath(name)));
        QCOMPARE(QDir(folder.path()).entryList({".*"}, QDir::Files | QDir::Hidden), QStringList());
    }

private:
    Numbers asked_;
    QVector<QDateTime> times_;
    bool answersAtOnce_ = false;
};

QTEST_MAIN(SaveSequenceTest)
#include "tst_save_sequence.moc"
