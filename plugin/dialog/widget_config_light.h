#pragma once

// The quick setup window: the form in a frame with four buttons. Its signals ask the dialog to act: there the
// full window's pages are saved first and this window's values over them.

#include <QWidget>

#include <memory>

namespace vlk {
class PageSettings;
}

struct CXmlSection;
class QScrollArea;
class VLK_Form_Config_Light;

namespace Ui {
class VLK_Designer_Widget_Config_Light;
}

class VLK_Widget_Config_Light : public QWidget
{
    Q_OBJECT

public:
    explicit VLK_Widget_Config_Light(QWidget* parent = nullptr);
    ~VLK_Widget_Config_Light() override;

    // Makes the form, if it is not there yet.
    void prepare() { form(); }
    // Above and below the form.
    void addReview(QWidget* bar, QWidget* panel);
    // Above all.
    void addNotice(QWidget* bar);
    void retranslate();
    void setDefaults();
    void loadFromXml(CXmlSection* root);
    void saveToXml(CXmlSection* root);
    // What a save into a file or for the tracker leaves to be told.
    void logNews();
    void deviceConnected();
    void deviceDisconnected();
    // Where the user begins, with the form shown from its top.
    void focusFirstField();
    // Made when it is first needed: opening the full window does not wait for it.
    VLK_Form_Config_Light& form();

Q_SIGNALS:
    void closeRequested();
    void writeRequested();
    // The form is made when it is first needed.
    void formMade(vlk::PageSettings& settings);
    void saveRequested(const QString& path);
    // The user wants the full window instead.
    void fullRequested();

protected:
    void showEvent(QShowEvent* event) override;

private Q_SLOTS:
    void slot_pressed_Btn_Light_SaveToFile();
    void slot_pressed_Btn_Light_LoadToDevice();
    void slot_pressed_Btn_Light_ConfigFull();
    void slot_pressed_Btn_Light_Close();

private:
    std::unique_ptr<Ui::VLK_Designer_Widget_Config_Light> ui_;
    VLK_Form_Config_Light* form_ = nullptr;
    QScrollArea* area_ = nullptr; // around the form
    bool connected_ = false;
};
