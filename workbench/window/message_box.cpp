#include "window/message_box.h"

#include "window/active_windows.h"
#include "window/languages.h"

#include <QApplication>
#include <QMessageBox>
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
    QObject::connect(box, &QDialog::finished, box->parentWidget(), &QWidget::activateWindow);
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
    box.parentWidget()->activateWindow();
    return box.clickedButton() == agree;
}

} // namespace workbench
