#pragma once

// The workbench as it is with the plug-in as it is, and what a person does round a write: by keys and
// buttons, in whichever window can be reached.

#include "opened_workbench.h"
#include "tracker/configuration_values.h"

#include <QtTest>
#include <QtWidgets>

struct RoadBench : OpenedWorkbench
{
    RoadBench() { start(VLK_PLUGIN); }
    ~RoadBench()
    {
        session().link().send(vlk::Message::CloseWindows);
        window.close();
    }

    workbench::HostSession& session() { return window.session(); }
    QString nameInTracker() { return session().tracker().configuration().text("TRANS/OBJECT/name"); }

    template <class Widget = QWidget>
    static Widget* find(const char* name)
    {
        // What a person can reach first of all.
        QWidgetList tops = QApplication::topLevelWidgets();
        if (QWidget* modal = QApplication::activeModalWidget())
            tops.prepend(modal);
        for (QWidget* top : tops) {
            if (top->isVisible() && top->objectName() == QLatin1String(name))
                return qobject_cast<Widget*>(top);
            for (QWidget* child : top->findChildren<QWidget*>(QLatin1String(name))) {
                if (child->isVisible())
                    return qobject_cast<Widget*>(child);
            }
        }
        return nullptr;
    }
    static void press(const char* name)
    {
        auto* button = find<QAbstractButton>(name);
        QVERIFY2(button && button->isEnabled(), name);
        button->click();
    }
    // A write takes a second; on a machine that does much else at once it takes many.
    static constexpr int kPatienceMs = 30'000;
    static bool comes(const char* name)
    {
        return QTest::qWaitFor([name] { return find(name) != nullptr; }, kPatienceMs);
    }
    static bool goes(const char* name)
    {
        return QTest::qWaitFor([name] { return !find(name); }, kPatienceMs);
    }
    // Once the review has come and may be answered.
    static bool isReviewed()
    {
        const auto mayBeAnswered = [] {
            const auto* write = find<QAbstractButton>("pushButton_Write");
            return write && write->isEnabled();
        };
        return QTest::qWaitFor(mayBeAnswered, kPatienceMs);
    }
    void editName(const QString& name)
    {
        auto* field = find<QLineEdit>("lineEdit_Name");
        QVERIFY(field);
        QApplication::setActiveWindow(field->window());
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, name);
        QTest::keyClick(field, Qt::Key_Tab);
        press("pushButton_LoadToDevice");
    }
    static void tabTo(const char* name)
    {
        QWidget* wanted = find(name);
        QVERIFY2(wanted, name);
        QApplication::setActiveWindow(wanted->window());
        for (int tabs = 0; tabs < 20 && !wanted->hasFocus(); ++tabs)
            QTest::keyClick(wanted->window()->focusWidget(), Qt::Key_Tab);
        QVERIFY2(wanted->hasFocus(), name);
    }
    // They come over a window, take a click and go again.
    static void asksForFaults(const char* over)
    {
        QWidget* window = find(over);
        QVERIFY2(window, over);
        QApplication::setActiveWindow(window);
        QTest::keyClick(window, Qt::Key_F9);
        const auto* faults = window->findChild<QDialog*>("dialog_Faults");
        QVERIFY2(faults && faults->isVisible(), over);
        QTRY_COMPARE(QApplication::activeWindow(), faults);
        auto* silence = faults->findChild<QCheckBox*>("checkBox_SkipsPage");
        const QPoint at = silence->mapTo(faults, QPoint(8, silence->height() / 2));
        QTest::mouseClick(faults->windowHandle(), Qt::LeftButton, {}, at);
        QTRY_VERIFY2(silence->isChecked(), over);
        QTest::mouseClick(faults->windowHandle(), Qt::LeftButton, {}, at);
        QTRY_VERIFY2(!silence->isChecked(), over);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F9);
        QVERIFY2(!faults->isVisible(), over);
    }
    static void enter(const char* name)
    {
        tabTo(name);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
    // By Enter on the review and on the report.
    void write(const QString& name)
    {
        editName(name);
        QVERIFY(isReviewed());
        QTest::keyClick(find("dialog_Review"), Qt::Key_Return);
        QVERIFY(comes("dialog_Report"));
        QTest::keyClick(find("dialog_Report"), Qt::Key_Return);
        QVERIFY(goes("dialog_Report"));
        QCOMPARE(nameInTracker(), name);
    }
};
