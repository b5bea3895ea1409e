#pragma once

// Edits the calibration table of one fuel sensor, and draws it: the user pours, types the volume, and adds it
// with the value that the sensor shows. Rows sort by volume. Texts of files and of the caller may have a
// comma as decimal sign; cells have a point.
//
// "Dirty" are rows that were added, pasted or put in the place of others by a CSV file, and are in no XML
// file yet. A change of a cell does not count, nor does the removal of single rows, nor the saving of a CSV
// file. "Edited" is a table without such rows in which cells were changed, single rows removed or the name
// typed since it was saved or loaded.

#include "fuel/live_reading.h"
#include "fuel/table/fuel_text.h"

#include <QIcon>
#include <QMap>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

struct CXmlSection;

namespace vlk {
class EmptyNote;
struct CalibrationSheet;
} // namespace vlk

class QKeyEvent;
class QLineEdit;
class VLK_FormReportFuel;
class VLK_FuelSensor_Graph;

namespace Ui {
class VLK_Designer_Form_Fuel_Sensor;
}

class VLK_Form_Fuel_Sensor : public QWidget
{
    Q_OBJECT

public:
    // The kind is an index into vlk::kFuelKinds, the name a short one such as "D1", which goes into files.
    VLK_Form_Fuel_Sensor(int kind, const QString& name, const QIcon& addIcon, QWidget* parent);
    ~VLK_Form_Fuel_Sensor() override;

    QString name() const { return name_; }
    // The index of the tab that holds the form, -1 for none.
    int tabIndex() const { return tabIndex_; }
    void setTabIndex(int index) { tabIndex_ = index; }
    int kind() const { return kind_; }
    bool isDirty() const { return dirty_; }
    bool hasRows() const;
    vlk::FuelRows rows() const;
    vlk::FuelCaptions captions() const;
    bool isEdited() const { return edited_ && !dirty_; }
    // Says which volume was typed and not added, and goes with the table; empty for none.
    QString notAdded() const;
    void setKindAndName(int kind, const QString& name);
    void setParamEditable(bool editable);
    // What the sensor says now, in millivolts or as a code. While it still changes the field is marked, and
    // so is a point that is added.
    void setLiveValue(int raw);
    // Until the next live value nothing can be added.
    void clearLiveValue();
    void retranslate();

    void clearAll();
    void addRow(const QString& volume, const QString& value);
    // Sorts and draws once for all of them.
    void addRows(const vlk::FuelRows& rows);
    // Volume to value. Of like volumes the last row counts; a value with a fraction reads as 0.
    void tableToMap(QMap<double, int>& map) const;

    // Files that cannot be read or written change nothing; the log says so (vlk.fuel, vlk.save).
    bool saveCsv(const QString& path) const;
    // Adds the rows of the file to those that are there.
    void loadCsv(const QString& path);
    // Into and from the root of a calibration document. What was put into one counts as saved; where its file
    // could not be written, setDirty and setEdited take that back. False when the document holds no table.
    void saveXml(CXmlSection* section);
    // `complete` adds to the rows what the document does not say of them.
    bool loadXml(CXmlSection* section, const std::function<void(vlk::FuelRows&)>& complete = {});
    void setDirty(bool dirty);
    void setEdited(bool edited);
    // Puts rows in the place of those that are there; they are dirty.
    void replaceRows(const vlk::FuelRows& rows);
    // Keeps the table as it stands, for the next time. False when the disk refused.
    bool keep(const QString& path, const QString& vehicle, const QDateTime& time) const;

    void printReport();
    // What the form knows of the sheet.
    void fillSheet(vlk::CalibrationSheet& sheet) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void signal_NeedSaved(bool dirty);
    void signal_Edited();
    // The rows, the name, or whether they are saved.
    void signal_Changed();

private Q_SLOTS:
    void slot_CellChanged_Table(int row, int column);
    void slot_textChanged_LineEdit_Volume(const QString& text);
    void slot_textChanged_LineEdit_Param(const QString& text);
    void slot_pressed_Btn_Add();
    void slot_pressed_Btn_Del();
    void slot_pressed_Btn_Clear();

private:
    void addClipboardActions();
    void setKind(int kind);
    void showCaptions();
    void copyTable() const;
    void pasteRows();
    // True where the columns are to be read the other way round.
    bool pasteInOrder(const QString& text, vlk::FuelOrder order);
    struct BeforeChange;
    // What was just done can be taken back.
    void offerBack(const BeforeChange& before);
    void takeBack();
    // The row of the cursor with those that are marked, after the button's question.
    void removeRows();
    // How many rows are marked, and their volumes.
    QString markedText() const;
    void forgetChange();
    // In the place of those that are there.
    void showRows(const vlk::FuelRows& rows);
    void showReading();
    void markReading();
    void markDoubtful();
    void clearRows();
    void askForVolume();
    void typeName(const QString& name);
    // The empty field of the name shows it; the right arrow takes it.
    void offerName(const QString& name);
    // Whether the key is done with, in the field of the name and in those of the numbers.
    bool takesName(const QKeyEvent& key);
    bool takesKey(const QLineEdit& number, QKeyEvent& key);
    void rebuildPoints();
    void showFallingPoints();

    std::unique_ptr<Ui::VLK_Designer_Form_Fuel_Sensor> ui_;
    vlk::EmptyNote* empty_;
    const char* emptyKey_ = nullptr;
    VLK_FuelSensor_Graph* graph_;
    VLK_FormReportFuel* report_ = nullptr;
    QAction* copy_;
    QAction* paste_;
    QAction* takeBack_;
    QAction* remove_;
    // The table before the last change, if that was a paste or a removal of rows.
    struct BeforeChange
    {
        vlk::FuelRows rows;
        bool isDirty;
        bool isEdited;
        const char* back; // key of what takes it back
    };
    std::optional<BeforeChange> beforeChange_;
    vlk::LiveReading reading_;
    int kind_;
    QString name_;
    QString offeredName_;
    int tabIndex_ = -1;
    bool dirty_ = false;
    bool edited_ = false;
    bool isNameTyped_ = false; // since it was saved or loaded
    vlk::FuelPoints points_;
};
