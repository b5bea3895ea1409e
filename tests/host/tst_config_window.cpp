// The configuration dialog and the full window, driven through messages and widgets by name.

#include "support/allocated_bytes.h"
#include "support/answers.h"
#include "support/data_table.h"
#include "support/files.h"
#include "support/full_disk.h"
#include "support/scripted_host.h"
#include "support/typing.h"
#include "support/window_parts.h"

#include <QtTest>
#include <QtWidgets>

using vlk::Message;

class ConfigWindowTest : public QObject, private WindowParts
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(folder_.isValid());
        QDir::setCurrent(folder_.path());
        host_.start();
        host_.open({});
        window = ScriptedHost::window("VLK_Widget_Config");
    }

    void init()
    {
        host_.send(Message::TrackerDetached);
        host_.open({});
        host_.sent.clear();
    }

    void titleSaysWhereItCameFrom_data()
    {
        DataTable<bool, bool, bool, QString, QString>({"file", "full", "fromFile", "title", "page"})
            .row("new, full", false, true, false, "R-7106: New", "page_Full")
            .row("new, quick", false, false, false, "R-7106: New", "page_Light")
            .row("tracker", true, true, false, "R-7106: Device", "page_Full")
            .row("file", true, true, true, "R-7106: one.xml", "page_Full")
            .row("file, quick", true, false, true, "R-7106: one.xml", "page_Light");
    }
    void titleSaysWhereItCameFrom()
    {
        QFETCH(bool, file);
        QFETCH(bool, full);
        QFETCH(bool, fromFile);
        host_.open(file ? configuration(QStringLiteral("One")) : QString(), full, fromFile);
        QTEST(window->windowTitle(), "title");
        QTEST(shownPage(), "page");
        QVERIFY(window->isVisible());
        QVERIFY(window->isModal());
        QVERIFY(window->width() >= 1024 && window->height() >= 600);
    }

    // Runs a second time with everything at twice its size, on a screen that is too small for it.
    void opensWithinTheScreen()
    {
        const qreal ratio = window->devicePixelRatioF();
        const QSize least = QSize(1024, 600) / ratio;
        const QSize allowed = window->screen()->availableSize().expandedTo(least);
        for (const bool full : {true, false}) {
            host_.open({}, full);
            QApplication::processEvents();
            QCOMPARE(window->minimumSize(), least);
            QVERIFY(window->width() <= allowed.width() && window->height() <= allowed.height());
            window->resize(least);
            QApplication::processEvents();
            for (auto* button : window->findChildren<QPushButton*>(QRegularExpression("^pushButton_"))) {
                if (!button->isVisible() || tabPageOf(button))
                    continue;
                const QRect place(button->mapTo(window, QPoint()), button->size());
                QVERIFY2(window->rect().contains(place) &&
                             place.height() >= button->minimumSizeHint().height(),
                         qPrintable(button->objectName()));
            }
            window->resize(4000, 3000);
            host_.open({}, full);
            QVERIFY(window->width() <= allowed.width() && window->height() <= allowed.height());
        }
    }

    void openedAnewItStandsOnTheFirstField()
    {
        QCOMPARE(window->focusWidget(), name());
        portOf("page_Full")->setFocus();
        for (const bool isFull : {true, false}) {
            host_.open({}, isFull);
            QApplication::processEvents();
            QScrollBar* longest = nullptr;
            for (const QScrollArea* area : window->findChildren<QScrollArea*>()) {
                if (area->isVisible() && area->verticalScrollBar()->maximum() > 0)
                    longest = area->verticalScrollBar();
            }
            if (!longest)
                QFAIL("nothing scrolls");
            longest->setValue(longest->maximum());
            host_.open({}, isFull);
            QCOMPARE(longest->value(), 0);
        }
        host_.open(configuration(QStringLiteral("One")));
        QCOMPARE(window->focusWidget(), name());
    }

    // From the line above the pages over the fields and the panel to the buttons.
    void f6GoesRound()
    {
        host_.open(configuration(QStringLiteral("One")));
        QApplication::setActiveWindow(window);
        QApplication::processEvents();
        const auto round = [this] {
            QStringList names;
            for (int i = 0; i < 4; ++i) {
                QTest::keyClick(window, Qt::Key_F6);
                names << QApplication::focusWidget()->objectName();
            }
            return names.join(' ');
        };
        QCOMPARE(round(), QString("pushButton_SaveToFile lineEdit_Find lineEdit_Name pushButton_SaveToFile"));
        QTest::keyClick(window, Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(round(), QString("pushButton_SaveToFile lineEdit_Find lineEdit_Name tableView_Differences"));
        QTest::keyClick(window, Qt::Key_D, Qt::ControlModifier);
    }

    void helpKeyOpensTheTabsPage()
    {
        QTest::keyClick(name(), Qt::Key_F1);
        const auto help = host_.takeSent(Message::ShowHelp);
        QCOMPARE(help.size(), 1);
        QCOMPARE(help[0].text2, QStringLiteral("r-7106p1.html"));
    }

    void secondOpeningStartsFresh()
    {
        host_.open(configuration(QStringLiteral("One")));
        QCOMPARE(name()->text(), QStringLiteral("One"));

        host_.open(writeFile(folder_.filePath("other.xml"), "<DEVICE/>"));
        QCOMPARE(name()->text(), QStringLiteral("R-7106_Config"));

        type(name(), "<All>Typed");
        vlk::IdentityInfo identity{QStringLiteral("R-7106 LTE"), nullptr, QStringLiteral("VELTRONIKA")};
        host_.send(Message::SetIdentity, &identity);
        host_.open({});
        QCOMPARE(name()->text(), QStringLiteral("R-7106 LTE_Config"));
        identity.model = QStringLiteral("R-7106");
        host_.send(Message::SetIdentity, &identity);
        host_.open({});
        QCOMPARE(name()->text(), QStringLiteral("R-7106_Config"));
    }

    void writeButtonFollowsTheConnection()
    {
        for (const char* write : {"pushButton_LoadToDevice", "pushButton_Light_LoadToDevice"}) {
            QVERIFY(!isOn(write) && !child<QWidget>(write)->toolTip().isEmpty());
            host_.attach();
            QVERIFY(isOn(write) && child<QWidget>(write)->toolTip().isEmpty());
            host_.attach(QStringLiteral("R-0000"));
            QVERIFY(!isOn(write));
        }
    }

    void writesAFileAndHandsItOver()
    {
        host_.attach();
        for (const bool full : {true, false}) {
            host_.open(configuration(QStringLiteral("Ведомый «7»")), full);
            auto* write =
                child<QPushButton>(full ? "pushButton_LoadToDevice" : "pushButton_Light_LoadToDevice");
            write->setFocus();
            write->click();
            QCOMPARE(window->focusWidget(), write);
            const auto written = host_.takeSent(Message::WriteConfiguration);
            QCOMPARE(written.size(), 1);
            const QString pattern = QDir::currentPath() + (full ? "/vlk_R7106_" : "/vlk_R-7106_") +
                                    QStringLiteral("\\d{1,2}-\\d\\d-\\d\\d-\\d{1,2}-\\d{1,2}\\.xml");
            QVERIFY2(QRegularExpression(QRegularExpression::anchoredPattern(pattern))
                         .match(written[0].text1)
                         .hasMatch(),
                     qPrintable(written[0].text1));
            const QByteArray content = readFile(written[0].text1);
            QVERIFY(content.startsWith(
                "<?xml version=\"1.0\" encoding=\"windows-1251\"?>\n<DEVICE model=\"R-7106\" "
                "version=\"3.3.0\" creator=\"config\" vendor=\"VELTRONIKA\">\n"));
            QVERIFY(content.contains("<OBJECT name=\"\xc2\xe5\xe4\xee\xec\xfb\xe9 \xab"
                                     "7\xbb\"/>"));
            QVERIFY(QFile::remove(written[0].text1));
        }

        // The tracker goes while its file is on the way: the button must not come back enabled.
        QVERIFY(isOn("pushButton_LoadToDevice"));
        host_.send(Message::TrackerDetached);
        press("pushButton_LoadToDevice");
        QVERIFY(!isOn("pushButton_LoadToDevice"));
    }

    void failedSaveIsNotSent()
    {
        host_.attach();
        for (const bool full : {true, false}) {
            const char* write = full ? "pushButton_LoadToDevice" : "pushButton_Light_LoadToDevice";
            const char* save = full ? "pushButton_SaveToFile" : "pushButton_Light_SaveToFile";
            host_.open(configuration(QStringLiteral("First")), full);
            press(write);
            const auto written = host_.takeSent(Message::WriteConfiguration);
            QCOMPARE(written.size(), 1);
            const QByteArray first = readFile(written[0].text1);

            // Into the same file, unless the minute has just changed.
            host_.open(configuration(QStringLiteral("Second")), full);
            const QRegularExpression told(QStringLiteral("^/.+\\.xml: .*File too large$"));
            const FullDisk disk(100);
            QTest::ignoreMessage(QtWarningMsg, told);
            press(write);
            QVERIFY(host_.takeSent(Message::WriteConfiguration).isEmpty());
            QVERIFY(isOn(write));
            QCOMPARE(readFile(written[0].text1), first);

            answerFile(folder_.filePath(QStringLiteral("new.xml")));
            QTest::ignoreMessage(QtWarningMsg, told);
            press(save);
            QVERIFY(!QFile::exists(folder_.filePath(QStringLiteral("new.xml"))));
            QVERIFY(isOn(save));
        }
    }

    void savesWhereTheUserSays_data()
    {
        DataTable<QString, QByteArray>({"typed", "before"})
            .row("a new file", "saved.xml", {})
            .row("without a suffix", "saved", {})
            .row("over a configuration", "saved.xml", "<DEVICE><TRANS><OBJECT name='old'/></TRANS></DEVICE>")
            .row("over what is no XML", "saved.xml", "a list of purchases")
            .row("over a document type", "saved.xml", "<!DOCTYPE D [<!ENTITY a 'b'>]><D/>");
    }
    void savesWhereTheUserSays()
    {
        QFETCH(QString, typed);
        QFETCH(QByteArray, before);
        type(name(), "<All>Truck 7/8");
        const QString target = folder_.filePath(QStringLiteral("saved.xml"));
        if (!before.isEmpty())
            writeFile(target, before);
        QString suggested;
        answerFile(folder_.filePath(typed), &suggested);
        press("pushButton_SaveToFile");
        QVERIFY(QFile::exists(target));
        QVERIFY(isOn("pushButton_SaveToFile"));
        QVERIFY2(QRegularExpression(
                     QStringLiteral("Truck 7_8\\(\\d\\d-\\d\\d-\\d\\d \\d\\d_\\d\\d_\\d\\d\\)\\.xml$"))
                     .match(suggested)
                     .hasMatch(),
                 qPrintable(suggested));

        type(name(), "<All>changed");
        host_.open(target);
        QCOMPARE(name()->text(), QStringLiteral("Truck 7/8"));
        QVERIFY(QFile::remove(target));
    }

    void cancelledSaveWritesNothing()
    {
        const QStringList before = QDir::current().entryList();
        for (const char* save : {"pushButton_SaveToFile", "pushButton_Light_SaveToFile"}) {
            host_.open({}, qstrcmp(save, "pushButton_SaveToFile") == 0);
            answerFile({});
            press(save);
        }
        QCOMPARE(QDir::current().entryList(), before);
    }

    void switchesBetweenTheWindows()
    {
        const QStringList before = QDir::current().entryList();
        type(name(), "<All>Kept");
        auto* monitor = child<QCheckBox>("checkBox_AutoQuest");
        monitor->setChecked(true);
        for (const bool agree : {false, true}) {
            QString text;
            whenOpen<QMessageBox>([&](QMessageBox& box) {
                text = box.text();
                for (const QAbstractButton* button : box.buttons())
                    QVERIFY(!button->shortcut().isEmpty());
                box.buttons().at(agree ? 0 : 1)->click();
            });
            press("pushButton_ConfigLight");
            QVERIFY(text.contains(QStringLiteral("<br><br>")));
            QCOMPARE(shownPage(), agree ? QStringLiteral("page_Light") : QStringLiteral("page_Full"));
            QCOMPARE(monitor->isChecked(), !agree);
        }
        const QString own = writeFile(folder_.filePath("file.xml"), "<DEVICE>the user's own");
        QCOMPARE(portOf("page_Light")->value(), portOf("page_Full")->value());
        type(portOf("page_Light"), "<All>1234");
        press("pushButton_Light_ConfigFull");
        QCOMPARE(shownPage(), QStringLiteral("page_Full"));
        QCOMPARE(portOf("page_Full")->value(), 1234);
        QCOMPARE(name()->text(), QStringLiteral("Kept"));
        QCOMPARE(readFile(own), QByteArray("<DEVICE>the user's own"));
        QVERIFY(QFile::remove(own));
        QCOMPARE(QDir::current().entryList(), before);
    }

    void excessLocksAllButTheDataSet()
    {
        auto* tabs = child<QTabWidget>("tabWidget");
        auto* frame = child<QFrame>("frame_Excess");
        auto* menu = child<QPushButton>("pushButton_Goto")->menu();
        QVERIFY(QMetaObject::invokeMethod(full(), "slot_Excess_Size", Q_ARG(bool, true)));
        QVERIFY(!frame->isEnabled() && !menu->isEnabled() && !tabs->isTabEnabled(0));
        QVERIFY(QMetaObject::invokeMethod(full(), "slot_Excess_Size", Q_ARG(bool, false)));
        QVERIFY(frame->isEnabled() && menu->isEnabled() && tabs->isTabEnabled(0));
        QVERIFY(QMetaObject::invokeMethod(full(), "slot_Excess_Size", Q_ARG(bool, true)));
        host_.open({});
        QVERIFY(frame->isEnabled() && menu->isEnabled() && tabs->isTabEnabled(0));
    }

    void menuOpensTabs()
    {
        auto* tabs = child<QTabWidget>("tabWidget");
        auto* menu = child<QPushButton>("pushButton_Goto")->menu();
        QCOMPARE(menu->actions().size(), tabs->count());
        for (int tab = tabs->count() - 1; tab >= 0; --tab) {
            QCOMPARE(menu->actions().at(tab)->text(), tabs->tabText(tab));
            menu->actions().at(tab)->trigger();
            QCOMPARE(tabs->currentIndex(), tab);
            for (const QAction* entry : menu->actions())
                QCOMPARE(entry->isChecked(), menu->actions().indexOf(const_cast<QAction*>(entry)) == tab);
            const bool several = tabs->count() > 1;
            QCOMPARE(isOn("pushButton_Goto"), several);
            QCOMPARE(isOn("pushButton_PrevScreen"), several && tab > 0);
            QCOMPARE(isOn("pushButton_NextScreen"), several && tab < tabs->count() - 1);
            press("pushButton_Help");
            const auto help = host_.takeSent(Message::ShowHelp);
            QCOMPARE(help.size(), 1);
            QCOMPARE(help[0].text2, QStringLiteral("r-7106p%1.html").arg(tab + 1));
        }
        QVERIFY(child<QWidget>("pushButton_First")->isHidden() &&
                child<QWidget>("pushButton_Last")->isHidden());
    }

    void wheelAndEnterChangeNothing()
    {
        auto* port = portOf("page_Full");
        auto* key = child<QLineEdit>("lineEdit_Crypto");
        auto* group = child<QGroupBox>("GPRSSrv_groupBox_Main");
        group->setChecked(true);
        const int before = port->value();
        name()->setFocus();
        QWheelEvent wheel(QPointF(5, 5), port->mapToGlobal(QPoint(5, 5)), {}, QPoint(0, 120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(port, &wheel);
        QCOMPARE(port->value(), before);
        // A form that is made when it is chosen changes nothing by the wheel either.
        auto* type = child<QComboBox>("comboBox_Type_Sens_1");
        type->setCurrentIndex(1);
        for (auto* list : type->parentWidget()->findChildren<QComboBox*>()) {
            const int chosen = list->currentIndex();
            QWheelEvent down(QPointF(5, 5), list->mapToGlobal(QPoint(5, 5)), {}, QPoint(0, -120),
                             Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(list, &down);
            QVERIFY2(list->currentIndex() == chosen && !list->hasFocus(), qPrintable(list->objectName()));
        }
        QTest::keyClick(name(), Qt::Key_Return);
        QCOMPARE(key->text(), QString());
        QVERIFY(window->isVisible());
    }

    void escGivesBackAndASaveTakesWhatIsTyped()
    {
        host_.attach();
        auto* timer = child<QSpinBox>("spinBox_RegTimer");
        type(timer, "<All>60<Esc>");
        QCOMPARE(timer->value(), 90);
        const QString before = name()->text();
        type(name(), "abc<Esc>");
        QCOMPARE(name()->text(), before);
        type(timer, "<All>5000");
        type(full()->findChild<QLineEdit*>("GPRSSrv_lineEdit_IP_DNS_Main"), "10.0.0.1");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(": typed_range"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(": typed_port"));
        press("pushButton_LoadToDevice");
        const QString written = host_.takeSent(Message::WriteConfiguration).value(0).text1;
        QVERIFY(readFile(written).contains("regTimer=\"900\""));
        QVERIFY(QFile::remove(written));
    }

    // Every time, and no longer once it is mended, however that is done.
    void tellsWhatIsWrongNow()
    {
        static QStringList told;
        const auto before =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext& from, const QString& text) {
                if (QByteArray(from.category).startsWith("vlk.settings."))
                    told << text;
            });
        const auto restore = qScopeGuard([before] { qInstallMessageHandler(before); });
        host_.attach();
        auto* timer = child<QSpinBox>("spinBox_RegTimer");
        // What is told by then, since the write before.
        const auto write = [this] {
            press("pushButton_LoadToDevice");
            QFile::remove(host_.takeSent(Message::WriteConfiguration).value(0).text1);
            return std::exchange(told, {});
        };
        type(full()->findChild<QLineEdit*>("GPRSSrv_lineEdit_IP_DNS_Main"), "10.0.0.1<Tab>");
        type(timer, "<All>5000<Tab>");
        told.clear();
        const QStringList both = write();
        QCOMPARE(both.filter(": typed_range").size(), 1);
        QCOMPARE(both.filter(": typed_port").size(), 1);
        QCOMPARE(write(), both);
        const QStringList field{both.filter(": typed_range").value(0).section(": ", 0, 0)};
        const QStringList port = both.filter(": typed_port");
        type(timer, "<All>80<Tab>");
        QCOMPARE(write(), field + port);
        QCOMPARE(write(), port);
        // Taken back without a key in the field.
        type(timer, "<All>5000<Tab>");
        QCOMPARE(write().size(), 2);
        child<QToolButton>("toolButton_Undo")->click();
        const QStringList after = write();
        QVERIFY(after.contains(field[0]) && after.filter(": typed_range").isEmpty());
        QCOMPARE(after.filter(": typed_port"), port);
        child<QToolButton>("toolButton_Redo")->click();
        QCOMPARE(write().filter(": typed_range").size(), 1);
    }

    // Of a key alone no longer than the field has the keyboard, of all else no longer than the configuration
    // is open.
    void marksOfWhatWasNotTaken()
    {
        const QString path = configuration(QStringLiteral("One"));
        host_.open(path);
        auto* pin = full()->findChild<QLineEdit*>("Transfer_lineEdit_GSM_Pin1");
        QVERIFY(pin->text().isEmpty());
        QApplication::setActiveWindow(pin->window());
        QApplication::clipboard()->setText("PIN");
        for (const auto& [keys, isMarked] : {std::pair("x", true),
                                             {"<Tab>", false},
                                             {"1x2", true},
                                             {"<Tab>", true},
                                             {"<All><Back><Paste>", true},
                                             {"<Tab>", true}}) {
            type(pin, keys);
            QCOMPARE(pin->accessibleDescription().contains("typed_sign"), isMarked);
        }
        // Nor with a step of another field, and what a step takes away the next one brings again.
        for (const auto& [field, keys, told] : {std::tuple("lineEdit_Name", QString(70, 'x'), "typed_long"),
                                                {"lineEdit_Name_In1", QString("Key ☃"), "typed_sign"}}) {
            auto* line = full()->findChild<QLineEdit*>(field);
            int count = 0;
            // Once with nothing behind it, and once under another text, with another edit between the two.
            for (const char* steps : {"URU", "URLURUUU"}) {
                type(line, "<All>" + keys + "<Tab>");
                QApplication::processEvents();
                for (const char* step = steps; *step; ++step) {
                    if (*step == 'L') {
                        type(full()->findChild<QSpinBox*>("spinBox_RegTimer"), "<All>77<Tab>");
                        QApplication::processEvents();
                        type(line, "<All>Lock<Tab>");
                    } else {
                        press(*step == 'U' ? "toolButton_Undo" : "toolButton_Redo");
                    }
                    QApplication::processEvents();
                    const bool isTold = keys.startsWith(line->text()) && !line->text().isEmpty();
                    QVERIFY(pin->accessibleDescription().contains("typed_sign"));
                    QCOMPARE(line->accessibleDescription().contains(told), isTold);
                    count += isTold ? 1 : 0;
                }
            }
            QCOMPARE(count, 5);
        }
        host_.open(path);
        QVERIFY(pin->text().isEmpty() && !pin->accessibleDescription().contains("typed_sign"));
    }

    // The dialog lives as long as the process, so what an opening leaves behind is never given back.
    void openingsLeaveNothingBehind()
    {
        host_.attach();
        const auto useIt = [this](int times) {
            for (int n = 0; n < times; ++n) {
                host_.open(configuration(QStringLiteral("One")));
                child<QSpinBox>("spinBox_RegTimer")->setValue(100 + n);
                press("pushButton_LoadToDevice");
                host_.send(Message::CloseWindows);
                QApplication::processEvents();
                QFile::remove(host_.takeSent(Message::WriteConfiguration).value(0).text1);
            }
            return allocatedBytes();
        };
        // The allocator's own caches count as taken and fill slowly.
        const std::size_t before = useIt(120);
        const auto grown = std::ptrdiff_t(useIt(80) - before);
        QVERIFY2(grown < std::ptrdiff_t{80} * 300, qPrintable(QString::number(grown)));
        for (const QLineEdit* edit : window->findChildren<QLineEdit*>())
            QVERIFY2(!edit->isUndoAvailable(), qPrintable(edit->objectName()));
    }

    // Only the window that is written from tells: what the full window doubted the quick one may have mended.
    void quickWindowTellsOfItsOwn()
    {
        QStringList told;
        static QStringList* const log = &told;
        host_.attach();
        type(full()->findChild<QLineEdit*>("GPRSSrv_lineEdit_IP_DNS_Main"), "10.0.0.1<Tab>");
        ScriptedHost::whenModal([](QWidget* box) { box->findChildren<QAbstractButton*>()[0]->click(); });
        press("pushButton_ConfigLight");
        QCOMPARE(shownPage(), QString("page_Light"));
        auto* port = portOf("page_Light");
        const auto before = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& text) { *log << text; });
        press("pushButton_Light_LoadToDevice");
        type(port, "<All>4000<Tab>");
        press("pushButton_Light_LoadToDevice");
        qInstallMessageHandler(before);
        QCOMPARE(told.filter("typed_port").size(), 1);
        for (const ScriptedHost::Sent& written : host_.takeSent(Message::WriteConfiguration))
            QFile::remove(written.text1);
    }

    void numbersFollowTheLanguage()
    {
        const QLocale before;
        for (const char* language : {"ru", "en"}) {
            QLocale::setDefault(QLocale(language));
            host_.send(Message::LanguageChanged);
            QCOMPARE(child<QDoubleSpinBox>("doubleSpinBox_RejectCoord_maxHDOP")->text(),
                     QString("2") + QLocale().decimalPoint() + '5');
        }
        QLocale::setDefault(before);
    }

    void raiseAndClose()
    {
        host_.send(Message::RaiseConfiguration);
        QVERIFY(window->isVisible());
        const std::function<void()> closings[] = {
            [this] { press("pushButton_Close"); },
            [this] { host_.open({}, false), press("pushButton_Light_Close"); },
            [this] { host_.send(Message::CloseWindows); }, [this] { full()->close(); }};
        for (const auto& close : closings) {
            host_.open({});
            QVERIFY(window->isVisible());
            close();
            QVERIFY(!window->isVisible());
            host_.send(Message::RaiseConfiguration);
            QVERIFY(!window->isVisible());
        }
    }

private:
    static bool tabPageOf(const QWidget* widget)
    {
        while (widget && !qobject_cast<const QScrollArea*>(widget))
            widget = widget->parentWidget();
        return widget;
    }
    QWidget* full() { return ScriptedHost::window("VLK_Widget_Config_Full"); }
    QString shownPage() { return child<QStackedWidget>("stackedWidget")->currentWidget()->objectName(); }
    QLineEdit* name() { return child<QLineEdit>("lineEdit_Name"); }
    // Both windows have this box; what one holds the other takes over.
    QSpinBox* portOf(const char* page) const
    {
        return child<QWidget>(page)->findChild<QSpinBox*>("GPRSSrv_spinBox_Port_Main");
    }

    QString configuration(const QString& objectName)
    {
        return writeFile(folder_.filePath("one.xml"), ("<DEVICE><TRANS page=\"TRANS\"><OBJECT name=\"" +
                                                       objectName + "\"/></TRANS></DEVICE>")
                                                          .toUtf8());
    }

    ScriptedHost host_;
    QTemporaryDir folder_;
};

QTEST_MAIN(ConfigWindowTest)
#include "tst_config_window.moc"
