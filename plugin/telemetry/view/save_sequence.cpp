#include "telemetry/view/save_sequence.h"

#include "base/clock.h"
#include "base/replace_file.h"
#include "base/translated.h"
#include "link/device.h"
#include "link/requests.h"
#include "telemetry/files/telemetry_file.h"
#include "telemetry/record/record_head.h"
#include "telemetry/text/time_text.h"
#include "typing/file_error.h"
#include "windows/save_dialog.h"

#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QMessageBox>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QtEndian>

#include <optional>

namespace vlk {

namespace {

Q_LOGGING_CATEGORY(lcPart, "vlk.save.part")

struct SavedFileKind
{
    const char* name; // key
    const char* suffix;
    TelemetryForm form;
};

// By mode, from Xml on.
constexpr SavedFileKind kFileKinds[] = {
    {"tmiw_179", "xml", TelemetryForm::Xml},
    {"tmiw_180", "csv", TelemetryForm::Csv},
    {"tmiw_181", "tmi", TelemetryForm::Binary},
};

const SavedFileKind& kindOf(SaveSequence::Mode mode)
{
    return kFileKinds[mode - SaveSequence::Xml];
}

// None where the record is too short to have one.
std::optional<qint64> numberOf(const QByteArray& record)
{
    const bool extra = record.startsWith(static_cast<char>(kExtraPacket));
    const qsizetype at = extra ? ExtraPacket::kElementsOfHead.front().offset : RecordHead::kBytes;
    if (record.size() < at + qsizetype{sizeof(quint32)})
        return {};
    return qFromLittleEndian<quint32>(record.constData() + at);
}

// A file under this name goes on under another one: "week (earlier).xml".
QString keptEarlier(const QString& path)
{
    constexpr int most = 1000;
    const QFileInfo info(path);
    for (int number = 1; info.exists() && number < most; ++number) {
        QString mark = translated("tmiw_293");
        if (number > 1)
            mark += QLatin1Char(' ') + QString::number(number);
        QString kept = info.dir().filePath(
            QStringLiteral("%1 (%2).%3").arg(info.completeBaseName(), mark, info.suffix()));
        if (QFile::rename(path, kept))
            return kept;
    }
    return {};
}

} // namespace

void SaveSequence::start(Mode mode, const QDateTime& first, const QDateTime& last,
                         const TelemetryOrigin& origin, const QString& proposedName)
{
    stop();
    if (isRunning())
        return;
    saving_ = true;
    saveCancelled_ = false;
    if (first >= last) {
        refuse(translated("tmiw_154"));
        return;
    }
    saveMode_ = mode;
    origin_ = origin;
    proposedName_ = proposedName;
    periodEnd_ = last;
    Q_EMIT runningChanged(true);
    progress_.setStatus("tmiw_026");
    saveState_ = FirstRecord;
    saveStart_ = now();
    requests::recordOfPeriod(first);
}

// The host may answer within a request. Such an answer waits for its turn, so that a long period takes no
// more of the stack than a short one.
void SaveSequence::take(const QByteArray& record)
{
    // Nothing is asked of the tracker while the user looks for a file name.
    if (fileDialog_)
        return;
    arrived_.push_back(record);
    if (stepping_)
        return;
    const QScopedValueRollback stepping(stepping_, true);
    while (!arrived_.empty()) {
        const QByteArray next = arrived_.front();
        arrived_.erase(arrived_.begin());
        step(next);
    }
}

void SaveSequence::stop()
{
    saving_ = false;
    // The records have come; their file is the user's matter.
    if (saveState_ == Writing)
        return;
    if (!isRunning()) {
        // What became of the last one has been read.
        progress_.clear();
        return;
    }
    if (fileDialog_)
        fileDialog_->reject();
    end();
}

EndedSave SaveSequence::endNow()
{
    // Where a file name is asked for, or the file is written, the user is told already.
    if (!isRunning() || saveState_ == Writing || fileDialog_)
        return {};
    return {.ended = 1, .records = static_cast<std::uint32_t>(carryOutCancel())};
}

SaveSequence::Fetched SaveSequence::fetched() const
{
    return saveState_ == Collecting ? Fetched{records_.size(), std::size_t{saveTotal_} + 1} : Fetched{};
}

void SaveSequence::step(const QByteArray& record)
{
    if (isRunning() && saveCancelled_) {
        carryOutCancel();
        return;
    }
    switch (saveState_) {
    case Idle:
    case Writing:
        break;
    case FirstRecord:
        takeFirst(record);
        break;
    case LastRecord:
        takeLast(record);
        break;
    case Collecting:
        takeNext(record);
        break;
    }
}

void SaveSequence::takeFirst(const QByteArray& record)
{
    records_ = {record};
    saveState_ = LastRecord;
    requests::recordByTime(periodEnd_);
}

void SaveSequence::takeLast(const QByteArray& record)
{
    records_.push_back(record);
    const auto first = numberOf(records_.front());
    const auto last = numberOf(records_.back());
    if (!first || !last || *last <= *first) {
        end();
        refuse(translated("tmiw_155"));
        return;
    }
    const QDateTime asked = now();
    fileChosen_ = chooseFile();
    if (!isRunning())
        return;
    // The user's time is none of the save's.
    saveStart_ = saveStart_.addMSecs(asked.msecsTo(now()));
    saveTotal_ = static_cast<quint32>(*last - *first);
    if (!fileChosen_) {
        carryOutCancel();
        return;
    }
    Q_EMIT targetChosen();
    if (saveTotal_ == 1) {
        end();
    } else {
        saveDone_ = 2;
        saveState_ = Collecting;
        progress_.setStatus("tmiw_152");
        progress_.start(saveTotal_);
        showFetched();
        requests::recordByNumber(static_cast<quint32>(*first + 1));
    }
}

void SaveSequence::takeNext(const QByteArray& record)
{
    const auto number = numberOf(record);
    const bool isFirstOfThem = records_.size() == 2;
    if (!number || (!isFirstOfThem && *number <= *numberOf(records_.end()[-2])))
        return;
    records_.insert(records_.end() - 1, record);
    progress_.moveBar();
    if (*numberOf(records_.back()) - *number > 1) {
        ++saveDone_;
        showFetched();
        requests::recordByNumber(static_cast<quint32>(*number + 1));
    } else {
        progress_.setStatus("tmiw_153");
        saveState_ = Idle; // none is missing
        end();
    }
}

bool SaveSequence::chooseFile()
{
    const SavedFileKind& kind = kindOf(saveMode_);
    const QString suffix = QLatin1String(kind.suffix);
    SaveDialog dialog(window_, translated("wrd_028"), vlkDevice ? vlkDevice->tmiFolder() : QString(),
                      QStringLiteral("%1 (*.%2)").arg(translated(kind.name), suffix), suffix);
    dialog.selectFile(proposedName_ + QLatin1Char('.') + suffix);
    fileDialog_ = &dialog;
    while (isRunning() && dialog.exec() == QDialog::Accepted) {
        saveFileName_ = dialog.selectedFiles().value(0);
        const QString reason = whyNotReplaceable(saveFileName_);
        if (reason.isEmpty())
            return isRunning();
        refuse(translated("tmiw_187").arg(QDir::toNativeSeparators(saveFileName_), fileErrorText(reason)));
    }
    return false;
}

std::size_t SaveSequence::carryOutCancel()
{
    saveCancelled_ = false;
    if (!fileChosen_)
        Q_EMIT givenUp();
    progress_.setStatus("tmiw_027");
    progress_.resetBar();
    return end();
}

std::size_t SaveSequence::end()
{
    progress_.stopWaiting();
    // Writing asks the host for words; whatever else it sends then is not part of this save any more.
    const bool isPart = std::exchange(saveState_, Writing) == Collecting;
    arrived_.clear();
    Q_EMIT writing();
    const RecordBytes records = std::exchange(records_, {});
    const bool isChosen = std::exchange(fileChosen_, false);
    const auto period = std::make_shared<TelemetryContents>(periodOf(records, origin_));
    const bool isSaved = isChosen && write(period->records, isPart);
    saveState_ = Idle;
    // Before the button goes, which may have the focus.
    Q_EMIT runningChanged(false);
    progress_.clear();
    // Stays until the user does something else.
    if (isChosen && !isSaved)
        progress_.setStatus("tmiw_182");
    if (isSaved)
        Q_EMIT saved(period, saveFileName_);
    if (isSaved && isPart)
        tellPart(records);
    return isSaved ? records.size() : 0;
}

// What came is worth a second name.
bool SaveSequence::write(const RecordStore& records, bool isPart)
{
    const auto writeOnce = [&] {
        earlier_ = isPart ? keptEarlier(saveFileName_) : QString();
        const bool isWritten =
            saveTelemetryFile(saveFileName_, kindOf(saveMode_).form, records, origin_, &requests::eventText);
        if (!isWritten && !earlier_.isEmpty())
            QFile::rename(earlier_, saveFileName_);
        return isWritten;
    };
    if (writeOnce())
        return true;
    progress_.setStatus("tmiw_182");
    return chooseFile() && writeOnce();
}

void SaveSequence::tellPart(const RecordBytes& records)
{
    const QByteArray& latest = records.end()[-2];
    const quint32 time = timeOf(TmiPage_Zeta3(latest.constData(), latest.size()));
    const PartOfPeriod part{saveFileName_, records.size(), std::size_t{saveTotal_} + 1,
                            zonedTimeText(time, origin_.timeOffset), earlier_};
    qCWarning(lcPart).noquote().nospace()
        << part.path << ": " << part.records << " of " << part.all << " records, until " << part.until;
    Q_EMIT savedInPart(part);
}

void SaveSequence::refuse(const QString& text)
{
    QMessageBox box(QMessageBox::Warning, translated("wrd_004"), text, QMessageBox::NoButton, window_);
    box.setTextFormat(Qt::PlainText);
    box.addButton(translated("wrd_003"), QMessageBox::AcceptRole);
    box.exec();
}

void SaveSequence::showFetched()
{
    progress_.setFetched(saveDone_, saveTotal_, std::max<qint64>(saveStart_.secsTo(now()), 0));
}

} // namespace vlk
