#pragma once

// What the configuration window holds: where it came from, and how what was written or saved from it differs
// from what was read. The host learns of the user's edits when they are written or saved, not before.

#include "road/setting_change.h"
#include "tracker/configuration_values.h"

#include <QStringList>

#include <optional>

namespace workbench {

class EditedConfiguration
{
public:
    explicit EditedConfiguration(Compare compare) : compare_(std::move(compare)) {}

    void readFromTracker(const QByteArray& document, const QString& number);
    // `unknown`: paths of the keys that the plug-in does not read.
    void openFile(const QString& path, const QByteArray& document, const QStringList& unknown);
    void beginNew();
    // The tracker of that number took it, and holds this now.
    void written(const QByteArray& document, const QString& number, const QByteArray& held);
    // A write of it ended so that the tracker of that number holds this, as its report shows.
    void writtenInPart(const QString& number, const QByteArray& held);
    // The tracker took one that was open before, or has been brought back.
    void trackerHolds(const QByteArray& document);
    // The window has been told that the tracker holds this, and may take it over; `isBack`: it was brought
    // back to that.
    void offered(const QByteArray& held, bool isBack);
    bool isOffered() const { return offered_.has_value(); }
    void tookOver();
    // The window is closed.
    void close();
    // The tracker is gone with what it holds.
    void forgetTracker() { tracker_.reset(); }

    // The number of the tracker that it was read from or written to; empty where no tracker has seen it.
    QString seenIn() const { return seenIn_; }
    // What that tracker held then; empty where no tracker has seen it.
    QByteArray known() const { return known_; }
    // What it was brought back to since then; empty where it was not.
    QByteArray broughtBack() const { return isBack_ ? offered_.value_or(QByteArray()) : QByteArray(); }
    // What a write loses of the file that was opened.
    QStringList unknown() const { return unknown_; }
    bool isNew() const { return source_ == Source::New; }
    // In how many settings the document differs from what was read, by what they mean where the plug-in can
    // tell; nothing was read of a new one.
    std::optional<int> changesIn(const QByteArray& document) const;

    // "from the tracker", "fleet.xml; differences from the tracker: 3"; a dash while nothing is open.
    QString text() const;
    // Without its folder, of one that came from a file; else empty.
    QString file() const { return source_ == Source::File ? file_ : QString(); }
    // The text in short, for a title; empty while nothing is open.
    QString name() const;

private:
    enum class Source { None, Tracker, File, New };

    Source source_ = Source::None;
    QString file_; // without its folder
    QString seenIn_;
    QByteArray known_;
    std::optional<QByteArray> offered_;
    bool isBack_ = false; // what was offered
    QStringList unknown_;
    Compare compare_;
    QByteArray document_; // that was read
    tracker::ConfigurationValues asRead_;
    std::optional<tracker::ConfigurationValues> tracker_; // what it held when it was heard of last
    std::optional<int> written_;                          // changes that were written
};

} // namespace workbench
