// Saving a period from the telemetry view: the host answers each request as the test says, and the files are
// looked at.

#include "support/scripted_host.h"

#include <QCheckBox>
#include <QDateTimeEdit>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

#include <csignal>
#include <sys/resource.h>

using vlk::Message;

namespace {

using Numbers = QVector<qint64>;

// Above the number itself, what kind of record has it.
enum Kind : qint64 { Protocol2 = 1LL << 40, Extra = 2LL << 40, Short = 3LL << 40 };

// Number, code 35 and time.
QByteArray record(qint64 kindAndNumber)
{
    const qint64 kind = kindAndNumber & ~0xffffffffLL;
    const auto number = static_cast<quint32>(kindAndNumber);
    char bytes[4];
    qToLittleEndian(number, bytes);
    const QByteArray values = QByteArray(bytes, 4) + QByteArray::fromHex("230000f15365");
    if (kind == Extra)
        return QByteArray::fromHex("b137000225") + values + QByteArray::fromHex("2d") + QByteArray(42, '\0');
    const QByteArray whole =
        QByteArray("\xb0") + (kind == Protocol2 ? '\x14' : '\x1e') + "\xe0" + QByteArray(31, '\0') + values;
    return kind == Short ? whole.left(36) : whole;
}

} // namespace

class SaveSequenceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void collecting_data();
    void collecting();
    void refused_data();
    void refused();
    void boundsAndForms();
    void progressAndCancel();
    void cancelBeforeTheName();
    void endedFromOutside_data();
    void endedFromOutside();
    void requestsAreKeptApart();
    void answersWithinRequests();
    void fullDisk();

private:
    template <class T = QLabel>
    T* child(const char* name) const
    {
        return host_.child<T>(view_, name);
    }
    void press(const char* name) const { child<QAbstractButton>(name)->click(); }
    QString text(const char* name) const { return child(name)->text(); }
    void send(Message message, qint64 number, int header = 3)
    {
        const QByteArray bytes = QByteArray(header, '\x55') + record(number);
        host_.send(message, &bytes);
    }
    // Saves up to the file name, and gives it.
    void startSave(qint64 first, qint64 last, const char* button = "pushButton_SaveToFile")
    {
        press(button);
        ScriptedHost::whenModal([this](QWidget* modal) {
            auto* dialog = qobject_cast<QFileDialog*>(modal);
            filter_ = dialog->nameFilters().join(';');
            dialog->findChild<QLineEdit*>("fileNameEdit")->setText(file_);
            if (QFile::exists(file_)) // the dialog asks whether to replace it
                ScriptedHost::whenModal(
                    [](QWidget* box) { qobject_cast<QMessageBox*>(box)->button(QMessageBox::Yes)->click(); });
            QMetaObject::invokeMethod(dialog, "accept");
        });
        send(Message::RecordOfPeriod, first, 13);
        send(Message::RecordByTime, last, 13);
    }
    QByteArray contents() const
    {
        QFile file(file_);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    // The numbers in an XML file.
    Numbers saved() const
    {
        static const QRegularExpression number("<NumPage>(\\d+)</NumPage>");
        Numbers numbers;
        for (auto found = number.globalMatch(contents()); found.hasNext();)
            numbers << found.next().captured(1).toLongLong();
        return numbers;
    }
    bool isIdle() const
    {
        bool idle = child<QWidget>("pushButton_Save_Cancel")->isHidden() &&
                    child<QWidget>("progressBar_Time")->isHidden();
        for (const QLabel* label : child<QWidget>("frame_Progress")->findChildren<QLabel*>())
            idle = idle && label->text().isEmpty();
        for (const char* name :
             {"groupBox_Btn_Get", "groupBox_Btn_Save", "pushButton_Taho", "pushButton_RFID"})
            idle = idle && child<QWidget>(name)->isEnabled();
        return idle;
    }

    ScriptedHost host_;
    QTemporaryDir folder_;
    QWidget* view_ = nullptr;
    QString file_;
    QString filter_;
    Numbers asked_;
    QVector<QDateTime> times_;
    bool answersAtOnce_ = false;
};

void SaveSequenceTest::initTestCase()
{
    host_.start();
    host_.onSend = [this](Message message, void* p1, void* /*p2*/) {
        if (message == Message::RequestRecordOfPeriod || message == Message::RequestRecordByTime)
            times_ << *static_cast<QDateTime*>(p1);
        if (message != Message::RequestRecordByNumber)
            return;
        asked_ << *static_cast<quint32*>(p1);
        if (answersAtOnce_)
            send(Message::RecordByNumber, asked_.constLast());
    };
}

