// The Temperature sensors page: how the two bounds and the hysteresis keep their distance.

#include "pages/form_config_sensors_temp.h"
#include "settings_page.h"
#include "support/data_table.h"
#include "support/typing.h"
#include "windows/vlk_dblslider2.h"

#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QSpinBox>
#include <QtTest>

// What is moved, and to how many degrees.
using Steps = QVector<QPair<QString, double>>;
Q_DECLARE_METATYPE(Steps)

class TemperatureTest : public QObject, private SettingsPage<VLK_Form_Config_Sensors_Temp>
{
    Q_OBJECT

public:
    TemperatureTest() : SettingsPage("TEMPSENS") {}

private Q_SLOTS:
    void init() { open(); }

    void bounds_data()
    {
        DataTable<Steps, QString>({"steps", "bounds"})
            .row("hysteresis moves the lower", Steps{{"hyst", 0}, {"left", 20}, {"right", 25}, {"hyst", 10}},
                 "14 25")
            .row("lower pushes", Steps{{"right", 30}, {"left", 28}}, "28 34")
            .row("upper pushes", Steps{{"left", 20}, {"right", 22}}, "16 22")
            .row("no hysteresis", Steps{{"hyst", 0}, {"left", 119}, {"right", 0}, {"right", 116}}, "-1 116");
    }
    // By the handles; what is typed into the boxes is held elsewhere.
    void bounds()
    {
        QFETCH(Steps, steps);
        auto* slider = get<VLK_DblSlider2>("slider_Temp_4");
        for (const auto& [what, degrees] : steps) {
            if (what == "hyst")
                type(get<QSpinBox>("spinBox_Hyst_4"), QString("<All>%1<Enter>").arg(degrees));
            else
                what == "left" ? slider->setValue1(degrees) : slider->setValue2(degrees);
        }
        const auto box = [&](const char* name) { return get<QDoubleSpinBox>(name); };
        QTEST(QString("%1 %2").arg(slider->value1()).arg(slider->value2()), "bounds");
        QTEST(QString("%1 %2")
                  .arg(box("doubleSpinBox_Left_Temp_4")->value())
                  .arg(box("doubleSpinBox_Right_Temp_4")->value()),
              "bounds");
        QCOMPARE(box("doubleSpinBox_Left_Temp_4")->maximum(), 115.0);
        QCOMPARE(notSaved({{"SENS2/min", "-50.0"}, {"SENS2/max", "120.0"}}), QStringList());
    }

    // At the ends of the scale the handles are whole, though they stand out of the slider.
    void wholeHandles()
    {
        auto* slider = get<VLK_DblSlider2>("slider_Temp_3");
        QWidget* group = slider->parentWidget();
        page().resize(900, 500);
        for (const bool isAtEnds : {true, false}) {
            slider->setValue1(isAtEnds ? -50 : 0);
            slider->setValue2(isAtEnds ? 120 : 50);
            const QImage image = group->grab().toImage();
            for (const int x : {-4, slider->width() + 3})
                QCOMPARE(image.pixelColor(slider->pos() + QPoint(x, 8)).lightness() < 100, isAtEnds);
        }
    }
};

QTEST_MAIN(TemperatureTest)
#include "tst_temperature.moc"
