// The dialog of the tachograph over the telemetry view: questions and requests out, answers in.

#include "opened_view.h"

#include <QtTest>
#include <QtWidgets>

using vlk::Message;

class TachographDialogTest : public QObject, private OpenedView
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        start();
        host.onSend = [this](Message message, void* p1, void*) {
            if (message == Message::TachographFileRequest)
                request_ = QByteArray(static_cast<char*>(p1), sizeof(vlk::szQueryTaho));
        };
        open();
    }

    void init()
    {
        press("pushButton_Taho");
        dialog_.window = ScriptedHost::window("VLK_Form_TMI_Taho");
        QVERIFY(dialog_.window->isVisible());
        QVERIFY(window->screen()->availableGeometry().contains(dialog_.window->geometry()));
    }

    void requests()
    {
        const auto box = [this](const char* name) { return dialog_.child<QComboBox>(name); };
        const int questions[] = {1, 3, 4, 5};
        for (int i = 0; i < 4; ++i) {
            box("comboBox_Quest")->setCurrentIndex(i);
            dialog_.press("pushButton_Quest");
            QCOMPARE(host.sent.last().number, Message::TachographQuestion);
            QCOMPARE(static_cast<int>(host.sent.last().value), questions[i]);
        }
        dialog_.child<QDateTimeEdit>("dateTimeEdit_File")
            ->setDateTime(QDateTime::fromSecsSinceEpoch(0x12345678));
        box("comboBox_Card")->setCurrentIndex(1);
        const char* const expected[] = {"000502ffffff", "000000000000", "000178563412",
                                        "000200000000", "000300000000", "000400000000"};
        for (int i = 0; i < 6; ++i) {
            box("comboBox_File")->setCurrentIndex(i);
            QCOMPARE(dialog_.isOn("comboBox_Card"), i == 0);
            QCOMPARE(dialog_.isOn("dateTimeEdit_File"), i == 2);
            dialog_.press("pushButton_Create");
            QCOMPARE(request_.toHex(), QByteArray(expected[i]));
        }
        QVERIFY(dialog_.child<QWidget>("frame_FileAutorize")->isHidden());
        QVERIFY(dialog_.window->metaObject()->indexOfSignal("signal_GetTahoFile(szQueryTaho*)") >= 0);
        QVERIFY(window->metaObject()->indexOfSlot("slot_GetTahoFile(szQueryTaho*)") >= 0);
    }

    void answers()
    {
        auto* quest = dialog_.child<QTextEdit>("textEdit_Quest");
        auto* file = dialog_.child<QTextEdit>("textEdit_File");
        QVERIFY(!dialog_.isOn("pushButton_Load"));
        for (const char status : {'\x20', '\0'}) {
            send(Message::TachographAnswer, behind(6, QByteArray("\1") + status));
            QCOMPARE(quest->toPlainText(), QString(status == 0 ? "tmiw_049: Ok" : "tmiw_049: n/a"));
        }
        send(Message::TachographFileAnswer, behind(6, QByteArray("\0\x12\1\0\0\0", 6)));
        QVERIFY(!dialog_.isOn("pushButton_Load"));
        send(Message::TachographFileAnswer, behind(6, QByteArray("\0\0\2\0\0\0../../M.ddd", 17)));
        QCOMPARE(file->toPlainText().split('\n').size(), 4);
        QVERIFY(dialog_.isOn("pushButton_Load"));

        const vlk::Paths paths{folder.path(), {}, {}, {}};
        host.send(Message::SetPaths, &paths);
        QString proposed;
        ScriptedHost::whenModal([&](QWidget* modal) {
            auto* dialog = qobject_cast<QFileDialog*>(modal);
            proposed = dialog->selectedFiles().value(0);
            dialog->reject();
        });
        dialog_.press("pushButton_Load");
        QCOMPARE(proposed, folder.filePath("M.ddd"));
        // The host is told of a cancelled dialog too, with an empty path.
        QCOMPARE(host.sent.last().number, Message::TachographFileRead);
        QCOMPARE(host.sent.last().text1, QString());
        for (const std::uint8_t flag : {1, 0})
            host.send(Message::TachographFileReady, &flag);
        QVERIFY(file->toPlainText().endsWith("tmiw_047\n-=tmiw_048=-"));
        press("pushButton_Taho");
        QVERIFY(!dialog_.isOn("pushButton_Load") && file->toPlainText().isEmpty() &&
                quest->toPlainText().isEmpty());
    }

    void helpAndClose()
    {
        dialog_.press("pushButton_Help");
        QVERIFY(QTest::qWaitForWindowActive(dialog_.window));
        QTest::keyClick(dialog_.window, Qt::Key_F1);
        const auto help = host.takeSent(Message::ShowHelp);
        QCOMPARE(help.size(), 2);
        QCOMPARE(help[0].text2, QString("r-7106taho.html"));
        QCOMPARE(help[1].text2, help[0].text2);
        dialog_.press("pushButton_Close");
        QVERIFY(!dialog_.window->isVisible() && window->isVisible());
    }

private:
    WindowParts dialog_;
    QByteArray request_;
};

QTEST_MAIN(TachographDialogTest)
#include "tst_tachograph_dialog.moc"
