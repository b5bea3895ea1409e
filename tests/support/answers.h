#pragma once

// A user's answers to the dialogs that windows open, given as soon as each is there; and what
// stands in a table.

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QTimer>

#include <functional>

// Acts once on a modal dialog of the class. Whoever does not know whether one comes deletes the timer.
template <class Dialog>
QPointer<QTimer> whenOpen(std::function<void(Dialog&)> act)
{
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, act = std::move(act)] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        timer->stop();
        timer->deleteLater();
        act(*dialog);
    });
    timer->start(10);
    return timer;
}

// Presses the button of a box, which has to say the text where one is given.
inline QPointer<QTimer> answerBox(const QString& button, const QString& text = {})
{
    return whenOpen<QMessageBox>([=](QMessageBox& box) {
        if (!text.isEmpty())
            QCOMPARE(box.text(), text);
        for (auto* found : box.findChildren<QPushButton*>()) {
            if (found->text() == button)
                return found->click();
        }
        qFatal("no button %s", qPrintable(button));
    });
}

// Takes down the name that a file dialog proposes, and gives it another; an empty one cancels.
inline void answerFile(const QString& path, QString* proposed = nullptr)
{
    whenOpen<QFileDialog>([=](QFileDialog& dialog) {
        if (proposed)
            *proposed = dialog.selectedFiles().value(0, dialog.directory().path());
        dialog.setOption(QFileDialog::DontConfirmOverwrite);
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText(path);
        QMetaObject::invokeMethod(&dialog, path.isEmpty() ? "reject" : "accept");
    });
}

// "10=100 20=200": volumes and values.
inline QString rowsOf(const QTableWidget* table)
{
    QStringList rows;
    for (int row = 0; row < table->rowCount(); ++row)
        rows << table->item(row, 0)->text() + '=' + table->item(row, 1)->text();
    return rows.join(' ');
}
