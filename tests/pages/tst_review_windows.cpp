// The panels of differences and of advice.

#include "catalogue/field_catalogue.h"
#include "dialog/difference_model.h"
#include "dialog/tab_navigation.h"
#include "dialog/unsaved_bar.h"
#include "pages/opened_configuration.h"
#include "support/files.h"

#include <QtTest>
#include <QtWidgets>

class ReviewWindowsTest : public QObject, private OpenedConfiguration
{
    Q_OBJECT

private Q_SLOTS:
    void init() { start(); }
    void cleanup() { end(); }

    void languageWithThePanelOpen()
    {
        struct Other : QTranslator
        {
            QString translate(const char*, const char* key, const char*, int) const override
            {
                return QStringLiteral("other ") + key;
            }
        } other;
        type(child<QSpinBox>("GPRSSrv_spinBox_Port_Main"), "5555");
        child<QToolButton>("toolButton_Differences")->click();
        auto* table = child<QTableView>("tableView_Differences");
        const QString page = table->model()->index(0, 0).data().toString();
        QCoreApplication::installTranslator(&other);
        dialog_->retranslate();
        QVERIFY(table->isVisible());
        QCOMPARE(table->model()->index(0, 0).data().toString(), "other " + page);
        QVERIFY(child<QWidget>("mark_GPRSSrv_spinBox_Port_Main")->toolTip().startsWith("other "));
        QCoreApplication::removeTranslator(&other);
        dialog_->retranslate();
        QCOMPARE(table->model()->index(0, 0).data().toString(), page);
    }

    // Which panel was open, and its height.
    void panelIsKept()
    {
        const QTemporaryDir folder;
        const QString here = QDir::currentPath();
        QDir(folder.path()).mkpath("Data/XML");
        QDir::setCurrent(folder.path());
        child<QToolButton>("toolButton_Advice")->click();
        auto* edge = child<QWidget>("edge_Advice");
        QTest::mousePress(edge, Qt::LeftButton, {}, {20, 2});
        QTest::mouseMove(edge, {20, -18});
        QTest::mouseRelease(edge, Qt::LeftButton, {}, {20, -18});
        const int height = child<QWidget>("widget_Advice")->height();
        dialog_ = std::make_unique<VLK_Widget_Config>();
        open(VLK_SOURCE "/fuzz/corpus/settings/factory.xml");
        QVERIFY(child<QWidget>("widget_Advice")->isVisible() &&
                child<QToolButton>("toolButton_Advice")->isChecked());
        QCOMPARE(child<QWidget>("widget_Advice")->height(), height);
        // Among the user's files stands none of it.
        QVERIFY(QDir("Data/XML").entryList(QDir::Files).isEmpty());
        QDir::setCurrent(here);
    }

