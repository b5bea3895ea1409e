// How the table of a sensor goes into files, a sheet and the clipboard, and comes from them.

#include "fuel/form_fuel_sensor.h"

#include "ui_VLK_Designer_Form_Fuel_Sensor.h"

#include "fuel/calibration_sheet.h"
#include "fuel/paste_preview.h"
#include "fuel/question.h"
#include "fuel/table/fuel_document.h"
#include "fuel/table/fuel_file.h"
#include "fuel/table/fuel_log.h"
#include "fuel/table/fuel_sensors.h"
#include "fuel/table/kept_tables.h"
#include "xml/xml_section.h"

#include <QAction>
#include <QClipboard>

#include <algorithm>
#include <iterator>

bool VLK_Form_Fuel_Sensor::keep(const QString& path, const QString& vehicle, const QDateTime& time) const
{
    const auto unsaved = dirty_ ? vlk::Unsaved::Added : edited_ ? vlk::Unsaved::Changed : vlk::Unsaved::Cut;
    return vlk::keepTable(path, name_, vehicle, {ui_->lineEdit_Name->text(), offeredName_}, rows(), time,
                          unsaved);
}

bool VLK_Form_Fuel_Sensor::saveCsv(const QString& path) const
{
    return vlk::saveFuelFile(path, vlk::fuelCsv(captions(), rows()));
}

void VLK_Form_Fuel_Sensor::loadCsv(const QString& path)
{
    if (const auto rows = vlk::readFuelCsvFile(path)) {
        addRows(*rows);
        askForVolume();
    }
}

void VLK_Form_Fuel_Sensor::replaceRows(const vlk::FuelRows& rows)
{
    clearRows();
    addRows(rows);
    setDirty(hasRows());
}

void VLK_Form_Fuel_Sensor::saveXml(CXmlSection* section)
{
    vlk::putFuelTable(section, name_, ui_->lineEdit_Name->text(), rows());
    isNameTyped_ = false;
    forgetChange();
    setDirty(false);
    setEdited(false);
}

bool VLK_Form_Fuel_Sensor::loadXml(CXmlSection* section, const std::function<void(vlk::FuelRows&)>& complete)
{
    auto rows = vlk::fuelTable(section);
    if (!rows) {
        qCWarning(vlk::lcFuel) << "the document holds more rows than a calibration table";
        return false;
    }
    if (complete)
        complete(*rows);
    clearRows();
    ui_->lineEdit_Name->setText(vlk::fuelTableName(section));
    isNameTyped_ = false;
    offerName(vlk::fuelTableWrittenName(section));
    addRows(*rows);
    return true;
}

void VLK_Form_Fuel_Sensor::fillSheet(vlk::CalibrationSheet& sheet) const
{
    sheet.kind = kind_;
    sheet.sensor = name_;
    sheet.tank = ui_->lineEdit_Name->text().isEmpty() ? offeredName_ : ui_->lineEdit_Name->text();
    sheet.rows = rows();
    sheet.points = points_;
}

void VLK_Form_Fuel_Sensor::copyTable() const
{
    QGuiApplication::clipboard()->setText(vlk::fuelClipboard(captions(), rows()));
}

void VLK_Form_Fuel_Sensor::pasteRows()
{
    const QString text = QGuiApplication::clipboard()->text();
    const auto hasRows = [&](vlk::FuelOrder order) {
        return !vlk::readFuelClipboard(text, captions(), vlk::fuelKind(kind_), order).rows.empty();
    };
    // As on the screen, unless only the other way round gives points, until the user is content.
    bool isSwapped = !hasRows(vlk::FuelOrder::VolumeFirst) && hasRows(vlk::FuelOrder::ValueFirst);
    while (pasteInOrder(text, isSwapped ? vlk::FuelOrder::ValueFirst : vlk::FuelOrder::VolumeFirst))
        isSwapped = !isSwapped;
}

bool VLK_Form_Fuel_Sensor::pasteInOrder(const QString& text, vlk::FuelOrder order)
{
    const vlk::FuelCaptions texts = captions();
    const auto pasted = vlk::readFuelClipboard(text, texts, vlk::fuelKind(kind_), order);
    if (pasted.rows.empty()) {
        QString told = tr("cfgt6_411").arg(pasted.leftOut.size());
        if (!pasted.leftOut.empty())
            told += QLatin1Char(' ') + PastePreview::reasons(pasted.leftOut, texts);
        vlk::warn(this, told);
        return false;
    }
    const vlk::FuelRows there = rows();
    const auto joining = vlk::joining(pasted.rows, there);
    if (joining.rows.empty()) {
        QString told = tr("cfgt6_420").arg(joining.known);
        if (!pasted.leftOut.empty())
            told += QLatin1Char(' ') + PastePreview::leftOutText(pasted.leftOut, texts);
        vlk::warn(this, told);
        return false;
    }
    PastePreview preview(joining, pasted, texts, this);
    if (const int answer = preview.exec(); answer != QDialog::Accepted)
        return answer == PastePreview::kSwapped;
    const BeforeChange before{there, dirty_, edited_, "cfgt6_421"};
    if (preview.isToReplace()) {
        vlk::FuelRows kept;
        std::ranges::copy_if(there, std::back_inserter(kept), [&](const vlk::FuelRow& row) {
            return std::ranges::find(joining.others, row) == joining.others.end();
        });
        ui_->tableWidget->setRows(kept);
    }
    addRows(joining.rows);
    ui_->tableWidget->showAdded();
    setDirty(true);
    offerBack(before);
    return false;
}

void VLK_Form_Fuel_Sensor::offerBack(const BeforeChange& before)
{
    beforeChange_ = before;
    takeBack_->setText(tr(before.back));
    takeBack_->setEnabled(true);
}

void VLK_Form_Fuel_Sensor::takeBack()
{
    if (!beforeChange_)
        return;
    const BeforeChange before = *beforeChange_;
    showRows(before.rows);
    setDirty(before.isDirty);
    setEdited(before.isEdited);
}

void VLK_Form_Fuel_Sensor::forgetChange()
{
    beforeChange_.reset();
    takeBack_->setEnabled(false);
}
