#pragma once

// Dialogs that wait for an answer, and get it.

#include <QtTest>
#include <QtWidgets>

// Closes the message box that is up after an act, or comes up within it, and gives its text.
inline QString messageDuring(const std::function<void()>& act)
{
    QString text;
    const auto close = [&text] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            text = box->text();
            box->close();
        }
    };
    QTimer inside;
    QObject::connect(&inside, &QTimer::timeout, close);
    inside.start(0);
    act();
    QCoreApplication::processEvents();
    close();
    return text;
}

// Takes the next file dialog that comes up, notes where it begins and gives it the name; an empty one cancels
// it.
inline void chooseNext(const QString& path, QString* begins = nullptr)
{
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, path, begins] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        timer->deleteLater();
        if (begins)
            *begins = dialog->directory().dirName();
        if (path.isEmpty())
            return dialog->reject();
        dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
        QMetaObject::invokeMethod(dialog, "accept");
    });
    timer->start(5);
}
