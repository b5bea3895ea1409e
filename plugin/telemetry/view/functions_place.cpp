#include "telemetry/view/functions_place.h"

#include "ui_VLK_Designer_Widget_Tmi_View.h"

#include "typing/grid.h"

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

// In a row below all, or in two columns beside the buttons of the record.
void FunctionsPlace::arrange()
{
    const bool takesPlace = window_->height() < kRoomForBoth || window_->width() < widthOfRow();
    if (takesPlace == takesPlace_)
        return;
    takesPlace_ = takesPlace;
    QBoxLayout* from = takesPlace ? ui_.verticalLayout_Content : ui_.verticalLayout_Record;
    QBoxLayout* to = takesPlace ? ui_.verticalLayout_Record : ui_.verticalLayout_Content;
    from->removeWidget(ui_.frame_Btn_Func);
    to->addWidget(ui_.frame_Btn_Func);
    // Low ones stand beside high ones, so that the columns are about as high.
    struct Place
    {
        int row, column, rows;
    };
    constexpr Place inColumns[] = {{0, 0, 1}, {0, 1, 2}, {1, 0, 2}, {2, 1, 1}};
    const auto groups = this->groups();
    for (int i = 0; i < static_cast<int>(groups.size()); ++i) {
        const Place place = takesPlace ? inColumns[i] : Place{0, i, 1};
        ui_.gridLayout_Func->addWidget(groups[i], place.row, place.column, place.rows, 1);
    }
    ui_.gridLayout_Func->setRowStretch(3, takesPlace ? 1 : 0);
}

std::array<QGroupBox*, 4> FunctionsPlace::groups() const
{
    return {ui_.groupBox_Btn_Save, ui_.groupBox_Btn_Clear, ui_.groupBox_Btn_Keys, ui_.groupBox_Btn_Device};
}

int FunctionsPlace::widthOfRow() const
{
    int width = 2 * grid::kWindow - grid::kColumn;
    for (const QGroupBox* group : groups())
        width += group->minimumSizeHint().width() + grid::kColumn;
    return width;
}

} // namespace vlk
