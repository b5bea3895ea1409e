// What of the tables is in files, and what the bar tells of it.

#include "fuel/form_tmi_fuel_sensors.h"

#include "ui_VLK_Designer_Form_TMI_Fuel_Sensors.h"

#include "base/clock.h"
#include "base/save_log.h"
#include "fuel/calibration_sheet.h"
#include "fuel/file_dialogs.h"
#include "fuel/form_fuel_sensor.h"
#include "fuel/question.h"
#include "fuel/table/fuel_document.h"
#include "fuel/table/fuel_file.h"
#include "fuel/table/unsteady_points.h"
#include "link/device.h"
#include "typing/notice_bar.h"
#include "xml/xml_document.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <limits>
#include <utility>

using namespace vlk;

namespace {

// Numbers in the bar; offers have those from OffersNotice on. That a table is edited can wait until all are
// answered.
enum NoticeNumber {
    NoLinkNotice,
    FileOfOtherNotice,
    CutNotice,
    FlawNotice,
    ShownAtNotice,
    NotInFileNotice,
    NotAddedNotice,
    OffersNotice,
    EditedNotice = std::numeric_limits<int>::max()
};

constexpr int kQuoted = 40; // characters of a cell, in the bar

QString telemetryFolder()
{
    return vlkDevice ? vlkDevice->tmiFolder() : QString();
}

QString modelText()
{
    return vlkDevice ? vlkDevice->model() : QString();
}

} // namespace

void VLK_Form_TMI_Fuel_Sensors::tellOfTable()
{
    markTabs();
    const int sensor = currentSensor();
    const VLK_Form_Fuel_Sensor* form = currentForm();
    if (form && !form->hasRows()) {
        otherFile_[sensor] = nullptr;
        cutIn_[sensor] = 0;
        endNews();
    }
    if (!form) {
        for (const auto number : {FileOfOtherNotice, CutNotice, FlawNotice, EditedNotice})
            bar_->end(number);
        return;
    }
    const Notice::Action saveAll{ui_->pushButton_Save_Excel->text(),
                                 [this] { slot_pressed_Btn_Save_Excel(); }};
    const Notice::Action save{ui_->pushButton_Save_Xml->text(), [this] { slot_pressed_Btn_Save_Xml(); }};
    const FuelFlaw flaw = firstFlaw(form->rows()).value_or(FuelFlaw{-1, {}});
    const auto tell = [this](NoticeNumber number, bool holds, const Notice& notice) {
        if (holds)
            bar_->tell(number, notice);
        else
            bar_->end(number);
    };
    const auto& otherFile = otherFile_[sensor];
    tell(FileOfOtherNotice, otherFile != nullptr, {Mark::Advice, otherFile ? otherFile() : QString(), {}});
    tell(CutNotice, cutIn_[sensor] > 0 && !isCutClosed_[sensor],
         {Mark::Advice, tr("tmiw_264").arg(cutIn_[sensor]), {saveAll}});
    tell(FlawNotice, flaw.row >= 0,
         {Mark::Invalid, tr("tmiw_265").arg(QString::number(flaw.row + 1), flaw.text.left(kQuoted)), {}});
    tell(EditedNotice, form->isEdited(), {Mark::Changed, tr("cfgt6_404"), {save}});
    openSave();
}

void VLK_Form_TMI_Fuel_Sensors::tellNoLink(bool isLost)
{
    if (isLost)
        bar_->tell(NoLinkNotice, [] { return Notice{Mark::Advice, tr("tmiw_292"), {}}; });
    else
        bar_->end(NoLinkNotice);
    openSave();
}

void VLK_Form_TMI_Fuel_Sensors::openSave()
{
    VLK_Form_Fuel_Sensor* form = currentForm();
    if (!form)
        return;
    const bool isInBar = form->isEdited() && bar_->isOnShow(EditedNotice);
    const bool mayPress = form->isDirty() || (form->isEdited() && !isInBar);
    // A key that is pressed once more must not get to the button that comes next.
    if (!mayPress && focusWidget() == ui_->pushButton_Save_Xml)
        form->setFocus();
    ui_->pushButton_Save_Xml->setEnabled(mayPress);
    ui_->pushButton_Save_Xml->setToolTip(isInBar ? tr("tmiw_268").arg(ui_->pushButton_Save_Xml->text())
                                                 : QString());
}

