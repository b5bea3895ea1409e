// Marks at settings and tabs, and the menu of a setting.

#include "pages/opened_configuration.h"
#include "review/mask_field.h"
#include "typing/field_mark.h"

#include <QtTest>
#include <QtWidgets>

class MarksTest : public QObject, private OpenedConfiguration
{
    Q_OBJECT

private Q_SLOTS:
    void init() { start(); }
    void cleanup() { end(); }

    // At what differs, and gone with the difference; the tab tells how many there are.
    void marksAndTheirMenu()
    {
        const QByteArray before = saved();
        auto* port = child<QSpinBox>("GPRSSrv_spinBox_Port_Main");
        auto* tabs = child<QTabWidget>("tabWidget");
        QCOMPARE(tabs->tabToolTip(0), QString());
        type(port, "5555");
        auto* mark = child<QWidget>("mark_GPRSSrv_spinBox_Port_Main");
        QVERIFY(mark->isVisible() && port->toolTip().contains("rev_160"));
        QCOMPARE(port->accessibleDescription(), mark->toolTip());
        QCOMPARE(tabs->tabToolTip(0), QString("rev_161: 1"));
        port->setToolTip("its own");
        QVERIFY(port->toolTip().startsWith("rev_160") && port->toolTip().endsWith("its own"));
        auto* address = child<QLineEdit>("GPRSSrv_lineEdit_IP_DNS_Main");
        type(address, "gps.example.com");
        // The menu of a line and of a number box is kept.
        QVERIFY(choose(address, "action_BringBack") > 5);
        QVERIFY(history().undoText().startsWith("rev_166: "));
        QVERIFY(choose(port, "action_CopyKey") > 5);
        QCOMPARE(QApplication::clipboard()->text(), QString("TRANS/SRV1/port"));
        QVERIFY(choose(mark, "action_CopyKey") > 5);
        auto* caption = captionOf(port);
        QCOMPARE(choose(caption, "action_BringBack"), 3);
        QCOMPARE(saved(), before);
        QVERIFY(!mark->isVisible() && port->toolTip() == "its own");
        QCOMPARE(tabs->tabToolTip(0), QString());
        history().undo();
        QVERIFY(mark->isVisible());
        QVERIFY(choose(port, "action_Default") > 5);
        QCOMPARE(saved(), before);
        QVERIFY(history().undoText().startsWith("rev_167: "));
    }

    // What an operator fills stands in closed fields.
    void operatorIsMarked()
    {
        child<QTabWidget>("tabWidget")->setCurrentIndex(0);
        auto* list = child<QComboBox>("Transfer_comboBox_GSM_Operator_1");
        const QString before = list->currentText();
        QVERIFY(list->currentIndex() == 0 && list->toolTip().isEmpty());
        QTest::keyClick(list, Qt::Key_PageDown);
        QCoreApplication::processEvents();
        QVERIFY(!child<QWidget>("Transfer_lineEdit_GSM_APN_1")->toolTip().isEmpty());
        QCOMPARE(list->toolTip(), "rev_160: " + before);
        list->setCurrentIndex(0);
        QCoreApplication::processEvents();
        QCOMPARE(list->toolTip(), QString());
    }