    void differencesAreBroughtBack()
    {
        const QByteArray before = saved();
        QCOMPARE(child<QToolButton>("toolButton_Differences")->text(), QString("0"));
        type(child<QSpinBox>("GPRSSrv_spinBox_Port_Main"), "5555");
        type(child<QLineEdit>("lineEdit_Name"), "KAMAZ");
        QTest::keyClick(dialog_.get(), Qt::Key_D, Qt::ControlModifier);
        auto* table = child<QTableView>("tableView_Differences");
        QVERIFY(table->isVisible());
        QCOMPARE(table->model()->rowCount(), 2);
        QCOMPARE(child<QToolButton>("toolButton_Differences")->text(), QString("2"));
        // All at once, by keys and from the menu.
        table->setFocus();
        const auto* takeOver = child<QPushButton>("pushButton_TakeOver");
        QTest::keyClick(table, Qt::Key_A, Qt::ControlModifier);
        for (const bool isChosen : {false, true}) {
            QTest::keyClick(table, Qt::Key_Space);
            QCOMPARE(takeOver->isEnabled(), isChosen);
        }
        for (const char* action : {"action_MarkNone", "action_MarkAll"}) {
            child<QAction>(action)->trigger();
            QCOMPARE(takeOver->isEnabled(), action == QString("action_MarkAll"));
        }
        // Copied is what is chosen, whatever is selected.
        table->clearSelection();
        const auto copied = [this] {
            child<QPushButton>("pushButton_CopyDifferences")->click();
            return QApplication::clipboard()->text().count('\n') - 1;
        };
        QCOMPARE(copied(), 2);
        table->setCurrentIndex(table->model()->index(1, 0));
        QTest::keyClick(table, Qt::Key_Space);
        QCOMPARE(copied(), 1);
        QVERIFY(!QApplication::clipboard()->text().contains("5555"));
        QCOMPARE(child<QLabel>("label_Unsaved")->text(), QString("rev_344"));
        QTest::keyClick(table, Qt::Key_Space);
        // One of two lines is left out, and is the one that stays.
        table->setCurrentIndex(table->model()->index(0, 0));
        QTest::keyClick(table, Qt::Key_Space);
        child<QPushButton>("pushButton_TakeOver")->click();
        QCOMPARE(table->model()->rowCount(), 1);
        table->setCurrentIndex(table->model()->index(0, 0));
        QTest::keyClick(table, Qt::Key_Space);
        child<QPushButton>("pushButton_TakeOver")->click();
        QCOMPARE(saved(), before);
        QCOMPARE(dialog_->review().edited(), 0);
        QTest::keyClick(table, Qt::Key_Escape);
        QVERIFY(table->isHidden() || !table->isVisible());
    }

    // Of another comparison all lines are marked.
    void marksStayWithTheirComparison()
    {
        type(child<QSpinBox>("GPRSSrv_spinBox_Port_Main"), "5555");
        type(child<QLineEdit>("lineEdit_Name"), "KAMAZ");
        QTest::keyClick(dialog_.get(), Qt::Key_D, Qt::ControlModifier);
        const auto* model = child<QTableView>("tableView_Differences")->model();
        const auto unmarked = [model] {
            return model->match(model->index(0, 0), Qt::CheckStateRole, static_cast<int>(Qt::Unchecked), -1)
                .size();
        };
        QTest::keyClick(child<QTableView>("tableView_Differences"), Qt::Key_Space);
        QCOMPARE(unmarked(), 1);
        auto* against = child<QComboBox>("comboBox_Against");
        QTest::keyClick(against, Qt::Key_Down);
        QVERIFY(model->rowCount() > 0 && unmarked() == 0);
        QTest::keyClick(against, Qt::Key_Up);
        QCOMPARE(unmarked(), 1);
        history().undo();
        history().undo();
        open({});
        type(child<QSpinBox>("GPRSSrv_spinBox_Port_Main"), "5555");
        QVERIFY(model->rowCount() == 1 && unmarked() == 0);
        history().undo();
    }

    // Whatever the last column had while the list was narrow.
    void columnsFit()
    {
        dialog_->resize(960, 590);
        open({});
        QTest::keyClick(dialog_.get(), Qt::Key_D, Qt::ControlModifier);
        const auto* table = child<QTableView>("tableView_Differences");
        QVERIFY(dialog_->review().compareWith(vlk::ConfigurationReview::Against::OtherFile,
                                              VLK_SOURCE "/fuzz/corpus/settings/factory.xml"));
        QVERIFY(table->model()->rowCount() > 10);
        QTRY_COMPARE(table->horizontalHeader()->length(), table->viewport()->width());
        // Where no line has a note the others have its room.
        QVERIFY(!table->isColumnHidden(vlk::DifferenceModel::Note));
        open(VLK_SOURCE "/fuzz/corpus/settings/factory.xml");
        type(child<QSpinBox>("GPRSSrv_spinBox_Port_Main"), "5555");
        QVERIFY(table->isColumnHidden(vlk::DifferenceModel::Note));
        QTRY_COMPARE(table->horizontalHeader()->length(), table->viewport()->width());
    }

