// Undo and redo, the panel of differences and finding a setting, over the whole dialog.

#include "dialog/config_pages.h"
#include "dialog/widget_config.h"
#include "dialog/widget_config_full.h"
#include "link/messages.h"
#include "settings/kinds/mask.h"
#include "support/device.h"
#include "support/files.h"
#include "support/setting_samples.h"

#include <QtTest>
#include <QtWidgets>

#include <random>

class ReviewWindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        device_.initialize(nullptr);
        dialog_ = std::make_unique<VLK_Widget_Config>();
        open(VLK_SOURCE "/fuzz/corpus/settings/factory.xml");
    }
    void cleanup() { dialog_.reset(); }

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
        while (history().canUndo())
            history().undo();
        QCOMPARE(dialog_->review().edited(), 0);
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
        QTest::keyClick(dialog_.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(port->value(), 6666);
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
        // Of two lines one is left out, and is the one that stays.
        table->setFocus();
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
        QVERIFY(!mend->isEnabled());
        QTest::keyClick(table, Qt::Key_Down);
        QTest::keyClick(table, Qt::Key_Return);
        QVERIFY(!table->hasFocus() && child<QTabWidget>("tabWidget")->currentIndex() == 1);
        mend->click();
        QCOMPARE(button->text(), QString("1"));
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
        // There is nothing left to clear, and the window stays.
        QTest::keyClick(find, Qt::Key_Escape);
        QVERIFY(dialog_->isVisible());
    }

private:
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

    TestDevice device_;
    std::unique_ptr<VLK_Widget_Config> dialog_;
};

QTEST_MAIN(ReviewWindowsTest)
#include "tst_review_windows.moc"
