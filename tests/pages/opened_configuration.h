#pragma once

// The dialog of the configuration with the factory's one open in the full window, its widgets by their names,
// and what a person does to them.

#include "dialog/widget_config.h"
#include "dialog/widget_config_full.h"
#include "link/messages.h"
#include "support/device.h"
#include "xml/xml_document.h"

#include <QtTest>
#include <QtWidgets>

class OpenedConfiguration
{
protected:
    void start()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        device_.initialize(nullptr);
        dialog_ = std::make_unique<VLK_Widget_Config>();
        open(VLK_SOURCE "/fuzz/corpus/settings/factory.xml");
    }
    void end()
    {
        dialog_.reset();
        // Which panel is open is remembered there.
        QFile::remove(device_.xmlFolder() + "/.settings/review-panel.ini");
    }

    void open(const QString& path, int full = 1)
    {
        vlk::OpenRequest request{.showFull = full, .fromFile = 1, .path = {}};
        qstrncpy(request.path, path.toLocal8Bit().constData(), sizeof request.path);
        char ussd[vlk::kBalanceUssdSize] = {};
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
            suggested_ = QFileInfo(dialog->selectedFiles().value(0)).fileName();
            startedIn_ = QFileInfo(dialog->directory().path()).fileName();
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
        QObject::connect(&timer, &QTimer::timeout, [&] {
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

    static inline QString suggested_; // the name of the last file that was asked for
    static inline QString startedIn_; // the folder where it was
    QTemporaryDir folder_;
    TestDevice device_;
    std::unique_ptr<VLK_Widget_Config> dialog_;
};