void SaveSequenceTest::init()
{
    host_.attach();
    const QString none;
    host_.send(Message::OpenTelemetry, &none);
    view_ = ScriptedHost::window("VLK_Widget_Tmi_View");
    asked_.clear();
    times_.clear();
    file_ = folder_.filePath("period.xml");
    QFile::remove(file_);
}

void SaveSequenceTest::collecting_data()
{
    QTest::addColumn<Numbers>("answers");
    QTest::addColumn<Numbers>("asked");
    QTest::addColumn<Numbers>("saved");
    const auto row = [](const char* name, const Numbers& answers, const Numbers& asked,
                        const Numbers& saved) { QTest::newRow(name) << answers << asked << saved; };
    row("two", {7, 8}, {}, {7, 8});
    row("three", {7, 9, 8}, {8}, {7, 8, 9});
    row("gaps", {7, 20, 12, 13, 19}, {8, 13, 14}, {7, 12, 13, 19, 20});
    row("duplicates", {7, 11, 8, 8, 9, 8, 10}, {8, 9, 10}, {7, 8, 9, 10, 11});
    row("duplicate of the first", {7, 10, 7, 7, 8, 9}, {8, 8, 9}, {7, 7, 8, 9, 10});
    row("beyond the last", {7, 10, 12}, {8}, {7, 12, 10});
    row("too short", {7, 9, Short, 8}, {8}, {7, 8, 9});
    row("other kinds", {Extra + 7, 10, Protocol2 + 8, Extra + 9}, {8, 9}, {7, 8, 9, 10});
    row("highest numbers", {0xfffffffd, 0xffffffff, 0xfffffffe}, {0xfffffffe},
        {0xfffffffd, 0xfffffffe, 0xffffffff});
}

void SaveSequenceTest::collecting()
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

void SaveSequenceTest::refused_data()
{
    QTest::addColumn<int>("seconds"); // from the first editor to the last
    QTest::addColumn<qint64>("first");
    QTest::addColumn<qint64>("last");
    QTest::newRow("reversed") << -1 << 7LL << 8LL;
    QTest::newRow("no time between") << 0 << 7LL << 8LL;
    QTest::newRow("one record") << 1 << 7LL << 7LL;
    QTest::newRow("last before first") << 1 << 8LL << 7LL;
    QTest::newRow("nothing in it") << 1 << qint64{Short} << 7LL;
}

void SaveSequenceTest::refused()
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
    QCOMPARE(seen, (QStringList{"wrd_004", seconds > 0 ? "tmiw_122" : "tmiw_121", "wrd_003"}));
    QVERIFY(isIdle() && asked_.isEmpty());
}

// The editors show the zone, the host is asked in UTC; each button has its filter and its form.
void SaveSequenceTest::boundsAndForms()
{
    child<QSpinBox>("spinBox_TimeOffset")->setValue(3);
    const QDateTime first(QDate(2025, 2, 1), QTime(15, 0), Qt::UTC);
    child<QDateTimeEdit>("dateTimeEdit_First")->setDateTime(first);
    child<QDateTimeEdit>("dateTimeEdit_Last")->setDateTime(first.addSecs(60));
    startSave(7, 8);
    QCOMPARE(times_, (QVector<QDateTime>{first.addSecs(-10800), first.addSecs(-10740)}));
    QCOMPARE(filter_, QString("*.xml"));
    QVERIFY(contents().contains("<TMI model=\"R-7106\" ") && contents().contains("offset=\"10800\""));
    file_ = folder_.filePath("period.csv");
    startSave(7, 8, "pushButton_SaveToExcel");
    QCOMPARE(filter_, QString("*.csv"));
    QVERIFY(contents().count("\r\n") == 3 && contents().contains("=\"7\";"));
    file_ = folder_.filePath("period.tmi");
    startSave(7, 8, "pushButton_SaveFileToServer");
    QCOMPARE(filter_, QString("*.tmi"));
    QCOMPARE(contents().mid(128), QByteArray("\x2c\0", 2) + record(7) + QByteArray("\x2c\0", 2) + record(8));
}

