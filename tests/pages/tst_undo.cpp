// Steps of editing, taken back and done again, over the whole dialog; and edits that are brought back.

#include "pages/opened_configuration.h"
#include "review/recovery.h"
#include "support/disagreements.h"
#include "support/setting_samples.h"

#include <QtTest>
#include <QtWidgets>

#include <random>

class UndoTest : public QObject, private OpenedConfiguration
{
    Q_OBJECT

private Q_SLOTS:
    void init() { start(); }
    void cleanup() { end(); }

    // VLK_EDITS: how many. After each edit, whatever it pulls along, undo and redo bring the bytes of the
    // file back.
    void editsAtRandom()
    {
        std::mt19937 random(7106);
        const auto below = [&](int count) {
            return static_cast<int>(random() % static_cast<unsigned>(count));
        };
        const auto pages = history().pages();
        QByteArray before = saved();
        QPair<int, int> last;
        const int rounds = qEnvironmentVariableIntValue("VLK_EDITS");
        for (int round = 0; round < (rounds > 0 ? rounds : 500); ++round) {
            const int place = below(10);
            vlk::PageSettings& page = *pages[place];
            const int row = below(page.values().count());
            // Edits of one setting in a row would be one step.
            if (last == qMakePair(place, row))
                continue;
            const std::vector<QString> held = page.values().held();
            const QStringList samples = samplesOfAnyKind(page.values().setting(row));
            page.binder().set(row, samples[below(samples.size())]);
            history().settle();
            if (page.values().held() != held)
                last = {place, row};
            const QByteArray after = saved();
            if (after == before)
                continue;
            history().undo();
            QCOMPARE(saved(), before);
            history().redo();
            QCOMPARE(saved(), after);
            QCOMPARE(disagreements(page.binder()), QStringList());
            before = after;
        }
        vlk::review::Unsaved unsaved;
        unsaved.after = dialog_->review().document();
        while (!history().undoText().isEmpty())
            history().undo();
        QCOMPARE(dialog_->review().edited(), 0);
        // Kept and brought back they give the bytes, too.
        unsaved.before = dialog_->review().document();
        dialog_->review().bringBack(unsaved, [] { return QString(); });
        QCOMPARE(saved(), before);
    }

    // Some of what the quick window shows stands in no file, and decides what it writes.
    void quickEditsAreBroughtBack()
    {
        open(VLK_SOURCE "/fuzz/corpus/settings/factory.xml", 0);
        std::mt19937 random(7106);
        vlk::PageSettings& page = *history().pages().back();
        for (int round = 0; round < 30; ++round) {
            vlk::review::Unsaved unsaved;
            for (int edit = 0; edit < 5; ++edit) {
                const int row = static_cast<int>(random() % static_cast<unsigned>(page.values().count()));
                const QStringList samples = samplesOfAnyKind(page.values().setting(row));
                page.binder().set(
                    row, samples[static_cast<int>(random() % static_cast<unsigned>(samples.size()))]);
            }
            unsaved.after = dialog_->review().document();
            unsaved.quick = dialog_->review().quickValues();
            history().settle();
            while (!history().undoText().isEmpty())
                history().undo();
            unsaved.before = dialog_->review().document();
            dialog_->review().bringBack(unsaved, [] { return QString(); });
            QCOMPARE(dialog_->review().document(), unsaved.after);
        }
    }

    // A load drops whole days of a period, and takes "no item" of a list for none. Both can be edited.
    void whatLoadsDropIsBroughtBack()
    {
        vlk::review::Unsaved unsaved;
        unsaved.before = dialog_->review().document();
        const auto isThere = [this] {
            const QByteArray now = dialog_->review().document();
            return now.contains("blockTimer=\"86700\"") && now.contains("normState=\"N/A\"");
        };
        type(child<QSpinBox>("Srv_Operation_spinBox_Block_H"), "24");
        child<QComboBox>("comboBox_NormState_In1")->setCurrentIndex(-1);
        unsaved.after = dialog_->review().document();
        type(child<QSpinBox>("GPRSSrv_spinBox_Port_Main"), "5555");
        dialog_->review().bringBack({vlk::review::FileKeys::all().at("TRANS/SRV1/port")},
                                    [] { return QString(); });
        QVERIFY(isThere() && unsaved.after == dialog_->review().document());
        while (!history().undoText().isEmpty())
            history().undo();
        for (const bool isEdited : {false, true}) {
            if (isEdited)
                type(child<QSpinBox>("GPRSSrv_spinBox_Port_Main"), "5555");
            dialog_->review().bringBack(unsaved, [] { return QString(); });
            QVERIFY(isThere());
            history().undo();
        }
    }

    // Each difference on its own, until nothing differs.
    void oneByOne()
    {
        const QByteArray before = saved();
        std::mt19937 random(7106);
        for (int round = 0; round < 300; ++round) {
            vlk::PageSettings& page = *history().pages()[random() % 10];
            const int row = static_cast<int>(random() % static_cast<unsigned>(page.values().count()));
            const QStringList samples = samplesOfAnyKind(page.values().setting(row));
            page.binder().set(row,
                              samples[static_cast<int>(random() % static_cast<unsigned>(samples.size()))]);
        }
        history().settle();
        QVERIFY(dialog_->review().edited() > 20);
        for (int tries = 0; dialog_->review().edited() > 0 && tries < 1000; ++tries) {
            const vlk::review::Difference first = dialog_->review().differences().all().front();
            dialog_->review().takeOver({first.key}, [] { return QString(); });
        }
        QCOMPARE(saved(), before);
    }

