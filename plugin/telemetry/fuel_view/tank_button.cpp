#include "telemetry/fuel_view/tank_button.h"

#include "fuel/table/fuel_file.h"
#include "link/device.h"
#include "telemetry/fuel_view/fuel_texts.h"
#include "telemetry/fuel_view/typed_table.h"
#include "telemetry/shown/shown_records.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>

#include <algorithm>
#include <cmath>

namespace vlk {

namespace {

constexpr int kLeastWidth = 160;
constexpr int kTextMargin = 32; // left and right together, with the arrow of the menu

} // namespace

TankButton::TankButton(QWidget* parent) : QToolButton(parent)
{
    setObjectName(QStringLiteral("toolButton_FuelTanks"));
    setPopupMode(QToolButton::InstantPopup);
    setToolButtonStyle(Qt::ToolButtonTextOnly);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setMinimumWidth(kLeastWidth);
    setMenu(new QMenu(this));
    connect(menu(), &QMenu::aboutToShow, this, &TankButton::fillMenu);
}

TableMemory TankButton::memory() const
{
    return TableMemory(vlkDevice ? vlkDevice->xmlFolder() : QString());
}

void TankButton::setRecords(ShownRecords& records, const QString& vehicle)
{
    RecordColumns& columns = records.columns();
    vehicle_ = vehicle;
    isBeingRead_ = records.isBeingRead();
    present_ = sensorsIn(columns);
    inLitres_.clear();
    for (const LevelSensor* sensor : present_) {
        if (sensor->kind == LevelKind::Can &&
            std::ranges::any_of(columns.numbers(sensor->litres), [](double litres) { return litres > 0; }))
            inLitres_.push_back(sensor);
    }
    tanks_.clear();
    paths_.clear();
    news_ = {};
    for (const QString& element : memory().choice(vehicle).sensors) {
        const LevelSensor* const sensor = levelSensorOfElement(element);
        if (!sensor || std::ranges::find(present_, sensor) == present_.end())
            continue;
        const QString path = memory().table(vehicle, element);
        if (!path.isEmpty())
            take(*sensor, path);
        else if (!needsTable(*sensor))
            take(*sensor, {});
    }
    showState();
}

bool TankButton::needsTable(const LevelSensor& sensor) const
{
    return std::ranges::find(inLitres_, &sensor) == inLitres_.end();
}

bool TankButton::isChosen(const LevelSensor& sensor) const
{
    return std::ranges::find(tanks_, &sensor, &TankSensor::sensor) != tanks_.end();
}

void TankButton::fillMenu()
{
    menu()->clear();
    for (const LevelSensor* sensor : present_) {
        QAction* const action = menu()->addAction(levelSensorCaption(*sensor));
        action->setCheckable(true);
        action->setChecked(isChosen(*sensor));
        connect(action, &QAction::triggered, this, [this, sensor](bool isOn) { toggle(*sensor, isOn); });
    }
    menu()->addSeparator();
    for (const TankSensor& tank : tanks_) {
        const LevelSensor* const sensor = tank.sensor;
        connect(menu()->addAction(tr("rec_252").arg(levelSensorCaption(*sensor))), &QAction::triggered, this,
                [this, sensor] {
                    if (askTable(*sensor))
                        Q_EMIT chosen();
                });
    }
    for (const LevelSensor* sensor : present_) {
        if (needsTable(*sensor))
            connect(menu()->addAction(tr("rec_414").arg(levelSensorCaption(*sensor))), &QAction::triggered,
                    this, [this, sensor] { typeTable(*sensor); });
    }
    if (menu()->isEmpty())
        menu()->addAction(tr(isBeingRead_ ? "rec_371" : "rec_258"))->setEnabled(false);
}

void TankButton::toggle(const LevelSensor& sensor, bool isOn)
{
    const QString path = memory().table(vehicle_, QString::fromStdString(std::string(sensor.element())));
    if (!isOn)
        drop(sensor);
    else if (!needsTable(sensor))
        take(sensor, {});
    else if ((path.isEmpty() || !take(sensor, path)) && !askTable(sensor))
        return showState();
    remember();
    showState();
    Q_EMIT chosen();
}

bool TankButton::askTable(const LevelSensor& sensor)
{
    const QString element = QString::fromStdString(std::string(sensor.element()));
    const QString before = memory().table(vehicle_, element);
    // The folder of its last table, or where the calibration window puts them.
    const QString folder =
        !before.isEmpty() ? before : fuelFolder(vlkDevice ? vlkDevice->tmiFolder() : QString());
    const QString path = QFileDialog::getOpenFileName(this, tr("rec_252").arg(levelSensorCaption(sensor)),
                                                      folder, tr("rec_269"));
    // Who has no file is told what else there is.
    if (path.isEmpty() && !isChosen(sensor))
        news_ = {"rec_415", {}, &sensor};
    const bool isTaken = !path.isEmpty() && takeFile(sensor, path);
    showState();
    if (!isTaken)
        Q_EMIT chosen();
    return isTaken;
}

void TankButton::typeTable(const LevelSensor& sensor)
{
    FuelRows rows;
    const auto known =
        readCalibration(memory().table(vehicle_, QString::fromStdString(std::string(sensor.element()))));
    if (const auto* const table = std::get_if<Calibration>(&known); table && suits(*table, sensor))
        rows = table->rows;
    TypedTable dialog(sensor, rows, vehicle_, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    takeFile(sensor, dialog.path());
    showState();
    Q_EMIT chosen();
    Q_EMIT tableSaved(dialog.path());
}

bool TankButton::takeFile(const LevelSensor& sensor, const QString& path)
{
    if (!take(sensor, path))
        return false;
    memory().setTable(vehicle_, QString::fromStdString(std::string(sensor.element())), path);
    remember();
    return true;
}

bool TankButton::take(const LevelSensor& sensor, const QString& path)
{
    std::optional<FuelCurve> curve;
    if (!path.isEmpty()) {
        const auto read = readCalibration(path);
        if (const auto* fault = std::get_if<TableFault>(&read)) {
            news_ = {faultKey(*fault), QFileInfo(path).fileName(), nullptr};
            return false;
        }
        const auto& table = std::get<Calibration>(read);
        const bool doesSuit = suits(table, sensor);
        news_ = {};
        if (!doesSuit || isOfAnother(table, sensor))
            news_ = {doesSuit ? "rec_254" : "rec_255", table.sensor, &sensor};
        if (!doesSuit)
            return false;
        curve.emplace(table.rows, sensor.kind);
    }
    drop(sensor);
    tanks_.push_back({&sensor, std::move(curve)});
    paths_.push_back(path);
    return true;
}

void TankButton::drop(const LevelSensor& sensor)
{
    const auto found = std::ranges::find(tanks_, &sensor, &TankSensor::sensor);
    if (found == tanks_.end())
        return;
    paths_.erase(paths_.begin() + (found - tanks_.begin()));
    tanks_.erase(found);
}

void TankButton::remember()
{
    TankChoiceMemory choice = memory().choice(vehicle_);
    choice.sensors.clear();
    for (const TankSensor& tank : tanks_)
        choice.sensors << QString::fromStdString(std::string(tank.sensor->element()));
    memory().setChoice(vehicle_, choice);
}

QStringList TankButton::captions() const
{
    QStringList captions;
    for (std::size_t i = 0; i < tanks_.size(); ++i) {
        const QString caption = levelSensorCaption(*tanks_[i].sensor);
        captions << (paths_[i].isEmpty()
                         ? caption
                         : QStringLiteral("%1: %2").arg(caption, QFileInfo(paths_[i]).fileName()));
    }
    return captions;
}

QString TankButton::news() const
{
    if (!news_.key)
        return {};
    if (!news_.sensor)
        return QStringLiteral("%1: %2").arg(news_.first, tr(news_.key));
    const QString caption = levelSensorCaption(*news_.sensor);
    return news_.first.isEmpty() ? tr(news_.key).arg(caption) : tr(news_.key).arg(news_.first, caption);
}

void TankButton::resizeEvent(QResizeEvent* event)
{
    QToolButton::resizeEvent(event);
    fitText();
}

void TankButton::fitText()
{
    setText(fontMetrics().elidedText(caption_, Qt::ElideMiddle, width() - kTextMargin));
}

void TankButton::retranslate()
{
    showState();
}

void TankButton::showState()
{
    double litres = 0;
    QStringList sensors;
    QStringList ends;
    for (const TankSensor& tank : tanks_) {
        sensors << levelSensorCaption(*tank.sensor);
        if (!tank.curve)
            continue;
        litres += tank.curve->greatestLitres();
        ends << tr("rec_253").arg(numberText(tank.curve->leastLitres(), 1),
                                  numberText(tank.curve->greatestLitres(), 1));
    }
    QString text = sensors.join(QStringLiteral(" + "));
    if (litres > 0)
        text += QStringLiteral(", %1 %2").arg(numberText(litres), tr("abbr_026"));
    caption_ = tanks_.empty() ? tr("rec_251") : text;
    fitText();
    setToolTip((captions() + ends).join(QLatin1Char('\n')));
    setAccessibleName(tr("rec_251"));
}

} // namespace vlk
