#include "dialog/edit_keeper.h"

#include "base/clock.h"
#include "base/model_text.h"
#include "link/device.h"
#include "review/recovery.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QWidget>

#include <algorithm>
#include <iterator>
#include <set>

namespace vlk {

namespace {

Q_LOGGING_CATEGORY(lcUnsaved, "vlk.save.unsaved")
Q_LOGGING_CATEGORY(lcKept, "vlk.unsaved.kept")
Q_LOGGING_CATEGORY(lcFound, "vlk.unsaved.found")
Q_LOGGING_CATEGORY(lcLost, "vlk.unsaved.lost")
Q_LOGGING_CATEGORY(lcWritten, "vlk.unsaved.written")

const QString kNew = QStringLiteral("new");
const QString kFileSubject = QStringLiteral("file ");
const QString kTracker = QStringLiteral("tracker ");
const QString kUnknownTracker = QStringLiteral("tracker with ");

// What a person calls it; empty for a new one.
QString nameOfSubject(const QString& subject)
{
    if (subject.startsWith(kFileSubject))
        return QFileInfo(subject.mid(kFileSubject.size())).fileName();
    if (subject == kNew)
        return {};
    if (subject.startsWith(kUnknownTracker))
        return modelText();
    QStringList texts = subject.mid(kTracker.size()).split(QLatin1Char('\n'));
    texts.removeAll(QString());
    return modelText() + QLatin1Char(' ') + texts.last(); // its number, where it has one
}

// Names the tracker that is attached; empty where its numbers are not known.
QString trackerSubject()
{
    const QString identity = vlkDevice->trackerId1() + QLatin1Char('\n') + vlkDevice->trackerId2();
    return identity.size() > 1 ? kTracker + identity : QString();
}

// For whoever shows what was logged of them.
void tellWritten(const QString& folder, const QString& subject)
{
    if (review::keptUnsaved(folder, subject).empty())
        qCWarning(lcWritten).noquote().nospace() << "changes are written: " << nameOfSubject(subject);
}

// Behind an edit. With the time that a slow disk or a busy machine takes it stays below a second.
constexpr int kDelayMs = 300;
// More are never in work at a time.
constexpr std::size_t kMostHandedOver = 10;

} // namespace

QString editSubject(const QString& path, bool isFile)
{
    if (path.isEmpty())
        return kNew;
    if (isFile) {
        const QFileInfo file(path);
        return kFileSubject + (file.exists() ? file.canonicalFilePath() : file.absoluteFilePath());
    }
    if (QString subject = trackerSubject(); !subject.isEmpty())
        return subject;
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return kUnknownTracker +
           QString::fromLatin1(QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha256).toHex());
}

void tellKeptEdits(const QString& folder, const QString& but)
{
    QStringList subjects{but};
    for (const review::KeptUnsaved& kept : review::keptUnsaved(folder)) {
        if (subjects.contains(kept.unsaved.subject))
            continue;
        subjects << kept.unsaved.subject;
        qCWarning(lcFound).noquote().nospace()
            << "changes of " << momentOf(kept.unsaved) << ": " << nameOfSubject(kept.unsaved.subject);
    }
}

void dropWrittenEdits(const QString& folder, const QByteArray& content)
{
    for (const auto& [path, unsaved] : review::keptUnsaved(folder)) {
        const bool isOfAnother = unsaved.subject.startsWith(kTracker) && unsaved.subject != trackerSubject();
        if (!isOfAnother && review::isResult(content, unsaved) && QFile::remove(path))
            tellWritten(folder, unsaved.subject);
    }
}

EditKeeper::EditKeeper(ConfigurationReview& review, QWidget& window) : review_(review)
{
    window.installEventFilter(this);
    due_.setSingleShot(true);
    due_.setInterval(kDelayMs);
    connect(&due_, &QTimer::timeout, this, &EditKeeper::keep);
    // Edits that follow each other do not put it off.
    connect(&review_, &ConfigurationReview::changed, this, [this] {
        if (!due_.isActive())
            due_.start();
    });
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, &EditKeeper::leave);
}

