// What is edited in one window of the configuration and taken on in the other one: what is kept of it,
// offered and brought back.

#include "host/unsaved_window.h"
#include "support/data_table.h"

class UnsavedAcrossTest : public QObject, private UnsavedWindow
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { start(); }
    void init() { begin(); }

    // The full window cannot say of what only the quick one has that it is there, whatever else it brings
    // back.
    void keptForQuickSetup_data()
    {
        DataTable<bool, QString>({"others", "offer"})
            .row("alone", false, "rev_770")
            .row("with others", true, "rev_345: 2");
    }
    void keptForQuickSetup()
    {
        QFETCH(bool, others);
        host_.attach(); // one that knows Bluetooth
        open("tracker", false);
        child<QCheckBox>("checkBox_BT_Use")->click();
        QCoreApplication::processEvents();
        if (others)
            edit(false);
        const int changes = child<QToolButton>("toolButton_Differences")->text().section('+', 0, 0).toInt();
        QCOMPARE(changes, others ? 3 : 1);
        const QString told = QString("^%1 changes are kept: ").arg(changes);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(told));
        window->close();
        for (int opening = 0; opening < 2; ++opening) {
            open("tracker");
            QTEST(offer(), "offer");
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^changes of [\\d:]+: "));
            window->close();
        }
        open("tracker");
        if (others) {
            press("label_Unsaved_Action2");
            QCOMPARE(offer(), QString("rev_770"));
            press("toolButton_Undo");
        }
        window->close();
        open("tracker", false);
        QCOMPARE(offer(), QString("rev_345: %1").arg(changes));
        press("label_Unsaved_Action2");
        QVERIFY(offer().isEmpty() && child<QCheckBox>("checkBox_BT_Use")->isChecked());
        window->close();
        open("tracker");
        press("label_Unsaved_Action1"); // discard, or show
        if (others)
            press("label_Unsaved_Action1");
        QCOMPARE(offer(), QString("rev_146"));
        window->close();
        QCOMPARE(files().size(), 0);
    }

    // The number that a sensor has in quick setup is another one's in full setup.
    void broughtBackOtherwise()
    {
        host_.attach();
        open("tracker", false);
        for (const char* box : {"checkBox_BT_Use", "checkBox_BT_1"})
            child<QCheckBox>(box)->click();
        type(child<QLineEdit>("lineEdit_BT_Mac_1"), "112233445566<Tab>");
        QCoreApplication::processEvents();
        window->close();
        open("tracker");
        QVERIFY(offer().startsWith("rev_345: "));
        press("label_Unsaved_Action2");
        QCOMPARE(offer(), QString("rev_772"));
        press("toolButton_Undo");
        QVERIFY(offer().startsWith("rev_345: "));
        press("toolButton_Redo");
        QCOMPARE(offer(), QString("rev_772"));
        press("label_Unsaved_Close");
        QVERIFY(offer().isEmpty());
    }

    // What quick setup has no place for comes back with the change to full setup, and stays kept until then.
    void keptThroughQuickSetup()
    {
        const auto state = [this] {
            QCoreApplication::processEvents();
            auto* page = child<QWidget>("page_Full");
            return QString("%1 %2 %3 %4")
                .arg(page->findChild<QSpinBox*>("GPRSSrv_spinBox_Port_Main")->value())
                .arg(child<QLineEdit>("lineEdit_Name_In2")->text())
                .arg(child<QComboBox>("comboBox_NormState_In2")->currentIndex())
                .arg(child<QCheckBox>("checkBox_ControlRestore_In1")->isChecked());
        };
        host_.attach();
        open("tracker");
        edit();
        type(child<QLineEdit>("lineEdit_Name_In2"), "<All>Cab<Tab>");
        // As quick setup has it of itself.
        QTest::keyClick(child<QCheckBox>("checkBox_ControlRestore_In1"), Qt::Key_Space);
        QTest::keyClick(child<QComboBox>("comboBox_NormState_In2"), Qt::Key_Home);
        QCOMPARE(state(), QString("5555 Cab 0 0"));
        window->close();
        open("tracker", false);
        QCOMPARE(offer(), QString("rev_345: 4"));
        press("label_Unsaved_Action2");
        press("pushButton_Light_ConfigFull");
        QCOMPARE(state(), QString("5555  0 0"));
        press("label_Unsaved_Action1");
        QCOMPARE(state(), QString("5555 Cab 0 0"));
        QCOMPARE(child<QToolButton>("toolButton_Differences")->text(), QString("5"));
        for (int step = 0; step < 3; ++step)
            press("toolButton_Undo");
        QCOMPARE(offer(), QString("rev_345: 4"));
        press("label_Unsaved_Action2");
        window->close();
        open("tracker");
        for (const QString& told : {"rev_345: 3", "rev_345: 2"}) {
            QCOMPARE(offer(), told);
            press("label_Unsaved_Action2");
        }
        QCOMPARE(offer(), QString());
        QCOMPARE(state(), QString("5555 Cab 0 0"));
        window->close();
        // Nor does it go where quick setup has the same value.
        begin();
        open("tracker");
        QTest::keyClick(child<QCheckBox>("checkBox_ControlRestore_In1"), Qt::Key_Space);
        window->close();
        open("tracker", false);
        QCOMPARE(offer(), QString());
        window->close();
        open("tracker");
        QCOMPARE(offer(), QString("rev_345: 1"));
    }

    // Nor is what quick setup made of a line an edit once it is brought back and the line is used again.
    void broughtBackAfterQuickSetup()
    {
        host_.attach();
        open("tracker");
        auto* use = child<QComboBox>("comboBox_NormState_In1");
        const int before = use->currentIndex();
        QTest::keyClick(use, Qt::Key_Home);
        toQuick();
        press("pushButton_Light_ConfigFull");
        press("label_Unsaved_Action1");
        use = child<QComboBox>("comboBox_NormState_In1");
        for (int line = 0; line < before; ++line)
            QTest::keyClick(use, Qt::Key_Down);
        QCOMPARE(use->currentIndex(), before);
        QCoreApplication::processEvents();
        edit();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^3 changes are kept: ")); // with the ignition
        window->close();
        open("tracker");
        QCOMPARE(offer(), QString("rev_345: 3"));
    }

    // A change of windows alone is no edit.
    void switchedWindows()
    {
        toQuick();
        window->close();
        QCOMPARE(files().size(), 0);
        open("file");
        const auto differences = [this] {
            return child<QToolButton>("toolButton_Differences")->text().toInt();
        };
        const int count = differences(); // this tracker knows no Bluetooth
        for (const bool isBackInFull : {true, false}) {
            edit();
            toQuick();
            if (isBackInFull)
                press("pushButton_Light_ConfigFull");
            window->close();
            open("file");
            QCOMPARE(offer(), QString("rev_345: 2"));
            press("label_Unsaved_Action2");
            // With nothing that the other window makes of what nobody edited.
            QCOMPARE(differences(), count + 2);
            press("toolButton_Undo");
        }
    }

    // Nor is that what quick setup has made of sensors and lines, given back in full setup, or made again;
    // but a file that holds it lacks what is given back.
    void quickSetupTakenBack()
    {
        const QStringList back{"label_Unsaved_Action1"};
        const QString path = folder_.filePath("quick.xml");
        for (const auto& [steps, edits, isKept] : {std::tuple(back, 0, false),
                                                   {back + QStringList("toolButton_Undo"), 0, false},
                                                   {QStringList("pushButton_SaveToFile") + back, 0, true},
                                                   {back, 2, true}}) {
            for (const QString& file : files())
                QFile::remove(file);
            open("tracker", false);
            press("pushButton_Light_ConfigFull");
            for (const QString& step : steps) {
                if (step == "pushButton_SaveToFile")
                    ScriptedHost::whenModal([&](QWidget* dialog) {
                        dialog->findChild<QLineEdit*>("fileNameEdit")->setText(path);
                        qobject_cast<QDialog*>(dialog)->accept();
                    });
                press(step.toLatin1().constData());
            }
            if (edits > 0)
                edit();
            if (isKept)
                QTest::ignoreMessage(QtWarningMsg,
                                     QRegularExpression(edits > 0 ? "^2 changes are kept: " : " are kept: "));
            window->close();
            QCOMPARE(files().size(), isKept ? 1 : 0);
        }
    }
};

QTEST_MAIN(UnsavedAcrossTest)
#include "tst_unsaved_across.moc"
