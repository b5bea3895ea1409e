// The server test against real servers on the loopback interface.

#include "support/data_table.h"
#include "windows/server_test.h"

#include <QHostInfo>
#include <QTcpServer>
#include <QtTest>
#include <QtWidgets>

class TestServerTest : public QObject
{
    Q_OBJECT

private:
    static constexpr vlk::ServerTestLimits kQuick{1500, 100};
    const QString here_ = "127.0.0.1";

    static VLK_Form_IO_Progress* dialog()
    {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (auto* found = qobject_cast<VLK_Form_IO_Progress*>(window))
                return found;
        }
        return nullptr;
    }
    static int freePort()
    {
        QTcpServer server;
        server.listen(QHostAddress::LocalHost);
        return server.serverPort();
    }

private Q_SLOTS:
    void answeringServerSeesOnlyAConnectionThatCloses()
    {
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        vlk_Socket tester;
        QSignalSpy answers(&tester, &vlk_Socket::testConnected);
        bool shownAtAnswer = true;
        connect(&tester, &vlk_Socket::testConnected, this, [&] { shownAtAnswer = dialog()->isVisible(); });

        tester.test(here_, server.serverPort());
        QVERIFY(dialog()->isVisible());
        QVERIFY(dialog()->findChild<QPushButton*>("pushButton_Break")->isHidden());
        QCOMPARE(dialog()->findChild<QLabel*>("label_Cur")->text(), QString("0 abbr_003"));
        QCOMPARE(dialog()->findChild<QLabel*>("label_All")->text(), QString("60 abbr_003"));
        QCOMPARE(dialog()->findChild<QLabel*>("label_File")->text(), QString("cfgt1_111:"));
        QTRY_COMPARE(answers.count(), 1);
        QVERIFY(!shownAtAnswer);
        QCOMPARE(answers[0][0].toString(), here_);
        QVERIFY(!answers[0][1].toString().isEmpty());
        QVERIFY(answers[0][2].toBool());

        QTRY_VERIFY(server.hasPendingConnections());
        QTcpSocket* seen = server.nextPendingConnection();
        QTRY_COMPARE(seen->state(), QAbstractSocket::UnconnectedState);
        QCOMPARE(seen->bytesAvailable(), 0);
        // The lookup and the disconnection both end a test, whichever comes last.
        QMetaObject::invokeMethod(&tester, "slot_disconnected");
        QCOMPARE(answers.count(), 1);
    }

    void failureTakesTheWholeLimit_data()
    {
        DataTable<QString, int>({"address", "beyondPort"})
            .row("closed port", here_, 0)
            .row("empty address", {}, 0)
            .row("port that wraps around to an open one", here_, 65536);
    }
    void failureTakesTheWholeLimit()
    {
        QFETCH(QString, address);
        QFETCH(int, beyondPort);
        QTcpServer server;
        const int port =
            beyondPort ? (server.listen(QHostAddress::LocalHost), server.serverPort()) : freePort();
        vlk_Socket tester(nullptr, kQuick);
        QSignalSpy answers(&tester, &vlk_Socket::testConnected);

        tester.test(address, port + beyondPort);
        auto* bar = dialog()->findChild<QProgressBar*>("progressBar");
        QCOMPARE(bar->maximum(), kQuick.whole / kQuick.tick);
        QTRY_VERIFY(bar->value() >= 3);
        QVERIFY(answers.isEmpty());
        QTRY_COMPARE(answers.count(), 1);
        QVERIFY(!answers[0][2].toBool());
        QVERIFY(!dialog()->isVisible());
        QVERIFY(!server.hasPendingConnections());

        // The next test starts anew and finds the server that listens by now.
        if (!server.isListening())
            QVERIFY(server.listen(QHostAddress::LocalHost, port));
        tester.test(here_, port);
        QCOMPARE(bar->value(), 0);
        QTRY_COMPARE(answers.count(), 2);
        QCOMPARE(answers[1][0].toString(), here_);
        QVERIFY(answers[1][2].toBool());
    }

    void userMayStopWaiting()
    {
        vlk_Socket tester(nullptr, kQuick);
        QSignalSpy answers(&tester, &vlk_Socket::testConnected);
        const std::function<void()> ways[] = {[] { QTest::keyClick(dialog(), Qt::Key_Escape); },
                                              [] { dialog()->close(); }};
        for (const auto& stop : ways) {
            tester.test(here_, freePort());
            stop();
            QVERIFY(!dialog()->isVisible());
        }
        // The tests that were dropped answer nothing; the next one does.
        tester.test(here_, freePort());
        QTRY_COMPARE(answers.count(), 1);
        QVERIFY(!dialog()->isVisible());
    }

    void newTestDropsTheFormerOne()
    {
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        vlk_Socket tester(nullptr, kQuick);
        QSignalSpy answers(&tester, &vlk_Socket::testConnected);
        tester.test(here_, server.serverPort());
        QTRY_COMPARE(answers.count(), 1);
        // The dropped test would give the name that the next address has not, and so would its late answer.
        tester.test(here_, server.serverPort());
        tester.test(QString(), server.serverPort());
        QTest::qWait(200); // the new lookup has ended by then
        QHostInfo late(12345);
        late.setHostName("late");
        QMetaObject::invokeMethod(&tester, "printResults", Q_ARG(QHostInfo, late));
        QTRY_COMPARE(answers.count(), 2);
        QCOMPARE(answers[1], QVariantList({QString(), QString(), false}));
    }

    void answerMayStartTheNextTestOrDeleteTheTester()
    {
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        auto* tester = new vlk_Socket(nullptr, kQuick);
        int answers = 0;
        connect(tester, &vlk_Socket::testConnected, this, [&](const QString&, const QString&, bool ok) {
            QVERIFY(ok);
            if (++answers < 5)
                tester->test(here_, server.serverPort());
            else
                delete tester;
        });
        tester->test(here_, server.serverPort());
        QTRY_COMPARE(answers, 5);
    }

    void deletionInTheMiddleIsSilent()
    {
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        for (int wait : {0, 1, 5}) {
            auto tester = std::make_unique<vlk_Socket>(nullptr, kQuick);
            tester->test(here_, server.serverPort());
            QTest::qWait(wait);
            tester.reset();
            QVERIFY(!dialog());
        }
        QTest::qWait(50);
    }
};

QTEST_MAIN(TestServerTest)
#include "tst_server_test.moc"
