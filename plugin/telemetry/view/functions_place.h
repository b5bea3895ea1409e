#pragma once

// Where the functions of the telemetry view stand when they are opened: in a row below the record, or, in a
// window that has no room for both, in the place of the record's tabs. Esc closes them before it closes the
// window.

#include <QObject>

#include <array>

class QGroupBox;

namespace Ui {
class VLK_Designer_Widget_Tmi_View;
}

namespace vlk {

class FunctionsPlace : public QObject
{
    Q_OBJECT

public:
    FunctionsPlace(const Ui::VLK_Designer_Widget_Tmi_View& ui, QWidget* window);

    void toggle();
    // For a record that the user asked for: functions that hide the tabs close.
    void showRecord();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void open(bool open);
    void arrange();
    std::array<QGroupBox*, 4> groups() const;
    int widthOfRow() const;

    const Ui::VLK_Designer_Widget_Tmi_View& ui_;
    const QWidget* window_;
    bool takesPlace_ = false;
};

} // namespace vlk
