#pragma once

// The workbench as it is with the plug-in as it is, over a tracker with faults, and a person who answers what
// is asked.

#include "opened_workbench.h"
#include "tracker/configuration_values.h"

#include <QtTest>
#include <QtWidgets>

// Write: what goes wrong is there before the button is pressed; Send: from the review on; Back: when the
// tracker has the file. Last come the closings with work undone: of the main window during a save, during a
// write and over a calibration table, and of the windows with a save, a table and edits themselves.
enum Step {
    Read,
    Write,
    Send,
    Back,
    Live,
    Period,
    Search,
    Clear,
    Mileage,
    Output,
    Tacho,
    TachoFile,
    CloseOverSave,
    CloseOverWrite,
    CloseOverTable,
    CloseSave,
    CloseTable,
    CloseEdits,
    CloseTacho
};

// A text that is given more values than it has places for, or fewer, fails the test.
inline void failOnUnfilledTexts()
{
    static QtMessageHandler usual = nullptr;
    usual =
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& context, const QString& message) {
            if (message.startsWith(QLatin1String("QString::arg")))
                QTest::qFail(qPrintable(message), __FILE__, __LINE__);
            usual(type, context, message);
        });
}

struct Bench : OpenedWorkbench
{
    Bench()
    {
        // Boxes are read and closed; who asks for a file name gets one.
        QObject::connect(&person, &QTimer::timeout, &window, [this] {
            QWidget* modal = QApplication::activeModalWidget();
            if (modal && unplugsOver && modal->inherits(unplugsOver)) {
                unplugsOver = nullptr;
                return tracker().detach();
            }
            if (auto* box = qobject_cast<QMessageBox*>(modal)) {
                boxes.append(box->text());
                over = box->parentWidget();
                QAbstractButton* verb = box->buttons().constFirst();
                for (QAbstractButton* button : box->buttons())
                    verb = box->buttonRole(button) == QMessageBox::AcceptRole ? button : verb;
                agrees ? verb->click() : box->reject();
            } else if (auto* input = qobject_cast<QInputDialog*>(modal)) {
                input->setDoubleValue(5000.5);
                input->accept();
            } else if (modal && modal->objectName() == QLatin1String("dialog_Review")) {
                auto* write = modal->findChild<QAbstractButton*>(QStringLiteral("pushButton_Write"));
                const auto* origin = modal->findChild<QLabel*>(QStringLiteral("label_Origin"));
                if (!write->isEnabled())
                    return;
                origins.append(origin ? origin->text() : QString());
                agrees ? write->click() : void(modal->close());
            } else if (auto* dialog = qobject_cast<QFileDialog*>(modal)) {
                dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(file());
                QMetaObject::invokeMethod(dialog, "accept");
            }
        });
        person.start(5);
        start(VLK_PLUGIN);
    }
    ~Bench() { window.close(); }

    QString file() const { return root.filePath(QStringLiteral("period.xml")); }
    QString status() { return text("label_Status"); }
    QString bar() { return window.findChild<QLabel*>(QStringLiteral("label_Notice"))->text(); }
    QString everything() { return (QStringList{status(), bar()} + boxes).join(QLatin1Char('\n')); }
    tracker::SimulatedTracker& tracker() { return window.session().tracker(); }

    static inline const QString kNewName = QStringLiteral("KAMAZ 5490");
    QString nameInTracker() { return tracker().configuration().text(QStringLiteral("TRANS/OBJECT/name")); }

    static QWidget* pluginWindow(const char* name)
    {
        for (QWidget* candidate : QApplication::topLevelWidgets()) {
            if (candidate->isVisible() && qstrcmp(candidate->metaObject()->className(), name) == 0)
                return candidate;
        }
        return nullptr;
    }
    static QWidget* configuration() { return pluginWindow("VLK_Widget_Config"); }
    static QWidget* telemetry() { return pluginWindow("VLK_Widget_Tmi_View"); }
    static QWidget* tachograph() { return pluginWindow("VLK_Form_TMI_Taho"); }
    static QWidget* calibration() { return pluginWindow("VLK_Form_TMI_Fuel_Sensors"); }

    static void press(QWidget* in, const char* button)
    {
        auto* found = in ? in->findChild<QAbstractButton*>(QLatin1String(button)) : nullptr;
        if (!found)
            qFatal("no button %s", button);
        found->click();
    }

    // What stands on the window that is looked at, in the room that the bar of the window gives it: over
    // nothing else.
    static QString notice()
    {
        QWidget* window = configuration() ? configuration() : tachograph() ? tachograph() : telemetry();
        const auto* bar =
            window->findChild<QFrame*>(QStringLiteral("frame_WindowNotice"), Qt::FindDirectChildrenOnly);
        if (!bar || !bar->isVisible())
            return {};
        const QFrame* own = nullptr;
        for (const auto* candidate : window->findChildren<QFrame*>(QStringLiteral("noticeBar")))
            own = candidate->window() == window ? candidate : own;
        // A low window keeps an edge for it.
        const int height = own->height() > 0 ? own->height() : bar->height();
        const QRect room(own->mapToGlobal(QPoint()), QSize(own->width(), height));
        return room.contains(bar->geometry())
                   ? bar->findChild<QLabel*>(QStringLiteral("label_WindowNotice"))->text()
                   : QStringLiteral("out of place");
    }

