// What keys do in the table of a sensor and in the fields above it.

#include "fuel/form_fuel_sensor.h"

#include "ui_VLK_Designer_Form_Fuel_Sensor.h"

#include <QAction>
#include <QClipboard>
#include <QKeyEvent>

void VLK_Form_Fuel_Sensor::addClipboardActions()
{
    copy_->setShortcut(QKeySequence::Copy);
    paste_->setShortcut(QKeySequence::Paste);
    takeBack_->setShortcut(QKeySequence::Undo);
    takeBack_->setEnabled(false);
    connect(copy_, &QAction::triggered, this, &VLK_Form_Fuel_Sensor::copyTable);
    connect(paste_, &QAction::triggered, this, &VLK_Form_Fuel_Sensor::pasteRows);
    connect(takeBack_, &QAction::triggered, this, &VLK_Form_Fuel_Sensor::takeBack);
    remove_->setShortcut(QKeySequence::Delete);
    connect(remove_, &QAction::triggered, this, &VLK_Form_Fuel_Sensor::removeRows);
    for (QAction* action : {copy_, paste_, takeBack_, remove_}) {
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        ui_->tableWidget->addAction(action);
    }
    ui_->tableWidget->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void VLK_Form_Fuel_Sensor::removeRows()
{
    vlk::CalibrationTable& table = *ui_->tableWidget;
    if (table.currentRow() < 0)
        return;
    const bool wasMarked = table.isMarked(table.currentRow());
    table.setMarked(table.currentRow(), true);
    const int rows = table.rowCount();
    slot_pressed_Btn_Del();
    if (table.rowCount() == rows)
        table.setMarked(table.currentRow(), wasMarked);
}

bool VLK_Form_Fuel_Sensor::eventFilter(QObject* watched, QEvent* event)
{
    const auto* line = qobject_cast<QLineEdit*>(watched);
    if (!line || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    auto& key = *static_cast<QKeyEvent*>(event);
    return line == ui_->lineEdit_Name ? takesName(key) : takesKey(*line, key);
}

bool VLK_Form_Fuel_Sensor::takesName(const QKeyEvent& key)
{
    if (key.key() != Qt::Key_Right || offeredName_.isEmpty() || !ui_->lineEdit_Name->text().isEmpty())
        return false;
    ui_->lineEdit_Name->setText(offeredName_);
    return true;
}

bool VLK_Form_Fuel_Sensor::takesKey(const QLineEdit& number, QKeyEvent& key)
{
    // Where nothing was typed there is nothing to take back: the key is the window's.
    if (key.key() == Qt::Key_Escape && number.text().isEmpty() && !number.isModified()) {
        key.ignore();
        return true;
    }
    // As soon as a paste into the field is done, or rows are gone, this is how that is taken back.
    if (key.matches(QKeySequence::Undo) && number.text().isEmpty() && beforeChange_) {
        takeBack();
        return true;
    }
    // Several lines are points, not a number.
    if (key.matches(QKeySequence::Paste) &&
        QGuiApplication::clipboard()->text().trimmed().contains(QLatin1Char('\n'))) {
        pasteRows();
        return true;
    }
    return false;
}
