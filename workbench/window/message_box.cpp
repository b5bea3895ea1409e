#include "window/message_box.h"

#include "window/active_windows.h"
#include "window/languages.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include <algorithm>

namespace workbench {

namespace {

// A tool window goes with the one that it belongs to, and would take a box of its own with it.
bool isTool(const QWidget* window)
{
    return window->windowType() == Qt::Tool;
}

} // namespace

QWidget* windowInFront(QWidget* otherwise)
{
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    QWidget* active = QApplication::activeWindow();
    if (active && isTool(active) && active->parentWidget())
        active = active->parentWidget()->window();
    if (active && active->isVisible())
        return active;
    QVector<QWidget*> latest = ActiveWindows::instance().latest();
    latest.erase(std::remove_if(latest.begin(), latest.end(), isTool), latest.end());
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

namespace {

// The place of the verb that was pressed, -1 for Cancel.
int ask(QMessageBox::Icon icon, const QString& question, const QStringList& verbs, const QString& name,
        QWidget* window, bool isVerbDefault)
{
    // The window below may go while the question waits, and takes the box with it.
    const QPointer<QWidget> below = windowInFront(window);
    const QPointer box =
        new QMessageBox(icon, workbench::text("wb_title"), question, QMessageBox::Cancel, below);
    box->setObjectName(name);
    box->setTextFormat(Qt::PlainText);
    QList<QAbstractButton*> buttons;
    for (const QString& verb : verbs)
        buttons << box->addButton(verb, QMessageBox::AcceptRole);
    box->setDefaultButton(isVerbDefault ? static_cast<QPushButton*>(buttons.first())
                                        : static_cast<QPushButton*>(box->button(QMessageBox::Cancel)));
    box->exec();
    const int pressed = box ? buttons.indexOf(box->clickedButton()) : -1;
    delete box;
    if (below)
        below->activateWindow();
    return pressed;
}

} // namespace

bool agrees(const QString& question, const QString& verb, const QString& name, QWidget* window)
{
    return ask(QMessageBox::Warning, question, {verb}, name, window, false) == 0;
}

void withdrawQuestion(const QString& name)
{
    for (QWidget* open : QApplication::topLevelWidgets()) {
        if (auto* box = qobject_cast<QMessageBox*>(open); box && box->objectName() == name)
            box->reject();
    }
}

int choose(const QString& question, const QStringList& verbs, const QString& name, QWidget* window)
{
    return ask(QMessageBox::Question, question, verbs, name, window, true);
}

} // namespace workbench
