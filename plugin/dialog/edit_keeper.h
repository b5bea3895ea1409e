#pragma once

// Keeps on disk what is being edited (review/recovery.h), a third of a second behind, until it is saved to a
// file, written to the tracker or taken back, and at once when the window closes. A change of windows alone
// is no edit.

#include "base/file_claim.h"
#include "dialog/configuration_review.h"

#include <QTimer>

#include <array>
#include <optional>

namespace vlk {

// What edits of the configuration at `path` are kept by: the tracker, the file, or that it is new. A tracker
// that does not say which one it is is known by what it holds.
QString editSubject(const QString& path, bool isFile);

// Logs which configurations edits of are kept in the host's folder, for whoever shows what is logged: they
// are offered only when one of these is opened. `but`: what is told otherwise.
void tellKeptEdits(const QString& folder, const QString& but = {});
// The attached tracker has the content: edits from which it came are kept no longer, whichever run they are
// of. Those that are in sight are the keeper's.
void dropWrittenEdits(const QString& folder, const QByteArray& content);

class EditKeeper : public QObject
{
    Q_OBJECT

public:
    EditKeeper(ConfigurationReview& review, QWidget& window);

    // The configuration that is known by `subject` has been opened; what was edited before has been left.
    // `staysAsOpened`: a file that a write to the tracker does not change.
    void begin(const QString& folder, const QString& subject, bool staysAsOpened);
    // At once. False when the disk refused.
    bool keep();
    // Keeps edits that go out of sight: what is still being typed counts.
    void leave();
    // The user has put the other window on show, which was kept before.
    void switched();

    // The file at `path` holds what there is now. What was new or of a file is edited there from here on.
    void saved(const QString& path);
    // What there is now goes to the tracker, in a file that holds the content.
    void handedOver(const QByteArray& content);
    // What there is now is no edit: it has come from the tracker.
    void beginAnew();
    // The tracker has taken so much of what was edited.
    void beginFrom(const QByteArray& content);
    // The tracker has that, or what was handed over last, or nobody will say whether it has.
    void confirmed(const QByteArray& content);

    // Why the disk refused; empty while it does not.
    QString failure() const { return failure_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    // With every edit that the disk refuses, and when it does no longer.
    void failed();
    // What the disk refused before is kept now.
    void keptAgain();
    // What there is now is safe: kept, saved or written.
    void safe();
    // The tracker has what the window on show handed over: that content, and what the quick window held then.
    void written(const QByteArray& content, const QMap<QString, QString>& quick);

private:
    struct HandedOver
    {
        QByteArray content;
        QByteArray document;
        QMap<QString, QString> quick; // ConfigurationReview::quickValues()
        QString path;                 // where it was kept
    };

    using Beginning = std::array<QByteArray, 2>; // without an edit, in the full and in the quick window

    void setSubject(const QString& subject);
    void beginWith(const QByteArray& document);
    // The tracker has that.
    void beginOpened(const QByteArray& document);
    QByteArray inOtherWindow(const QByteArray& document) const;
    // In the window on show, with what quick setup had made and the user has brought back since.
    QByteArray inSight(const Beginning& state) const;
    // Where that is no edit: as long as no file holds what quick setup made.
    QByteArray beginning() const;
    // How many edits the window tells; 0 where it has told of others before and it cannot be known.
    int count() const;
    void setFailure(const QString& reason);
    // What the disk refused goes with the window. False when nothing does.
    bool tellLost() const;
    // False when nothing is.
    bool tellKept() const;

    ConfigurationReview& review_;
    QTimer due_;
    QString folder_;
    QString subject_;
    QString path_;
    std::optional<FileClaim> claim_;     // while the edits are in sight
    Beginning beginning_;                // as opened, saved or written last
    Beginning inFile_;                   // as the file still holds it; empty where none does
    Beginning opened_;                   // as opened or written last
    QString savedTo_;                    // where edits of a tracker were saved since then
    int saved_ = 0;                      // how many settings they have changed
    bool isSaved_ = false;               // since opened or written last
    std::optional<int> told_;            // how many edits the window told of opened_
    QByteArray kept_;                    // what the file of the edits is known to hold
    QByteArray shown_;                   // what there was when it was asked to keep last
    bool isInSight_ = false;             // until the window is closed
    std::vector<HandedOver> handedOver_; // that may still be confirmed, the last ones
    QString failure_;
};

} // namespace vlk
