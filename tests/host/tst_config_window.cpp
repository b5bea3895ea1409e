// The configuration dialog and the full window, driven through messages and widgets by name.

#include "support/data_table.h"
#include "support/scripted_host.h"

#include <QDir>
#include <QFileDialog>
#include <QFrame>
#include <QGroupBox>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QWheelEvent>
#include <QtTest>

using vlk::Message;

class ConfigWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(folder_.isValid());
        QDir::setCurrent(folder_.path());
        host_.start();
        host_.open({});
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
        host_.open(file ? configuration("one.xml", QStringLiteral("One")) : QString(), full, fromFile);
        QTEST(dialog()->windowTitle(), "title");
        QTEST(shownPage(), "page");
        QVERIFY(dialog()->isVisible());
        QVERIFY(dialog()->isModal());
        QVERIFY(dialog()->width() >= 1024 && dialog()->height() >= 600);
    }

    void secondOpeningStartsFresh()
    {
        host_.open(configuration("one.xml", QStringLiteral("One")));
        QCOMPARE(name()->text(), QStringLiteral("One"));

        QFile other(folder_.filePath(QStringLiteral("other.xml")));
        QVERIFY(other.open(QIODevice::WriteOnly));
        other.write("<DEVICE/>");
        other.close();
        host_.open(other.fileName());
        QCOMPARE(name()->text(), QStringLiteral("R-7106_Config"));

        name()->setText(QStringLiteral("Typed"));
        host_.open({});
        QCOMPARE(name()->text(), QStringLiteral("R-7106_Config"));
    }

    void writeButtonFollowsTheConnection()
    {
        for (const char* write : {"pushButton_LoadToDevice", "pushButton_Light_LoadToDevice"}) {
            QVERIFY(!button(write)->isEnabled());
            host_.attach();
            QVERIFY(button(write)->isEnabled());
            host_.attach(QStringLiteral("R-0000"));
            QVERIFY(!button(write)->isEnabled());
        }
    }

    void writesAFileAndHandsItOver()
    {
        host_.attach();
        for (const bool full : {true, false}) {
            host_.open(configuration("one.xml", QStringLiteral("Ведомый «7»")), full);
            button(full ? "pushButton_LoadToDevice" : "pushButton_Light_LoadToDevice")->click();
            const auto written = host_.takeSent(Message::WriteConfiguration);
            QCOMPARE(written.size(), 1);
            const QString pattern = QDir::currentPath() + (full ? "/vlk_R7106_" : "/vlk_R-7106_") +
                                    QStringLiteral("\\d{1,2}-\\d\\d-\\d\\d-\\d{1,2}-\\d{1,2}\\.xml");
            QVERIFY2(QRegularExpression(QRegularExpression::anchoredPattern(pattern))
                         .match(written[0].text1)
                         .hasMatch(),
                     qPrintable(written[0].text1));
            QFile file(written[0].text1);
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QByteArray content = file.readAll();
            QVERIFY(content.startsWith(
                "<?xml version=\"1.0\" encoding=\"windows-1251\"?>\n<DEVICE model=\"R-7106\" "
                "version=\"3.3.0\" creator=\"config\" vendor=\"VELTRONIKA\">\n"));
            QVERIFY(content.contains("<OBJECT name=\"\xc2\xe5\xe4\xee\xec\xfb\xe9 \xab"
                                     "7\xbb\"/>"));
            QVERIFY(file.remove());
        }

        // The tracker goes while its file is on the way: the button must not come back enabled.
        QVERIFY(button("pushButton_LoadToDevice")->isEnabled());
        host_.send(Message::TrackerDetached);
        button("pushButton_LoadToDevice")->click();
        QVERIFY(!button("pushButton_LoadToDevice")->isEnabled());
    }

    void savesWhereTheUserSays()
    {
        name()->setText(QStringLiteral("Truck 7/8"));
        const QString target = folder_.filePath(QStringLiteral("saved.xml"));
        QString suggested;
        ScriptedHost::whenModal([&](QWidget* open) {
            auto* dialog = qobject_cast<QFileDialog*>(open);
            suggested = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
            dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(target);
            static_cast<QDialog*>(dialog)->accept();
        });
        button("pushButton_SaveToFile")->click();
        QVERIFY(QFile::exists(target));
        QVERIFY(button("pushButton_SaveToFile")->isEnabled());
        QVERIFY2(QRegularExpression(
                     QStringLiteral("Truck 7_8\\(\\d\\d-\\d\\d-\\d\\d \\d\\d_\\d\\d_\\d\\d\\)\\.xml$"))
                     .match(suggested)
                     .hasMatch(),
                 qPrintable(suggested));

        name()->setText(QStringLiteral("changed"));
        host_.open(target);
        QCOMPARE(name()->text(), QStringLiteral("Truck 7/8"));
        QVERIFY(QFile::remove(target));
    }

    void cancelledSaveWritesNothing()
    {
        const QStringList before = QDir::current().entryList();
        for (const char* save : {"pushButton_SaveToFile", "pushButton_Light_SaveToFile"}) {
            host_.open({}, qstrcmp(save, "pushButton_SaveToFile") == 0);
            ScriptedHost::whenModal([](QWidget* open) { open->close(); });
            button(save)->click();
        }
        QCOMPARE(QDir::current().entryList(), before);
    }

    void switchesBetweenTheWindows()
    {
        name()->setText(QStringLiteral("Kept"));
        for (const bool agree : {false, true}) {
            QString text;
            ScriptedHost::whenModal([&](QWidget* open) {
                auto* box = qobject_cast<QMessageBox*>(open);
                text = box->text();
                box->buttons().at(agree ? 0 : 1)->click();
            });
            button("pushButton_ConfigLight")->click();
            QVERIFY(text.contains(QStringLiteral("<br><br>")));
            QCOMPARE(shownPage(), agree ? QStringLiteral("page_Light") : QStringLiteral("page_Full"));
        }
        button("pushButton_Light_ConfigFull")->click();
        QCOMPARE(shownPage(), QStringLiteral("page_Full"));
        QCOMPARE(name()->text(), QStringLiteral("Kept"));
        QVERIFY(!QFile::exists(QStringLiteral("file.xml")));
    }

    void excessLocksAllButTheDataSet()
    {
        auto* tabs = ScriptedHost::child<QTabWidget>(full(), "tabWidget");
        auto* frame = ScriptedHost::child<QFrame>(full(), "frame_Excess");
        auto* menu = button("pushButton_Goto")->menu();
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
        auto* tabs = ScriptedHost::child<QTabWidget>(full(), "tabWidget");
        auto* menu = button("pushButton_Goto")->menu();
        QCOMPARE(menu->actions().size(), tabs->count());
        for (int tab = tabs->count() - 1; tab >= 0; --tab) {
            QCOMPARE(menu->actions().at(tab)->text(), tabs->tabText(tab));
            menu->actions().at(tab)->trigger();
            QCOMPARE(tabs->currentIndex(), tab);
            const bool several = tabs->count() > 1;
            QCOMPARE(button("pushButton_Goto")->isEnabled(), several);
            QCOMPARE(button("pushButton_PrevScreen")->isEnabled(), several && tab > 0);
            QCOMPARE(button("pushButton_NextScreen")->isEnabled(), several && tab < tabs->count() - 1);
            button("pushButton_Help")->click();
            const auto help = host_.takeSent(Message::ShowHelp);
            QCOMPARE(help.size(), 1);
            QCOMPARE(help[0].text2, QStringLiteral("r-7106p%1.html").arg(tab + 1));
        }
        QVERIFY(button("pushButton_First")->isHidden() && button("pushButton_Last")->isHidden());
    }

    void wheelAndEnterChangeNothing()
    {
        auto* port = ScriptedHost::child<QSpinBox>(full(), "GPRSSrv_spinBox_Port_Main");
        auto* key = ScriptedHost::child<QLineEdit>(full(), "lineEdit_Crypto");
        auto* group = ScriptedHost::child<QGroupBox>(full(), "GPRSSrv_groupBox_Main");
        group->setChecked(true);
        const int before = port->value();
        name()->setFocus();
        QWheelEvent wheel(QPointF(5, 5), port->mapToGlobal(QPoint(5, 5)), {}, QPoint(0, 120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(port, &wheel);
        QCOMPARE(port->value(), before);
        QTest::keyClick(name(), Qt::Key_Return);
        QCOMPARE(key->text(), QString());
        QVERIFY(dialog()->isVisible());
    }

    void raiseAndClose()
    {
        host_.send(Message::RaiseConfiguration);
        QVERIFY(dialog()->isVisible());
        button("pushButton_Close")->click();
        QVERIFY(!dialog()->isVisible());
        host_.send(Message::RaiseConfiguration);
        QVERIFY(!dialog()->isVisible());
        host_.open({}, false);
        button("pushButton_Light_Close")->click();
        QVERIFY(!dialog()->isVisible());
        host_.open({});
        host_.send(Message::CloseWindows);
        QVERIFY(!dialog()->isVisible());
        host_.open({});
        full()->close();
        QVERIFY(!dialog()->isVisible());
    }

private:
    QWidget* dialog() { return ScriptedHost::window("VLK_Widget_Config"); }
    QWidget* full() { return ScriptedHost::window("VLK_Widget_Config_Full"); }
    QPushButton* button(const char* name) { return ScriptedHost::child<QPushButton>(dialog(), name); }
    QString shownPage()
    {
        return dialog()->findChild<QStackedWidget*>("stackedWidget")->currentWidget()->objectName();
    }
    QLineEdit* name() { return ScriptedHost::child<QLineEdit>(full(), "lineEdit_Name"); }

    QString configuration(const char* file, const QString& objectName)
    {
        QFile out(folder_.filePath(QString::fromLatin1(file)));
        if (!out.open(QIODevice::WriteOnly))
            return {};
        out.write(QStringLiteral("<DEVICE><TRANS page=\"TRANS\"><OBJECT name=\"%1\"/></TRANS></DEVICE>")
                      .arg(objectName)
                      .toUtf8());
        return out.fileName();
    }

    ScriptedHost host_;
    QTemporaryDir folder_;
};

QTEST_MAIN(ConfigWindowTest)
#include "tst_config_window.moc"
