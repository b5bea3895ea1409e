#pragma once

// The one window of the configuration: the quick and the full window on a stack, of which one is on show. It
// brings a configuration in from a file, moves it between the two and takes it out to a file or to the
// tracker. A file always goes into the full window, and into the quick window when that one is shown.
// Failures of files are told to the log alone, and what could not be saved is not written to the tracker.

#include "dialog/configuration_review.h"
#include "dialog/edit_keeper.h"
#include "dialog/handed_over.h"
#include "dialog/setting_places.h"

#include <QDialog>

#include <memory>

struct CXmlSection;
class VLK_Widget_Config_Full;
class VLK_Widget_Config_Light;

namespace Ui {
class VLK_Designer_Widget_Config;
}

namespace vlk {
class DocumentMenu;
class ReportDialog;
class ReviewArea;
class SettingMarks;
class UnsavedBar;
struct OpenRequest;
} // namespace vlk

class VLK_Widget_Config : public QDialog
{
    Q_OBJECT

public:
    explicit VLK_Widget_Config(QWidget* parent = nullptr);
    ~VLK_Widget_Config() override;

    using QDialog::open;
    // Resets both windows, loads the request's file into the full one, and into the quick one where that is
    // shown, and shows the window asked for. The balance request code of the file goes to `ussdBuffer`,
    // vlk::kBalanceUssdSize bytes.
    void open(const vlk::OpenRequest& request, char* ussdBuffer);
    void deviceConnected();
    void deviceDisconnected();
    void writeQuickToDevice();
    // What the full window holds, and over it what the quick window does. False when that failed, which the
    // log says (base/save_log.h).
    bool saveQuickToFile(const QString& path);
    void switchToFull();
    void switchToQuick();
    void retranslate();
    // The host has written what a file held that was handed over to it, or the last one, and read it back.
    void confirmWritten(const QByteArray& content) { keeper_.confirmed(content); }

    VLK_Widget_Config_Full* fullWindow() const { return fullWindow_; }
    // The tracker holds this now, and not by a write of what is open here.
    void trackerHolds(const QByteArray& content);
    // Whether the user has taken it over since.
    bool hasTakenOver() const;

    vlk::ConfigurationReview& review() { return review_; }
    // The last one.
    const vlk::HandedOver& handedOver() const { return handedOver_; }
    // Opens the panel with what the preset would change. False when there is nothing open or no such file.
    bool showPreset(const QString& path);

protected:
    // Esc that no field and no popup has use for closes a panel, then the window.
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void saveToXml(CXmlSection* root);
    bool isQuick() const;
    std::vector<vlk::PageSettings*> pagesOnShow() const;
    vlk::PageSettings* pageOnShow();
    void leaveWindow();
    void showFull();
    void showQuick();
    void addReview();
    void nameWindow();
    void retranslateReview();
    void addKeeper();
    void write(const QString& path);
    void fileSaved(const QString& path);
    void tellSaved(const QString& path);
    // That F6 goes to.
    std::vector<QWidgetList> areas() const;
    void addDocuments();
    void showReport();

    std::unique_ptr<Ui::VLK_Designer_Widget_Config> ui_;
    VLK_Widget_Config_Light* lightWindow_;
    VLK_Widget_Config_Full* fullWindow_;
    vlk::EditHistory history_;
    vlk::ConfigurationReview review_;
    vlk::SettingPlaces places_;
    vlk::EditKeeper keeper_;
    vlk::UnsavedBar* unsaved_ = nullptr;
    vlk::ReviewArea* area_ = nullptr;
    vlk::DocumentMenu* documents_ = nullptr;
    vlk::ReportDialog* report_ = nullptr; // made when it is first wanted
    QString file_;                        // that the user opened, without its folder
    bool isOfTracker_ = false;
    vlk::HandedOver handedOver_;
    vlk::SettingMarks* marks_ = nullptr;
};