void VLK_Form_TMI_Fuel_Sensors::endNews()
{
    bar_->end(ShownAtNotice);
    bar_->end(NotInFileNotice);
}

void VLK_Form_TMI_Fuel_Sensors::forgetNotice(int number)
{
    const int sensor = currentSensor();
    if (sensor < 0)
        return;
    if (number == FileOfOtherNotice)
        otherFile_[sensor] = nullptr;
    else if (number == CutNotice)
        isCutClosed_[sensor] = true; // the table is as unsaved as before
    openSave();
}

void VLK_Form_TMI_Fuel_Sensors::offerKeptTables()
{
    for (; offers_ > 0; --offers_)
        bar_->end(OffersNotice + offers_ - 1);
    for (const KeptTable& table : kept_.offered(telemetryFolder())) {
        const QString time = table.time.toString(QStringLiteral("dd.MM.yyyy HH:mm:ss"));
        const Notice::Action back{tr("cfgt6_406"), [this, table] { bringBack(table); }};
        const Notice::Action discard{tr("cfgt6_407"), [this, path = table.path] {
                                         if (!isClaimed(path))
                                             QFile::remove(path);
                                         offerKeptTables();
                                     }};
        bar_->tell(OffersNotice + offers_++,
                   {Mark::Changed,
                    tr("cfgt6_405").arg(table.sensor, table.vehicle, time, QString::number(table.points)),
                    {back, discard}});
    }
    openSave();
}

void VLK_Form_TMI_Fuel_Sensors::bringBack(const KeptTable& table)
{
    // Another program was offered it too.
    if (isClaimed(table.path) || !QFile::exists(table.path)) {
        offerKeptTables();
        return;
    }
    select(table.sensor);
    VLK_Form_Fuel_Sensor* form = currentForm();
    if (!form || form->name() != table.sensor || !mayReplace(*form))
        return;
    // With tables of another vehicle on show the title is theirs.
    if (!hasRows())
        ui_->lineEdit_Title->setText(table.vehicle);
    XmlDocument document(table.path, QLatin1String(kFuelRoot));
    if (!load(*form, [&] { return form->loadXml(document.root()); }))
        return;
    // As unsaved as it was.
    if (table.unsaved == Unsaved::Cut)
        cutIn_[currentSensor()] = cutVolumes(form->rows());
    form->setDirty(table.unsaved == Unsaved::Added);
    form->setEdited(table.unsaved != Unsaved::Cut);
    kept_.show(*form, table.path, std::make_unique<FileClaim>(table.path));
    offerKeptTables();
}

template <class Read>
bool VLK_Form_TMI_Fuel_Sensors::load(const VLK_Form_Fuel_Sensor& form, Read read)
{
    const bool staysKept = isToBeKept(form, currentSensor());
    const QString notAdded = form.notAdded();
    if (!read())
        return false;
    // A file empties the field.
    bar_->end(NotAddedNotice);
    if (!notAdded.isEmpty())
        bar_->tellNews(NotAddedNotice, [notAdded] { return Notice{Mark::Advice, notAdded, {}}; });
    cutIn_[currentSensor()] = 0;
    // What was edited is kept and offered; what is saved or given up is kept no longer.
    staysKept ? kept_.release(form) : kept_.end(form);
    return true;
}

bool VLK_Form_TMI_Fuel_Sensors::mayReplace(const VLK_Form_Fuel_Sensor& form)
{
    const bool isKept = isToBeKept(form, currentSensor());
    if (isKept && keep(form))
        return true;
    return !(form.isDirty() || isKept) || agrees(this, tr("tmiw_129"), "wrd_031");
}

bool VLK_Form_TMI_Fuel_Sensors::keep(const VLK_Form_Fuel_Sensor& form)
{
    return kept_.keep(form, telemetryFolder(), ui_->lineEdit_Title->text());
}

bool VLK_Form_TMI_Fuel_Sensors::keepUnsaved()
{
    bool allKept = true;
    forEachForm([&](const VLK_Form_Fuel_Sensor& form, int sensor) {
        if (isUnsaved(form, sensor) && !keep(form))
            allKept &= form.isDirty();
    });
    return allKept;
}

bool VLK_Form_TMI_Fuel_Sensors::isToBeKept(const VLK_Form_Fuel_Sensor& form, int sensor) const
{
    return form.isEdited() || (cutIn_[sensor] > 0 && !form.isDirty());
}

