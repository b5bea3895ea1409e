// Finding a setting by words, in the full and in the quick window.

#include "pages/opened_configuration.h"
#include "support/data_table.h"

#include <QtTest>
#include <QtWidgets>

class FindingTest : public QObject, private OpenedConfiguration
{
    Q_OBJECT

private Q_SLOTS:
    void init() { start(); }
    void cleanup() { end(); }

    // The list of what has changed goes when the focus does.
    void changedOnly()
    {
        auto* port = child<QSpinBox>("GPRSSrv_spinBox_Port_Main");
        type(port, "5555");
        child<QCheckBox>("checkBox_ChangedOnly")->click();
        auto* list = child<QListWidget>("listWidget_Found");
        QVERIFY(list->isVisible());
        QCOMPARE(list->count(), 1);
        port->setFocus();
        QVERIFY(!list->isVisible());
        auto* find = child<QLineEdit>("lineEdit_Find");
        find->setText("port");
        open(VLK_SOURCE "/fuzz/corpus/settings/factory.xml");
        QVERIFY(find->text().isEmpty() && !child<QCheckBox>("checkBox_ChangedOnly")->isChecked());
    }

    // Without texts a caption is its key; the host gives it words of the other language.
    void findsASetting()
    {
        device_.texts = [](const QString& language, const QString& key) {
            return key == "cfgt3_005" ? "Speed in " + language : key;
        };
        QTest::keyClick(dialog_.get(), Qt::Key_F, Qt::ControlModifier);
        auto* find = child<QLineEdit>("lineEdit_Find");
        QVERIFY(find->hasFocus());
        auto* list = child<QListWidget>("listWidget_Found");
        QTest::keyClicks(find, "speed in");
        QVERIFY(list->count() >= 1 && list->item(0)->text().contains("cfgt3_005"));
        find->clear();
        QTest::keyClicks(find, "TRACK/POINTS/maxSpeed");
        QVERIFY(list->isVisible() && list->count() >= 1);
        QTest::keyClick(find, Qt::Key_Return);
        QVERIFY(!list->isVisible());
        QTRY_VERIFY(QApplication::focusWidget() &&
                    QApplication::focusWidget()->objectName().contains("Speed"));
        QTest::keyClick(dialog_.get(), Qt::Key_F, Qt::ControlModifier);
        QTest::keyClick(find, Qt::Key_Escape);
        QCOMPARE(find->text(), QString());
        // The list does not stay over the page, wherever the mouse was left.
        QTest::keyClicks(find, "speed");
        QVERIFY(list->isVisible());
        QTest::mouseMove(list->viewport());
        QTRY_VERIFY(list->underMouse());
        QTest::keyClick(find, Qt::Key_Tab);
        QVERIFY(!find->hasFocus() && !list->isVisible());
    }

