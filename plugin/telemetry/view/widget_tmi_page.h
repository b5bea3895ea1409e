#pragma once

// The browser of stored telemetry: walks through the records and extra packets of a file with a slider and
// shows each as the live view does, without a tracker. A position counts from 0.

#include "telemetry/files/telemetry_contents.h"
#include "telemetry/view/record_stack.h"

#include <QDialog>

#include <memory>

namespace vlk {
class EventPanel;
class FileOpening;
class NoticeBar;
class ValueLabel;
class WorkProgress;
} // namespace vlk

namespace Ui {
class VLK_Designer_Widget_Tmi_Page;
}

class VLK_Widget_Tmi_Page : public QDialog
{
    Q_OBJECT

public:
    explicit VLK_Widget_Tmi_Page(QWidget* parent = nullptr);
    ~VLK_Widget_Tmi_Page() override;

    using QDialog::open;
    // Shows the first record of an XML or binary file in place of what was on show; nothing if there is none.
    void open(const QString& path);
    // Shows records that another window has read, beginning with the one at that place.
    void open(std::shared_ptr<const vlk::TelemetryContents> contents, const QString& name, int record);
    // Goes along where these records are on show.
    void follow(const std::shared_ptr<const vlk::TelemetryContents>& contents, int record);
    void retranslate();

Q_SIGNALS:
    // The file on show as a table; an empty path where the records come from the table.
    void tableWanted(const QString& path);
    void recordShown(const std::shared_ptr<const vlk::TelemetryContents>& contents, int record);

private Q_SLOTS:
    void slot_valueChanged_horizontalSlider(int position);
    void slot_valueChanged_spinBox_Go(int position);
    void slot_Pressed_PushButton_Begin();
    void slot_Pressed_PushButton_Get_Prev();
    void slot_Pressed_PushButton_Get_Next();
    void slot_Pressed_PushButton_End();
    void slot_Pressed_PushButton_Go();
    void slot_Pressed_PushButton_Close();
    void slot_Pressed_PushButton_Help();

private:
    void connectControls();
    void takeContents(std::shared_ptr<const vlk::TelemetryContents> contents);
    void setRange(int last);
    void showPage(int position);
    // The file counts more positions than it has pages where numbers are missing. Those behind the last page
    // leave on show what was, and say so.
    void goTo(int position);
    void describePosition();
    const vlk::RecordStore& records() const { return contents_->records; }

    std::unique_ptr<Ui::VLK_Designer_Widget_Tmi_Page> ui_;
    vlk::ValueLabel* file_;
    vlk::EventPanel* eventPanel_;
    vlk::NoticeBar* damageNotice_;
    vlk::WorkProgress* progress_;
    vlk::FileOpening* opening_;
    vlk::RecordStack stack_;
    std::shared_ptr<const vlk::TelemetryContents> contents_;
    QString path_;
    int currentPage_ = 0;
};