    static bool isWrite(Step step)
    {
        return step == Write || step == Send || step == Back || step == CloseOverWrite || step == CloseEdits;
    }
    // In this one, or over what is left of it.
    static bool isOfConfiguration(Step step) { return step < Live || step == Search || isWrite(step); }

    // What comes before the step, with a sound tracker.
    void prepare(Step step)
    {
        if (isWrite(step) || step == Search)
            action("action_Read")->trigger();
        if (isWrite(step))
            configuration()->findChild<QLineEdit*>(QStringLiteral("lineEdit_Name"))->setText(kNewName);
        if (isOfConfiguration(step))
            return;
        action("action_Telemetry")->trigger();
        auto* number = telemetry()->findChild<QLabel*>(QStringLiteral("label_Event_NumPage_Value"));
        QTRY_VERIFY(!number->text().isEmpty() && number->isVisible());
        if (step == CloseOverSave || step == CloseSave)
            collect();
        else if (step == CloseOverTable || step == CloseTable)
            addPoint();
        else if (step == Tacho || step == TachoFile || step == CloseTacho)
            press(telemetry(), "pushButton_Taho");
    }

    void take(Step step)
    {
        switch (step) {
        case Read:
            return action("action_Read")->trigger();
        case Write:
        case Send:
        case Back:
            return press(configuration(), "pushButton_LoadToDevice");
        case Live:
            return press(telemetry(), "pushButton_Get_Current");
        case Period:
            return press(telemetry(), "pushButton_SaveToFile");
        case Search:
            return press(configuration(), "pushButton_Bt_Find");
        case Clear:
            for (const char* server : {"checkBox_Server1", "checkBox_Server3"})
                telemetry()->findChild<QCheckBox*>(QLatin1String(server))->setChecked(true);
            return press(telemetry(), "pushButton_Clear");
        case Mileage:
            return press(telemetry(), "pushButton_Run");
        case Output:
            return press(telemetry(), "pushButton_Out_On");
        case Tacho:
            return press(tachograph(), "pushButton_Quest");
        case TachoFile:
            return press(tachograph(), "pushButton_Create");
        case CloseTacho:
            take(TachoFile);
            return void(tachograph()->close());
        case CloseOverWrite:
            take(Write);
            configuration()->close();
            QTRY_VERIFY(window.session().road().isBusy());
            [[fallthrough]];
        case CloseOverSave:
        case CloseOverTable:
            QVERIFY(!window.close() && window.isVisible());
            return;
        case CloseSave:
            return void(telemetry()->close());
        case CloseTable:
            QVERIFY(!calibration()->close());
            return;
        case CloseEdits:
            configuration()->close();
        }
    }

    // A period of which some records have come and the others are slow.
    void beginSave()
    {
        prepare(Period);
        collect();
    }
    void collect()
    {
        tracker().setFaults({.delayMs = 20});
        take(Period);
        const auto* bar = telemetry()->findChild<QProgressBar*>(QStringLiteral("progressBar_Time"));
        QTRY_VERIFY(bar->value() > 2);
    }
    // To a table that is in no file.
    void addPoint()
    {
        press(telemetry(), "pushButton_FuelSensor");
        QVERIFY(calibration());
        const auto* sensor = calibration()->findChild<QWidget*>(QStringLiteral("A3"));
        QTRY_VERIFY(!sensor->findChild<QLineEdit*>(QStringLiteral("lineEdit_Param"))->text().isEmpty());
        auto* volume = sensor->findChild<QLineEdit*>(QStringLiteral("lineEdit_Volume"));
        QTest::keyClicks(volume, "10");
        QTest::keyClick(volume, Qt::Key_Return);
    }
    // By the offer of the notice, which comes with silence.
    void endSave()
    {
        tracker().setFaults({.silence = true});
        QTRY_VERIFY_WITH_TIMEOUT(notice().contains(QLatin1String("the save goes on by itself")), 10'000);
        // By keys: the notice itself takes no focus.
        QApplication::setActiveWindow(telemetry());
        QTest::keyClick(telemetry(), Qt::Key_F6);
        QTRY_VERIFY(QApplication::activePopupWidget());
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
        QCOMPARE(notice().contains(QLatin1String("since")), false);
    }

    // Lines of the log with this in them.
    int logged(const QString& text)
    {
        const auto* log = window.findChild<QTableView*>(QStringLiteral("tableView_Log"))->model();
        return log
            ->match(log->index(0, workbench::MessageLogModel::Parameters), Qt::DisplayRole, text, -1,
                    Qt::MatchContains)
            .size();
    }

    QTimer person;
    QStringList boxes;
    QStringList origins;               // of what was reviewed
    QPointer<QWidget> over;            // which window the last box came up
    bool agrees = true;                // to what is asked
    const char* unplugsOver = nullptr; // when a window of that class is open
};
