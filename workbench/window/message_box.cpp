#include "window/message_box.h"

#include "window/active_windows.h"
#include "window/languages.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

namespace workbench {

QWidget* windowInFront(QWidget* otherwise)
{
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    if (QWidget* active = QApplication::activeWindow())
        return active;
    const QVector<QWidget*> latest = ActiveWindows::instance().latest();
    return latest.isEmpty() ? otherwise : latest.front();
}

void showWarning(const QString& text, QWidget* window)
{
    for (const QWidget* open : QApplication::topLevelWidgets()) {
        const auto* box = qobject_cast<const QMessageBox*>(open);
        if (box && box->isVisible() && box->text() == text)
            return;
    }
    auto* box = new QMessageBox(QMessageBox::Warning, workbench::text("wb_title"), text, QMessageBox::Ok,
                                windowInFront(window));
    box->setObjectName(QStringLiteral("messageBox_Warning"));
    box->setTextFormat(Qt::PlainText);
    box->setTextInteractionFlags(Qt::TextSelectableByMouse);
    box->setAttribute(Qt::WA_DeleteOnClose);
    if (QWidget* below = box->parentWidget())
        QObject::connect(box, &QDialog::finished, below, &QWidget::activateWindow);
    box->open();
}

bool agrees(const QString& question, const QString& verb, const QString& name, QWidget* window)
{
    // The window below may go while the question waits, and takes the box with it.
    const QPointer<QWidget> below = windowInFront(window);
    const QPointer box = new QMessageBox(QMessageBox::Warning, workbench::text("wb_title"), question,
                                         QMessageBox::Cancel, below);
    box->setObjectName(name);
    box->setTextFormat(Qt::PlainText);
    const QPushButton* agree = box->addButton(verb, QMessageBox::AcceptRole);
    box->setDefaultButton(QMessageBox::Cancel);
    box->exec();
    const bool isAgreed = box && box->clickedButton() == agree;
    delete box;
    if (below)
        below->activateWindow();
    return isAgreed;
}

} // namespace workbench