    // The keys of the window work in the field, too.
    void windowsKeysWhileFinding()
    {
        QTest::keyClick(dialog_.get(), Qt::Key_F, Qt::ControlModifier);
        auto* find = child<QLineEdit>("lineEdit_Find");
        QTest::keyClicks(find, "port");
        QTest::keyClick(find, Qt::Key_D, Qt::ControlModifier);
        QVERIFY(child<QWidget>("widget_Differences")->isVisible());
        QTest::keyClick(find, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(find->text(), QString());
    }

    // What is out of sight is led to as far as there is something to show, and told.
    void findsWhatIsNotOnShow_data()
    {
        DataTable<QString, bool, QString, QString>({"path", "isHidden", "focus", "tip"})
            .row("of a device that is not chosen", "RS485/TPMS/holdTime", true, "comboBox_RS485_Owner_1",
                 "rev_258")
            .row("of a use that a line has not", "SENSORS/IN3/IN3FRQ/filterLen", true,
                 "comboBox_NormState_In3", "rev_258")
            .row("of a type of Bluetooth sensor", "BLUETOOTH/HS1/type", true, "comboBox_Type_Sens_1",
                 "rev_258")
            .row("another server", "TRANS/SRV2/use", false, "GPRSSrv_groupBox_Reserv_1", "")
            .row("in a list behind a button", "TRANS/ROAMSIM1/opCode1", false, "treeWidget_List", "")
            .row("of a server that is not in use", "TRANS/SRV3/port", false, "", "cfgt6_452")
            .row("one that a choice disables", "TRANS/AP1/login", false, "", "cfgt6_452");
    }
    void findsWhatIsNotOnShow()
    {
        QFETCH(QString, path);
        QFETCH(bool, isHidden);
        QFETCH(QString, focus);
        QFETCH(QString, tip);
        QToolTip::hideText();
        QTest::keyClick(dialog_.get(), Qt::Key_F, Qt::ControlModifier);
        auto* find = child<QLineEdit>("lineEdit_Find");
        auto* list = child<QListWidget>("listWidget_Found");
        QTest::keyClicks(find, path);
        QVERIFY(list->count() >= 1);
        QCOMPARE(list->item(0)->text().endsWith(')'), isHidden);
        QTest::keyClick(find, Qt::Key_Return);
        QTRY_VERIFY(dialog_->findChild<QWidget*>("frame_Found"));
        QCOMPARE(QToolTip::text(), tip);
        QVERIFY(!find->hasFocus());
        if (!focus.isEmpty())
            QTRY_COMPARE(QApplication::focusWidget()->objectName(), focus);
    }

    // The page has room for six sensors, the tracker for sixteen.
    void shownNowhere()
    {
        auto* device = child<QComboBox>("comboBox_RS485_Owner_1");
        device->setCurrentIndex(device->findData("FLDS"));
        QTest::keyClick(dialog_.get(), Qt::Key_F, Qt::ControlModifier);
        for (const auto& [sensor, isFound] :
             {std::pair("RS485/FS6/address", true), {"RS485/FS7/address", false}}) {
            auto* find = child<QLineEdit>("lineEdit_Find");
            find->selectAll();
            QTest::keyClicks(find, sensor);
            const auto* list = child<QListWidget>("listWidget_Found");
            QCOMPARE(list->item(0)->text() != "rev_127", isFound);
        }
    }

    // The cell of a list of operators, so that typing over it changes what was looked for.
    void findsACell_data()
    {
        DataTable<QString, bool, QString, int, int>({"path", "isQuick", "tree", "line", "column"})
            .row("an operator in roaming", "TRANS/ROAMSIM1/opCode7", false, "treeWidget_List", 6, 1)
            .row("a line below those in sight", "TRANS/AUTOAPN/name10", false, "treeWidget_ListApn", 9, 2)
            .row("a login", "TRANS/AUTOAPN/login3", false, "treeWidget_ListApn", 2, 3)
            .row("in quick setup", "TRANS/AUTOAPN/name2", true, "treeWidget_ListApn", 1, 2);
    }
    void findsACell()
    {
        QFETCH(QString, path);
        QFETCH(bool, isQuick);
        QFETCH(QString, tree);
        QFETCH(int, line);
        QFETCH(int, column);
        open(VLK_SOURCE "/fuzz/corpus/settings/factory.xml", isQuick ? 0 : 1);
        auto* window = child<QWidget>(isQuick ? "page_Light" : "page_Full");
        auto* operators = window->findChild<QComboBox*>("Transfer_comboBox_GSM_Operator_1");
        operators->setFocus();
        QTest::keyClick(operators, Qt::Key_End);
        QTest::keyClick(operators, Qt::Key_Up); // the automatic one
        QTest::keyClick(dialog_.get(), Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(child<QLineEdit>("lineEdit_Find"), path);
        QTest::keyClick(child<QLineEdit>("lineEdit_Find"), Qt::Key_Return);
        const auto* found = window->findChild<QTreeWidget*>(tree);
        QTRY_VERIFY(found->findChild<QWidget*>("frame_Found"));
        QCOMPARE(found->currentIndex().row(), line);
        QCOMPARE(found->currentIndex().column(), column);
        const QRect cell = found->visualRect(found->currentIndex());
        QVERIFY(found->viewport()->rect().contains(cell));
        QVERIFY(found->findChild<QWidget*>("frame_Found")->geometry().contains(cell));
    }

    // Quick setup has fewer, and sets some without showing them.
    void findsInQuickSetup()
    {
        open(VLK_SOURCE "/fuzz/corpus/settings/factory.xml", 0);
        for (const char* path : {"TRACK/COORDFLT/maxHDOP", "RS485/OPTIONS/boudrate"}) {
            QToolTip::hideText();
            QTest::keyClick(dialog_.get(), Qt::Key_F, Qt::ControlModifier);
            auto* find = child<QLineEdit>("lineEdit_Find");
            QTest::keyClicks(find, path);
            QVERIFY2(child<QListWidget>("listWidget_Found")->item(0)->text().endsWith("(rev_259)"), path);
            QTest::keyClick(find, Qt::Key_Return);
            QTRY_COMPARE(QToolTip::text(), QString("rev_259"));
        }
        // A setting of an input line leads to its use as a whole.
        for (const char* path : {"SENSORS/IN1/normState", "SENSORS/IN1/ign", "SENSORS/IN2/ign"}) {
            QTest::keyClick(dialog_.get(), Qt::Key_F, Qt::ControlModifier);
            auto* find = child<QLineEdit>("lineEdit_Find");
            QTest::keyClicks(find, path);
            const QString found = child<QListWidget>("listWidget_Found")->item(0)->text();
            QVERIFY2(!found.contains("rev_259"), qPrintable(found));
            QTest::keyClick(find, Qt::Key_Return);
            QCOMPARE(QApplication::focusWidget()->objectName(),
                     QString("comboBox_NormState_In_%1").arg(path[10]));
        }
        // A box in a part of the form that is hidden leads to what shows that part.
        QTest::keyClick(dialog_.get(), Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(child<QLineEdit>("lineEdit_Find"), "BLUETOOTH/sensor3");
        QVERIFY(child<QListWidget>("listWidget_Found")->item(0)->text().endsWith("(cfgwl_030: wrd_001)"));
        QTest::keyClick(child<QLineEdit>("lineEdit_Find"), Qt::Key_Return);
        QCOMPARE(QApplication::focusWidget()->objectName(), QString("checkBox_BT_Use"));
        // What can be reached comes first.
        QTest::keyClick(dialog_.get(), Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(child<QLineEdit>("lineEdit_Find"), "TRANS");
        const auto* list = child<QListWidget>("listWidget_Found");
        int reached = 0;
        while (reached < list->count() && !list->item(reached)->text().endsWith(')'))
            ++reached;
        QVERIFY(reached > 0 && reached < list->count());
        for (int line = reached; line < list->count(); ++line)
            QVERIFY2(list->item(line)->text().endsWith(')'), qPrintable(list->item(line)->text()));
    }

    // By the words that stand at it, whatever full setup calls it.
    void findsAllOfQuickSetup()
    {
        open(VLK_SOURCE "/fuzz/corpus/settings/factory.xml", 0);
        auto* window = child<QWidget>("page_Light");
        for (const char* use :
             {"checkBox_Fuel_RS485_Use", "checkBox_BT_Use", "checkBox_BT_1", "checkBox_BT_2"})
            window->findChild<QCheckBox*>(use)->setChecked(true);
        window->findChild<QRadioButton*>("radioButton_Track_User")->click();
        auto* operators = window->findChild<QComboBox*>("Transfer_comboBox_GSM_Operator_1");
        type(operators, {});
        QTest::keyClick(operators, Qt::Key_End);
        auto* find = child<QLineEdit>("lineEdit_Find");
        auto* list = child<QListWidget>("listWidget_Found");
        vlk::PageSettings& quick = *history().pages().back();
        int found = 0;
        for (int row = 0; row < quick.values().count(); ++row) {
            QWidgetList widgets;
            for (const vlk::Binder::Place& place : quick.binder().placesOf(row))
                widgets << place.widget;
            for (QWidget* widget : widgets) {
                if (!widget->isEnabled() || widget->window() != dialog_.get())
                    continue;
                auto* button = qobject_cast<QAbstractButton*>(widget);
                const QLabel* label = captionOf(widget);
                QString words = button ? button->text() : label ? label->text() : widget->accessibleName();
                words.remove('&').replace(',', ' ');
                QWidget* reached = nullptr;
                const auto look = [&] {
                    find->setFocus();
                    find->clear();
                    QTest::keyClicks(find, words);
                };
                look();
                for (int line = 0; line < list->count() && !widgets.contains(reached); ++line) {
                    look();
                    if (list->item(line)->text().endsWith("(rev_259)"))
                        break;
                    list->setCurrentRow(line);
                    QTest::keyClick(find, Qt::Key_Return);
                    reached = QApplication::focusWidget();
                }
                QVERIFY2(widgets.contains(reached), qPrintable(widget->objectName() + ": " + words));
                ++found;
            }
        }
        QVERIFY2(found > 40, qPrintable(QString::number(found)));
    }
};

QTEST_MAIN(FindingTest)
#include "tst_finding.moc"
