// The Accelerometer page: levels, what the tracker measures beside them, and the requests for it.

#include "dialog/config_pages.h"
#include "dialog/widget_config_full.h"
#include "link/messages.h"
#include "settings_page.h"
#include "support/data_table.h"
#include "support/typing.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QSlider>
#include <QTimer>
#include <QtTest>

#include <cmath>
#include <functional>

using vlk::Message;

namespace {

QVector<Message> sent;
std::function<void()> answerAtOnce;

void record(void* /*device*/, std::uint32_t id, void* /*p1*/, void* /*p2*/)
{
    sent << static_cast<Message>(id);
    if (answerAtOnce)
        answerAtOnce();
}

} // namespace

class AccelTest : public QObject, private SettingsPage<VLK_Form_Config_Accel>
{
    Q_OBJECT

public:
    AccelTest() : SettingsPage("ACCEL") {}

private Q_SLOTS:
    void init()
    {
        open();
        answerAtOnce = nullptr;
        device().initialize(&record);
    }

    void tabGoesAsRead()
    {
        QCOMPARE(
            fieldsBehind("doubleSpinBox_Level_SH4", 4),
            QStringList({"checkBox_Auto", "spinBox_Auto_TimeOut", "pushButton_Quest", "pushButton_Reset"}));
    }

    void presentValues_data()
    {
        const double degree = M_PI / 180;
        DataTable<quint32, double, quint32, QString>({"movement", "tilt", "shock", "seen"})
            .row("nothing", 0, 0, 0, "0.0 % 0, 0.0 % 0, 0.0 % 0, 0.0 abbr_016 0")
            .row("full scale", 0, degree, 3240000, "100.0 % 1000!, 100.0 % 1000, 0.0 % 0, 1.0 abbr_016 10")
            .row("beyond it", 4000000000, 26 * degree, 4000000000,
                 "3513.6 % 1000!, 3513.6 % 1000!, 3513.6 % 1000!, 26.0 abbr_016 100!")
            .row("equal to the level", 1296, 20 * degree, 810000,
                 "50.0 % 500, 50.0 % 500, 2.0 % 20, 20.0 abbr_016 100")
            .row("cut to tenths", 1400, 0, 900, "1.7 % 16, 1.7 % 16, 2.1 % 20!, 0.0 abbr_016 0")
            .row("no angle", 0, std::nan(""), 900, "1.7 % 16, 1.7 % 16, 0.0 % 0, 0 abbr_016 0")
            .row("leaning back", 0, -degree, 0, "0.0 % 0, 0.0 % 0, 0.0 % 0, -1.0 abbr_016 0");
    }
    void presentValues()
    {
        QFETCH(quint32, movement);
        QFETCH(double, tilt);
        QFETCH(quint32, shock);
        check({{"checkBox_Auto", true}});
        QVERIFY(isDash(1));
        page().showPresentValues({movement, tilt, shock});
        QTEST(seen(), "seen");
        QVERIFY(!isDash(1) && isDash(4) == std::isnan(tilt));
        page().clearPresentValues();
        QCOMPARE(seen(), QString("0 % 0, 0 % 0, 0 % 0, 0 abbr_016 0"));
        QVERIFY(isDash(1));
    }

    // Without a new answer.
    void comparesWithANewLevel()
    {
        check({{"checkBox_Auto", true}});
        page().showPresentValues({0, 0, 810000});
        type(box(2), "<All>49.9<Enter>");
        QCOMPARE(seen(2), QString("50.0 % 500!"));
        page().retranslate();
        QCOMPARE(seen(2), QString("50.0 % 500!"));
        load({{"SENSORS/sh2", "50"}});
        QCOMPARE(seen(2), QString("50.0 % 500"));
        page().setDefaults();
        QCOMPARE(seen(2), QString("0 % 0"));
    }