    void firstAndLastDifference()
    {
        type(child<QSpinBox>("GPRSSrv_spinBox_Port_Main"), "5555");
        type(child<QLineEdit>("lineEdit_Name"), "KAMAZ");
        child<QCheckBox>("checkBox_RS485_Level_2")->click();
        history().settle();
        QTest::keyClick(dialog_.get(), Qt::Key_D, Qt::ControlModifier);
        auto* table = child<QTableView>("tableView_Differences");
        // One key acts on that line alone.
        const auto chosen = [table] {
            QList<int> lines;
            for (int line = 0; line < table->model()->rowCount(); ++line) {
                if (table->model()->index(line, 0).data(Qt::CheckStateRole).toInt() == Qt::Checked)
                    lines << line;
            }
            return lines;
        };
        struct Press
        {
            Qt::Key key;
            Qt::KeyboardModifiers held;
            int line;
        };
        for (const Press& press :
             {Press{Qt::Key_End, {}, 2}, Press{Qt::Key_Home, {}, 0},
              Press{Qt::Key_End, Qt::ControlModifier, 2}, Press{Qt::Key_Home, Qt::ControlModifier, 0},
              Press{Qt::Key_Down, Qt::ControlModifier, 1}}) {
            QTest::keyClick(table, press.key, press.held);
            QCOMPARE(table->currentIndex().row(), press.line);
            QTest::keyClick(table, Qt::Key_Space);
            QList<int> others{0, 1, 2};
            others.removeAt(press.line);
            QCOMPARE(chosen(), others);
            QTest::keyClick(table, Qt::Key_Space);
        }
        QTest::keyClick(table, Qt::Key_Home);
        QTest::keyClick(table, Qt::Key_End, Qt::ShiftModifier);
        QCOMPARE(table->selectionModel()->selectedRows().size(), 3);
    }

    // The field of the record that was taken back, on its tab.
    void undoShowsTheField()
    {
        auto* box = child<QCheckBox>("checkBox_RS485_Level_2");
        dialog_->fullWindow()->navigation().goToFirst();
        QVERIFY(!box->isVisible());
        box->click();
        history().settle();
        for (const bool isUndo : {true, false}) {
            dialog_->fullWindow()->navigation().goToFirst();
            isUndo ? history().undo() : history().redo();
            QVERIFY(box->isVisible());
            QTRY_VERIFY(box->parentWidget()->findChild<QFrame*>("frame_Found"));
            QVERIFY(
                box->parentWidget()->findChild<QFrame*>("frame_Found")->geometry().contains(box->geometry()));
        }
    }

