// The two lists of operators behind the Transfer page.

#include "transfer_page.h"

#include <QtTest>
#include <QtWidgets>

class OperatorListsTest : public QObject, private TransferPage
{
    Q_OBJECT

private Q_SLOTS:
    void init() { open(); }

    void apnList()
    {
        const QTreeWidget* tree = apnTree();
        QCOMPARE(tree->topLevelItemCount(), 10);
        const QTreeWidgetItem* first = tree->topLevelItem(0);
        const QTreeWidgetItem* seventh = tree->topLevelItem(6);
        QCOMPARE(first->text(1), QString("25001"));
        QCOMPARE(first->text(3), first->text(4));
        QCOMPARE(seventh->text(3), '@' + seventh->text(2).section('.', 0, -2));
        QCOMPARE(seventh->text(4), tree->topLevelItem(1)->text(3));
        for (int column = 2; column <= 4; ++column)
            QCOMPARE(tree->topLevelItem(9)->text(column), first->text(3));

        // An emptied row stays empty, a missing key takes its cell's default.
        Values values = save();
        for (const char* key : {"AUTOAPN/sID3", "AUTOAPN/name3", "AUTOAPN/login3", "AUTOAPN/pass3"})
            values[key].clear();
        values.remove("AUTOAPN/name4");
        page().setDefaults();
        load(values);
        QCOMPARE(tree->topLevelItem(2)->text(1) + tree->topLevelItem(2)->text(2), QString());
        QVERIFY(!tree->topLevelItem(3)->text(2).isEmpty());
        QCOMPARE(saved("AUTOAPN/sID3"), QString());
    }

    void apnListIsClosedByItsButton()
    {
        press("pushButton_AutoAPN_1");
        auto* close = apnTree()->window()->findChild<QPushButton*>("pushButton_ListApn_Close");
        QVERIFY(apnTree()->isVisible() && close && close->isVisible());
        QTest::keyClick(close, Qt::Key_Space);
        QVERIFY(!apnTree()->isVisible());
    }

    void numberColumnIsNotEdited()
    {
        press("pushButton_AutoAPN_1");
        press("pushButton_RListOperSim_1");
        for (QTreeWidget* tree : {apnTree(), roamingTree()}) {
            QVERIFY(tree->isVisible());
            for (const int column : {1, 0, 1}) {
                const QRect cell = tree->visualRect(tree->model()->index(4, column));
                QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, cell.center());
                QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {}, cell.center());
                auto* editor = tree->viewport()->findChild<QLineEdit*>();
                QCOMPARE(editor != nullptr, column > 0);
                if (editor)
                    QTest::keyClick(editor, Qt::Key_Escape);
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            }
        }
    }

    void roamingList()
    {
        QTreeWidget* tree = roamingTree();
        auto* up = get<QPushButton>("pushButton_Up");
        auto* down = get<QPushButton>("pushButton_Down");
        QVERIFY(!isOn("pushButton_Up") && isOn("pushButton_Down"));
        QCOMPARE(tree->topLevelItem(2)->text(1), QString());
        load({{"ROAMSIM1/opCode8", "8"}, {"ROAMSIM1/opCode9", "9"}, {"ROAMSIM1/opCode10", "10"}});
        QCOMPARE(tree->topLevelItem(2)->text(1), QString("0"));
        tree->setCurrentItem(tree->topLevelItem(9));
        QVERIFY(up->isEnabled() && !down->isEnabled());
        up->click();
        QVERIFY(up->isEnabled() && down->isEnabled());
        up->click();
        QCOMPARE(tree->indexOfTopLevelItem(tree->currentItem()), 7);
        QCOMPARE(tree->topLevelItem(7)->text(0), QString("8"));
        const Values values = save();
        QCOMPARE(values["ROAMSIM1/opCode8"] + ' ' + values["ROAMSIM1/opCode9"] + ' ' +
                     values["ROAMSIM1/opCode10"],
                 QString("10 8 9"));
        tree->setCurrentItem(tree->topLevelItem(1));
        up->click();
        QVERIFY(!up->isEnabled() && down->isEnabled());
        tree->topLevelItem(0)->setText(1, "25001x");
        QCOMPARE(saved("ROAMSIM1/opCode1"), QString("0"));
        press("pushButton_RListOperSim_1");
        QTest::mousePress(get<QPushButton>("pushButton_Ok"), Qt::LeftButton);
        QVERIFY(!tree->isVisible());
    }

private:
    QTreeWidget* apnTree() { return get<QTreeWidget>("treeWidget_ListApn"); }
    QTreeWidget* roamingTree() { return get<QTreeWidget>("treeWidget_List"); }
};

QTEST_MAIN(OperatorListsTest)
#include "tst_operator_lists.moc"