    void requestByHand()
    {
        VLK_Widget_Config_Full full;
        show(full);
        QVERIFY(!get("groupBox_Quest")->isEnabled());
        full.deviceConnected();
        answer(full, 810000);
        QCOMPARE(seen(1), QString("0 % 0")); // nobody asked
        press("pushButton_Quest");
        QCOMPARE(take(), QVector<Message>{Message::RequestAccel});
        answer(full, 810000);
        answer(full, 0);
        QCOMPARE(seen(1), QString("50.0 % 500"));
        press("pushButton_Reset");
        QCOMPARE(take(), QVector<Message>{Message::RequestAccelCommand});
        uchar done[vlk::kAccelResultSize] = {};
        done[vlk::kAccelStatusByte] = 1;
        full.answers().takeAccelResult(done);
        QCOMPARE(seen(1), QString("0 % 0"));
        full.deviceDisconnected();
        QVERIFY(!get("groupBox_Quest")->isEnabled());
    }

    void requestsByThemselves_data()
    {
        QTest::addColumn<QString>("end");
        for (const char* end :
             {"unchecked", "other tab", "other tab without an answer", "lines tab", "monitor of the lines",
              "not active", "inner tab", "detached", "reset", "closed"})
            QTest::newRow(end) << QString(end);
    }
    void requestsByThemselves()
    {
        QFETCH(QString, end);
        QWidget other;
        other.show();
        VLK_Widget_Config_Full full;
        show(full);
        full.deviceConnected();
        type(get<QSpinBox>("spinBox_Auto_TimeOut"), "<All>7<Enter>");
        check({{"checkBox_Auto", true}});
        QCOMPARE(take(), QVector<Message>{Message::RequestAccel});
        QCOMPARE(notEnabled("spinBox_Auto_TimeOut pushButton_Quest", false), QStringList());
        QVERIFY(isOn("pushButton_Reset"));
        // The last round is one without an answer.
        const auto* query = form()->findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
        for (const char* shown : {"50.0 % 500", "0.0 % 0", ""}) {
            if (*shown) {
                answer(full, *shown == '5' ? 810000 : 0);
                QCOMPARE(seen(1), QString(shown));
            }
            QVERIFY(query->isActive() && query->interval() == 7000);
            form()->slot_timeOut_Query();
            QCOMPARE(take(), QVector<Message>{Message::RequestAccel});
        }
        if (end == "unchecked") {
            check({{"checkBox_Auto", false}});
        } else if (end == "other tab") {
            tabs(full)->setCurrentIndex(0);
            QVERIFY(isChecked("checkBox_Auto"));
            full.slot_timeOut_TimerAnalog();
        } else if (end == "other tab without an answer") {
            tabs(full)->setCurrentIndex(0);
            form()->slot_timeOut_Query();
        } else if (end == "lines tab") {
            full.gotoInputLines();
            full.slot_timeOut_TimerAnalog();
        } else if (end == "monitor of the lines") {
            full.gotoInputLines();
            auto* lines = full.findChild<QCheckBox*>("checkBox_AutoQuest");
            lines->setChecked(true);
            QCOMPARE(take(), QVector<Message>{Message::RequestLines});
            QVERIFY(!isChecked("checkBox_Auto") && full.answers().monitor().isOn());
            lines->setChecked(false);
        } else if (end == "not active") {
            answerAtOnce = [&] { answer(full, 0); };
            form()->slot_timeOut_Query();
            QCOMPARE(take(), QVector<Message>{Message::RequestAccel});
            QApplication::setActiveWindow(&other);
            form()->slot_timeOut_Query();
        } else if (end == "inner tab") {
            full.findChild<VLK_Form_Config_Accel*>()->slot_indexChangeed_tabWidget(1);
        } else if (end == "detached") {
            full.deviceDisconnected();
        } else if (end == "reset") {
            full.setDefaults();
        } else {
            full.hide();
        }
        answerAtOnce = nullptr;
        QCOMPARE(take(), QVector<Message>());
        QVERIFY(!isChecked("checkBox_Auto"));
        QVERIFY(!query->isActive());
        QVERIFY(!full.answers().monitor().isOn());
        QVERIFY(get("pushButton_Quest")->isEnabledTo(get("groupBox_Quest")));
        // Back in the window they go on; the line beside the box has said so.
        const QString told = get<QLabel>("label_Quest_Since")->text();
        QCOMPARE(told.contains("cfgt6_481"), end == "not active");
        QApplication::setActiveWindow(&full);
        QCOMPARE(isChecked("checkBox_Auto"), end == "not active");
        QCOMPARE(take().size(), end == "not active" ? 1 : 0);
        QVERIFY(!get<QLabel>("label_Quest_Since")->text().contains("cfgt6_481"));
    }

