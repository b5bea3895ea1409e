// The monitor of live values: what it sends and when it stops. The test takes the place of its window.

#include "dialog/config_monitor.h"
#include "support/data_table.h"
#include "support/device.h"

#include <QtTest>

using vlk::ConfigMonitor;
using vlk::Message;
using Tab = ConfigMonitor::Tab;

using Action = std::function<void()>;
Q_DECLARE_METATYPE(Action)
Q_DECLARE_METATYPE(Message)

namespace {
QVector<Message> sent;
QByteArray sentList;
std::function<void()> answerWithinTheCall;

void record(void* /*device*/, std::uint32_t id, void* p1, void* /*p2*/)
{
    sent << static_cast<Message>(id);
    if (sent.last() == Message::RequestLines)
        sentList = *static_cast<QByteArray*>(p1);
    if (answerWithinTheCall)
        answerWithinTheCall();
}
} // namespace

class ConfigMonitorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { device().initialize(&record); }

    void init()
    {
        tab_ = Tab::InputLines;
        active_ = true;
        answerWithinTheCall = nullptr;
        stopped_.clear();
        paused_.clear();
        resumed_.clear();
        cleared_ = 0;
        monitor_ = std::make_unique<ConfigMonitor>(ConfigMonitor::Window{
            [this] { return tab_; }, [this] { return active_; }, [this](Tab kind) { stopped_ << kind; },
            [this](Tab kind) { paused_ << kind; }, [this](Tab kind) { resumed_ << kind; },
            [this] { ++cleared_; }});
        monitor_->setConnected(true);
        take();
    }

    void pollsTheCurrentTab()
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

    void linesGoOnByAnswer()
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

    void accelGoesOnByAnswer()
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

    void accelCommandRepeatsUntilDone()
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

    // The host answers each command before it returns, for a long time with failure.
    void commandRefusedWithinTheCallIsRepeatedLater_data()
    {
        QTest::addColumn<bool>("byRearming");
        QTest::newRow("by its answer") << false;
        QTest::newRow("by the monitor's rearming") << true;
    }
    void commandRefusedWithinTheCallIsRepeatedLater()
    {
        QFETCH(bool, byRearming);
        tab_ = Tab::Accel;
        monitor_->startAccel(true, 5000);
        take();
        int asked = 0;
        answerWithinTheCall = [&] {
            ++asked;
            if (asked == 3)
                monitor_->accelCommandAnswered(1);
            else if (byRearming)
                monitor_->accelAnswered();
            else
                monitor_->accelCommandAnswered(0);
        };
        monitor_->accelCommandAnswered(0);
        QCOMPARE(asked, 1);
        QTRY_COMPARE(asked, 3);
        QCOMPARE(cleared_, 1);
        QCOMPARE(take().size(), 3);
    }

    void commandWaitsForItsAnswer()
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

    void endsWhenItsWindowIsNotOnTop_data()
    {
        DataTable<int, bool, bool>({"tab", "active", "connected"})
            .row("other tab", int(Tab::System), true, true)
            .row("window not active", int(Tab::InputLines), false, true)
            .row("tracker gone", int(Tab::InputLines), true, false);
    }
    void endsWhenItsWindowIsNotOnTop()
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
        QCOMPARE(stopped_ + paused_, QVector<Tab>{Tab::InputLines});
        QCOMPARE(paused_.isEmpty(), active);
        monitor_->linesAnswered();
        QVERIFY(!monitor_->timer()->isActive());
        // Whoever has left no more than the window finds it going on; else nothing is said of that any more.
        active_ = true;
        monitor_->activated();
        QCOMPARE(resumed_, paused_);
        monitor_->activated();
        QCOMPARE(resumed_.size() + stopped_.size(), 1);
    }

    void forgetsAPause_data()
    {
        DataTable<Action>({"act"})
            .row("other tab", [this] { tab_ = Tab::System; })
            .row("ended", [this] { monitor_->end(); })
            .row("tracker gone", [this] { monitor_->setConnected(false); })
            .row("the other monitor", [this] {
                tab_ = Tab::Accel;
                monitor_->startAccel(true, 5000);
            });
    }
    void forgetsAPause()
    {
        QFETCH(Action, act);
        monitor_->startLines(true, "21", 5000);
        active_ = false;
        monitor_->timeout();
        QCOMPARE(paused_, QVector<Tab>{Tab::InputLines});
        act();
        active_ = true;
        monitor_->activated();
        QCOMPARE(resumed_, QVector<Tab>{});
        QCOMPARE(stopped_, QVector<Tab>{Tab::InputLines});
    }

    // By the timeout, by a request of the other page, or by its monitor.
    void endsOnTheTabOfTheOtherKind_data()
    {
        const int lines = static_cast<int>(Tab::InputLines);
        const int accel = static_cast<int>(Tab::Accel);
        DataTable<int, int, Action, QVector<Message>>({"from", "to", "act", "requests"})
            .row("to accel, timeout", lines, accel, [this] { monitor_->timeout(); }, {})
            .row("to lines, timeout", accel, lines, [this] { monitor_->timeout(); }, {})
            .row("to lines, its page's timer", accel, lines, [this] { monitor_->requestAccel(); }, {})
            .row("to accel, by hand", lines, accel, [this] { monitor_->requestAccel(); },
                 {Message::RequestAccel})
            .row("to lines, by hand", accel, lines, [this] { monitor_->requestLines("21"); },
                 {Message::RequestLines})
            .row("to accel, command", lines, accel, [this] { monitor_->requestAccelResult(); },
                 {Message::RequestAccelCommand})
            .row("to accel, monitor", lines, accel, [this] { monitor_->startAccel(true, 5000); },
                 {Message::RequestAccel})
            .row("to lines, monitor", accel, lines, [this] { monitor_->startLines(true, "21", 5000); },
                 {Message::RequestLines});
    }
    void endsOnTheTabOfTheOtherKind()
    {
        QFETCH(int, from);
        QFETCH(int, to);
        QFETCH(Action, act);
        QFETCH(QVector<Message>, requests);
        tab_ = static_cast<Tab>(from);
        if (tab_ == Tab::Accel) {
            monitor_->startAccel(true, 5000);
            monitor_->accelAnswered();
        } else {
            monitor_->startLines(true, "21", 5000);
            monitor_->linesAnswered();
        }
        take();
        tab_ = static_cast<Tab>(to);
        act();
        QCOMPARE(take(), requests);
        QCOMPARE(stopped_, QVector<Tab>{static_cast<Tab>(from)});
        // Answers that come late start nothing, nor does the end of the page that was left.
        const bool goesOn = monitor_->isOn();
        if (tab_ == Tab::Accel) {
            monitor_->linesAnswered();
            monitor_->startLines(false, "21", 0);
        } else {
            monitor_->accelAnswered();
            monitor_->startAccel(false, 0);
        }
        QVERIFY(!monitor_->timer()->isActive());
        QCOMPARE(monitor_->isOn(), goesOn);
    }

    // Its page's timer runs out before the monitor's.
    void accelSendsNothingFromAWindowThatIsNotActive()
    {
        tab_ = Tab::Accel;
        answerWithinTheCall = [this] { monitor_->accelAnswered(); };
        monitor_->startAccel(true, 5000);
        monitor_->requestAccel();
        QCOMPARE(take().size(), 2);
        active_ = false;
        monitor_->requestAccel();
        QCOMPARE(take(), QVector<Message>{});
        QCOMPARE(paused_, QVector<Tab>{Tab::Accel});
        QVERIFY(!monitor_->timer()->isActive());
    }

    // Two presses, or values that were asked for before, bring a second command; its refusal repeats nothing.
    void refusalsRepeatInOneChain()
    {
        tab_ = Tab::Accel;
        monitor_->startAccel(true, 5000);
        monitor_->accelAnswered();
        monitor_->requestAccelResult();
        monitor_->requestAccelResult();
        take();
        for (const int sentThen : {0, 1, 1}) {
            monitor_->accelCommandAnswered(0);
            QCOMPARE(take().size(), sentThen);
        }
        // Values wait until the command is done.
        monitor_->requestAccel();
        QCOMPARE(take(), QVector<Message>{});
        monitor_->accelAnswered();
        QCOMPARE(take().size(), 1);
        for (const int sentThen : {0, 1}) {
            monitor_->accelCommandAnswered(0);
            QCOMPARE(take().size(), sentThen);
        }
        monitor_->accelCommandAnswered(1);
        monitor_->requestAccel();
        QCOMPARE(take(), QVector<Message>{Message::RequestAccel});
    }

    void refusalIsNotRepeatedWhereTheUserHasLeft_data()
    {
        const Action otherTab = [this] { tab_ = Tab::InputLines; };
        const Action end = [this] { monitor_->end(); };
        const Action detach = [this] { monitor_->setConnected(false); };
        DataTable<Action, bool>({"leave", "refusedAtOnce"})
            .row("other tab", otherTab, false)
            .row("window", end, false)
            .row("tracker", detach, false)
            .row("other tab, repetition due", otherTab, true)
            .row("window, repetition due", end, true)
            .row("tracker, repetition due", detach, true);
    }
    void refusalIsNotRepeatedWhereTheUserHasLeft()
    {
        QFETCH(Action, leave);
        QFETCH(bool, refusedAtOnce);
        const Action refuse = [this] { monitor_->accelCommandAnswered(0); };
        tab_ = Tab::Accel;
        if (refusedAtOnce)
            answerWithinTheCall = refuse;
        monitor_->requestAccelResult();
        leave();
        if (refusedAtOnce)
            QTest::qWait(150);
        else
            refuse();
        QCOMPARE(take(), QVector<Message>{Message::RequestAccelCommand});
    }

private:
    QVector<Message> take() { return std::exchange(sent, {}); }

    Tab tab_ = Tab::Other;
    bool active_ = true;
    QVector<Tab> stopped_;
    QVector<Tab> paused_;
    QVector<Tab> resumed_;
    int cleared_ = 0;
    std::unique_ptr<ConfigMonitor> monitor_;
};

QTEST_MAIN(ConfigMonitorTest)
#include "tst_config_monitor.moc"
