#include "window/message_box.h"

#include "window/languages.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace workbench {

QWidget* windowInFront(QWidget* otherwise)
{
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    QWidget* active = QApplication::activeWindow();
    return active ? active : otherwise;
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
    box->open();
}

bool agrees(const QString& question, const QString& verb, const QString& name, QWidget* window)
{
    QMessageBox box(QMessageBox::Warning, workbench::text("wb_title"), question, QMessageBox::Cancel,
                    windowInFront(window));
    box.setObjectName(name);
    box.setTextFormat(Qt::PlainText);
    const QPushButton* agree = box.addButton(verb, QMessageBox::AcceptRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == agree;
}

} // namespace workbench