void EditKeeper::begin(const QString& folder, const QString& subject, bool staysAsOpened)
{
    due_.stop();
    setFailure({}); // it is told anew of this one
    folder_ = folder;
    setSubject(subject);
    isInSight_ = true;
    beginOpened(review_.document());
    inFile_ = staysAsOpened ? beginning_ : Beginning();
}

void EditKeeper::setSubject(const QString& subject)
{
    subject_ = subject;
    path_ = review::recoveryPath(folder_, subject);
    claim_.reset();
}

void EditKeeper::beginWith(const QByteArray& document)
{
    beginning_.fill(document);
    kept_.clear();
    told_.reset();
}

void EditKeeper::beginOpened(const QByteArray& document)
{
    beginWith(document);
    opened_ = beginning_;
    savedTo_.clear();
    isSaved_ = false;
    if (document == review_.document())
        told_ = review_.edited();
}

bool EditKeeper::keep()
{
    due_.stop();
    if (subject_.isEmpty())
        return true;
    const QByteArray beginning = this->beginning();
    // What changes behind the closed window, as lists do with the language, is nobody's edit.
    const QByteArray now = isInSight_ ? review_.document() : shown_;
    QString reason;
    const bool isEdited = now != beginning && now != inSight(inFile_);
    shown_ = now;
    if (now == kept_)
        return true;
    if (!isEdited) {
        if (QFile::exists(path_) && !QFile::remove(path_))
            return false;
        kept_.clear();
        claim_.reset();
    } else if (review::keepUnsaved(
                   path_,
                   {subject_, vlk::now(), beginning, now, review_.quickValues(), savedTo_, saved_, count()},
                   &reason)) {
        kept_ = now;
        if (!claim_)
            claim_.emplace(path_);
        if (!failure_.isEmpty()) {
            setFailure({});
            Q_EMIT keptAgain();
        }
    } else {
        setFailure(reason);
        return false;
    }
    setFailure({});
    return true;
}

int EditKeeper::count() const
{
    return told_ ? std::max(review_.edited() - *told_, 0) : 0;
}

void EditKeeper::leave()
{
    for (PageSettings* page : review_.history().pages())
        page->binder().finishTyping();
    review_.history().settle();
    if (keep())
        Q_EMIT safe();
    claim_.reset();
}

bool EditKeeper::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Hide && !event->spontaneous()) {
        leave();
        isInSight_ = false;
        if (!subject_.isEmpty())
            tellKeptEdits(folder_, !tellLost() && tellKept() ? subject_ : QString());
    }
    return QObject::eventFilter(watched, event);
}

bool EditKeeper::tellLost() const
{
    if (failure_.isEmpty())
        return false;
    const QByteArray before = kept_.isEmpty() ? beginning() : kept_;
    std::vector<int> lost = review::ownKeys({subject_, {}, before, shown_});
    // What was brought back from an earlier time is kept there.
    for (const review::KeptUnsaved& kept : review::keptUnsaved(folder_, subject_)) {
        const std::vector<int> all = review::editedKeys(kept.unsaved);
        const std::vector<int> others = review::editedKeys({subject_, {}, kept.unsaved.after, shown_});
        std::erase_if(lost, [&](int key) {
            return std::ranges::find(all, key) != all.end() && std::ranges::find(others, key) == others.end();
        });
    }
    qCWarning(lcLost).noquote().nospace()
        << std::max<std::size_t>(lost.size(), 1) << " changes are lost: " << nameOfSubject(subject_) << ": "
        << failure_;
    return true;
}

// The window is gone: whoever shows what is logged says it.
bool EditKeeper::tellKept() const
{
    if (kept_.isEmpty())
        return false;
    // With what was kept of it earlier and still waits.
    std::set<int> keys;
    int count = 0;
    for (const review::KeptUnsaved& kept : review::keptUnsaved(folder_, subject_)) {
        const std::vector<int> own = review::ownKeys(kept.unsaved);
        if (kept.path == path_ && own.empty())
            return false;
        const std::size_t known = keys.size();
        keys.insert(own.begin(), own.end());
        count += review::countOf(kept.unsaved, static_cast<int>(keys.size() - known),
                                 static_cast<int>(own.size()));
    }
    qCWarning(lcKept).noquote().nospace() << count << " changes are kept: " << nameOfSubject(subject_);
    return true;
}

