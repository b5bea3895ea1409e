#include "fuel/form_fuel_sensor.h"

#include "ui_VLK_Designer_Form_Fuel_Sensor.h"

#include "fuel/form_report_fuel.h"
#include "fuel/fuel_number_line.h"
#include "fuel/fuelsensor_graph.h"
#include "fuel/paste_preview.h"
#include "fuel/question.h"
#include "fuel/table/fuel_sensors.h"
#include "typing/empty_note.h"
#include "typing/field_mark.h"
#include "typing/kept_palette.h"
#include "typing/present_value.h"

#include <QAction>

namespace {

constexpr double kTopAddedVolume = 3276.7;
constexpr int kTopAddedValue = 32767;

} // namespace

VLK_Form_Fuel_Sensor::VLK_Form_Fuel_Sensor(int kind, const QString& name, const QIcon& addIcon,
                                           QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::VLK_Designer_Form_Fuel_Sensor>()),
      graph_(new VLK_FuelSensor_Graph(this)), copy_(new QAction(this)), paste_(new QAction(this)),
      takeBack_(new QAction(this)), remove_(new QAction(this)), kind_(kind), name_(name)
{
    ui_->setupUi(this);
    empty_ = new vlk::EmptyNote(ui_->tableWidget);
    ui_->verticalLayout_Graph->addWidget(graph_);
    ui_->pushButton_Add->setIcon(addIcon);
    vlk::takeNumbers(ui_->lineEdit_Volume, kTopAddedVolume, 1);
    vlk::takeNumbers(ui_->lineEdit_Param, kTopAddedValue, 0);
    vlk::keepPalette(ui_->label_Falling, vlk::withInvalidText);
    setParamEditable(false);
    setFocusProxy(ui_->lineEdit_Volume);
    for (QLineEdit* line : {ui_->lineEdit_Name, ui_->lineEdit_Volume, ui_->lineEdit_Param})
        line->installEventFilter(this);
    addClipboardActions();

    using Form = VLK_Form_Fuel_Sensor;
    connect(ui_->lineEdit_Name, &QLineEdit::textEdited, this, &Form::typeName);
    connect(ui_->lineEdit_Name, &QLineEdit::editingFinished, this, [this] {
        if (ui_->lineEdit_Name->isModified())
            Q_EMIT signal_Edited();
        ui_->lineEdit_Name->setModified(false);
    });
    connect(ui_->lineEdit_Volume, &QLineEdit::textChanged, this, &Form::slot_textChanged_LineEdit_Volume);
    connect(ui_->lineEdit_Param, &QLineEdit::textChanged, this, &Form::slot_textChanged_LineEdit_Param);
    connect(ui_->tableWidget, &QTableWidget::cellChanged, this, &Form::slot_CellChanged_Table);
    for (const QLineEdit* edit : {ui_->lineEdit_Volume, ui_->lineEdit_Param})
        connect(edit, &QLineEdit::returnPressed, ui_->pushButton_Add, &QPushButton::click);
    const std::pair<QPushButton*, void (Form::*)()> buttons[] = {
        {ui_->pushButton_Add, &Form::slot_pressed_Btn_Add},
        {ui_->pushButton_Del, &Form::slot_pressed_Btn_Del},
        {ui_->pushButton_Clear, &Form::slot_pressed_Btn_Clear},
    };
    for (const auto& [button, slot] : buttons) {
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, slot);
    }
    setKind(kind);
    retranslate();
}

VLK_Form_Fuel_Sensor::~VLK_Form_Fuel_Sensor() = default;

void VLK_Form_Fuel_Sensor::setKind(int kind)
{
    kind_ = kind;
    reading_.setKind(kind);
    ui_->tableWidget->setKind(kind);
    showCaptions();
}

void VLK_Form_Fuel_Sensor::showCaptions()
{
    graph_->setKind(vlk::fuelKind(kind_));
    const vlk::FuelCaptions texts = captions();
    ui_->tableWidget->setCaptions(texts);
    ui_->label_Volume->setText(texts.volume);
    ui_->label_Param->setText(texts.value);
    graph_->setAccessibleName(texts.value);
}

vlk::FuelCaptions VLK_Form_Fuel_Sensor::captions() const
{
    return {tr("cfgt6_040"), tr(vlk::fuelKind(kind_).valueCaption)};
}

