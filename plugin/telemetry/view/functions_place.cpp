#include "telemetry/view/functions_place.h"

#include "ui_VLK_Designer_Widget_Tmi_View.h"

#include <QKeyEvent>

namespace vlk {

namespace {

constexpr int kRoomForBoth = 640; // pixels of the window's height

} // namespace

FunctionsPlace::FunctionsPlace(const Ui::VLK_Designer_Widget_Tmi_View& ui, QWidget* window)
    : ui_(ui), window_(window)
{
    window->installEventFilter(this);
    open(false);
}

void FunctionsPlace::toggle()
{
    open(ui_.frame_Btn_Func->isHidden());
}

void FunctionsPlace::showRecord()
{
    if (takesPlace_)
        open(false);
}

void FunctionsPlace::open(bool open)
{
    if (open)
        arrange();
    ui_.frame_Btn_Func->setVisible(open);
    ui_.stackedWidget->setHidden(open && takesPlace_);
    ui_.pushButton_Func->setChecked(open);
}

bool FunctionsPlace::eventFilter(QObject* watched, QEvent* event)
{
    if (ui_.frame_Btn_Func->isHidden())
        return QObject::eventFilter(watched, event);
    if (event->type() == QEvent::Resize) {
        arrange();
        ui_.stackedWidget->setHidden(takesPlace_);
    } else if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        open(false);
        return true;
    }
    return QObject::eventFilter(watched, event);
}

// In a row below all, or two by two beside the buttons of the record.
void FunctionsPlace::arrange()
{
    const bool takesPlace = window_->height() < kRoomForBoth;
    if (takesPlace == takesPlace_)
        return;
    takesPlace_ = takesPlace;
    QBoxLayout* from = takesPlace ? ui_.verticalLayout_Content : ui_.verticalLayout_Record;
    QBoxLayout* to = takesPlace ? ui_.verticalLayout_Record : ui_.verticalLayout_Content;
    from->removeWidget(ui_.frame_Btn_Func);
    to->addWidget(ui_.frame_Btn_Func);
    QGroupBox* const groups[] = {ui_.groupBox_Btn_Save, ui_.groupBox_Btn_Clear, ui_.groupBox_Btn_Keys,
                                 ui_.groupBox_Btn_Device};
    const int columns = takesPlace ? 2 : int(std::size(groups));
    for (int i = 0; i < int(std::size(groups)); ++i)
        ui_.gridLayout_Func->addWidget(groups[i], i / columns, i % columns);
    ui_.gridLayout_Func->setRowStretch(2, takesPlace ? 1 : 0);
}

} // namespace vlk
