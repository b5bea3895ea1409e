#pragma once

// The dialog for a digital tachograph behind the tracker: asks what it reports, has the tracker read one of
// its files, and fetches the file. Its signals leave for the tracker through the telemetry view; answers come
// back at any time.

#include "link/messages.h"

#include <QDialog>

#include <memory>

namespace Ui {
class VLK_Designer_Form_TMI_Taho;
}

namespace vlk {
class NoticeBar;
}

// Signals and slots are found by their signatures, in which the record stands under this name alone.
using vlk::szQueryTaho;

class VLK_Form_TMI_Taho : public QDialog
{
    Q_OBJECT

public:
    explicit VLK_Form_TMI_Taho(QWidget* parent = nullptr);
    ~VLK_Form_TMI_Taho() override;

    // Starts anew, and shows the dialog.
    void open() override;
    void takeAnswer(const QByteArray& answer);
    void takeFetched(bool done);
    void retranslate();

Q_SIGNALS:
    void signal_GetTahoQuest(int question);
    // The record lives for the length of the call.
    void signal_GetTahoFile(szQueryTaho* request);
    void signal_GetTahoFile_Read(const QString& name);

private Q_SLOTS:
    void slot_pressed_BtnQuest();
    void slot_pressed_BtnAutorize();
    void slot_pressed_BtnCreate();
    void slot_pressed_BtnLoad();
    void slot_currentIndexChanged_File(int index);

private:
    std::unique_ptr<Ui::VLK_Designer_Form_TMI_Taho> ui_;
    vlk::NoticeBar* bar_; // the place for what the host has to tell
    QString tahoFileName_;
};