    void trackPageLeadsHere()
    {
        VLK_Form_Config_Track alone;
        alone.findChild<QAbstractButton*>("pushButton_ParkingAccel")->click();
        VLK_Widget_Config_Full full;
        full.findChild<QAbstractButton*>("pushButton_ParkingAccel")->click();
        QCOMPARE(tabs(full)->currentIndex(), full.pages().tabOf([](VLK_Form_Config_Accel&) {}));
    }

private:
    VLK_Form_Config_Accel_Virtual* form() { return window->findChild<VLK_Form_Config_Accel_Virtual*>(); }
    QDoubleSpinBox* box(int sensor)
    {
        return get<QDoubleSpinBox>(QString("doubleSpinBox_Level_SH%1").arg(sensor));
    }

    // Whether a dash is drawn in the place of the present value: it is lower than any digit.
    bool isDash(int sensor)
    {
        const QImage drawn = get<QLineEdit>(QString("lineEdit_CurLevel_SH%1").arg(sensor))->grab().toImage();
        int lines = 0;
        for (int y = 0; y < drawn.height(); ++y) {
            bool hasInk = false;
            for (int x = 0; x < drawn.width(); ++x)
                hasInk |= drawn.pixelColor(x, y) != drawn.pixelColor(drawn.width() - 1, 0);
            lines += hasInk ? 1 : 0;
        }
        return lines > 0 && lines < 4;
    }

    // The present value as text and as the slider's position, with a mark when its colours stand out.
    QString seen(int sensor)
    {
        const auto* text = get<QLineEdit>(QString("lineEdit_CurLevel_SH%1").arg(sensor));
        const QPair<QColor, QColor> colors{text->palette().color(QPalette::Base),
                                           text->palette().color(QPalette::Text)};
        const QPair<QColor, QColor> alarm{Qt::red, Qt::white};
        const QPair<QColor, QColor> plain{Qt::white, Qt::black};
        return QString("%1 %2%3")
            .arg(text->text())
            .arg(get<QSlider>(QString("horizontalSlider_CurLevel_SH%1").arg(sensor))->value())
            .arg(colors == alarm   ? "!"
                 : colors == plain ? ""
                                   : "?");
    }
    QString seen() { return QStringList{seen(1), seen(2), seen(3), seen(4)}.join(", "); }

    static QTabWidget* tabs(VLK_Widget_Config_Full& full) { return full.findChild<QTabWidget*>("tabWidget"); }
    void show(VLK_Widget_Config_Full& full)
    {
        window = full.findChild<VLK_Form_Config_Accel*>();
        full.show();
        QApplication::setActiveWindow(&full);
        tabs(full)->setCurrentIndex(full.pages().tabOf([](VLK_Form_Config_Accel&) {}));
        take();
    }
    static void answer(VLK_Widget_Config_Full& full, quint32 shock)
    {
        const vlk::AccelValues values{0, 0, shock};
        full.answers().takeAccel(reinterpret_cast<const uchar*>(&values));
    }
    static QVector<Message> take() { return std::exchange(sent, {}); }
};

QTEST_MAIN(AccelTest)
#include "tst_accel.moc"
