#pragma once

// The quick setup window: the frame with its four buttons. Its signals ask the dialog to act: there the full
// window's pages are saved first and this window's values over them.

#include <QWidget>

#include <memory>

struct CXmlSection;

namespace Ui {
class VLK_Designer_Widget_Config_Light;
}

class VLK_Widget_Config_Light : public QWidget
{
    Q_OBJECT

public:
    explicit VLK_Widget_Config_Light(QWidget* parent = nullptr);
    ~VLK_Widget_Config_Light() override;

    void retranslate();
    void deviceConnected();
    void deviceDisconnected();

Q_SIGNALS:
    void closeRequested();
    void writeRequested();
    void saveRequested(const QString& path);
    // The user wants the full window instead.
    void fullRequested();

private Q_SLOTS:
    void slot_pressed_Btn_Light_SaveToFile();
    void slot_pressed_Btn_Light_LoadToDevice();
    void slot_pressed_Btn_Light_ConfigFull();
    void slot_pressed_Btn_Light_Close();

private:
    std::unique_ptr<Ui::VLK_Designer_Widget_Config_Light> ui_;
    bool connected_ = false;
};
