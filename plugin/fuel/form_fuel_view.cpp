#include "fuel/form_fuel_view.h"

#include "ui_VLK_Designer_Form_Fuel_View.h"

#include "base/clock.h"
#include "fuel/button_row.h"
#include "fuel/file_dialogs.h"
#include "fuel/form_fuel_sensor.h"
#include "fuel/question.h"
#include "fuel/table/fuel_file.h"
#include "typing/line_icon.h"
#include "windows/fit_to_screen.h"

namespace {

constexpr int kKind = 1;
const QString kName = QStringLiteral("D1");

} // namespace

VLK_Form_Fuel_View::VLK_Form_Fuel_View(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowCloseButtonHint | Qt::WindowMaximizeButtonHint),
      ui_(std::make_unique<Ui::VLK_Designer_Form_Fuel_View>()),
      form_(new VLK_Form_Fuel_Sensor(kKind, kName, vlk::lineIcon(vlk::LineIcon::Plus), this)), kind_(kKind),
      name_(kName)
{
    ui_->setupUi(this);
    ui_->verticalLayout_Table->addWidget(form_);
    // There is nothing behind it.
    ui_->pushButton_Help->hide();
    form_->setParamEditable(true);

    using Dialog = VLK_Form_Fuel_View;
    const std::pair<QPushButton*, void (Dialog::*)()> buttons[] = {
        {ui_->pushButton_Open, &Dialog::slot_pressed_Btn_Open},
        {ui_->pushButton_Save, &Dialog::slot_pressed_Btn_Save},
        {ui_->pushButton_Print, &Dialog::slot_pressed_Btn_Print},
        {ui_->pushButton_Accept, &Dialog::slot_pressed_Btn_Accept},
        {ui_->pushButton_Help, &Dialog::slot_pressed_Btn_Help},
    };
    for (const auto& [button, slot] : buttons) {
        // Enter in a field must not press whatever button is near.
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, slot);
    }
    connect(form_, &VLK_Form_Fuel_Sensor::signal_NeedSaved, this, &Dialog::slot_NeedSaved);
    connect(this, &QDialog::finished, this, &Dialog::slot_finished);
    resize(860, 500);
    vlk::keepOnScreen(this);
    retranslate();
}

VLK_Form_Fuel_View::~VLK_Form_Fuel_View() = default;

void VLK_Form_Fuel_View::retranslate()
{
    setWindowTitle(tr("cfgt6_037"));
    ui_->label_Title->setText(tr("tmiw_120"));
    ui_->pushButton_Open->setText(tr("wrd_023"));
    ui_->pushButton_Save->setText(tr("wrd_024"));
    ui_->pushButton_Print->setText(tr("wrd_025"));
    ui_->pushButton_Accept->setText(tr("wrd_026"));
    ui_->pushButton_Help->setText(tr("wrd_027"));
    vlk::keepCaptions(ui_->horizontalLayout_Buttons);
    form_->retranslate();
}

void VLK_Form_Fuel_View::setSensor(int kind, const QString& name)
{
    kind_ = kind;
    name_ = name;
    reset();
}

void VLK_Form_Fuel_View::reset()
{
    form_->clearAll();
    given_.clear();
    form_->setKindAndName(kind_, name_);
}

void VLK_Form_Fuel_View::setData(const QString& title, const QMap<double, int>& table)
{
    ui_->lineEdit_Title->setText(title);
    vlk::FuelRows rows;
    for (auto entry = table.cbegin(); entry != table.cend(); ++entry)
        rows.push_back({QString::number(entry.key(), 'g', 6), QString::number(entry.value())});
    form_->addRows(rows);
    getData(given_);
}

void VLK_Form_Fuel_View::getData(QMap<double, int>& table) const
{
    form_->tableToMap(table);
}

void VLK_Form_Fuel_View::slot_pressed_Btn_Open()
{
    const QString path = vlk::askFuelFileToLoad(this, {}, {QStringLiteral("csv")});
    if (!path.isEmpty())
        form_->loadCsv(path);
}

void VLK_Form_Fuel_View::slot_pressed_Btn_Save()
{
    const QString proposed = vlk::fuelFileName({}, form_->name(), ui_->lineEdit_Title->text(), vlk::now());
    const QString path = vlk::askFuelFileToSave(this, QStringLiteral("%1 Excel").arg(tr("wrd_028")), proposed,
                                                QStringLiteral("csv"));
    if (!path.isEmpty())
        form_->saveCsv(path);
}

void VLK_Form_Fuel_View::slot_pressed_Btn_Print()
{
    form_->printReport();
}

void VLK_Form_Fuel_View::slot_pressed_Btn_Accept()
{
    Q_EMIT signal_SetNewFuelData();
    accept();
}

// Every way of closing but the button comes by here. The dialog always goes.
void VLK_Form_Fuel_View::reject()
{
    QMap<double, int> table;
    getData(table);
    // An edited cell and a deleted row leave the form as clean as it was.
    if ((form_->isDirty() || table != given_) && vlk::agrees(this, tr("cfgt6_038"), "wrd_002"))
        Q_EMIT signal_SetNewFuelData();
    QDialog::reject();
}

// What the interface of the dialog has and does not use: a help page, the state of the table, the end.
void VLK_Form_Fuel_View::slot_pressed_Btn_Help() {}

void VLK_Form_Fuel_View::slot_NeedSaved(bool /*on*/) {}

void VLK_Form_Fuel_View::slot_finished(int /*result*/) {}