void EditKeeper::switched()
{
    const bool isQuick = review_.isQuick();
    told_.reset();
    // shown_ is what was kept last, before the change.
    for (Beginning* state : {&beginning_, &inFile_, &opened_})
        (*state)[isQuick] = inOtherWindow((*state)[!isQuick]);
}

// What this window makes of a document of the other one, from which shown_ was edited, is no edit. Its pages
// may do more than their tables say, as for a tracker that lacks something.
QByteArray EditKeeper::inOtherWindow(const QByteArray& document) const
{
    const QByteArray now = review_.document();
    if (document.isEmpty() || document == shown_)
        return document.isEmpty() ? document : now;
    const QByteArray unedited = review_.rewritten(document);
    const QByteArray edited = review_.rewritten(shown_);
    return edited == now ? unedited : review_.rewritten(review::withEdits(unedited, {{}, {}, edited, now}));
}

QByteArray EditKeeper::inSight(const Beginning& state) const
{
    return review_.withBroughtBack(state[review_.isQuick()]);
}

QByteArray EditKeeper::beginning() const
{
    return isSaved_ ? beginning_[review_.isQuick()] : inSight(beginning_);
}

void EditKeeper::saved(const QString& path)
{
    if (!subject_.startsWith(kTracker) && !subject_.startsWith(kUnknownTracker)) {
        QFile::remove(path_);
        setSubject(editSubject(path, true));
    } else {
        savedTo_ = path;
        saved_ =
            static_cast<int>(review::ownKeys({subject_, {}, inSight(opened_), review_.document()}).size());
    }
    beginWith(review_.document());
    inFile_ = {};
    isSaved_ = true;
    keep();
    Q_EMIT safe();
}

void EditKeeper::handedOver(const QByteArray& content)
{
    keep();
    if (handedOver_.size() == kMostHandedOver)
        handedOver_.erase(handedOver_.begin());
    handedOver_.push_back({content, review_.document(), review_.quickValues(), path_});
}

void EditKeeper::beginAnew()
{
    beginWith(review_.document());
    keep();
}

void EditKeeper::beginFrom(const QByteArray& content)
{
    if (!savedTo_.isEmpty())
        return; // where all of it is
    beginOpened(review_.rewritten(content));
    keep();
}

void EditKeeper::confirmed(const QByteArray& content)
{
    const auto found =
        std::ranges::find_if(handedOver_.rbegin(), handedOver_.rend(), [&](const HandedOver& other) {
            return content.isEmpty() || other.content == content;
        });
    if (found == handedOver_.rend())
        return;
    const HandedOver written = *found;
    handedOver_.erase(handedOver_.begin(), found.base());
    if (written.path == path_) {
        Q_EMIT this->written(written.content, written.quick);
        const QString subject = subject_;
        // What was new is the tracker's now, and its next reading offers what is edited from here on.
        if (const QString tracker = trackerSubject(); subject_ == kNew && !tracker.isEmpty())
            setSubject(tracker);
        beginOpened(written.document);
        if (!keep())
            return;
        if (path_ != written.path)
            QFile::remove(written.path);
        if (!isInSight_)
            tellWritten(folder_, subject);
        Q_EMIT safe();
        return;
    }
    // Another configuration has been opened since then. What was edited in between stays.
    const std::optional<review::Unsaved> left = review::unsavedIn(written.path);
    if (left && left->after == written.document && QFile::remove(written.path))
        tellWritten(folder_, left->subject);
}

void EditKeeper::setFailure(const QString& reason)
{
    const bool isOther = reason != failure_;
    failure_ = reason;
    if (isOther && !reason.isEmpty())
        qCWarning(lcUnsaved).noquote().nospace() << path_ << ": " << reason;
    if (isOther || !reason.isEmpty())
        Q_EMIT failed();
}

} // namespace vlk
