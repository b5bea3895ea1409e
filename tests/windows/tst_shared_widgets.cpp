// The widgets and dialogs that windows and pages share.

#include "windows/form_io_progress.h"
#include "windows/form_param_about.h"
#include "windows/vlk_combobox.h"
#include "windows/vlk_dblslider2.h"
#include "windows/vlk_menuaction.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextEdit>
#include <QTranslator>

#include <functional>
#include <limits>

using Action = std::function<void(VLK_DblSlider2&)>;
Q_DECLARE_METATYPE(Action)
using Closing = std::function<void(VLK_Form_Param_About&)>;
Q_DECLARE_METATYPE(Closing)

namespace {

// Shows every key in a made-up language.
struct Marker : QTranslator
{
    QString translate(const char*, const char* key, const char*, int) const override
    {
        return "<" + QString(key) + ">";
    }
};

Action move(int fromX, int toX, Qt::MouseButton button = Qt::LeftButton)
{
    return [=](VLK_DblSlider2& slider) {
        slider.grab(); // paints, so that there is something to hit
        QTest::mousePress(&slider, button, {}, {fromX, 10});
        QMouseEvent event(QEvent::MouseMove, QPoint(toX, 10), Qt::NoButton, button, {});
        QApplication::sendEvent(&slider, &event);
        QTest::mouseRelease(&slider, button, {}, {toX, 10});
        QMouseEvent after(QEvent::MouseMove, QPoint(100, 10), Qt::NoButton, {}, {});
        QApplication::sendEvent(&slider, &after);
    };
}

} // namespace

class TestSharedWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sliderMoves_data()
    {
        QTest::addColumn<Action>("action");
        QTest::addColumn<double>("value1");
        QTest::addColumn<double>("value2");
        QTest::addColumn<QString>("signalsInOrder");
        // All start from 40 and 60 on a scale of 0 to 200 with a gap of 5, 200 pixels wide.
        const auto row = [](const char* name, const Action& action, double value1, double value2,
                            const char* order) {
            QTest::newRow(name) << action << value1 << value2 << QString(order);
        };
        const auto set1 = [](double value) { return [=](VLK_DblSlider2& s) { s.setValue1(value); }; };
        const auto set2 = [](double value) { return [=](VLK_DblSlider2& s) { s.setValue2(value); }; };
        const auto range = [](double min, double gap, double max) {
            return [=](VLK_DblSlider2& s) { s.setRange(min, gap, max); };
        };
        const auto key = [](Qt::Key key) { return [=](VLK_DblSlider2& s) { QTest::keyClick(&s, key); }; };
        const double nan = std::numeric_limits<double>::quiet_NaN();
        const double infinity = std::numeric_limits<double>::infinity();

        row("lower alone", set1(54.5), 54.5, 60, "1=54.5");
        row("lower up to the gap", set1(55), 55, 60, "1=55");
        row("lower pushes upper", set1(58), 58, 63, "2=63 1=58");
        row("lower at the right end", set1(1000), 195, 200, "2=200 1=195");
        row("lower to infinity", set1(infinity), 195, 200, "2=200 1=195");
        row("lower below the scale", set1(-3), 0, 60, "1=0");
        row("lower at its present value", set1(40), 40, 60, "");
        row("lower not a number", set1(nan), 40, 60, "");
        row("upper alone", set2(45), 40, 45, "2=45");
        row("upper pushes lower", set2(42), 37, 42, "1=37 2=42");
        row("upper at the left end", set2(-3), 0, 5, "1=0 2=5");
        row("upper above the scale", set2(201), 40, 200, "2=200");
        row("upper at its present value", set2(60), 40, 60, "");
        row("upper not a number", set2(nan), 40, 60, "");
        row("range holds both", range(10, 1, 90), 40, 60, "");
        row("range ends below both", range(0, 5, 30), 25, 30, "1=25 2=30");
        row("range begins above both", range(100, 5, 200), 100, 105, "2=105 1=100");
        row("range narrower than its gap", range(0, 50, 10), 0, 10, "1=0 2=10");
        row("empty range", range(7, 0, 7), 7, 7, "1=7 2=7");
        row("range not a number", range(nan, 5, infinity), 40, 60, "");
        row(
            "gap keeps the values", [](VLK_DblSlider2& s) { s.setGap(50); }, 40, 60, "");
        row(
            "gap counts at the next move", [](VLK_DblSlider2& s) { s.setGap(50), s.setValue1(41); }, 41, 91,
            "2=91 1=41");

        row("drag lower", move(42, 50), 50, 60, "1=50");
        row("drag lower by its left edge", move(36, 20), 20, 60, "1=20");
        row("drag lower out of the widget", move(40, -30), 0, 60, "1=0");
        row("drag upper", move(60, 70), 40, 70, "2=70");
        row("drag upper against lower", move(60, 30), 25, 30, "1=25 2=30");
        row("press beside the handles", move(44, 80), 40, 60, "");
        row("press right of upper", move(64, 80), 40, 60, "");
        row("other button", move(40, 80, Qt::RightButton), 40, 60, "");
        row(
            "overlap goes to upper", [](VLK_DblSlider2& s) { s.setValue2(45), move(42, 150)(s); }, 40, 150,
            "2=45 2=150");
        row(
            "disabled in the middle",
            [](VLK_DblSlider2& s) {
                s.grab();
                QTest::mousePress(&s, Qt::LeftButton, {}, {40, 10});
                s.setEnabled(false), s.setEnabled(true);
                QMouseEvent event(QEvent::MouseMove, QPoint(20, 10), Qt::NoButton, {}, {});
                QApplication::sendEvent(&s, &event);
            },
            40, 60, "");

        row("key step", key(Qt::Key_Right), 42, 60, "1=42");
        row("key to the end", key(Qt::Key_End), 195, 200, "2=200 1=195");
        row(
            "key moves the handle used last",
            [](VLK_DblSlider2& s) { move(60, 70)(s), QTest::keyClick(&s, Qt::Key_PageDown); }, 40, 50,
            "2=70 2=50");
        row("other key", key(Qt::Key_A), 40, 60, "");
    }
    void sliderMoves()
    {
        QFETCH(Action, action);
        VLK_DblSlider2 slider;
        slider.resize(200, 20);
        slider.setRange(0, 5, 200);
        slider.setValue1(40);
        slider.setValue2(60);
        QStringList order;
        connect(&slider, &VLK_DblSlider2::value1Changed, this,
                [&](double value) { order << QString("1=%1").arg(value); });
        connect(&slider, &VLK_DblSlider2::value2Changed, this,
                [&](double value) { order << QString("2=%1").arg(value); });
        action(slider);
        QTEST(slider.value1(), "value1");
        QTEST(slider.value2(), "value2");
        QTEST(order.join(' '), "signalsInOrder");
        QVERIFY(!slider.grab().isNull());
    }

    void sliderIgnoresTheMouseBeforeItIsPainted()
    {
        VLK_DblSlider2 slider;
        QTest::mousePress(&slider, Qt::LeftButton, {}, {0, 10});
        QMouseEvent event(QEvent::MouseMove, QPoint(50, 10), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(&slider, &event);
        QCOMPARE(slider.value1(), 0.0);
        QCOMPARE(slider.minimumSizeHint(), QSize(128, 20));
    }

    void sliderPainting_data()
    {
        QTest::addColumn<Action>("setUp");
        QTest::addColumn<QString>("pixels");
        // "x,y-y2" and a letter: k line, w window, s shadow, r m g the three colours. Handles at 40 and 150.
        const QString down = "40,19k 40,16k 40,3k 40,2w 40,1k 36,1k 36,15k 36,16w 44,1k 44,15k 38,5w ";
        const QString up = "40,0k 40,3k 40,16k 40,17w 40,18k 36,18k 36,4k 36,3w 44,18k 44,4k 38,5w ";
        const QString outlined =
            "10,8w 10,9s 10,10w 10,11s 10,12w 0,10s 100,9s 100,10w 100,11s 180,9s 180,10w ";
        const QString above = "0,3k 0,4w 19,1k 19,2w 79,1k 79,2w 99,3k 99,4w 199,3k 199,4w 10,0k ";
        const QString below = "0,16k 0,15w 19,18k 19,17w 79,18k 79,17w 99,16k 99,15w 199,16k 199,15w 10,19k ";
        const Action colours = [](VLK_DblSlider2& s) {
            s.setColorLow(Qt::red), s.setColorMiddle(Qt::magenta), s.setColorHigh(Qt::green);
        };
        const auto ticks = [](int position) {
            return [=](VLK_DblSlider2& s) { s.setTickPosition(position); };
        };
        const auto row = [](const char* name, const Action& setUp, const QString& pixels) {
            QTest::newRow(name) << setUp << pixels;
        };
        row("plain", ticks(0), down + outlined + "45,5s 41,0s 45,0s 46,5w 0,0w 99,0w 99,19w");
        row("coloured", colours,
            down + "10,8w 10,9r 10,11r 10,12w 0,10r 35,10r 100,9m 100,11m 180,9g 198,11g 45,5s");
        row(
            "one colour", [](VLK_DblSlider2& s) { s.setColorHigh(Qt::green); }, "10,9s 100,10w 180,10g");
        row(
            "disabled", [=](VLK_DblSlider2& s) { colours(s), s.setEnabled(false); },
            down + outlined + "45,5w 41,0w");
        row("ticks above", ticks(1), up + above + outlined + "45,5s 41,19s 45,19s 99,19w");
        row("ticks below", ticks(2), down + below + outlined + "45,5s 99,0w");
        row("ticks on both sides", ticks(3), down + above + below);
        row(
            "handles at the ends", [](VLK_DblSlider2& s) { s.setValue1(0), s.setValue2(100); },
            "0,10k 4,5k 5,5s 195,5k 199,10k 199,19k");
        row(
            "handles together at the right end",
            [](VLK_DblSlider2& s) { s.setRange(0, 0, 100), s.setValue1(100); }, "190,5k 195,5k 199,10k");
        row(
            "empty scale", [](VLK_DblSlider2& s) { s.setRange(5, 0, 5); }, "0,5k 4,10k 8,5k 9,5s 100,9s");
    }
    void sliderPainting()
    {
        QFETCH(Action, setUp);
        QFETCH(QString, pixels);
        for (bool dark : {false, true}) {
            VLK_DblSlider2 slider;
            slider.resize(200, 20);
            QPalette palette;
            palette.setColor(QPalette::Window, dark ? QColor(32, 32, 32) : QColor(240, 240, 240));
            palette.setColor(QPalette::WindowText, dark ? Qt::white : Qt::blue);
            palette.setColor(QPalette::Shadow, Qt::darkYellow);
            palette.setColor(QPalette::Disabled, QPalette::WindowText, dark ? Qt::white : Qt::blue);
            slider.setPalette(palette);
            slider.setValue1(20);
            slider.setValue2(75);
            setUp(slider);
            const QMap<QChar, QColor> colours{{'k', dark ? Qt::white : Qt::black},
                                              {'w', palette.color(QPalette::Window)},
                                              {'s', Qt::darkYellow},
                                              {'r', Qt::red},
                                              {'m', Qt::magenta},
                                              {'g', Qt::green}};
            const QImage image = slider.grab().toImage();
            for (const QString& pixel : pixels.split(' ', Qt::SkipEmptyParts)) {
                const int x = pixel.section(',', 0, 0).toInt();
                const int y = pixel.section(',', 1).chopped(1).toInt();
                // On a dark window the groove leaves the shadow's colour.
                const bool groove = dark && pixel.back() == 's' && y >= 9 && y <= 11;
                QVERIFY2(image.pixelColor(x, y) == colours[groove ? 'k' : pixel.back()],
                         qPrintable(pixel + (dark ? " dark " : " light ") + image.pixelColor(x, y).name()));
            }
        }
    }

    void comboBoxRemembersTheTextBeforeTheList()
    {
        VLK_ComboBox box;
        box.addItems({"one", "two"});
        box.setRememberedText("page");
        box.showPopup();
        box.hidePopup();
        box.setCurrentIndex(1);
        QCOMPARE(box.popupText() + box.rememberedText(), QString("onepage"));
    }

    void progressDialog()
    {
        VLK_Form_IO_Progress dialog;
        QCOMPARE(int(dialog.windowFlags()), 0x2000003);
        QCOMPARE(dialog.size(), QSize(450, 110));
        QVERIFY(dialog.isModal());
        auto* bar = dialog.findChild<QProgressBar*>("progressBar");
        auto* button = dialog.findChild<QPushButton*>("pushButton_Break");
        QCOMPARE(bar->maximum(), 2'000'000);

        dialog.setTitleText("title");
        dialog.setFileTextLeft(QString(500, 'x'));
        dialog.setCurText("1");
        dialog.setAllText("2");
        dialog.setTimeText("time");
        QCOMPARE(dialog.findChild<QLabel*>("label_Slash")->text(), QString("/"));
        dialog.setCountersVisible(false);
        dialog.setTimeVisible(false);
        dialog.showForm();
        for (const char* name : {"label_Cur", "label_Slash", "label_All", "label_Time", "pushButton_Break"}) {
            QWidget* part = dialog.findChild<QWidget*>(name);
            QVERIFY2(part->isVisible() && part->width() >= part->sizeHint().width(), name);
        }

        QSignalSpy breaks(&dialog, &VLK_Form_IO_Progress::breakProcess);
        button->click();
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
        QCOMPARE(QVector<int>({bar->minimum(), bar->maximum(), bar->value()}), QVector<int>({0, 0, 0}));
    }

    void textDialogForgetsHoweverItIsClosed_data()
    {
        QTest::addColumn<Closing>("closing");
        QTest::newRow("button") << Closing([](auto& dialog) {
            QTest::mouseClick(dialog.template findChild<QPushButton*>("pushButton_Ok"), Qt::LeftButton);
        });
        QTest::newRow("Esc") << Closing([](auto& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        QTest::newRow("frame") << Closing([](auto& dialog) { dialog.close(); });
        QTest::newRow("accepted") << Closing([](auto& dialog) { dialog.accept(); });
        QTest::newRow("hidden") << Closing([](auto& dialog) { dialog.hide(); });
    }
    void textDialogForgetsHoweverItIsClosed()
    {
        QFETCH(Closing, closing);
        VLK_Form_Param_About dialog;
        QCOMPARE(int(dialog.windowFlags()), 0x2000003);
        auto* field = dialog.findChild<QTextEdit*>("textEdit");
        auto* title = dialog.findChild<QLabel*>("label_Title");
        QVERIFY(field->isReadOnly());
        dialog.setTitle("Title");
        dialog.setHtml("former");
        dialog.setHtml("<b>text</b>");
        dialog.show();
        QCOMPARE(title->text() + field->toPlainText(), QString("Titletext"));
        QVERIFY(dialog.width() >= 600 && dialog.height() >= 320);
        closing(dialog);
        QVERIFY(!dialog.isVisible());
        dialog.show();
        QCOMPARE(title->text() + field->toPlainText(), QString());
    }

    void dialogsFollowTheLanguage()
    {
        VLK_Form_IO_Progress progress;
        VLK_Form_Param_About about;
        progress.setTitleText("kept");
        Marker marker;
        QApplication::installTranslator(&marker);
        progress.retranslate();
        about.retranslate();
        QCOMPARE(progress.findChild<QPushButton*>("pushButton_Break")->text(), QString("<wrd_031>"));
        QCOMPARE(about.findChild<QPushButton*>("pushButton_Ok")->text(), QString("<wrd_003>"));
        QCOMPARE(progress.findChild<QLabel*>("label_Title")->text(), QString("kept"));
    }
};

QTEST_MAIN(TestSharedWidgets)
#include "tst_shared_widgets.moc"
