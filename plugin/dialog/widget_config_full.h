#pragma once

// The full configuration window: the settings pages as tabs and the buttons at their side. Configurations
// come and go as XML files with the root DEVICE; a file that does not parse changes nothing, and a missing
// key takes its default. What could not be saved is not written to the tracker.

#include "dialog/page_services.h"

#include <memory>

struct CXmlSection;
class QAction;

namespace Ui {
class VLK_Designer_Widget_Config_Full;
}

class VLK_Widget_Config_Full : public vlk::PageServices
{
    Q_OBJECT

public:
    explicit VLK_Widget_Config_Full(QWidget* parent = nullptr);
    ~VLK_Widget_Config_Full() override;

    // Replaces whatever the file holds. False when that failed, which the log says (base/save_log.h).
    bool saveFile(const QString& path);
    // Reads a document into the pages, and its balance request code into `ussdBuffer` (vlk::kBalanceUssdSize
    // bytes), which one that could not be read leaves as it is.
    void loadFromXml(CXmlSection* root, char* ussdBuffer);
    void saveToXml(CXmlSection* root);

    // Above and below the tabs.
    void addReview(QWidget* bar, QWidget* panel);
    vlk::TabNavigation& navigation() { return *navigation_; }
    // Above all.
    void addNotice(QWidget* bar);

    void setDefaults();
    void retranslate();
    void deviceConnected();
    void deviceDisconnected();
    // Where the user begins: the first input of the tab on show.
    void focusFirstField();

Q_SIGNALS:
    void closeRequested();
    // The user wants the quick window instead, and has been asked whether that is meant.
    void quickRequested();
    // A file that the user chose holds all pages.
    void saved(const QString& path);
    // The file at the path is for the tracker.
    void writeRequested(const QString& path);

public Q_SLOTS:
    void slot_timeOut_TimerAnalog();
    void slot_finished(int result);
    void slot_currentChanged_TabWidget(int index);
    void slot_pressed_Btn_SaveToFile();
    void slot_pressed_Btn_LoadToDevice();
    void slot_pressed_Btn_Help();
    void slot_pressed_Btn_Close();
    void slot_pressed_Btn_ConfigLight();
    void slot_pressed_Btn_First();
    void slot_pressed_Btn_Last();
    void slot_pressed_Btn_PrevScreen();
    void slot_pressed_Btn_NextScreen();
    void slot_pressed_Btn_Goto();
    void slot_triggered_Menu(QAction* action);
    void slot_Excess_Size(bool excess);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void connectButtons();
    void buildTabs();
    void nameButtons();

    std::unique_ptr<Ui::VLK_Designer_Widget_Config_Full> ui_;
    bool connected_ = false;
};
