#include "telemetry/fuel_view/typed_table.h"

#include "base/clock.h"
#include "fuel/form_fuel_sensor.h"
#include "fuel/table/fuel_file.h"
#include "link/device.h"
#include "telemetry/fuel/fuel_curve.h"
#include "typing/grid.h"
#include "typing/line_icon.h"
#include "windows/fit_to_screen.h"
#include "windows/named_widget.h"

#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace vlk {

namespace {

constexpr QSize kTypedTableSize(760, 440);

// Among those of the calibration window.
int fuelKindOf(LevelKind kind)
{
    return static_cast<int>(kind);
}

} // namespace

TypedTable::TypedTable(const LevelSensor& sensor, const FuelRows& rows, const QString& vehicle,
                       QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowCloseButtonHint | Qt::WindowMaximizeButtonHint), sensor_(sensor),
      vehicle_(vehicle), given_(rows),
      form_(new VLK_Form_Fuel_Sensor(fuelKindOf(sensor.kind), sensor.tableName(), lineIcon(LineIcon::Plus),
                                     this)),
      fault_(namedWidget<QLabel>("label_TypedTable", this))
{
    setObjectName(QStringLiteral("dialog_TypedTable"));
    setWindowTitle(QStringLiteral("%1: %2").arg(tr("cfgt6_037"), levelSensorCaption(sensor)));
    form_->setParamEditable(true);
    form_->addRows(rows);
    // The file that is made of it keeps no name.
    for (const char* const name : {"label_Name", "lineEdit_Name"})
        form_->findChild<QWidget*>(QLatin1String(name))->hide();
    fault_->setWordWrap(true);
    fault_->hide();
    auto* const take = namedWidget<QPushButton>("pushButton_TakeTable", this);
    take->setText(tr("rec_416"));
    auto* const cancel = namedWidget<QPushButton>("pushButton_CancelTable", this);
    cancel->setText(tr("wrd_031"));
    auto* const buttons = new QHBoxLayout;
    buttons->setSpacing(vlk::grid::kColumn);
    buttons->addWidget(fault_, 1);
    buttons->addStretch();
    for (QPushButton* const button : {take, cancel}) {
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(form_, 1);
    layout->addLayout(buttons);
    resize(kTypedTableSize);
    keepOnScreen(this);
    connect(take, &QPushButton::clicked, this, &TypedTable::accept);
    connect(cancel, &QPushButton::clicked, this, &TypedTable::reject);
    form_->setFocus();
}

void TypedTable::tell(const QString& fault)
{
    fault_->setText(fault);
    fault_->show();
}

// A CSV file keeps tenths of litres.
void TypedTable::accept()
{
    const FuelRows rows = form_->rows();
    if (const auto fault = FuelCurve::faultOf(rows))
        return tell(tr(faultKey(*fault)));
    const QString folder = fuelFolder(vlkDevice ? vlkDevice->tmiFolder() : QDir::tempPath());
    const QString path = fuelFileName(folder, sensor_.tableName(), vehicle_, now()) + QStringLiteral(".csv");
    if (!saveFuelFile(path, fuelCsv(form_->captions(), rows)))
        return tell(tr("rec_417").arg(QDir::toNativeSeparators(path)));
    path_ = path;
    QDialog::accept();
}

// Another Esc goes back to the table.
void TypedTable::reject()
{
    if (form_->rows() == given_)
        return QDialog::reject();
    QMessageBox box(QMessageBox::Question, windowTitle(), tr("rec_463"), QMessageBox::NoButton, this);
    const auto* const save = box.addButton(tr("rec_416"), QMessageBox::AcceptRole);
    const auto* const discard = box.addButton(tr("cfgt6_407"), QMessageBox::DestructiveRole);
    auto* const cancel = box.addButton(tr("wrd_031"), QMessageBox::RejectRole);
    box.setDefaultButton(cancel);
    box.setEscapeButton(cancel);
    box.exec();
    if (box.clickedButton() == save)
        accept();
    else if (box.clickedButton() == discard)
        QDialog::reject();
}

} // namespace vlk