    // What another device on the line brings along counts and is marked as one change, behind which the rest
    // opens. Quick setup marks what only its window has, too.
    void whatComesAlong()
    {
        open({});
        child<QComboBox>("comboBox_RS485_Owner_1")->setCurrentIndex(1);
        QCoreApplication::processEvents();
        child<QTabWidget>("tabWidget")->setCurrentIndex(4);
        QCOMPARE(child<QToolButton>("toolButton_Differences")->text(), QString("1"));
        QVERIFY(!dialog_->findChild<QWidget*>("mark_spinBox_Addres_1"));
        child<QToolButton>("toolButton_Differences")->click();
        auto* table = child<QTableView>("tableView_Differences");
        QCOMPARE(table->model()->rowCount(), 2);
        table->setCurrentIndex(table->model()->index(1, 0));
        QTest::keyClick(table, Qt::Key_Return);
        QVERIFY(table->model()->rowCount() > 20);
        child<QPushButton>("pushButton_TakeOver")->click();
        QCOMPARE(table->model()->rowCount(), 0);

        open(VLK_SOURCE "/fuzz/corpus/settings/factory.xml", 0);
        const auto count = [this] { return child<QToolButton>("toolButton_Differences")->text(); };
        QVERIFY(count().startsWith("0+"));
        for (const char* name : {"comboBox_NormState_In_1", "checkBox_Fuel_RS485_Use"}) {
            auto* widget = child<QWidget>(name);
            const QByteArray before = dialog_->review().document();
            QTest::keyClick(widget, qobject_cast<QCheckBox*>(widget) ? Qt::Key_Space : Qt::Key_Down);
            QCoreApplication::processEvents();
            QVERIFY2(widget->toolTip().startsWith("rev_160") && !count().startsWith("0+"), name);
            QCOMPARE(choose(widget, "action_BringBack"), 3);
            QVERIFY(widget->toolTip().isEmpty() && dialog_->review().document() == before);
        }
    }