bool VLK_Form_TMI_Fuel_Sensors::isUnsaved(const VLK_Form_Fuel_Sensor& form, int sensor) const
{
    return form.isDirty() || isToBeKept(form, sensor);
}

void VLK_Form_TMI_Fuel_Sensors::noteChange(int sensor)
{
    changed_[sensor] = true;
    if (!drafts_.isActive())
        drafts_.start();
}

void VLK_Form_TMI_Fuel_Sensors::keepDrafts()
{
    const auto changed = std::exchange(changed_, {});
    forEachForm([&](const VLK_Form_Fuel_Sensor& form, int sensor) {
        if (!changed[sensor])
            return;
        if (!isUnsaved(form, sensor))
            kept_.end(form);
        else if (canKeep_) // that it cannot is told once
            canKeep_ = keep(form);
    });
}

QString VLK_Form_TMI_Fuel_Sensors::proposedName(const QString& sensor) const
{
    return fuelFileName(telemetryFolder(), sensor, ui_->lineEdit_Title->text(), now());
}

void VLK_Form_TMI_Fuel_Sensors::slot_pressed_Btn_Load()
{
    const QString path =
        askFuelFileToLoad(this, telemetryFolder(), {QStringLiteral("xml"), QStringLiteral("csv")});
    if (path.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive))
        loadCsv(path);
    else if (!path.isEmpty())
        loadXml(path);
}

void VLK_Form_TMI_Fuel_Sensors::loadXml(const QString& path)
{
    if (!QFileInfo::exists(path)) {
        const QStringList parts = tr("tmiw_127").split(QStringLiteral("<val>"));
        ui_->lineEdit_Title->setText(
            QStringLiteral("%1 %2 %3")
                .arg(parts.value(0).trimmed(), QFileInfo(path).fileName(), parts.value(1).trimmed()));
        warn(this, tr("tmiw_128"));
        return;
    }
    XmlDocument document(path, QLatin1String(kFuelRoot));
    if (!document.isOpen())
        return;
    if (document.root()->getString(QStringLiteral("model")) != modelText()) {
        warn(this, tr("tmiw_128"));
        return;
    }
    const QString type = document.root()->getString(QStringLiteral("type"));
    const VLK_Form_Fuel_Sensor* before = currentForm();
    select(type);
    VLK_Form_Fuel_Sensor* form = currentForm();
    if (!form || !mayReplace(*form))
        return;
    const auto recall = [&path](FuelRows& rows) { recallUnsteady(telemetryFolder(), path, rows); };
    if (load(*form, [&] { return form->loadXml(document.root(), recall); }))
        showLoaded(before, type);
}

// Its rows say nothing of their sensor, but its name begins with it unless the user has chosen another, and
// its headings tell volts from levels.
void VLK_Form_TMI_Fuel_Sensors::loadCsv(const QString& path)
{
    const QString start = QFileInfo(path).fileName().section(QLatin1Char('-'), 0, 0);
    const auto isStart = [&start](const FuelSensor& row) { return start == QLatin1String(row.name); };
    const int named =
        static_cast<int>(std::ranges::find_if(kFuelSensors, isStart) - std::begin(kFuelSensors));
    const bool isNamed = named < kFuelSensorCount;
    const VLK_Form_Fuel_Sensor* target = isNamed && forms_[named] ? forms_[named] : currentForm();
    if (!target)
        return;
    const auto read = readFuelCsvFileByHeadings(path, target->captions());
    if (const auto* const fault = std::get_if<FuelCsvFault>(&read)) {
        if (*fault == FuelCsvFault::NoOrder)
            warn(this, tr("rec_370"));
        return;
    }
    const VLK_Form_Fuel_Sensor* before = currentForm();
    if (isNamed)
        select(start);
    VLK_Form_Fuel_Sensor* form = currentForm();
    if (!form || !mayReplace(*form))
        return;
    const auto& csv = std::get<FuelCsv>(read);
    load(*form, [&] {
        FuelRows rows = csv.rows;
        recallUnsteady(telemetryFolder(), path, rows);
        form->replaceRows(rows);
        return true;
    });
    const FuelMeasure other = fuelKind(form->kind()).millivolts ? FuelMeasure::Level : FuelMeasure::Voltage;
    showLoaded(before, isNamed ? start : QString(), csv.measure == other ? csv.value : QString());
}

