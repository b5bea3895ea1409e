// The widgets and dialogs that windows and pages share.

#include "support/brackets.h"
#include "support/data_table.h"
#include "windows/form_io_progress.h"
#include "windows/form_param_about.h"
#include "windows/input_guard.h"
#include "windows/vlk_combobox.h"
#include "windows/vlk_dblslider2.h"

#include <QtTest>
#include <QtWidgets>

#include <functional>

// A slider with a mouse; each step paints first, so that there is something to hit.
class Slider : public VLK_DblSlider2
{
public:
    Slider& press(double x, Qt::MouseButton button = Qt::LeftButton)
    {
        return mouse(QEvent::MouseButtonPress, x, button);
    }
    Slider& move(double x) { return mouse(QEvent::MouseMove, x, Qt::NoButton); }
    Slider& release() { return mouse(QEvent::MouseButtonRelease, 0, Qt::LeftButton); }
    Slider& drag(double from, double to) { return press(from).move(to); }
    Slider& key(Qt::Key key)
    {
        QTest::keyClick(this, key);
        return *this;
    }
    Slider& set(double value1, double value2)
    {
        setValue1(value1);
        setValue2(value2);
        return *this;
    }
    Slider& enable(bool on)
    {
        setEnabled(on);
        return *this;
    }
    void paintIn(Qt::GlobalColor low, Qt::GlobalColor middle, Qt::GlobalColor high)
    {
        setColorLow(low);
        setColorMiddle(middle);
        setColorHigh(high);
    }

private:
    Slider& mouse(QEvent::Type type, double x, Qt::MouseButton button)
    {
        grab();
        QMouseEvent event(type, QPointF(x, 10), button, button, {});
        QApplication::sendEvent(this, &event);
        return *this;
    }
};
using Steps = std::function<void(Slider& slider)>;
Q_DECLARE_METATYPE(Steps)

class TestSharedWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sliderMoves_data()
    {
        // From 40 and 60 on a scale of 0 to 200 with a gap of 5, 200 pixels wide.
        DataTable<QString, QString, Steps>({"signalsInOrder", "values", "steps"})
            .row("lower alone", "1=54.5", "54.5 60", [](Slider& s) { s.setValue1(54.5); })
            .row("lower pushes upper", "2=63 1=58", "58 63", [](Slider& s) { s.setValue1(58); })
            .row("lower at the right end", "2=200 1=195", "195 200", [](Slider& s) { s.setValue1(1000); })
            .row("lower below the scale", "1=0", "0 60", [](Slider& s) { s.setValue1(-3); })
            .row("both at their present values", "", "40 60", [](Slider& s) { s.set(40, 60); })
            .row("upper alone", "2=45", "40 45", [](Slider& s) { s.setValue2(45); })
            .row("upper pushes lower", "1=37 2=42", "37 42", [](Slider& s) { s.setValue2(42); })
            .row("upper at the left end", "1=0 2=5", "0 5", [](Slider& s) { s.setValue2(-3); })
            .row("not numbers", "", "40 60", [](Slider& s) { s.set(qQNaN(), qQNaN()).setGap(qInf()); })
            .row("no numbers of a range", "", "40 60", [](Slider& s) { s.setRange(0, qQNaN(), 30); })
            .row("range ends below both", "1=25 2=30", "25 30", [](Slider& s) { s.setRange(0, 5, 30); })
            .row("range begins above both", "2=105 1=100", "100 105",
                 [](Slider& s) { s.setRange(100, 5, 200); })
            .row("range narrower than its gap", "1=0 2=10", "0 10", [](Slider& s) { s.setRange(0, 50, 10); })
            .row("empty range", "1=7 2=7", "7 7", [](Slider& s) { s.setRange(7, 0, 7); })
            .row("gap counts at the next move", "2=91 1=41", "41 91",
                 [](Slider& s) {
                     s.setGap(50);
                     s.setValue1(41);
                 })
            .row("drag lower", "1=50", "50 60", [](Slider& s) { s.drag(42, 50).release().move(90); })
            .row("drag lower out of the widget", "1=0", "0 60", [](Slider& s) { s.drag(36, -30); })
            .row("drag upper against lower", "1=25 2=30", "25 30", [](Slider& s) { s.drag(60, 30); })
            .row("overlap goes to upper", "2=45 2=150", "40 150",
                 [](Slider& s) { s.set(40, 45).drag(42, 150); })
            .row("press beside the handles", "", "40 60", [](Slider& s) { s.drag(44, 80).drag(64, 80); })
            .row("other button", "", "40 60", [](Slider& s) { s.press(40, Qt::RightButton).move(80); })
            .row("disabled in the middle", "", "40 60",
                 [](Slider& s) { s.press(40).enable(false).enable(true).move(20); })
            .row("key before any press", "2=200 1=195", "195 200", [](Slider& s) { s.key(Qt::Key_End); })
            .row("key moves the handle used last", "1=35 2=40", "35 40",
                 [](Slider& s) { s.press(60).release().key(Qt::Key_PageDown); });
    }
    void sliderMoves()
    {
        QFETCH(Steps, steps);
        Slider slider;
        slider.resize(200, 20);
        slider.setRange(0, 5, 200);
        slider.set(40, 60);
        QStringList order;
        connect(&slider, &VLK_DblSlider2::value1Changed, this,
                [&](double value) { order << QString("1=%1").arg(value); });
        connect(&slider, &VLK_DblSlider2::value2Changed, this,
                [&](double value) { order << QString("2=%1").arg(value); });
        steps(slider);
        QTEST(order.join(' '), "signalsInOrder");
        QTEST(QString("%1 %2").arg(slider.value1()).arg(slider.value2()), "values");
    }

    void sliderPainting_data()
    {
        // "x,y" and a letter: k line, w window, s shadow, r m g the three colours. Handles at 40 and 150.
        const QString down = "40,19k 40,16k 40,3k 40,2w 40,1k 36,1k 36,15k 36,16w 44,1k 44,15k 38,5w ";
        const QString up = "40,0k 40,3k 40,16k 40,17w 40,18k 36,18k 36,4k 36,3w 44,18k 44,4k 38,5w ";
        const QString track = "10,8w 10,9s 10,10w 10,11s 10,12w 0,10s 100,9s 100,10w 100,11s 180,9s 180,10w ";
        const QString above = "0,3k 0,4w 19,1k 19,2w 79,1k 79,2w 99,3k 99,4w 199,3k 199,4w 10,0k ";
        const QString below = "0,16k 0,15w 19,18k 19,17w 79,18k 79,17w 99,16k 99,15w 199,16k 199,15w 10,19k ";
        const QString painted = "10,8w 10,9r 10,11r 10,12w 0,10r 100,9m 100,11m 180,9g 198,11g 45,5s ";
        DataTable<QString, Steps>({"pixels", "steps"})
            .row("plain", down + track + "45,5s 41,0s 45,0s 46,5w 0,0w 99,0w 99,19w", [](Slider&) {})
            .row("coloured", down + painted, [](Slider& s) { s.paintIn(Qt::red, Qt::magenta, Qt::green); })
            .row("one colour", "10,9s 100,10w 180,10g", [](Slider& s) { s.setColorHigh(Qt::green); })
            .row("disabled", down + track + "45,5w 41,0w",
                 [](Slider& s) { s.enable(false).paintIn(Qt::red, Qt::magenta, Qt::green); })
            .row("ticks above", up + above + track + "45,5s 41,19s 45,19s 99,19w",
                 [](Slider& s) { s.setTickPosition(1); })
            .row("ticks below", down + below + track + "45,5s 99,0w", [](Slider& s) { s.setTickPosition(2); })
            .row("ticks on both sides", down + above + below, [](Slider& s) { s.setTickPosition(3); })
            .row("handles at the ends", "0,10k 4,5k 5,5s 195,5k 199,10k 199,19k",
                 [](Slider& s) { s.set(0, 200); })
            .row("both at the right end", "190,5k 195,5k 199,10k",
                 [](Slider& s) {
                     s.setRange(0, 0, 200);
                     s.setValue1(200);
                 })
            .row("empty scale", "0,5k 4,10k 8,5k 9,5s 100,9s", [](Slider& s) { s.setRange(5, 0, 5); });
    }
    void sliderPainting()
    {
        QFETCH(Steps, steps);
        QFETCH(QString, pixels);
        for (bool dark : {false, true}) {
            const QColor window = dark ? QColor(32, 32, 32) : QColor(240, 240, 240);
            QPalette palette;
            palette.setColor(QPalette::Window, window);
            palette.setColor(QPalette::WindowText, dark ? Qt::white : Qt::blue);
            palette.setColor(QPalette::Shadow, Qt::darkYellow);
            Slider slider;
            slider.resize(200, 20);
            slider.setPalette(palette);
            slider.setRange(0, 5, 200);
            slider.set(40, 150);
            steps(slider);
            const QMap<QChar, QColor> colours{{'k', dark ? Qt::white : Qt::black},
                                              {'w', window},
                                              {'s', Qt::darkYellow},
                                              {'r', Qt::red},
                                              {'m', Qt::magenta},
                                              {'g', Qt::green}};
            const QImage image = slider.grab().toImage();
            for (const QString& pixel : pixels.split(' ', Qt::SkipEmptyParts)) {
                const int y = pixel.section(',', 1).chopped(1).toInt();
                const QColor seen = image.pixelColor(pixel.section(',', 0, 0).toInt(), y);
                // On a dark window the groove leaves the shadow's colour.
                const bool groove = dark && pixel.back() == 's' && y >= 9 && y <= 11;
                QVERIFY2(seen == colours[groove ? 'k' : pixel.back()],
                         qPrintable(QString("%1 is %2, dark %3").arg(pixel, seen.name()).arg(dark)));
            }
        }
    }

    void comboBoxRemembersTheTextBeforeTheList()
    {
        VLK_ComboBox box;
        box.addItems({"one", "two"});
        box.showPopup();
        box.hidePopup();
        box.setCurrentIndex(1);
        QCOMPARE(box.popupText(), QString("one"));
        QCOMPARE(box.rememberedText(), QString());
    }

    void progressDialog()
    {
        VLK_Form_IO_Progress dialog;
        QCOMPARE(static_cast<int>(dialog.windowFlags()), 0x2000003);
        QCOMPARE(dialog.size(), QSize(450, 110));
        auto* bar = dialog.findChild<QProgressBar*>("progressBar");
        QCOMPARE(bar->maximum(), 2'000'000);

        dialog.setTitleText("title");
        dialog.setFileTextLeft(QString(500, 'x'));
        dialog.setCurText("1");
        dialog.setAllText("2");
        dialog.setTimeText("time");
        dialog.setCountersVisible(false);
        dialog.setTimeVisible(false);
        dialog.showForm();
        for (const char* name : {"label_Cur", "label_Slash", "label_All", "label_Time", "pushButton_Break"}) {
            auto* part = dialog.findChild<QWidget*>(name);
            QVERIFY2(part->isVisible() && part->width() >= part->sizeHint().width(), name);
        }

        QSignalSpy breaks(&dialog, &VLK_Form_IO_Progress::breakProcess);
        dialog.findChild<QPushButton*>("pushButton_Break")->click();
        QTest::keyClick(&dialog, Qt::Key_Escape);
        dialog.close();
        QCOMPARE(breaks.count(), 3);
        QVERIFY(dialog.isVisible()); // the process decides when it ends
        dialog.setTimeVisible(false);
        dialog.closeForm();
        QVERIFY(!dialog.isVisible());
        QVERIFY(!dialog.findChild<QLabel*>("label_Time")->isHidden());

        dialog.reset();
        for (QLabel* label : dialog.findChildren<QLabel*>())
            QCOMPARE(label->text(), QString());
        QVERIFY(bar->minimum() == 0 && bar->maximum() == 0 && bar->value() == 0);
    }

    void textDialogForgetsHoweverItIsClosed()
    {
        VLK_Form_Param_About dialog;
        QCOMPARE(static_cast<int>(dialog.windowFlags()), 0x2000003);
        auto* field = dialog.findChild<QTextEdit*>("textEdit");
        auto* title = dialog.findChild<QLabel*>("label_Title");
        auto* button = dialog.findChild<QPushButton*>("pushButton_Ok");
        const std::function<void()> closings[] = {
            [&] { QTest::mouseClick(button, Qt::LeftButton); },
            [&] { QTest::keyClick(&dialog, Qt::Key_Escape); },
            [&] { dialog.close(); },
            [&] { dialog.hide(); },
        };
        for (const auto& close : closings) {
            dialog.show();
            QCOMPARE(title->text() + field->toPlainText(), QString());
            dialog.setTitle("Title");
            dialog.setHtml("former");
            dialog.setHtml("<b>text</b>");
            QCOMPARE(title->text() + field->toPlainText(), QString("Titletext"));
            close();
            QVERIFY(!dialog.isVisible());
        }
        QCOMPARE(title->text() + field->toPlainText(), QString());
    }

    void dialogsFollowTheLanguage()
    {
        VLK_Form_IO_Progress progress;
        VLK_Form_Param_About about;
        progress.setTitleText("kept");
        const Brackets brackets;
        progress.retranslate();
        about.retranslate();
        QCOMPARE(progress.findChild<QPushButton*>("pushButton_Break")->text(), QString("<wrd_031>"));
        QCOMPARE(about.findChild<QPushButton*>("pushButton_Ok")->text(), QString("<wrd_003>"));
        QCOMPARE(progress.findChild<QLabel*>("label_Title")->text(), QString("kept"));
    }
};

QTEST_MAIN(TestSharedWidgets)
#include "tst_shared_widgets.moc"
