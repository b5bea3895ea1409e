#pragma once

// The telemetry view while a period is saved from it: the tracker's answers in, the file dialog answered, the
// file out.

#include "opened_view.h"

#include <QtTest>
#include <QtWidgets>

using Numbers = QVector<qint64>;

// Above the number itself, what kind of record has it.
enum RecordKind : qint64 { Protocol2 = 1LL << 40, Extra = 2LL << 40, Short = 3LL << 40 };

inline QByteArray record(qint64 kindAndNumber)
{
    const qint64 kind = kindAndNumber & ~0xffffffffLL;
    const auto number = static_cast<quint32>(kindAndNumber);
    if (kind == Extra)
        return vlk::packetBytes(vlk::kSecondHead, -1, 37, vlk::navigationOf(number));
    const QByteArray whole = vlk::RecordParts{{"NumPage", number}, {"Code", 35}, {"Time", 1700000000}}.bytes(
        kind == Protocol2 ? 20 : 30);
    return kind == Short ? whole.left(36) : whole;
}

class SavingView : public OpenedView
{
public:
    SavingView() : file_(folder.filePath("period.xml")) {}

    void send(vlk::Message message, qint64 number, int header = 3)
    {
        OpenedView::send(message, behind(header, record(number)));
    }
    // Saves up to the file name, and gives it.
    void startSave(qint64 first, qint64 last, const char* button = "pushButton_SaveToFile")
    {
        press(button);
        giveName(file_);
        send(vlk::Message::RecordOfPeriod, first, 13);
        send(vlk::Message::RecordByTime, last, 13);
    }
    // To the next file dialog; an empty one cancels it.
    void giveName(const QString& file)
    {
        ScriptedHost::whenModal([this, file](QWidget* modal) {
            auto* dialog = qobject_cast<QFileDialog*>(modal);
            if (file.isEmpty())
                return dialog->reject();
            filter_ = dialog->nameFilters().join(';');
            proposed_ = QFileInfo(dialog->selectedFiles().value(0)).fileName();
            dialog->findChild<QLineEdit*>("fileNameEdit")->setText(file);
            if (QFile::exists(file)) // the dialog asks whether to replace it
                ScriptedHost::whenModal(
                    [](QWidget* box) { qobject_cast<QMessageBox*>(box)->button(QMessageBox::Yes)->click(); });
            QMetaObject::invokeMethod(dialog, "accept");
            if (nowGiven_)
                std::exchange(nowGiven_, {})();
        });
    }
    // The numbers in an XML file.
    Numbers saved() const
    {
        static const QRegularExpression number("<NumPage>(\\d+)</NumPage>");
        Numbers numbers;
        for (auto found = number.globalMatch(readFile(file_)); found.hasNext();)
            numbers << found.next().captured(1).toLongLong();
        return numbers;
    }
    bool isIdle() const
    {
        bool idle = child<QWidget>("pushButton_Save_Cancel")->isHidden() &&
                    child<QWidget>("progressBar_Time")->isHidden();
        for (const QLabel* label : child<QWidget>("frame_Progress")->findChildren<QLabel*>())
            idle = idle && label->text().isEmpty();
        for (const char* name :
             {"groupBox_Btn_Get", "groupBox_Btn_Save", "pushButton_Taho", "pushButton_RFID",
              "pushButton_Get_Current_Touch", "pushButton_Get_Current_RFID"})
            idle = idle && isOn(name);
        return idle;
    }

    QString file_;
    std::function<void()> nowGiven_; // what comes after the next name
    QString filter_;                 // of the latest file dialog
    QString proposed_;               // likewise
};