void VLK_Form_TMI_Fuel_Sensors::showLoaded(const VLK_Form_Fuel_Sensor* before, const QString& type,
                                           const QString& otherColumn)
{
    const VLK_Form_Fuel_Sensor* form = currentForm();
    endNews();
    auto& otherFile = otherFile_[currentSensor()];
    otherFile = nullptr;
    // A letter alone names no sensor.
    if (type.size() > 1 && type != form->name())
        otherFile = [type, form] { return tr("cfgt6_412").arg(type, form->name()); };
    else if (!otherColumn.isEmpty())
        otherFile = [column = otherColumn.left(kQuoted), form] {
            return tr("tmiw_301").arg(column, form->name(), form->captions().value);
        };
    tellOfTable();
    offerKeptTables();
    if (form != before && !otherFile)
        bar_->tellNews(ShownAtNotice, [type, form] {
            return Notice{Mark::Right, tr("cfgt6_412").arg(type, form->name()), {}};
        });
}

void VLK_Form_TMI_Fuel_Sensors::slot_pressed_Btn_Save_Xml()
{
    VLK_Form_Fuel_Sensor* form = currentForm();
    const QString path = askFuelFileToSave(this, tr("wrd_028"), proposedName(form ? form->name() : QString()),
                                           QStringLiteral("xml"));
    if (path.isEmpty())
        return;
    // Made in memory, so that nothing of what the file held before counts.
    XmlDocument document(QString{}, QLatin1String(kFuelRoot));
    CXmlSection* root = document.root();
    root->setString(QStringLiteral("model"), modelText());
    root->setChildValue(QStringLiteral("objName"), ui_->lineEdit_Title->text());
    const bool wasDirty = form && form->isDirty();
    const bool wasEdited = form && form->isEdited();
    if (form)
        form->saveXml(root);
    if (document.saveAs(path)) {
        if (form) {
            cutIn_[currentSensor()] = cutVolumes(form->rows());
            isCutClosed_[currentSensor()] = false;
            if (cutIn_[currentSensor()] > 0)
                qCWarning(lcCut).noquote().nospace() << path << ": " << cutVolumesInWords(form->rows());
        }
        tellOfTable();
        if (form)
            tellNotInFile(path, form->rows());
        return;
    }
    if (wasDirty)
        form->setDirty(true);
    if (wasEdited)
        form->setEdited(true);
}

void VLK_Form_TMI_Fuel_Sensors::slot_pressed_Btn_Save_Excel()
{
    const VLK_Form_Fuel_Sensor* form = currentForm();
    if (!form)
        return;
    const QString path = askFuelFileToSave(this, QStringLiteral("%1 Excel").arg(tr("wrd_028")),
                                           proposedName(form->name()), QStringLiteral("csv"));
    if (path.isEmpty() || !form->saveCsv(path))
        return;
    cutIn_[currentSensor()] = 0;
    noteChange(currentSensor());
    tellOfTable();
    tellNotInFile(path, form->rows());
}

void VLK_Form_TMI_Fuel_Sensors::tellNotInFile(const QString& path, const FuelRows& rows)
{
    bar_->end(NotInFileNotice);
    if (const int unsteady = rememberUnsteady(telemetryFolder(), path, rows))
        bar_->tellNews(NotInFileNotice, [unsteady] {
            return Notice{Mark::Advice, tr("tmiw_360").arg(unsteady), {}};
        });
}

void VLK_Form_TMI_Fuel_Sensors::slot_pressed_Btn_Print()
{
    if (auto* form = currentForm())
        form->printReport();
}

void VLK_Form_TMI_Fuel_Sensors::slot_pressed_Btn_Pdf()
{
    const VLK_Form_Fuel_Sensor* form = currentForm();
    if (!form)
        return;
    CalibrationSheet sheet{};
    form->fillSheet(sheet);
    sheet.vehicle = ui_->lineEdit_Title->text();
    sheet.tracker = tracker_;
    sheet.time = now();
    const QString path = askFuelFileToSave(this, QStringLiteral("%1 PDF").arg(tr("wrd_028")),
                                           proposedName(form->name()), QStringLiteral("pdf"));
    if (!path.isEmpty())
        saveFuelFile(path, sheetPdf(sheet));
}