    // What a write left out of the file reads as in use, but the window still shows what was chosen.
    void nothingIsMarkedBehindAWrite()
    {
        open({}, 0);
        const auto toggle = [this](const char* name) {
            QTest::keyClick(child<QWidget>(name), Qt::Key_Space);
            QCoreApplication::processEvents();
            return child<QWidget>(name)->toolTip();
        };
        for (const char* name :
             {"checkBox_Fuel_RS485_Use", "checkBox_Fuel_RS485_Use_1", "checkBox_BT_Use", "checkBox_BT_1"})
            QVERIFY2(toggle(name).startsWith("rev_160"), name);
        // Its file comes into the present folder.
        const QString here = QDir::currentPath();
        QDir::setCurrent(folder_.path());
        dialog_->writeQuickToDevice();
        QDir::setCurrent(here);
        QCoreApplication::processEvents();
        QVERIFY(dialog_->review().isWritten());
        for (const char* name :
             {"checkBox_Fuel_RS485_Use_1", "checkBox_Fuel_RS485_Use_2", "checkBox_BT_1", "checkBox_BT_2"})
            QCOMPARE(child<QWidget>(name)->toolTip(), QString());
        QCOMPARE(child<QToolButton>("toolButton_Differences")->text(), QString("0"));
        QVERIFY(toggle("checkBox_Fuel_RS485_Use_2").startsWith("rev_160"));
        QVERIFY(toggle("checkBox_Fuel_RS485_Use_2").isEmpty());
        // Full setup fills in what quick setup has left out: nobody has edited it.
        dialog_->switchToFull();
        for (const bool isEdited : {false, true}) {
            QVERIFY(child<QToolButton>("toolButton_Differences")->text().startsWith(isEdited ? "1+" : "0+"));
            QVERIFY(child<QToolButton>("toolButton_Differences")->toolTip().endsWith("rev_432"));
            QVERIFY(!child<QTabWidget>("tabWidget")->tabToolTip(9).contains("rev_161"));
            type(child<QLineEdit>("lineEdit_Name"), "KAMAZ");
        }
        QTest::keyClick(dialog_.get(), Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(child<QLabel>("label_UneditedSummary")->text(), QString("rev_431"));
        QCOMPARE(child<QTableView>("tableView_Differences")->model()->index(0, 1).data().toString(),
                 QString("▸ rev_430"));
    }

    // A bound that a typed one pushes away comes back with it, though not when that is typed back.
    void pushedBound()
    {
        child<QTabWidget>("tabWidget")->setCurrentIndex(5);
        auto* least = child<QDoubleSpinBox>("doubleSpinBox_Left_Temp_1");
        auto* most = child<QDoubleSpinBox>("doubleSpinBox_Right_Temp_1");
        const QByteArray before = saved();
        for (const char* last : {"-30", "8"}) {
            type(most, "-30");
            // The eyes are elsewhere: for a moment it is outlined, and told in a tip.
            const auto outlines = least->parentWidget()->findChildren<QFrame*>("frame_Found");
            QVERIFY(std::ranges::any_of(outlines, [&](const QFrame* outline) {
                return outline->geometry().center() == least->geometry().center();
            }));
            QCOMPARE(QToolTip::text(), least->toolTip());
            type(most, last);
            QCOMPARE(least->value(), -36.0);
            QCOMPARE(child<QWidget>("mark_doubleSpinBox_Left_Temp_1")->toolTip().section('\n', 1),
                     QString("rev_272: cfgt7_003") + (last == QString("-30") ? " -30.0 abbr_017" : ""));
            child<QToolButton>("toolButton_Undo")->click();
            QCOMPARE(saved(), before);
        }
    }

    // Left of the caption, also where the field stands in a frame of its own.
    void besideTheCaption()
    {
        child<QTabWidget>("tabWidget")->setCurrentIndex(6);
        auto* field = child<QSpinBox>("spinBox_Response_In3");
        type(field, "7");
        const auto leftEnd = [this](const QWidget* widget) {
            return widget->mapTo(dialog_.get(), QPoint()).x();
        };
        const auto* mark = child<QWidget>("mark_spinBox_Response_In3");
        QVERIFY(mark->isVisible() &&
                leftEnd(mark) + mark->width() <= leftEnd(child<QLabel>("label_Title_Response_In3")));
    }

    // A code that two lines of a list have is told at both, and only the one that was typed is a changed one.
    void cellsOfAList()
    {
        open({});
        dialog_->review().mend({{"TRANS/AP1/name", ""}, {"TRANS/AP1/login", ""}, {"TRANS/AP1/pass", ""}},
                               [] { return QString(); });
        child<QTabWidget>("tabWidget")->setCurrentIndex(0);
        child<QPushButton>("pushButton_AutoAPN_1")->click();
        auto* tree = dialog_->findChild<QTreeWidget*>("treeWidget_ListApn");
        const auto told = [tree](int line) { return tree->topLevelItem(line)->toolTip(1); };
        const auto shows = [&](vlk::Mark mark, int line) {
            const QPoint corner = tree->visualRect(tree->model()->index(line, 1)).topLeft();
            const QImage drawn = tree->findChild<QWidget*>("marks_treeWidget_ListApn")
                                     ->grab({corner, QSize(vlk::kMarkSize, vlk::kMarkSize)})
                                     .toImage();
            for (int x = 0; x < drawn.width(); ++x) {
                for (int y = 0; y < drawn.height(); ++y) {
                    if (drawn.pixelColor(x, y) == vlk::markColor(mark, tree->palette()))
                        return true;
                }
            }
            return false;
        };
        QCOMPARE(told(0) + told(2), QString());
        tree->topLevelItem(2)->setText(1, tree->topLevelItem(0)->text(1));
        QCoreApplication::processEvents();
        QCOMPARE(told(0), QString("adv_191"));
        QVERIFY(told(2).startsWith("rev_160") && told(2).endsWith("adv_191"));
        QVERIFY(shows(vlk::Mark::Advice, 0) && shows(vlk::Mark::Advice, 2) && !shows(vlk::Mark::Changed, 0));
        tree->topLevelItem(2)->setText(1, "12a");
        QCoreApplication::processEvents();
        QVERIFY(told(0).isEmpty() && told(2).endsWith("adv_190"));
        tree->topLevelItem(2)->setText(1, "25088");
        QCoreApplication::processEvents();
        QVERIFY(shows(vlk::Mark::Changed, 2));
        tree->window()->close();
    }

    // Fields of a record have a mark and a menu each, and are found one by one.
    void boxesOfTheRecord()
    {
        const QByteArray before = saved();
        vlk::PageSettings& page = *history().pages()[1];
        const int row = page.rowAt("ZETA/mask");
        const vlk::MaskField& field = page.values().setting(row).as<vlk::Mask>()->fields[63];
        auto* box = child<QCheckBox>(qPrintable(vlk::numberedName(field.widget, field.number)));
        auto* find = child<QLineEdit>("lineEdit_Find");
        find->setFocus();
        QTest::keyClicks(find, vlk::fieldText(field));
        const QString line = child<QListWidget>("listWidget_Found")->item(0)->text();
        QVERIFY2(line.contains(vlk::fieldText(field) + ":  "), qPrintable(line));
        QTest::keyClick(find, Qt::Key_Return);
        QVERIFY(box->isVisible() && box->hasFocus());
        QTRY_VERIFY(box->parentWidget()->findChild<QFrame*>("frame_Found"));
        QVERIFY(child<QFrame>("frame_Found"));
        QCOMPARE(child<QFrame>("frame_Found")->geometry().center(), box->geometry().center());
        QTest::keyClick(box, Qt::Key_Space);
        QCoreApplication::processEvents();
        auto* mark = box->parentWidget()->findChild<QWidget*>("mark_" + box->objectName());
        QVERIFY(mark && mark->isVisible());
        QCOMPARE(choose(box, "action_BringBack"), 3);
        QCOMPARE(saved(), before);
        QVERIFY(!mark->isVisible());
    }

    // The window has the palette before its parts have it.
    void otherColours()
    {
        type(child<QSpinBox>("GPRSSrv_spinBox_Port_Main"), "5555");
        const QPalette before = QApplication::palette();
        QApplication::setPalette(QPalette(QColor(0x35, 0x37, 0x3a)));
        const QColor colour = vlk::markColor(vlk::Mark::Changed, QApplication::palette());
        // On the button it is in the lower corner of a drawing.
        const auto* button = child<QToolButton>("toolButton_Differences");
        const QSize whole = button->iconSize();
        QCOMPARE(button->icon().pixmap(whole).toImage().pixelColor(whole.width() - 5, whole.height() - 5),
                 colour);
        const QIcon tab = child<QTabWidget>("tabWidget")->tabIcon(0);
        QCOMPARE(tab.pixmap(vlk::kMarkSize).toImage().pixelColor(4, 4), colour);
        QApplication::setPalette(before);
    }

    // A box in a frame of its own has its mark in the margin of the group, beside it.
    void markBesideABox()
    {
        child<QTabWidget>("tabWidget")->setCurrentIndex(6);
        auto* box = child<QCheckBox>("checkBox_Ignition_In1");
        QTest::keyClick(box, Qt::Key_Space);
        QCoreApplication::processEvents();
        const auto* mark = child<QWidget>("mark_checkBox_Ignition_In1");
        const QRect shape(mark->mapTo(dialog_.get(), QPoint(0, 0)), mark->size());
        const QRect owner(box->mapTo(dialog_.get(), QPoint(0, 0)), box->size());
        QVERIFY(mark->isVisible() && !shape.intersects(owner));
        QVERIFY(std::abs(shape.center().y() - owner.center().y()) <= 1);
    }

    // Advice about one of many boxes marks that box, until it is followed.
    void markOfOneOfManyBoxes()
    {
        open({});
        child<QTabWidget>("tabWidget")->setCurrentIndex(2);
        dialog_->review().mend(
            {{"SENSORS/IN1/ign", "0"}, {"TRACK/POINTS/useTimer", "1"}, {"TRACK/POINTS/moveTimerSens", "110"}},
            [] { return QString(); });
        QVERIFY(child<QWidget>("checkBox_TmrFlag_In1")->toolTip().contains("adv_044"));
        QVERIFY(!child<QWidget>("checkBox_TmrFlag_Engine")->toolTip().contains("adv_044"));
        for (const vlk::review::Finding& finding : std::vector(dialog_->review().advice())) {
            if (finding.rule == QString("motion_ignition"))
                dialog_->review().mend(finding.mends, [] { return QString(); });
        }
        QVERIFY(!child<QWidget>("checkBox_TmrFlag_In1")->toolTip().contains("adv_044"));
        QVERIFY(child<QCheckBox>("checkBox_Ignition_In1")->isChecked());
    }
};

QTEST_MAIN(MarksTest)
#include "tst_marks.moc"