void VLK_Form_Fuel_Sensor::retranslate()
{
    ui_->label_Name->setText(tr("cfgt6_039"));
    ui_->pushButton_Clear->setText(tr("wrd_029"));
    ui_->pushButton_Del->setText(tr("cfgt6_046"));
    ui_->pushButton_Add->setToolTip(tr("cfgt6_047"));
    ui_->pushButton_Add->setAccessibleName(tr("cfgt6_047"));
    ui_->pushButton_Del->setToolTip(tr("cfgt6_048"));
    ui_->pushButton_Clear->setToolTip(tr("cfgt6_049"));
    ui_->tableWidget->setAccessibleName(tr("cfgt6_037"));
    empty_->tell(tr(emptyKey_));
    copy_->setText(tr("cfgt6_401"));
    paste_->setText(tr("cfgt6_402"));
    takeBack_->setText(tr(beforeChange_ ? beforeChange_->back : "cfgt6_421"));
    remove_->setText(tr("cfgt6_046"));
    markReading();
    offerName(offeredName_);
    showCaptions();
    markDoubtful();
    showFallingPoints();
    if (report_)
        report_->retranslate();
}

bool VLK_Form_Fuel_Sensor::hasRows() const
{
    return ui_->tableWidget->rowCount() > 0;
}

vlk::FuelRows VLK_Form_Fuel_Sensor::rows() const
{
    return ui_->tableWidget->rows();
}

QString VLK_Form_Fuel_Sensor::notAdded() const
{
    const QString volume = ui_->lineEdit_Volume->text();
    return volume.isEmpty() ? QString() : tr("tmiw_380").arg(name_, volume);
}

void VLK_Form_Fuel_Sensor::setKindAndName(int kind, const QString& name)
{
    name_ = name;
    setKind(kind);
    ui_->lineEdit_Name->setText(name);
}

void VLK_Form_Fuel_Sensor::setParamEditable(bool editable)
{
    ui_->lineEdit_Param->setReadOnly(!editable);
    // A level is typed as it is measured: volts have a fraction.
    if (editable && vlk::fuelKind(kind_).editor == vlk::FuelKind::Editor::Decimal)
        vlk::takeNumbers(ui_->lineEdit_Param, vlk::kVoltsLimit.top, vlk::kVoltsLimit.decimals);
    vlk::showAsPresent(ui_->lineEdit_Param, !editable);
    // While the sensor says nothing.
    ui_->lineEdit_Param->setPlaceholderText(editable ? QString() : QStringLiteral("–"));
    emptyKey_ = editable ? "rec_540" : "tmiw_291";
    empty_->tell(tr(emptyKey_));
}

void VLK_Form_Fuel_Sensor::setLiveValue(int raw)
{
    reading_.take(raw);
    showReading();
}

void VLK_Form_Fuel_Sensor::clearLiveValue()
{
    reading_.clear();
    showReading();
}

void VLK_Form_Fuel_Sensor::showReading()
{
    ui_->lineEdit_Param->setText(reading_.text());
    markReading();
}

void VLK_Form_Fuel_Sensor::markReading()
{
    vlk::markField(ui_->lineEdit_Param, vlk::MarkReason::Value, vlk::Mark::Advice,
                   reading_.isSteady() ? QString() : tr("cfgt6_422").arg(reading_.before(), reading_.text()));
}

void VLK_Form_Fuel_Sensor::clearAll()
{
    ui_->lineEdit_Name->clear();
    isNameTyped_ = false;
    clearRows();
}

void VLK_Form_Fuel_Sensor::clearRows()
{
    offerName({});
    setDirty(false);
    ui_->tableWidget->setRowCount(0);
    setEdited(false);
    ui_->pushButton_Del->setEnabled(false);
    ui_->pushButton_Clear->setEnabled(false);
    rebuildPoints();
    askForVolume();
}

void VLK_Form_Fuel_Sensor::askForVolume()
{
    // Cleared by clear() it would count as typed, and Escape would bring the last volume back.
    ui_->lineEdit_Volume->setText({});
    ui_->lineEdit_Volume->setFocus();
}

// What is told of it waits until the name is typed.
void VLK_Form_Fuel_Sensor::typeName(const QString& name)
{
    isNameTyped_ = !name.isEmpty();
    edited_ = hasRows() || isNameTyped_;
    Q_EMIT signal_Changed();
}

void VLK_Form_Fuel_Sensor::offerName(const QString& name)
{
    offeredName_ = name;
    ui_->lineEdit_Name->setPlaceholderText(
        name.isEmpty() ? QString() : QStringLiteral("%1 (%2)").arg(name, tr("cfgt6_408")));
}

void VLK_Form_Fuel_Sensor::addRow(const QString& volume, const QString& value)
{
    addRows({{volume, value}});
}

void VLK_Form_Fuel_Sensor::addRows(const vlk::FuelRows& rows)
{
    ui_->tableWidget->addRows(rows);
    ui_->pushButton_Clear->setEnabled(ui_->tableWidget->rowCount() > 0);
    rebuildPoints();
}

void VLK_Form_Fuel_Sensor::tableToMap(QMap<double, int>& map) const
{
    map.clear();
    for (const vlk::FuelRow& row : rows())
        map[vlk::withDecimalPoint(row.volume).toDouble()] = vlk::withDecimalPoint(row.value).toInt();
}