void SaveSequenceTest::progressAndCancel()
{
    startSave(7, 307);
    for (qint64 i = 8; i < 108; ++i)
        send(Message::RecordByNumber, i);
    auto* bar = child<QProgressBar>("progressBar_Time");
    QCOMPARE(bar->value(), 100);
    QCOMPARE(bar->maximum(), 300);
    QString shown;
    for (const char* name : {"ProgressBar_Time", "Packet_Cur", "Packet_Separator", "Packet_End", "Time_Cur",
                             "Time_Separator", "Time_End"})
        shown += text((QByteArray("label_") + name).constData());
    QVERIFY2(QRegularExpression("^tmiw_119102/30000:00:\\d\\d/00:\\d\\d:\\d\\d$").match(shown).hasMatch(),
             qPrintable(shown));
    QVERIFY(!child<QWidget>("groupBox_Btn_Get")->isEnabled() && !bar->isHidden());
    // Nothing happens until the tracker answers, and that answer is not in the file.
    press("pushButton_Save_Cancel");
    QVERIFY(!isIdle() && !QFile::exists(file_));
    send(Message::RecordByNumber, 108);
    QVERIFY(isIdle());
    QCOMPARE(saved().size(), 102);
    QCOMPARE(saved().mid(100), (Numbers{107, 307}));
}

void SaveSequenceTest::cancelBeforeTheName()
{
    press("pushButton_SaveToFile");
    QCOMPARE(text("label_ProgressBar_Time"), QString("tmiw_026"));
    press("pushButton_Save_Cancel");
    send(Message::RecordOfPeriod, 7, 13);
    QVERIFY(isIdle());
    // The next save knows nothing of it. A tracker that goes away takes the file dialog with it.
    press("pushButton_SaveToFile");
    send(Message::RecordOfPeriod, 7, 13);
    ScriptedHost::whenModal([this](QWidget* modal) {
        send(Message::RecordByNumber, 8); // nobody asked for it
        QVERIFY(modal->isVisible());
        host_.send(Message::TrackerDetached);
        QVERIFY(!modal->isVisible());
    });
    send(Message::RecordByTime, 20, 13);
    QVERIFY(isIdle() && view_->isHidden() && asked_.isEmpty() && !QFile::exists(file_));
}

void SaveSequenceTest::endedFromOutside_data()
{
    QTest::addColumn<int>("message");
    QTest::newRow("closed") << int(Message::CloseWindows);
    QTest::newRow("detached") << int(Message::TrackerDetached);
    QTest::newRow("opened again") << int(Message::OpenTelemetry);
    QTest::newRow("automatic requests") << 0;
}

// The file is written once, with what came.
void SaveSequenceTest::endedFromOutside()
{
    QFETCH(int, message);
    startSave(7, 20);
    send(Message::RecordByNumber, 8);
    const QString none;
    host_.send(static_cast<Message>(message), &none);
    child<QCheckBox>("checkBox_Get_Auto_TMI")->setChecked(message == 0);
    QCOMPARE(saved(), (Numbers{7, 8, 20}));
    QFile::remove(file_);
    child<QCheckBox>("checkBox_Get_Auto_TMI")->setChecked(false);
    QVERIFY(isIdle());
    send(Message::RecordByNumber, 9);
    QCOMPARE(text("label_Event_NumPage_Value"), QString("9"));
    host_.send(Message::CloseWindows);
    QVERIFY(!QFile::exists(file_));
}

void SaveSequenceTest::requestsAreKeptApart()
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
void SaveSequenceTest::answersWithinRequests()
{
    const QScopedValueRollback atOnce(answersAtOnce_, true);
    startSave(1, 20000);
    QCOMPARE(saved().size(), 20000);
}

// What was there before stays, and nothing but the log tells of it.
void SaveSequenceTest::fullDisk()
{
    startSave(7, 8);
    const QByteArray before = contents();
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit usual{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &usual), 0);
    const rlimit small{200, usual.rlim_max};
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("a period of 2 records was not saved"));
    setrlimit(RLIMIT_FSIZE, &small);
    startSave(8, 9);
    setrlimit(RLIMIT_FSIZE, &usual);
    QCOMPARE(contents(), before);
    QVERIFY(isIdle() && QDir(folder_.path()).entryList({"period.xml.*"}).isEmpty());
}

QTEST_MAIN(SaveSequenceTest)
#include "tst_save_sequence.moc"
