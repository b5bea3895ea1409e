// The monitor of live values: what it sends and when it stops, on a window that the test plays.

#include "host/device_r7106.h"
#include "windows/config_monitor.h"

#include <QtTest>

using vlk::Message;
using Tab = ConfigMonitor::Tab;

namespace {
QVector<Message> sent;
QByteArray sentList;

void record(void* /*device*/, std::uint32_t id, void* p1, void* /*p2*/)
{
    sent << static_cast<Message>(id);
    if (sent.last() == Message::RequestLines)
        sentList = *static_cast<QByteArray*>(p1);
}
} // namespace

namespace {
// As in the library, the device and its windows last for the process.
VLK_Device_R7106& device()
{
    static VLK_Device_R7106 onlyOne;
    return onlyOne;
}
} // namespace

class ConfigMonitorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { device().initialize(&record); }
    void init();
    void pollsTheCurrentTab();
    void linesGoOnByAnswer();
    void accelGoesOnByAnswer();
    void accelCommandRepeatsUntilDone();
    void commandWaitsForItsAnswer();
    void endsWhenItsWindowIsNotOnTop_data();
    void endsWhenItsWindowIsNotOnTop();

private:
    QVector<Message> take() { return std::exchange(sent, {}); }

    Tab tab_ = Tab::Other;
    bool active_ = true;
    int stopped_ = 0;
    int cleared_ = 0;
    std::unique_ptr<ConfigMonitor> monitor_;
};

void ConfigMonitorTest::init()
{
    tab_ = Tab::InputLines;
    active_ = true;
    stopped_ = cleared_ = 0;
    monitor_ = std::make_unique<ConfigMonitor>(ConfigMonitor::Window{
        [this] { return tab_; }, [this] { return active_; }, [this] { ++stopped_; }, [this] { ++cleared_; }});
    monitor_->setConnected(true);
    take();
}

void ConfigMonitorTest::pollsTheCurrentTab()
{
    const std::pair<Tab, QVector<Message>> cases[] = {{Tab::Other, {}},
                                                      {Tab::System, {Message::RequestSupply}},
                                                      {Tab::InputLines, {Message::RequestAnalog}},
                                                      {Tab::Accel, {Message::RequestAccel}}};
    for (const auto& [tab, expected] : cases) {
        tab_ = tab;
        monitor_->pollCurrentTab();
        QCOMPARE(take(), expected);
        monitor_->requestLines("21");
        QCOMPARE(take().size(), tab == Tab::InputLines ? 1 : 0);
        monitor_->requestAccel();
        QCOMPARE(take().size(), tab == Tab::Accel ? 1 : 0);
    }
}

void ConfigMonitorTest::linesGoOnByAnswer()
{
    monitor_->startLines(true, "21,22,23", 30);
    QCOMPARE(take(), QVector<Message>{Message::RequestLines});
    QCOMPARE(sentList, QByteArray("21,22,23"));
    // Nothing more until the answer is in.
    QVERIFY(!monitor_->timer()->isActive());
    connect(monitor_->timer(), &QTimer::timeout, monitor_.get(), &ConfigMonitor::timeout);
    monitor_->linesAnswered();
    QTRY_COMPARE_WITH_TIMEOUT(sent, QVector<Message>{Message::RequestLines}, 2000);
    QVERIFY(!monitor_->timer()->isActive());
    monitor_->startLines(false, {}, 0);
    monitor_->linesAnswered();
    QVERIFY(!monitor_->timer()->isActive());
}

void ConfigMonitorTest::accelGoesOnByAnswer()
{
    tab_ = Tab::Accel;
    monitor_->startAccel(true, 5000);
    QCOMPARE(take(), QVector<Message>{Message::RequestAccel});
    monitor_->accelAnswered();
    QVERIFY(monitor_->timer()->isActive());
    QCOMPARE(monitor_->timer()->interval(), 5000);
    monitor_->timeout();
    QCOMPARE(take(), QVector<Message>{});
    QVERIFY(monitor_->isOn());

    monitor_->setConnected(false);
    monitor_->accelAnswered();
    QVERIFY(!monitor_->timer()->isActive());
}

void ConfigMonitorTest::accelCommandRepeatsUntilDone()
{
    tab_ = Tab::Accel;
    monitor_->startAccel(true, 5000);
    take();
    monitor_->accelCommandAnswered(0);
    QCOMPARE(take(), QVector<Message>{Message::RequestAccelCommand});
    // While it waits for the command an answer with values asks for the command's result again.
    monitor_->accelAnswered();
    QCOMPARE(take(), QVector<Message>{Message::RequestAccelCommand});
    QCOMPARE(cleared_, 0);
    for (const int done : {1, 49}) {
        monitor_->accelCommandAnswered(done);
        QCOMPARE(take(), QVector<Message>{});
        QVERIFY(monitor_->timer()->isActive());
    }
    QCOMPARE(cleared_, 2);
}

void ConfigMonitorTest::commandWaitsForItsAnswer()
{
    tab_ = Tab::Accel;
    monitor_->startAccel(true, 5000);
    take();
    monitor_->requestAccelResult();
    QCOMPARE(take(), QVector<Message>{});
    monitor_->accelAnswered();
    monitor_->requestAccelResult();
    QCOMPARE(take(), QVector<Message>{Message::RequestAccelCommand});
    QVERIFY(!monitor_->timer()->isActive());
}

void ConfigMonitorTest::endsWhenItsWindowIsNotOnTop_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<bool>("active");
    QTest::addColumn<bool>("connected");
    QTest::newRow("other tab") << int(Tab::System) << true << true;
    QTest::newRow("window not active") << int(Tab::InputLines) << false << true;
    QTest::newRow("tracker gone") << int(Tab::InputLines) << true << false;
}

void ConfigMonitorTest::endsWhenItsWindowIsNotOnTop()
{
    QFETCH(int, tab);
    QFETCH(bool, active);
    QFETCH(bool, connected);
    monitor_->startLines(true, "21", 5000);
    monitor_->linesAnswered();
    take();
    tab_ = static_cast<Tab>(tab);
    active_ = active;
    monitor_->setConnected(connected);
    monitor_->timeout();
    QCOMPARE(take(), QVector<Message>{});
    QVERIFY(!monitor_->isOn());
    QCOMPARE(stopped_, 1);
    monitor_->linesAnswered();
    QVERIFY(!monitor_->timer()->isActive());
}

QTEST_MAIN(ConfigMonitorTest)
#include "tst_config_monitor.moc"