void VLK_Form_Fuel_Sensor::showRows(const vlk::FuelRows& rows)
{
    ui_->tableWidget->setRows(rows);
    ui_->pushButton_Del->setEnabled(false);
    ui_->pushButton_Clear->setEnabled(!rows.empty());
    rebuildPoints();
}

void VLK_Form_Fuel_Sensor::markDoubtful()
{
    ui_->tableWidget->markDoubtful(tr("tmiw_269"), tr("tmiw_270"), tr("cfgt6_423"));
}

// A paste can be taken back until something else happens to the table.
void VLK_Form_Fuel_Sensor::rebuildPoints()
{
    forgetChange();
    points_ = ui_->tableWidget->points();
    graph_->setPoints(points_);
    markDoubtful();
    showFallingPoints();
    Q_EMIT signal_Changed();
}

void VLK_Form_Fuel_Sensor::showFallingPoints()
{
    ui_->label_Falling->setText(PastePreview::fallingText(points_));
}

void VLK_Form_Fuel_Sensor::setDirty(bool dirty)
{
    if (dirty_ == dirty)
        return;
    dirty_ = dirty;
    Q_EMIT signal_NeedSaved(dirty);
}

void VLK_Form_Fuel_Sensor::setEdited(bool edited)
{
    edited_ = edited;
    Q_EMIT signal_Edited();
    Q_EMIT signal_Changed();
}

void VLK_Form_Fuel_Sensor::printReport()
{
    if (!report_)
        report_ = new VLK_FormReportFuel(this);
    report_->showReport(name_, ui_->lineEdit_Name->text(), points_);
}

void VLK_Form_Fuel_Sensor::slot_CellChanged_Table(int row, int column)
{
    if (column == vlk::CalibrationTable::Marked) {
        ui_->pushButton_Del->setEnabled(ui_->tableWidget->anyMarked());
        return;
    }
    if (column == vlk::CalibrationTable::Value)
        ui_->tableWidget->forgetUnsteady(row);
    ui_->tableWidget->sortByVolume();
    rebuildPoints();
    setEdited(true);
}

void VLK_Form_Fuel_Sensor::slot_textChanged_LineEdit_Volume(const QString& text)
{
    ui_->pushButton_Add->setEnabled(!text.isEmpty() && !ui_->lineEdit_Param->text().isEmpty());
}

void VLK_Form_Fuel_Sensor::slot_textChanged_LineEdit_Param(const QString& text)
{
    ui_->pushButton_Add->setEnabled(!text.isEmpty() && !ui_->lineEdit_Volume->text().isEmpty());
}

void VLK_Form_Fuel_Sensor::slot_pressed_Btn_Add()
{
    vlk::FuelRow row{vlk::typedNumber(ui_->lineEdit_Volume), vlk::typedNumber(ui_->lineEdit_Param)};
    if (!vlk::isPoint(row) || vlk::isUnfit(ui_->lineEdit_Volume) || vlk::isUnfit(ui_->lineEdit_Param))
        return;
    if (!reading_.isSteady())
        row.changing = QStringList{reading_.before(), reading_.text()};
    addRows({row});
    ui_->tableWidget->showAdded();
    askForVolume();
    setDirty(true);
}

void VLK_Form_Fuel_Sensor::slot_pressed_Btn_Del()
{
    const BeforeChange before{rows(), dirty_, edited_, "tmiw_401"};
    if (!vlk::agrees(this, tr("cfgt6_050"), "wrd_002", markedText()))
        return;
    ui_->tableWidget->removeMarked();
    // Not to the button that clears all.
    if (window()->focusWidget() == ui_->pushButton_Del)
        ui_->tableWidget->setFocus();
    ui_->pushButton_Del->setEnabled(false);
    const bool anyLeft = ui_->tableWidget->rowCount() > 0;
    ui_->pushButton_Clear->setEnabled(anyLeft);
    if (!anyLeft)
        setDirty(false);
    setEdited(anyLeft || isNameTyped_);
    rebuildPoints();
    offerBack(before);
}

QString VLK_Form_Fuel_Sensor::markedText() const
{
    constexpr int kNamed = 8;
    const vlk::FuelRows rows = this->rows();
    QStringList volumes;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (ui_->tableWidget->isMarked(static_cast<int>(row)))
            volumes << rows[row].volume;
    }
    const int count = volumes.size();
    if (count > kNamed)
        volumes = volumes.mid(0, kNamed) << QStringLiteral("…");
    return tr("tmiw_400").arg(QString::number(count), volumes.join(QStringLiteral("; ")));
}

void VLK_Form_Fuel_Sensor::slot_pressed_Btn_Clear()
{
    if (!vlk::agrees(this, tr("cfgt6_051"), "wrd_002", notAdded()))
        return;
    clearRows();
    setEdited(isNameTyped_);
}
