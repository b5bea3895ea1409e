#include "telemetry/view/zoned_times.h"

#include "ui_VLK_Designer_Widget_Tmi_View.h"

#include "base/clock.h"
#include "base/settings_file.h"
#include "link/device.h"
#include "typing/line_icon.h"

#include <QFile>
#include <QSettings>

namespace vlk {

namespace {

constexpr int kSecondsPerHour = 3600;

const QString kZone = QStringLiteral("zone");
const QString kFirst = QStringLiteral("first");
const QString kLast = QStringLiteral("last");

QString memory()
{
    return settingsFile(vlkDevice ? vlkDevice->tmiFolder() : QString(), "last-period.ini");
}

} // namespace

ZonedTimes::ZonedTimes(const Ui::VLK_Designer_Widget_Tmi_View& ui) : ui_(ui)
{
    for (QDateTimeEdit* edit : {ui_.dateTimeEdit_Show, ui_.dateTimeEdit_First, ui_.dateTimeEdit_Last}) {
        // Already shifted by the zone; the machine's own must not shift it again.
        edit->setTimeSpec(Qt::UTC);
    }
    ui_.toolButton_LastPeriod->setIcon(lineIcon(LineIcon::Back));
    connect(ui_.toolButton_LastPeriod, &QToolButton::clicked, this, &ZonedTimes::callBack);
}

void ZonedTimes::begin()
{
    ui_.spinBox_TimeOffset->setValue(now().offsetFromUtc() / kSecondsPerHour);
    offset_ = ui_.spinBox_TimeOffset->value() * kSecondsPerHour;
    const QDateTime present = local(now().toUTC());
    ui_.dateTimeEdit_Show->setDateTime(present);
    ui_.dateTimeEdit_Last->setDateTime(present);
    ui_.dateTimeEdit_First->setDateTime(present.addSecs(-kSecondsPerHour));
    begun_ = chosen();
    describe();
}

void ZonedTimes::setZone(int hours)
{
    const int offset = hours * kSecondsPerHour;
    for (QDateTimeEdit* edit : {ui_.dateTimeEdit_Show, ui_.dateTimeEdit_First, ui_.dateTimeEdit_Last})
        edit->setDateTime(edit->dateTime().addSecs(offset - offset_));
    offset_ = offset;
}

QDateTime ZonedTimes::utc(const QDateTimeEdit& field) const
{
    return field.dateTime().addSecs(-offset_);
}

ZonedTimes::Choice ZonedTimes::chosen() const
{
    return {ui_.spinBox_TimeOffset->value(), utc(*ui_.dateTimeEdit_First), utc(*ui_.dateTimeEdit_Last)};
}

void ZonedTimes::remember()
{
    const QString file = memory();
    if (file.isEmpty())
        return;
    const Choice choice = chosen();
    {
        QSettings store(file, QSettings::IniFormat);
        store.setValue(kZone, choice.zone);
        store.setValue(kFirst, choice.first.toString(Qt::ISODate));
        store.setValue(kLast, choice.last.toString(Qt::ISODate));
    }
    describe();
}

void ZonedTimes::rememberChosen()
{
    if (begun_ && chosen() != *begun_)
        remember();
}

std::optional<ZonedTimes::Choice> ZonedTimes::remembered()
{
    const QString file = memory();
    if (file.isEmpty() || !QFile::exists(file))
        return {};
    const QSettings store(file, QSettings::IniFormat);
    const auto time = [&store](const QString& key) {
        return QDateTime::fromString(store.value(key).toString(), Qt::ISODate).toUTC();
    };
    const Choice choice{store.value(kZone).toInt(), time(kFirst), time(kLast)};
    return choice.first.isValid() && choice.last.isValid() ? std::optional(choice) : std::nullopt;
}

void ZonedTimes::callBack()
{
    const std::optional<Choice> choice = remembered();
    if (!choice)
        return;
    ui_.spinBox_TimeOffset->setValue(choice->zone);
    ui_.dateTimeEdit_First->setDateTime(local(choice->first));
    ui_.dateTimeEdit_Last->setDateTime(local(choice->last));
}

void ZonedTimes::describe()
{
    const std::optional<Choice> choice = remembered();
    ui_.toolButton_LastPeriod->setEnabled(choice.has_value());
    ui_.toolButton_LastPeriod->setAccessibleName(tr("tmiw_220"));
    if (!choice) {
        ui_.toolButton_LastPeriod->setToolTip(tr("tmiw_222"));
        return;
    }
    const auto text = [&choice](const QDateTime& utc) {
        return utc.addSecs(qint64{choice->zone} * kSecondsPerHour)
            .toString(QStringLiteral("dd.MM.yyyy HH:mm:ss"));
    };
    const QString zone =
        choice->zone == 0 ? QString()
                          : QString::number(choice->zone).prepend(QLatin1String(choice->zone > 0 ? "+" : ""));
    ui_.toolButton_LastPeriod->setToolTip(tr("tmiw_221").arg(zone, text(choice->first), text(choice->last)));
}

} // namespace vlk
