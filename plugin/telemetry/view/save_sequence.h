#pragma once

// Saves a period of the tracker's archive to a file: asks for the first and the last record of the period by
// their times, then for a file name, then for each record between the two by its number, and writes the file
// when all are there. The sequence knows the records by their bytes and numbers alone, whatever their version
// is; they are decoded when the file is written.
//
// A cancel takes effect with the next record; the host, who knows when none will come, can end a save at
// once. Whatever ends a save after its file name was given, a closed window or a detached tracker too, the
// file is written with what was collected, and it is told how much of the period that is. A name that no file
// can be written under is refused as soon as it is given. When the writing fails all the same, the name is
// asked for once more; that the file could not be written then stands in the progress area until the user
// goes on. A whole period alone replaces a file that was there: from a part it is kept beside it.

#include "link/messages.h"
#include "telemetry/view/period_file.h"
#include "telemetry/view/save_progress.h"

#include <QDateTime>
#include <QObject>
#include <QPointer>

#include <memory>

class QFileDialog;
class QWidget;

namespace vlk {

// A file that holds the beginning of a period, and its last record.
struct PartOfPeriod
{
    QString path;
    std::size_t records;
    std::size_t all;
    QString until;   // the time of the last record of the beginning, in the zone of the file
    QString earlier; // the path under which a file that was there is kept; empty without one
};

class SaveSequence : public QObject
{
    Q_OBJECT

public:
    enum Mode : std::uint8_t { Xml = 50, Csv, Binary };

    // Boxes and dialogs come up over `window`.
    SaveSequence(QWidget* window, const Ui::VLK_Designer_Widget_Tmi_View& ui) : window_(window), progress_(ui)
    {
    }

    // From `first` to `last`, in UTC; a period that does not go forward is refused with a message box. The
    // proposed name of the file is without its suffix.
    void start(Mode mode, const QDateTime& first, const QDateTime& last, const vlk::TelemetryOrigin& origin,
               const QString& proposedName);
    void take(const QByteArray& record);
    void cancel() { saveCancelled_ = true; }
    // What a cancel does, without waiting for a record.
    vlk::EndedSave endNow();
    // The user looks at records again: a save that runs ends here.
    void stop();

    // Arriving records belong to the sequence. Stays so after the end of a save, until stop().
    bool saving() const { return saving_; }
    bool isRunning() const { return saveState_ != Idle; }
    // A cancel waits for the next record.
    bool isCancelled() const { return isRunning() && saveCancelled_; }
    // How many records have come, and how many are to come in all; none before the file is named.
    struct Fetched
    {
        std::size_t records = 0;
        std::size_t all = 0;
    };
    vlk::SaveSequence::Fetched fetched() const;

    // The zone of the file's times, in seconds east of UTC.
    void setTimeOffset(int seconds) { origin_.timeOffset = seconds; }
    void clearProgress() { progress_.clear(); }
    void retranslate() { progress_.retranslate(); }

Q_SIGNALS:
    void runningChanged(bool running);
    // No more records are waited for; a name may be asked for once more.
    void writing();
    // What the file now holds; before what follows, if it is a part.
    void saved(const std::shared_ptr<vlk::TelemetryContents>& period, const QString& path);
    void savedInPart(const vlk::PartOfPeriod& part);
    // The file is named, or the save was cancelled without one.
    void targetChosen();
    void givenUp();

private:
    enum State : std::uint8_t { Idle, FirstRecord, LastRecord, Collecting, Writing };

    void step(const QByteArray& record);
    void takeFirst(const QByteArray& record);
    void takeLast(const QByteArray& record);
    void takeNext(const QByteArray& record);
    bool chooseFile();
    bool write(const vlk::RecordStore& records, bool isPart);
    // Each gives how many records the file got.
    std::size_t carryOutCancel();
    std::size_t end();
    void tellPart(const vlk::RecordBytes& records);
    void refuse(const QString& text);
    void showFetched();

    QWidget* window_;
    SaveProgress progress_;
    bool saving_ = false;
    bool saveCancelled_ = false;
    bool fileChosen_ = false;
    bool stepping_ = false;
    Mode saveMode_ = Xml;
    State saveState_ = Idle;
    QString proposedName_;
    QString saveFileName_;
    QString earlier_; // see PartOfPeriod
    QPointer<QFileDialog> fileDialog_;
    QDateTime saveStart_;
    QDateTime periodEnd_;
    quint32 saveTotal_ = 0;
    quint32 saveDone_ = 0;
    vlk::TelemetryOrigin origin_;
    vlk::RecordBytes arrived_;
    // From the collecting on: the first record, those that came since, the last record.
    vlk::RecordBytes records_;
};

} // namespace vlk
