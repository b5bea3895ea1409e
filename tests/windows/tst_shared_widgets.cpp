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

namespace {

// Does to a slider what the steps say: "range 0 5 200; value1 40; press 40; move 50; release".
void run(VLK_DblSlider2& slider, const QString& steps)
{
    const auto mouse = [&](QEvent::Type type, double x, Qt::MouseButton button) {
        slider.grab(); // paints, so that there is something to hit
        QMouseEvent event(type, QPointF(x, 10), button, button, {});
        QApplication::sendEvent(&slider, &event);
    };
    const QMap<QString, std::function<void(double, double, double)>> verbs{
        {"range", [&](double min, double gap, double max) { slider.setRange(min, gap, max); }},
        {"gap", [&](double gap, double, double) { slider.setGap(gap); }},
        {"value1", [&](double value, double, double) { slider.setValue1(value); }},
        {"value2", [&](double value, double, double) { slider.setValue2(value); }},
        {"ticks", [&](double position, double, double) { slider.setTickPosition(int(position)); }},
        {"red", [&](double, double, double) { slider.setColorLow(Qt::red); }},
        {"magenta", [&](double, double, double) { slider.setColorMiddle(Qt::magenta); }},
        {"green", [&](double, double, double) { slider.setColorHigh(Qt::green); }},
        {"enable", [&](double on, double, double) { slider.setEnabled(on != 0); }},
        {"press", [&](double x, double, double) { mouse(QEvent::MouseButtonPress, x, Qt::LeftButton); }},
        {"menu", [&](double x, double, double) { mouse(QEvent::MouseButtonPress, x, Qt::RightButton); }},
        {"move", [&](double x, double, double) { mouse(QEvent::MouseMove, x, Qt::NoButton); }},
        {"release", [&](double, double, double) { mouse(QEvent::MouseButtonRelease, 0, Qt::LeftButton); }},
        {"end", [&](double, double, double) { QTest::keyClick(&slider, Qt::Key_End); }},
        {"pagedown", [&](double, double, double) { QTest::keyClick(&slider, Qt::Key_PageDown); }},
    };
    for (const QString& step : steps.split("; ", Qt::SkipEmptyParts)) {
        const QStringList words = step.split(' ');
        QVERIFY2(verbs.contains(words[0]), qPrintable(step));
        verbs[words[0]](words.value(1).toDouble(), words.value(2).toDouble(), words.value(3).toDouble());
    }
}

} // namespace

class TestSharedWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sliderMoves_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("signalsInOrder");
        QTest::addColumn<QString>("values");
        // From 40 and 60 on a scale of 0 to 200 with a gap of 5, 200 pixels wide.
        const char* rows[][4] = {
            {"lower alone", "value1 54.5", "1=54.5", "54.5 60"},
            {"lower pushes upper", "value1 58", "2=63 1=58", "58 63"},
            {"lower at the right end", "value1 1000", "2=200 1=195", "195 200"},
            {"lower below the scale", "value1 -3", "1=0", "0 60"},
            {"lower at its present value", "value1 40", "", "40 60"},
            {"upper alone", "value2 45", "2=45", "40 45"},
            {"upper pushes lower", "value2 42", "1=37 2=42", "37 42"},
            {"upper at the left end", "value2 -3", "1=0 2=5", "0 5"},
            {"upper at its present value", "value2 60", "", "40 60"},
            {"not numbers", "value1 nan; value2 nan; gap inf; range 0 nan 30", "", "40 60"},
            {"range ends below both", "range 0 5 30", "1=25 2=30", "25 30"},
            {"range begins above both", "range 100 5 200", "2=105 1=100", "100 105"},
            {"range narrower than its gap", "range 0 50 10", "1=0 2=10", "0 10"},
            {"empty range", "range 7 0 7", "1=7 2=7", "7 7"},
            {"gap counts at the next move", "gap 50; value1 41", "2=91 1=41", "41 91"},
            {"drag lower", "press 42; move 50; release; move 90", "1=50", "50 60"},
            {"drag lower out of the widget", "press 36; move -30", "1=0", "0 60"},
            {"drag upper against lower", "press 60; move 30", "1=25 2=30", "25 30"},
            {"overlap goes to upper", "value2 45; press 42; move 150", "2=45 2=150", "40 150"},
            {"press beside the handles", "press 44; move 80; press 64; move 80", "", "40 60"},
            {"other button", "menu 40; move 80", "", "40 60"},
            {"disabled in the middle", "press 40; enable 0; enable 1; move 20", "", "40 60"},
            {"key before any press", "end", "2=200 1=195", "195 200"},
            {"key moves the handle used last", "press 60; release; pagedown", "1=35 2=40", "35 40"},
        };
        for (const auto& [name, steps, order, values] : rows)
            QTest::newRow(name) << QString(steps) << QString(order) << QString(values);
    }
    void sliderMoves()
    {
        QFETCH(QString, steps);
        VLK_DblSlider2 slider;
        slider.resize(200, 20);
        run(slider, "range 0 5 200; value1 40; value2 60");
        QStringList order;
        connect(&slider, &VLK_DblSlider2::value1Changed, this,
                [&](double value) { order << QString("1=%1").arg(value); });
        connect(&slider, &VLK_DblSlider2::value2Changed, this,
                [&](double value) { order << QString("2=%1").arg(value); });
        run(slider, steps);
        QTEST(order.join(' '), "signalsInOrder");
        QTEST(QString("%1 %2").arg(slider.value1()).arg(slider.value2()), "values");
    }

    void sliderPainting_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("pixels");
        // "x,y" and a letter: k line, w window, s shadow, r m g the three colours. Handles at 40 and 150.
        const QString down = "40,19k 40,16k 40,3k 40,2w 40,1k 36,1k 36,15k 36,16w 44,1k 44,15k 38,5w ";
        const QString up = "40,0k 40,3k 40,16k 40,17w 40,18k 36,18k 36,4k 36,3w 44,18k 44,4k 38,5w ";
        const QString track = "10,8w 10,9s 10,10w 10,11s 10,12w 0,10s 100,9s 100,10w 100,11s 180,9s 180,10w ";
        const QString above = "0,3k 0,4w 19,1k 19,2w 79,1k 79,2w 99,3k 99,4w 199,3k 199,4w 10,0k ";
        const QString below = "0,16k 0,15w 19,18k 19,17w 79,18k 79,17w 99,16k 99,15w 199,16k 199,15w 10,19k ";
        const QString painted = "10,8w 10,9r 10,11r 10,12w 0,10r 100,9m 100,11m 180,9g 198,11g 45,5s ";
        const std::tuple<const char*, QString, QString> rows[] = {
            {"plain", "", down + track + "45,5s 41,0s 45,0s 46,5w 0,0w 99,0w 99,19w"},
            {"coloured", "red; magenta; green", down + painted},
            {"one colour", "green", "10,9s 100,10w 180,10g"},
            {"disabled", "red; magenta; green; enable 0", down + track + "45,5w 41,0w"},
            {"ticks above", "ticks 1", up + above + track + "45,5s 41,19s 45,19s 99,19w"},
            {"ticks below", "ticks 2", down + below + track + "45,5s 99,0w"},
            {"ticks on both sides", "ticks 3", down + above + below},
            {"handles at the ends", "value1 0; value2 200", "0,10k 4,5k 5,5s 195,5k 199,10k 199,19k"},
            {"both at the right end", "range 0 0 200; value1 200", "190,5k 195,5k 199,10k"},
            {"empty scale", "range 5 0 5", "0,5k 4,10k 8,5k 9,5s 100,9s"},
        };
        for (const auto& [name, steps, pixels] : rows)
            QTest::newRow(name) << steps << pixels;
    }
    void sliderPainting()
    {
        QFETCH(QString, steps);
        QFETCH(QString, pixels);
        for (bool dark : {false, true}) {
            const QColor window = dark ? QColor(32, 32, 32) : QColor(240, 240, 240);
            QPalette palette;
            palette.setColor(QPalette::Window, window);
            palette.setColor(QPalette::WindowText, dark ? Qt::white : Qt::blue);
            palette.setColor(QPalette::Shadow, Qt::darkYellow);
            VLK_DblSlider2 slider;
            slider.resize(200, 20);
            slider.setPalette(palette);
            run(slider, "range 0 5 200; value1 40; value2 150; " + steps);
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

    void typedNumbersAreLimited_data()
    {
        DataTable<int, QString, QString, double>({"decimals", "standing", "typed", "value"})
            .row("within the range", 0, "", "8080", 8080)
            .row("too large", 0, "", "99999", 65535)
            .row("far too large", 0, "", "99999999999", 65535)
            .row("over what was selected", 0, "4000", "70000", 65535)
            .row("below the least on the way", 0, "", "30", 30)
            .row("too small", 0, "", "-250", -100)
            .row("a fraction", 2, "", "65535.5", 65535)
            .row("no number", 0, "12", "x", 12);
    }
    void typedNumbersAreLimited()
    {
        QFETCH(int, decimals);
        QFETCH(QString, standing);
        QFETCH(QString, typed);
        QWidget page;
        QSpinBox whole(&page);
        whole.setRange(-100, 65535);
        QDoubleSpinBox real(&page);
        real.setRange(-100, 65535);
        real.setLocale(QLocale::c());
        vlk::guardInputs(&page);
        auto* box = decimals ? static_cast<QAbstractSpinBox*>(&real) : &whole;
        whole.setSuffix(" km");
        real.setSuffix(" km");
        box->selectAll();
        QTest::keyClicks(box, standing);
        if (typed.size() > 1)
            box->selectAll();
        QTest::keyClicks(box, typed);
        QTEST(decimals ? real.value() : whole.value(), "value");
        QVERIFY(box->text().endsWith(" km"));
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
        QCOMPARE(int(dialog.windowFlags()), 0x2000003);
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
        QCOMPARE(int(dialog.windowFlags()), 0x2000003);
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