    // A record that is too large locks all but its page. What takes edits back is not locked.
    void undoDuringTheLock()
    {
        const QByteArray before = saved();
        type(child<QSpinBox>("GPRSSrv_spinBox_Port_Main"), "5555");
        const QByteArray edited = saved();
        QVERIFY(QMetaObject::invokeMethod(dialog_->fullWindow(), "slot_Excess_Size", Q_ARG(bool, true)));
        QVERIFY(!child<QFrame>("frame_Excess")->isEnabled());
        child<QToolButton>("toolButton_Undo")->click();
        QCOMPARE(saved(), before);
        child<QToolButton>("toolButton_Redo")->click();
        QCOMPARE(saved(), edited);
        child<QToolButton>("toolButton_Differences")->click();
        QTest::mouseClick(child<QPushButton>("pushButton_TakeOver"), Qt::LeftButton);
        QCOMPARE(saved(), before);
    }

    // Typing into one field is one step; a field in which something is being typed takes that back alone.
    void undoByKeys()
    {
        auto* port = child<QSpinBox>("GPRSSrv_spinBox_Port_Main");
        const int was = port->value();
        type(port, "5555");
        type(port, "6666");
        child<QGroupBox>("GPRSSrv_groupBox_Main")->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QCoreApplication::processEvents();
        QCOMPARE(child<QToolButton>("toolButton_Undo")->isEnabled(), true);
        child<QToolButton>("toolButton_Undo")->click();
        QCOMPARE(port->value(), 6666);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(port->value(), was);
        for (const auto& [key, shift] :
             {std::pair(Qt::Key_Z, Qt::ShiftModifier), std::pair(Qt::Key_Y, Qt::NoModifier)}) {
            QTest::keyClick(dialog_.get(), key, Qt::ControlModifier | shift);
            QCOMPARE(port->value(), 6666);
            QTest::keyClick(dialog_.get(), Qt::Key_Z, Qt::ControlModifier);
            QCOMPARE(port->value(), was);
        }
        QVERIFY(child<QToolButton>("toolButton_Redo")->toolTip().endsWith("(Ctrl+Shift+Z, Ctrl+Y)"));
    }

    // What was written is a state of its own, even if the edit behind it is of the same setting.
    void undoStopsAtAWrite()
    {
        auto* port = child<QSpinBox>("GPRSSrv_spinBox_Port_Main");
        dialog_->deviceConnected();
        type(port, "5555");
        child<QPushButton>("pushButton_LoadToDevice")->click();
        type(port, "6666");
        child<QToolButton>("toolButton_Undo")->click();
        QCOMPARE(port->value(), 5555);
    }

    // In a line too: first what is being typed there, then the last step, wherever it was.
    void undoInALine()
    {
        auto* name = child<QLineEdit>("lineEdit_Name");
        auto* port = child<QSpinBox>("GPRSSrv_spinBox_Port_Main");
        const QString was = name->text();
        type(name, "KAMAZ");
        name->setFocus();
        name->selectAll();
        QTest::keyClicks(name, "MAZ");
        QTest::keyClick(name, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(name->text(), QString("KAMAZ"));
        QTest::keyClick(name, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(name->text(), QString("MAZ"));
        QTest::keyClick(name, Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(name, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(name->text(), was);
        const int before = port->value();
        port->setFocus();
        port->selectAll();
        QTest::keyClicks(port, "55");
        QTest::keyClick(port, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(port->text(), QString::number(before));
        QCOMPARE(history().undoText(), QString());
    }

    // Other values come while it is loading: a step taken back meanwhile would mix both.
    void undoWhileLoading()
    {
        const QByteArray before = saved();
        type(child<QSpinBox>("GPRSSrv_spinBox_Port_Main"), "5555");
        connect(history().pages()[3], &vlk::PageSettings::shown, dialog_.get(), [this] { history().undo(); });
        open(VLK_SOURCE "/fuzz/corpus/settings/factory.xml");
        QCOMPARE(saved(), before);
        QCOMPARE(history().undoText() + history().redoText(), QString());
    }

    void windowsShareTheSteps()
    {
        type(child<QSpinBox>("GPRSSrv_spinBox_Port_Main"), "5555");
        const QByteArray full = saved();
        child<QToolButton>("toolButton_Differences")->click();
        dialog_->switchToQuick();
        // What quick setup does of itself is told in words, a line a page, and counts as no edit.
        QTRY_VERIFY(child<QLabel>("label_UneditedSummary")->isVisible());
        QCOMPARE(dialog_->review().edited(), 1);
        QCOMPARE(child<QTableView>("tableView_Differences")->model()->rowCount(), 5);
        QVERIFY(!dialog_->review().listed().front().path.startsWith("TRANS"));
        QTRY_VERIFY(child<QToolButton>("toolButton_Undo")->isVisible());
        history().undo();
        QCOMPARE(saved(), full);
        QVERIFY(dialog_->fullWindow()->isVisible());
        history().redo();
        QVERIFY(!dialog_->fullWindow()->isVisible());
    }
};

QTEST_MAIN(UndoTest)
#include "tst_undo.moc"
