// Undo and redo, the panel of differences and finding a setting, over the whole dialog.

#include "dialog/config_pages.h"
#include "dialog/difference_model.h"
#include "dialog/widget_config.h"
#include "dialog/widget_config_full.h"
#include "link/messages.h"
#include "review/mask_field.h"
#include "review/recovery.h"
#include "support/device.h"
#include "support/files.h"
#include "support/full_disk.h"
#include "support/setting_samples.h"

#include <QtTest>
#include <QtWidgets>

#include <random>

class ReviewWindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init()
    {
        device_.initialize(nullptr);
        dialog_ = std::make_unique<VLK_Widget_Config>();
        open(VLK_SOURCE "/fuzz/corpus/settings/factory.xml");
    }
    void cleanup()
    {
        dialog_.reset();
        // Which panel is open is remembered there.
        QFile::remove(device_.xmlFolder() + "/review-panel.ini");
    }

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
            const QStringList samples = samplesOf(page.values().setting(row));
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
            QCOMPARE(page.binder().disagreements(), QStringList());
            before = after;
        }
        vlk::review::Unsaved unsaved;
        unsaved.after = dialog_->review().document();
        while (history().canUndo())
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
                const QStringList samples = samplesOf(page.values().setting(row));
                page.binder().set(
                    row, samples[static_cast<int>(random() % static_cast<unsigned>(samples.size()))]);
            }
            unsaved.after = dialog_->review().document();
            unsaved.quick = dialog_->review().quickValues();
            history().settle();
            while (history().canUndo())
                history().undo();
            unsaved.before = dialog_->review().document();
            dialog_->review().bringBack(unsaved, [] { return QString(); });
            QCOMPARE(dialog_->review().document(), unsaved.after);
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
            const QStringList samples = samplesOf(page.values().setting(row));
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
        QVERIFY(!history().canUndo());
    }

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

    // A bound that a typed one pushes away comes back with it, though not when that is typed back.
    void pushedBound()
    {
        child<QTabWidget>("tabWidget")->setCurrentIndex(5);
        auto* least = child<QDoubleSpinBox>("doubleSpinBox_Left_Temp_1");
        auto* most = child<QDoubleSpinBox>("doubleSpinBox_Right_Temp_1");
        const QByteArray before = saved();
        for (const char* last : {"-30", "8"}) {
            type(most, "-30");
            type(most, last);
            QCOMPARE(least->value(), -36.0);
            QVERIFY(child<QWidget>("mark_doubleSpinBox_Left_Temp_1")->toolTip().startsWith("rev_160"));
            child<QToolButton>("toolButton_Undo")->click();
            QCOMPARE(saved(), before);
        }
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
        QCOMPARE(child<QFrame>("frame_Found")->geometry().center(), box->geometry().center());
        QTest::keyClick(box, Qt::Key_Space);
        QCoreApplication::processEvents();
        auto* mark = box->parentWidget()->findChild<QWidget*>("mark_" + box->objectName());
        QVERIFY(mark && mark->isVisible());
        QCOMPARE(choose(box, "action_BringBack"), 3);
        QCOMPARE(saved(), before);
        QVERIFY(!mark->isVisible());
    }

    // Other values come while it is loading: a step taken back meanwhile would mix both.
    void undoWhileLoading()
    {
        const QByteArray before = saved();
        type(child<QSpinBox>("GPRSSrv_spinBox_Port_Main"), "5555");
        connect(history().pages()[3], &vlk::PageSettings::shown, dialog_.get(), [this] { history().undo(); });
        open(VLK_SOURCE "/fuzz/corpus/settings/factory.xml");
        QCOMPARE(saved(), before);
        QVERIFY(!history().canUndo() && !history().canRedo());
    }

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
        table->clearSelection();
        // Of two lines one is left out, and is the one that stays.
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
        QTest::keyClick(list, Qt::Key_Escape);
        QVERIFY(!dialog_->isVisible());
    }

    void otherSides()
    {
        const QByteArray before = saved();
        auto* against = child<QComboBox>("comboBox_Against");
        child<QToolButton>("toolButton_Differences")->click();
        const auto choose = [&](int index) {
            against->setCurrentIndex(index);
            Q_EMIT against->activated(index);
        };
        choose(1);
        auto* table = child<QTableView>("tableView_Differences");
        QVERIFY(table->model()->rowCount() > 10);
        child<QPushButton>("pushButton_TakeOver")->click();
        QCOMPARE(table->model()->rowCount(), 0);
        QVERIFY(saved() != before);
        history().undo();
        QCOMPARE(saved(), before);
        QVERIFY(!dialog_->review().compareWith(vlk::ConfigurationReview::Against::otherFile, "no such file"));
    }

    void windowsShareTheSteps()
    {
        type(child<QSpinBox>("GPRSSrv_spinBox_Port_Main"), "5555");
        const QByteArray full = saved();
        child<QToolButton>("toolButton_Differences")->click();
        dialog_->switchToQuick();
        QTRY_COMPARE(child<QTableView>("tableView_Differences")->model()->rowCount(),
                     dialog_->review().edited());
        QVERIFY(dialog_->review().edited() > 1);
        QVERIFY(!dialog_->review().listed().front().path.startsWith("TRANS"));
        QTRY_VERIFY(child<QToolButton>("toolButton_Undo")->isVisible());
        history().undo();
        QCOMPARE(saved(), full);
        QVERIFY(dialog_->fullWindow()->isVisible());
        history().redo();
        QVERIFY(!dialog_->fullWindow()->isVisible());
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
        mend->click();
        QCOMPARE(button->text(), QString("1"));
        history().undo();
        QCOMPARE(button->text(), QString("2"));
        table->setFocus();
        QTest::keyClick(table, Qt::Key_Escape);
        QVERIFY(!table->isVisible());
    }

    // Advice about one of many boxes marks that box.
    void markOfOneOfManyBoxes()
    {
        open({});
        child<QTabWidget>("tabWidget")->setCurrentIndex(2);
        dialog_->review().mend(
            {{"SENSORS/IN1/ign", "0"}, {"TRACK/POINTS/useTimer", "1"}, {"TRACK/POINTS/moveTimerSens", "110"}},
            [] { return QString(); });
        QVERIFY(child<QWidget>("checkBox_TmrFlag_In1")->toolTip().contains("adv_044"));
        QVERIFY(!child<QWidget>("checkBox_TmrFlag_Engine")->toolTip().contains("adv_044"));
    }

    // Its form is made when it is first needed, and is compared from the beginning.
    void newInQuickSetup()
    {
        open({}, 0);
        QCOMPARE(child<QToolButton>("toolButton_Differences")->text(), QString("0"));
        type(dialog_->findChild<QWidget*>("page_Light")->findChild<QSpinBox*>("GPRSSrv_spinBox_Port_Main"),
             "5555");
        QCOMPARE(child<QToolButton>("toolButton_Differences")->text(), QString("1"));
    }

    // The settings that were changed go into a preset, the object's name on demand, and come from there in
    // one step, in either window beside what was edited there.
    void presetIsSavedAndApplied()
    {
        type(child<QSpinBox>("GPRSSrv_spinBox_Port_Main"), "5555");
        type(child<QLineEdit>("lineEdit_Name"), "KAMAZ");
        for (const bool named : {true, false}) {
            QTest::keyClick(dialog_.get(), Qt::Key_D, Qt::ControlModifier);
            answerNext<QMessageBox>([named](QMessageBox* box) {
                if (named)
                    QTest::keyClick(box->checkBox(), Qt::Key_Space);
                QTest::keyClick(box, Qt::Key_Return);
            });
            const QString path = folder_.filePath(named ? "named.xml" : "chosen.xml");
            chooseNext(path);
            child<QPushButton>("pushButton_SavePreset")->click();
            QCOMPARE(child<QLabel>("label_Unsaved")->text(), QString("rev_218"));
            const QByteArray preset = readFile(path);
            QVERIFY(preset.contains("<DEVICE creator=\"preset\">") && preset.contains("port=\"5555\""));
            QCOMPARE(preset.contains("KAMAZ"), named);
            QVERIFY(!named || !(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther)));
            QCOMPARE(preset.count('='), named ? 6 : 5);
            QTest::keyClick(dialog_.get(), Qt::Key_D, Qt::ControlModifier);
        }
        while (history().canUndo())
            history().undo();
        const QByteArray before = saved();
        chooseNext(folder_.filePath("chosen.xml"));
        child<QPushButton>("pushButton_Document")->menu()->actions().first()->trigger();
        auto* table = child<QTableView>("tableView_Differences");
        QVERIFY(table->isVisible());
        QCOMPARE(table->model()->rowCount(), 1);
        // An edit beside the preset is none of its differences.
        type(child<QLineEdit>("lineEdit_Name"), "MAZ");
        QCOMPARE(table->model()->rowCount(), 1);
        child<QPushButton>("pushButton_TakeOver")->click();
        QCOMPARE(table->model()->rowCount(), 0);
        QVERIFY(saved().contains("port=\"5555\"") && saved().contains("\"MAZ\""));
        history().undo();
        history().undo();
        QCOMPARE(saved(), before);

        dialog_->switchToQuick();
        auto* light = dialog_->findChild<QWidget*>("page_Light");
        auto* address = light->findChild<QLineEdit*>("GPRSSrv_lineEdit_IP_DNS_Main");
        type(address, "example.com");
        QVERIFY(dialog_->showPreset(folder_.filePath("chosen.xml")));
        QCOMPARE(table->model()->rowCount(), 1);
        child<QPushButton>("pushButton_TakeOver")->click();
        QCOMPARE(light->findChild<QSpinBox*>("GPRSSrv_spinBox_Port_Main")->value(), 5555);
        QCOMPARE(address->text(), QString("example.com"));
    }

    // It sets all fields of a record, which is told before and behind.
    void presetOfOneField()
    {
        auto* box = child<QCheckBox>("checkBox_State_2");
        box->click();
        history().settle();
        child<QToolButton>("toolButton_Differences")->click();
        chooseNext(folder_.filePath("field.xml"));
        child<QPushButton>("pushButton_SavePreset")->click();
        QVERIFY(child<QLabel>("label_Unsaved")->text().endsWith("rev_252"));
        history().undo();
        QVERIFY(dialog_->showPreset(folder_.filePath("field.xml")));
        auto* model = child<QTableView>("tableView_Differences")->model();
        QCOMPARE(model->rowCount(), 1);
        QCOMPARE(model->index(0, vlk::DifferenceModel::Note).data().toString(), QString("rev_251"));
    }

    // What does not fit comes first, with its reason and without a check mark; a full disk is told.
    void presetsInTrouble()
    {
        const QString path = folder_.filePath("bad.xml");
        writeFile(path, "<DEVICE creator=\"preset\"><TRACK><POINTS angle=\"7\" dist=\"far\" bend=\"1\"/>"
                        "<POINTS angle=\"8\"/></TRACK></DEVICE>");
        QVERIFY(dialog_->showPreset(path));
        auto* model = child<QTableView>("tableView_Differences")->model();
        QStringList notes;
        for (int line = 0; line < model->rowCount(); ++line)
            notes << model->index(line, 3).data().toString() +
                         (model->index(line, 0).data(Qt::CheckStateRole).isNull() ? "" : "+");
        QCOMPARE(notes, QStringList({"rev_184", "rev_185", "rev_187", "5 abbr_016+"}));
        QVERIFY(!dialog_->showPreset("no such file"));
        QVERIFY(!dialog_->showPreset(writeFile(path, "<OTHER creator=\"preset\"/>")));
        QString told;
        const auto tell = [&told](QMessageBox* box) {
            told = box->text();
            QTest::keyClick(box, Qt::Key_Return);
        };
        // Nothing has been changed that a preset could hold.
        dialog_->review().compareWith(vlk::ConfigurationReview::Against::file);
        answerNext<QMessageBox>(tell);
        child<QPushButton>("pushButton_Document")->menu()->actions().at(1)->trigger();
        QCOMPARE(told, QString("rev_226"));
        child<QToolButton>("toolButton_Differences")->click();
        type(child<QSpinBox>("GPRSSrv_spinBox_Port_Main"), "5555");
        child<QToolButton>("toolButton_Differences")->click();
        chooseNext(folder_.filePath("full.xml"));
        answerNext<QMessageBox>(tell);
        const FullDisk disk(10);
        child<QPushButton>("pushButton_SavePreset")->click();
        QCOMPARE(told, QString("rev_198"));
        QVERIFY(!QFile::exists(folder_.filePath("full.xml")));
        chooseNext(folder_.filePath("full.csv"));
        child<QPushButton>("pushButton_SaveDifferences")->click();
        QCOMPARE(child<QLabel>("label_Unsaved")->text(), QString("rev_198"));
    }

    void reportIsKept()
    {
        type(child<QLineEdit>("Transfer_lineEdit_GSM_Pin1"), "8765");
        // Also what is still being typed.
        auto* port = child<QSpinBox>("GPRSSrv_spinBox_Port_Main");
        port->setFocus();
        port->selectAll();
        QTest::keyClicks(port, "5555");
        QTest::keyClick(port, Qt::Key_P, Qt::ControlModifier);
        auto* preview = child<QTextBrowser>("textBrowser_Report");
        QVERIFY(preview->isVisible());
        const int all = preview->toPlainText().size();
        child<QCheckBox>("checkBox_OnePage")->click();
        QVERIFY(preview->toPlainText().size() < all / 2);
        QTest::keyClick(child<QComboBox>("comboBox_ReportContents"), Qt::Key_Down);
        QVERIFY(preview->toPlainText().contains("5555") && !preview->toPlainText().contains("8765"));
        const auto save = [&](const char* button, const QString& path) {
            chooseNext(path);
            child<QPushButton>(button)->click();
            return readFile(path);
        };
        QVERIFY(save("pushButton_ReportPdf", folder_.filePath("report.pdf")).startsWith("%PDF"));
        child<QCheckBox>("checkBox_ReportSecrets")->click();
        const QString html = folder_.filePath("report.html");
        QVERIFY(save("pushButton_ReportHtml", html).contains("8765"));
        QVERIFY(!(QFile::permissions(html) & (QFile::ReadGroup | QFile::ReadOther)));
        auto* notice = child<QLabel>("label_ReportNotice");
        QCOMPARE(notice->text(), QString("rev_218"));
        const FullDisk disk(10);
        QCOMPARE(save("pushButton_ReportPdf", folder_.filePath("full.pdf")), QByteArray("no file"));
        QCOMPARE(notice->text(), QString("rev_198"));
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

        open(good);
        QVERIFY(dialog_->review().compareWith(vlk::ConfigurationReview::Against::otherFile, factory));
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
    void open(const QString& path, int full = 1)
    {
        vlk::OpenRequest request{.showFull = full, .fromFile = 1, .path = {}};
        qstrncpy(request.path, path.toLocal8Bit().constData(), sizeof request.path);
        char ussd[vlk::balanceUssdSize] = {};
        dialog_->open(request, ussd);
        QVERIFY(QTest::qWaitForWindowActive(dialog_.get()));
    }
    vlk::EditHistory& history() { return dialog_->review().history(); }
    QByteArray saved()
    {
        vlk::XmlDocument document(QString(), "DEVICE");
        dialog_->fullWindow()->saveToXml(document.root());
        return document.text();
    }
    template <class T>
    T* child(const char* name) const
    {
        auto* found = dialog_->findChild<T*>(name);
        if (!found)
            qFatal("no %s", name);
        return found;
    }
    // Does it to the next window of that kind that comes up in front.
    template <class Window>
    static void answerNext(std::function<void(Window*)> answer)
    {
        auto* timer = new QTimer(qApp);
        QObject::connect(timer, &QTimer::timeout, timer, [timer, answer] {
            if (auto* window = qobject_cast<Window*>(QApplication::activeModalWidget())) {
                timer->deleteLater();
                timer->stop();
                answer(window);
            }
        });
        timer->start(5);
    }
    static void chooseNext(const QString& path)
    {
        answerNext<QFileDialog>([path](QFileDialog* dialog) {
            dialog->findChild<QLineEdit*>("fileNameEdit")->setText(path);
            QMetaObject::invokeMethod(dialog, "accept");
        });
    }
    static void type(QWidget* field, const QString& keys)
    {
        field->setFocus();
        QMetaObject::invokeMethod(field, "selectAll");
        QTest::keyClicks(field, keys);
        QTest::keyClick(field, Qt::Key_Tab);
        QCoreApplication::processEvents();
    }

    QLabel* captionOf(const QWidget* field) const
    {
        const auto labels = dialog_->findChildren<QLabel*>();
        const auto found = std::ranges::find(labels, field, &QLabel::buddy);
        return found == labels.end() ? nullptr : *found;
    }
    // Opens the menu there and chooses one of its entries; gives their number.
    static int choose(QWidget* widget, const char* action)
    {
        int count = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, [&] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (!menu)
                return;
            timer.stop();
            count = menu->actions().size();
            if (auto* entry = menu->findChild<QAction*>(action))
                entry->trigger();
            menu->close();
        });
        timer.start(20);
        QContextMenuEvent event(QContextMenuEvent::Mouse, widget->rect().center(),
                                widget->mapToGlobal(widget->rect().center()));
        QApplication::sendEvent(widget, &event);
        (void)QTest::qWaitFor([&] { return count > 0; });
        QCoreApplication::processEvents();
        return count;
    }

    QTemporaryDir folder_;
    TestDevice device_;
    std::unique_ptr<VLK_Widget_Config> dialog_;
};

QTEST_MAIN(ReviewWindowsTest)
#include "tst_review_windows.moc"
