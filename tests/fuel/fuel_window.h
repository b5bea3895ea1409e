#pragma once

// The calibration window over the telemetry view, as host and user see it.

#include "support/answers.h"
#include "telemetry/opened_view.h"
#include "typing/field_mark.h"

#include <QtTest>
#include <QtWidgets>

using vlk::Message;

inline const QString kUnsaved = QStringLiteral("wrd_005!<br>tmiw_130 tmiw_131<br>tmiw_132");

// The record of the live values, each sensor with a value of its own: D1 1001, D2 1002...
inline QByteArray liveRecord()
{
    QByteArray record(vlk::kAnalogRecordSize, '\x7f');
    const auto put = [&record](int at, quint16 value) { qToLittleEndian(value, record.data() + at); };
    put(19, 12340);
    for (int i = 0; i < 6; ++i)
        put(25 + 3 * i, static_cast<quint16>(1001 + i));
    return record;
}

// A test of it begins with startFuel(), each of its functions with openFuel() and ends with closeFuel().
class FuelWindow : protected OpenedView
{
protected:
    void startFuel()
    {
        start("<TRANS><OBJECT name=\"Truck: 7\"/></TRANS>");
        open();
        const vlk::Paths paths{folder.path(), {}, {}, {}};
        host.send(Message::SetPaths, &paths);
    }
    void openFuel()
    {
        press("pushButton_FuelSensor");
        fuel_.window = ScriptedHost::window("VLK_Form_TMI_Fuel_Sensors");
        QVERIFY(fuel_.window->isVisible());
        show("A3");
    }
    void closeFuel()
    {
        // Where rows are unsaved there is a question first.
        const QPointer<QTimer> answer = answerBox("wrd_001");
        fuel_.window->close();
        delete answer;
        QVERIFY(fuel_.window->isHidden());
        QDir(folder.filePath(".unsaved")).removeRecursively();
    }

    QWidget* form(const QString& sensor) { return fuel_.child<QWidget>(sensor); }
    QLineEdit* edit(const char* name) { return fuel_.child<QLineEdit>(name); }
    QLineEdit* field(const QString& sensor, const char* name)
    {
        return form(sensor)->findChild<QLineEdit*>(name);
    }
    void edit(const QString& sensor, const QString& volume)
    {
        field(sensor, "lineEdit_Volume")->setText(volume);
    }
    void show(const QString& sensor)
    {
        auto* groups = fuel_.child<QTabWidget>("tabWidget");
        const bool analogue = sensor.startsWith('A');
        groups->setCurrentIndex(analogue ? 0 : 1);
        auto* group = qobject_cast<QTabWidget*>(groups->currentWidget());
        group->setCurrentIndex(analogue ? 0 : sensor.midRef(1).toInt() - 1);
    }
    // Pours, waits until the live value stands, or not, and adds the point.
    void add(const QString& sensor, const QString& volume, quint16 millivolts, int readings = 2)
    {
        show(sensor);
        QByteArray record = liveRecord();
        qToLittleEndian(millivolts, record.data() + 19);
        for (int i = 0; i < readings; ++i)
            host.send(Message::AnalogRecord, record.constData());
        edit(sensor, volume);
        form(sensor)->findChild<QPushButton*>("pushButton_Add")->click();
    }
    // The marked tabs whose group is marked too.
    QString markedTabs()
    {
        QStringList names;
        auto* groups = fuel_.child<QTabWidget>("tabWidget");
        for (int i = 0; i < groups->count(); ++i) {
            auto* group = qobject_cast<QTabWidget*>(groups->widget(i));
            for (int at = 0; at < group->count(); ++at) {
                if (isMarked(*group, at) && isMarked(*groups, i))
                    names << group->widget(at)->objectName();
            }
        }
        return names.join(' ');
    }
    // The middle of the shape has its colour.
    static bool isMarked(const QTabWidget& tabs, int at)
    {
        const QImage icon = tabs.tabIcon(at).pixmap(tabs.iconSize()).toImage();
        return icon.width() == vlk::kMarkSize && tabs.iconSize() == icon.size() &&
               icon.pixelColor(icon.rect().center()).alpha() > 0 && !tabs.tabToolTip(at).isEmpty();
    }
    QWidget* bar() { return fuel_.child<QWidget>("noticeBar"); }
    QToolButton* noticePlace() { return fuel_.child<QToolButton>("label_NoticePlace"); }
    void pressInBar(const QString& caption)
    {
        for (auto* button : bar()->findChildren<QPushButton*>()) {
            if (!button->isHidden() && button->text() == caption)
                return button->click();
        }
        qFatal("no button %s", qPrintable(caption));
    }
    QTableWidget* table(const QString& sensor)
    {
        return form(sensor)->findChild<QTableWidget*>("tableWidget");
    }
    void mark(const QString& sensor, int row) { table(sensor)->item(row, 2)->setCheckState(Qt::Checked); }
    void editCell(const QString& sensor, const QString& number, int row = 0, int column = 0)
    {
        table(sensor)->editItem(table(sensor)->item(row, column));
        auto* editor = table(sensor)->viewport()->findChild<QLineEdit*>();
        editor->selectAll();
        QTest::keyClicks(editor, number);
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_VERIFY(!table(sensor)->viewport()->findChild<QLineEdit*>());
    }
    QString rows(const QString& sensor)
    {
        return rowsOf(form(sensor)->findChild<QTableWidget*>("tableWidget"));
    }
    void saveTo(const char* button, const QString& path, QString* proposed = nullptr)
    {
        answerFile(path, proposed);
        fuel_.press(button);
    }
    // With a box that comes after the file dialog.
    void load(const QString& path, const QString& box = {}, const QString& button = "wrd_003")
    {
        answerFile(path);
        if (!box.isEmpty())
            answerBox(button, box);
        fuel_.press("pushButton_Load");
    }

    WindowParts fuel_;
};
