// The Temperature sensors page: how the two bounds and the hysteresis keep their distance.

#include "pages/form_config_sensors_temp.h"
#include "settings_page.h"
#include "support/data_table.h"
#include "windows/vlk_dblslider2.h"

#include <QDoubleSpinBox>
#include <QFormLayout>
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
            .row("far enough", Steps{{"left", 0}, {"right", 11}, {"hyst", 10}}, "0 11")
            .row("hysteresis moves the lower", Steps{{"hyst", 0}, {"left", 20}, {"right", 25}, {"hyst", 10}},
                 "14 25")
            .row("hysteresis moves the upper",
                 Steps{{"hyst", 0}, {"left", -50}, {"right", -40}, {"hyst", 10}}, "-50 -39")
            .row("by twice the distance", Steps{{"hyst", 0}, {"left", -42}, {"right", -38}, {"hyst", 10}},
                 "-42 -31")
            .row("lower pushes", Steps{{"right", 30}, {"left", 28}}, "28 34")
            .row("upper pushes", Steps{{"left", 20}, {"right", 22}}, "16 22")
            .row("lower at its end", Steps{{"left", 119}}, "114 120")
            .row("upper at its end", Steps{{"right", -50}}, "-50 -44")
            .row("no hysteresis", Steps{{"hyst", 0}, {"left", 119}, {"right", 0}, {"right", 116}}, "-1 116")
            .row("half degrees", Steps{{"left", 12.34}, {"right", 40.06}}, "12.3 40.1");
    }
    // By the boxes, by the handles, by the slots: each sensor alone.
    void bounds()
    {
        QFETCH(Steps, steps);
        QFETCH(QString, bounds);
        const QStringList words = bounds.split(' ');
        for (const QString road : {"box", "handle", "slot"}) {
            page().setDefaults();
            const int sensor = road == "box" ? 1 : 4;
            const auto* layout = page().findChild<QFormLayout*>(QString("formLayout_Temp_%1").arg(sensor));
            auto* slider = get<VLK_DblSlider2>(QString("slider_Temp_%1").arg(sensor));
            QVERIFY(layout->indexOf(slider) >= 0);
            for (const auto& [what, degrees] : steps)
                take(road, sensor, what, degrees);
            QCOMPARE(QString("%1 %2").arg(slider->value1()).arg(slider->value2()), bounds);
            QCOMPARE(QString("%1 %2").arg(box("Left", sensor)->value()).arg(box("Right", sensor)->value()),
                     bounds);
            QCOMPARE(
                QString("%1 %2").arg(box("Left", sensor)->maximum()).arg(box("Right", sensor)->minimum()),
                "115 -45");
            const QString element = QString("SENS%1/").arg(sensor);
            QCOMPARE(notSaved({{element + "min", QString::number(words[0].toDouble(), 'f', 1)},
                               {element + "max", QString::number(words[1].toDouble(), 'f', 1)},
                               {"SENS2/min", "-50.0"},
                               {"SENS2/max", "120.0"}}),
                     QStringList());
        }
    }

    void files_data()
    {
        DataTable<QString, QString, QString, QString, QString>({"before", "min", "max", "hyst", "bounds"})
            .row("as it stands", "5", "2.0", "8.0", "1", "2.0 8.0")
            .row("nearer than after a reset", "5", "2.0", "6.0", "1", "0.0 6.0")
            .row("near enough for the hysteresis before", "1", "2.0", "6.0", "1", "2.0 6.0")
            .row("too near", "5", "20", "25", "10", "14.0 25.0")
            .row("beyond the scale", "5", "-273.15", "1000", "5", "-50.0 120.0")
            .row("upside down", "5", "30", "-10", "5", "-16.0 -10.0")
            .row("more decimals", "5", "12.34", "50.06", "5", "12.3 50.1");
    }
    // The bounds keep the distance that the hysteresis before asks for, then that of the new one.
    void files()
    {
        QFETCH(QString, before);
        QFETCH(QString, min);
        QFETCH(QString, max);
        QFETCH(QString, hyst);
        load({{"SENS3/hyst", before}});
        load({{"SENS3/min", min}, {"SENS3/max", max}, {"SENS3/hyst", hyst}});
        QTEST(saved("SENS3/min") + ' ' + saved("SENS3/max"), "bounds");
        const Values values = save();
        page().setDefaults();
        load(values);
        if (before == "5")
            QCOMPARE(save(), values);
    }

private:
    void take(const QString& road, int sensor, const QString& what, double value)
    {
        const bool left = what == "left";
        auto* slider = get<VLK_DblSlider2>(QString("slider_Temp_%1").arg(sensor));
        if (what == "hyst")
            road == "slot"
                ? page().slot_valueChanged_SpinBox_Hyst(sensor, static_cast<int>(value))
                : get<QSpinBox>(QString("spinBox_Hyst_%1").arg(sensor))->setValue(static_cast<int>(value));
        else if (road == "slot")
            left ? page().slot_value1Changed_Left_Temp(sensor, value)
                 : page().slot_valueChanged_DSpinBox_Right_Temp(sensor, value);
        else if (road == "handle")
            left ? slider->setValue1(value) : slider->setValue2(value);
        else
            box(left ? "Left" : "Right", sensor)->setValue(value);
    }
    QDoubleSpinBox* box(const char* side, int sensor)
    {
        return get<QDoubleSpinBox>(QString("doubleSpinBox_%1_Temp_%2").arg(side).arg(sensor));
    }
};

QTEST_MAIN(TemperatureTest)
#include "tst_temperature.moc"