    // Field, popup, panel, window.
    void escInItsOrder()
    {
        auto* port = child<QSpinBox>("GPRSSrv_spinBox_Port_Main");
        auto* list = child<QComboBox>("Transfer_comboBox_Protocol_Format_Main");
        auto* panel = child<QWidget>("widget_Differences");
        QTest::keyClick(dialog_.get(), Qt::Key_D, Qt::ControlModifier);
        const int was = port->value();
        port->setFocus();
        port->selectAll();
        QTest::keyClicks(port, "55");
        QTest::keyClick(port, Qt::Key_Escape);
        QVERIFY(port->value() == was && port->text() == QString::number(was) && panel->isVisible());
        QTest::keyClick(port, Qt::Key_Escape);
        QVERIFY(!panel->isVisible() && port->hasFocus());
        QTest::keyClick(dialog_.get(), Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
        list->setFocus();
        list->showPopup();
        QTest::keyClick(list->view(), Qt::Key_Escape);
        QVERIFY(!list->view()->isVisible() && child<QWidget>("widget_Advice")->isVisible());
        QTest::keyClick(list, Qt::Key_Escape);
        QVERIFY(!child<QWidget>("widget_Advice")->isVisible() && dialog_->isVisible());
        QTest::keyClick(dialog_.get(), Qt::Key_F, Qt::ControlModifier);
        QTest::keyClick(child<QLineEdit>("lineEdit_Find"), Qt::Key_Escape);
        QVERIFY(dialog_->isVisible() && !child<QLineEdit>("lineEdit_Find")->hasFocus());
        QTest::keyClick(list, Qt::Key_Escape);
        QVERIFY(!dialog_->isVisible());
    }

    void otherSides()
    {
        const QByteArray before = saved();
        auto* against = child<QComboBox>("comboBox_Against");
        child<QToolButton>("toolButton_Differences")->click();
        const auto choose = [&](int index) {
            while (against->currentIndex() != index)
                QTest::keyClick(against, index > against->currentIndex() ? Qt::Key_Down : Qt::Key_Up);
        };
        auto* table = child<QTableView>("tableView_Differences");
        type(child<QSpinBox>("GPRSSrv_spinBox_Port_Main"), "5555");
        choose(1);
        choose(0);
        history().undo();
        choose(1);
        QVERIFY(table->model()->rowCount() > 10);
        child<QPushButton>("pushButton_TakeOver")->click();
        QCOMPARE(table->model()->rowCount(), 0);
        QVERIFY(saved() != before);
        history().undo();
        QCOMPARE(saved(), before);
        QVERIFY(!dialog_->review().compareWith(vlk::ConfigurationReview::Against::OtherFile, "no such file"));
    }

    // A new configuration waits for its server and the format of its record, which a button sets.
    void adviceIsFollowed()
    {
        open({});
        auto* button = child<QToolButton>("toolButton_Advice");
        QCOMPARE(button->text(), QString("2"));
        QTest::keyClick(dialog_.get(), Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
        auto* table = child<QTableView>("tableView_Advice");
        QVERIFY(table->isVisible() && !child<QTableView>("tableView_Differences")->isVisible());
        QCOMPARE(table->model()->rowCount(), 2);
        auto* mend = child<QPushButton>("pushButton_Mend");
        QVERIFY(!mend->isEnabled() && mend->toolTip() == "rev_254");
        QTest::keyClick(table, Qt::Key_Down);
        QTest::keyClick(table, Qt::Key_Return);
        QVERIFY(!table->hasFocus() && child<QTabWidget>("tabWidget")->currentIndex() == 1);
        QVERIFY(mend->isEnabled() && mend->toolTip().isEmpty());
        mend->setFocus();
        QTest::keyClick(mend, Qt::Key_Space);
        QCOMPARE(button->text(), QString("1"));
        QVERIFY(!mend->isEnabled() && table->hasFocus());
        history().undo();
        QCOMPARE(button->text(), QString("2"));
        table->setFocus();
        QTest::keyClick(table, Qt::Key_Escape);
        QVERIFY(!table->isVisible());
    }

    // Its form is made when it is first needed, and is compared from the beginning.
    void newInQuickSetup()
    {
        open({}, 0);
        QCOMPARE(child<QToolButton>("toolButton_Differences")->text(), QString("0"));
        type(dialog_->findChild<QWidget*>("page_Light")->findChild<QSpinBox*>("GPRSSrv_spinBox_Port_Main"),
             "5555");
        QCOMPARE(child<QToolButton>("toolButton_Differences")->text(), QString("1"));
        // What full setup makes of it is no edit.
        dialog_->switchToFull();
        QCOMPARE(child<QToolButton>("toolButton_Differences")->text(), QString("1"));
        // What quick setup makes of any file is counted behind that.
        open(VLK_SOURCE "/fuzz/corpus/settings/factory.xml", 0);
        const std::size_t written = dialog_->review().listed().size();
        QVERIFY(written > 100);
        QCOMPARE(child<QToolButton>("toolButton_Differences")->text(), QString("0+%1").arg(written));
        // Two sensors of full setup would go, and are named while it is so.
        const auto* told = child<QLabel>("label_Unsaved");
        QVERIFY(told->isVisible() && told->text() == "rev_435 rev_503");
        QCOMPARE(dialog_->review().leftOut().join('|'),
                 QString("cfgt17_001 cfgt17_024 1: cfgt17_018|cfgt17_001 cfgt17_024 2: cfgt17_019"));
        // So are the sensors and lines that stay, with other settings.
        QCOMPARE(dialog_->review().madeAnew().join('|'),
                 QString("cfgt6_001 cfgt6_007 / cfgwl_032 1|cfgt6_001 cfgt6_007 / cfgwl_032 2|"
                         "cfgt8_001 cfgt8_010|cfgt8_001 cfgt8_011|cfgt8_001 cfgt8_012"));
        // They go with a write.
        dialog_->review().setWritten(dialog_->review().document(), dialog_->review().quickValues());
        QVERIFY(!told->isVisible() && dialog_->review().leftOut().isEmpty());
        dialog_->switchToFull();
        QVERIFY(!told->isVisible());
        history().undo();
        QVERIFY(dialog_->review().isQuick() && !told->isVisible());
    }

    // What quick setup has made of sensors and lines is nobody's edit in full setup either, and goes back as
    // one step.
    void whatQuickSetupMadeInFullSetup()
    {
        open(VLK_SOURCE "/fuzz/corpus/settings/factory.xml", 0);
        const auto* told = child<QLabel>("label_Unsaved");
        const auto* button = child<QToolButton>("toolButton_Differences");
        auto& review = dialog_->review();
        const auto counted = [&] { return button->text().split('+'); };
        for (const int edits : {0, 1}) {
            if (edits > 0)
                type(child<QWidget>("page_Light")->findChild<QSpinBox*>("GPRSSrv_spinBox_Port_Main"), "5555");
            const QStringList gone = review.leftOut();
            child<QPushButton>("pushButton_Light_ConfigFull")->click();
            QCOMPARE(counted().value(0).toInt(), edits);
            QVERIFY(counted().value(1).toInt() > 10);
            QVERIFY(told->isVisible() && told->text() == "rev_750 rev_751");
            QCOMPARE(review.leftOut(), gone);
            int own = 0;
            for (const vlk::review::Difference& difference : review.edits().all()) {
                const QString note = review.noteKey(review.edits(), difference);
                own += note.isEmpty() ? 1 : 0;
                QVERIFY(note.isEmpty() || review.isUnedited(difference) || difference.isAlong);
                QVERIFY(difference.key < 0 || review.isOwn(difference.key) == note.isEmpty());
            }
            QCOMPARE(own, edits);
            const QByteArray made = review.document();
            child<QAbstractButton>("label_Unsaved_Action1")->click();
            QCOMPARE(counted(), QStringList(QString::number(edits)));
            QVERIFY(!told->isVisible());
            history().undo();
            QCOMPARE(review.document(), made);
            QVERIFY(told->isVisible());
            // One setting more is edited, and it alone counts.
            type(child<QWidget>("page_Full")->findChild<QLineEdit*>("lineEdit_Name"), "KAMAZ");
            QCOMPARE(counted().value(0).toInt(), edits + 1);
            history().undo();
            history().undo();
            QVERIFY(review.isQuick() && told->text() == "rev_435 rev_503");
        }
        history().redo();
        QCOMPARE(told->text(), QString("rev_750 rev_751"));
        // There and back again.
        dialog_->switchToQuick();
        dialog_->switchToFull();
        QCOMPARE(told->text(), QString("rev_750 rev_751"));
        QCOMPARE(counted().value(0).toInt(), 1);
        review.setWritten(review.document(), {});
        QVERIFY(!told->isVisible() && button->text() == "0");
    }

    // What quick setup gives its own value is nobody's edit, whether what it follows was chosen there or
    // before: a line that is not used has no name.
    void whatFollowsInQuickSetupIsNoEdit()
    {
        auto& review = dialog_->review();
        const auto held = [&](const char* path) {
            return review.edits().after().at(vlk::review::FileKeys::all().at(path)).text;
        };
        // How many edits, the name, and the voltage of the analogue line in records.
        const auto state = [&] {
            history().settle();
            const QString name = held("SENSORS/IN2/name").isEmpty() ? "" : " named";
            const QString mask = held("PROTOCOL/ZETA/mask").at(vlk::field("StateU_Ain3"));
            return QString("%1%2 %3").arg(review.edited()).arg(name, mask);
        };
        open(VLK_SOURCE "/fuzz/corpus/settings/factory.xml", 0);
        QTest::keyClick(child<QComboBox>("comboBox_NormState_In_2"), Qt::Key_Home);
        QCOMPARE(state(), QString("1 1"));
        history().undo();
        // What no file holds is one edit, and has a line.
        child<QWidget>("page_Light")->setFocus();
        QTest::keyClick(child<QCheckBox>("checkBox_BT_Use"), Qt::Key_Space);
        QCOMPARE(state(), QString("1 named 1"));
        const auto listed = review.listed();
        const auto alone = std::ranges::find(listed, "BLUETOOTH/sensors", &vlk::review::Difference::path);
        QVERIFY(alone != listed.end() && !review.isUnedited(*alone));
        QCOMPARE(textOf(*alone).beforeText + '|' + textOf(*alone).afterText, QString("wrd_002|wrd_001"));
        history().undo();

        open(VLK_SOURCE "/fuzz/corpus/settings/factory.xml", 1);
        for (const char* line : {"comboBox_NormState_In2", "comboBox_NormState_In3"})
            QTest::keyClick(child<QComboBox>(line), Qt::Key_Home);
        const QString asEdited = state();
        QCOMPARE(asEdited, QString("3 named 1")); // with a threshold that is used no more
        dialog_->switchToQuick();
        QCOMPARE(state(), QString("3 0"));
        QVERIFY(review.madeAnew().contains("cfgt8_001 cfgt8_011"));
        dialog_->switchToFull();
        QCOMPARE(state(), QString("3 0"));
        QVERIFY(review.madeAnew().contains("cfgt8_001 cfgt8_011"));
        child<QAbstractButton>("label_Unsaved_Action1")->click();
        QCOMPARE(state(), asEdited);
        QCOMPARE(child<QToolButton>("toolButton_Differences")->text(), QString::number(review.edited()));
        // They are used again as they were.
        for (const char* line : {"comboBox_NormState_In2", "comboBox_NormState_In3"})
            QTest::keyClick(child<QComboBox>(line), Qt::Key_End);
        QCOMPARE(state(), QString("0 named 1"));
        for (int step = 0; step < 7; ++step)
            history().undo();
        QCOMPARE(state(), QString("0 named 1"));
    }

    // What is not chosen stays, in quick setup too.
    void oneOfTwoInQuickSetup()
    {
        open(VLK_SOURCE "/fuzz/corpus/settings/factory.xml", 0);
        auto* page = dialog_->findChild<QWidget*>("page_Light");
        auto* port = page->findChild<QSpinBox*>("GPRSSrv_spinBox_Port_Main");
        type(page->findChild<QLineEdit*>("GPRSSrv_lineEdit_IP_DNS_Main"), "10.0.0.1");
        const QByteArray before = dialog_->review().document();
        type(port, "5555");
        dialog_->review().takeOver({vlk::review::FileKeys::all().at("TRANS/SRV1/port")},
                                   [] { return QString(); });
        QCOMPARE(dialog_->review().document(), before);
    }

    // A file that has one sensor reads as one with two: told until the other one is unchecked.
    void sensorsThatTheFileLacks()
    {
        open(VLK_SOURCE "/fuzz/corpus/settings/factory.xml", 0);
        auto* window = child<QWidget>("page_Light");
        for (const auto& [box, isUsed] : {std::pair("checkBox_Fuel_RS485_Use", false),
                                          {"checkBox_BT_Use", true},
                                          {"checkBox_BT_1", true},
                                          {"checkBox_BT_2", false}})
            window->findChild<QCheckBox*>(box)->setChecked(isUsed);
        const QString path = folder_.filePath("one.xml");
        QVERIFY(dialog_->saveQuickToFile(path));
        open(path, 0);
        auto* told = child<QLabel>("label_Unsaved");
        QVERIFY(told->isVisible());
        QCOMPARE(told->text(), QString("rev_371"));
        window->findChild<QCheckBox*>("checkBox_BT_2")->click();
        history().settle();
        QVERIFY(!told->isVisible());
        history().undo();
        QVERIFY(told->isVisible());
        dialog_->switchToFull();
        QVERIFY(!told->isVisible());
    }

    // Esc gives the focus back to where it was before the panel, or the bar, had it.
    void escapeGoesBack()
    {
        auto* port = child<QSpinBox>("GPRSSrv_spinBox_Port_Main");
        auto* find = child<QLineEdit>("lineEdit_Find");
        const auto focus = [] { return QApplication::focusWidget(); };
        port->setFocus();
        QTest::keyClick(dialog_.get(), Qt::Key_F, Qt::ControlModifier);
        // An empty list has nothing to do but to choose what fills it.
        QTest::keyClick(find, Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(focus()->objectName(), QString("comboBox_Against"));
        QTest::keyClick(focus(), Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(focus()->objectName(), QString("tableView_Advice"));
        QTest::keyClick(focus(), Qt::Key_Escape);
        QCOMPARE(focus(), find);
        QVERIFY(!child<QWidget>("widget_Advice")->isVisible());
        QTest::keyClick(find, Qt::Key_Escape);
        QCOMPARE(focus(), port);
        QTest::keyClick(port, Qt::Key_D, Qt::ControlModifier);
        open(VLK_SOURCE "/fuzz/corpus/settings/factory.xml");
        child<QTableView>("tableView_Differences")->setFocus();
        QTest::keyClick(focus(), Qt::Key_Escape);
        QVERIFY(child<QTabWidget>("tabWidget")->currentWidget()->isAncestorOf(focus()));
    }

    // The narrowest window shows all columns of the list, long values cut.
    void nothingIsBesideTheList()
    {
        dialog_->resize(960, 500);
        type(child<QLineEdit>("GPRSSrv_lineEdit_IP_DNS_Main"), QString("navigation").repeated(5) + ".org");
        type(child<QSpinBox>("GPRSSrv_spinBox_Port_Main"), "5555");
        QTest::keyClick(dialog_.get(), Qt::Key_D, Qt::ControlModifier);
        const auto* table = child<QTableView>("tableView_Differences");
        QTest::qWait(50);
        QCOMPARE(table->horizontalScrollBar()->maximum(), 0);
        QVERIFY(table->horizontalHeader()->length() <= table->viewport()->width());
    }

    // Along the bar, and in the panel from its lines to what is done with them.
    void tabGoesInOrder()
    {
        type(child<QSpinBox>("GPRSSrv_spinBox_Port_Main"), "5555");
        QTest::keyClick(dialog_.get(), Qt::Key_D, Qt::ControlModifier);
        QTest::keyClick(dialog_.get(), Qt::Key_F, Qt::ControlModifier);
        for (const char* name :
             {"checkBox_ChangedOnly", "toolButton_Differences", "toolButton_Advice", "pushButton_Document",
              "comboBox_Against", "tableView_Differences", "pushButton_TakeOver", "pushButton_SavePreset",
              "pushButton_CopyDifferences", "pushButton_SaveDifferences", "toolButton_CloseDifferences"}) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget()->objectName(), QString(name));
        }
        // What is told above the bar comes before it, the cross last.
        auto* notices = dialog_->findChild<vlk::UnsavedBar*>();
        notices->tell(9, {vlk::Mark::Advice, "told", {{"one", [] {}}, {"two", [] {}}}});
        QTest::keyClick(dialog_.get(), Qt::Key_F6);
        for (const char* name : {"label_Unsaved_Action1", "label_Unsaved_Action2", "label_NoticePlace",
                                 "label_Unsaved_Close", "toolButton_Undo"}) {
            QCOMPARE(QApplication::focusWidget()->objectName(), QString(name));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        notices->end(9);
        // Enter presses a button as the space bar does.
        child<QPushButton>("pushButton_TakeOver")->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(child<QSpinBox>("GPRSSrv_spinBox_Port_Main")->value(), 4000);
        // The form of a device comes later than the window.
        child<QTabWidget>("tabWidget")->setCurrentIndex(4);
        auto* last = child<QComboBox>("comboBox_RS485_StopBit");
        last->setFocus();
        QTest::keyClick(last, Qt::Key_Tab);
        QVERIFY(child<QWidget>("FLDS")->isAncestorOf(QApplication::focusWidget()));
        for (const auto& [key, page] : {std::pair(Qt::Key_PageDown, 5), {Qt::Key_PageUp, 4}}) {
            QTest::keyClick(QApplication::focusWidget(), key, Qt::ControlModifier);
            QCOMPARE(child<QTabWidget>("tabWidget")->currentIndex(), page);
        }
    }

    // What the panels list is what the command line tells of the same files.
    void commandLineAgrees()
    {
        const QTemporaryDir folder;
        const QString factory = QStringLiteral(VLK_SOURCE "/fuzz/corpus/settings/factory.xml");
        const auto changed = [&](const char* name, const QByteArray& server, const QByteArray& speed) {
            return writeFile(folder.filePath(name), readFile(factory)
                                                        .replace("port=\"4000\"", server)
                                                        .replace("maxSpeed=\"90\"", "maxSpeed=" + speed));
        };
        const QString bad = changed("bad.xml", "port=\"0\" x=\"1\"", "\"900\" maxSpeed2=\"1\"");
        const QString good = changed("good.xml", "port=\"0\"", "\"70\"");
        const auto shown = [&] {
            QStringList paths;
            auto* model =
                qobject_cast<vlk::DifferenceModel*>(child<QTableView>("tableView_Differences")->model());
            for (int line = 0; line < model->rowCount(); ++line)
                paths << model->at(line).path;
            paths = paths.filter("/"); // without what was filled in on loading, behind a line for each page
            paths.sort();
            return paths;
        };
        open(bad);
        QTest::keyClick(dialog_.get(), Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(toldPaths({"check", bad}, "finding"), shown());
        QCOMPARE(shown().size(), 3);
        QStringList advice;
        for (const vlk::review::Finding& finding : dialog_->review().advice())
            advice << (finding.mends.empty() ? finding.paths.first() : finding.mends.front().path);
        advice.sort();
        QCOMPARE(toldPaths({"check", bad}, "advice"), advice);
        QVERIFY(!advice.isEmpty());

        open(factory, 0);
        const QString quick = folder.filePath("quick.xml");
        QVERIFY(dialog_->saveQuickToFile(quick));
        open(quick);
        QCOMPARE(toldPaths({"check", quick}, "finding"), shown());
        QVERIFY(shown().contains("TRANS/SRV1/format"));
        // With another file it is compared as it would be saved, which the panel says.
        QVERIFY(dialog_->review().compareWith(vlk::ConfigurationReview::Against::OtherFile, bad));
        QCOMPARE(child<QLabel>("label_UneditedSummary")->text(), QString("rev_741"));
        QCOMPARE(toldPaths({"diff", bad, writeFile(folder.filePath("full.xml"), saved())}, {}), shown());

        open(good);
        QVERIFY(dialog_->review().compareWith(vlk::ConfigurationReview::Against::OtherFile, factory));
        QCOMPARE(toldPaths({"diff", factory, good}, {}), shown());
        QCOMPARE(shown().size(), 2);
    }

private:
    static QStringList toldPaths(const QStringList& call, const QString& kind)
    {
        QProcess program;
        program.start(VLK_COMMAND, call + QStringList("--json"));
        QStringList paths;
        if (program.waitForFinished()) {
            for (const QByteArray& line : program.readAllStandardOutput().split('\n')) {
                const QJsonObject told = QJsonDocument::fromJson(line).object();
                if (!told.isEmpty() && told["kind"].toString() == kind)
                    paths << told["path"].toString();
            }
        }
        paths.sort();
        return paths;
    }
};

QTEST_MAIN(ReviewWindowsTest)
#include "tst_review_windows.moc"
