#include "window/edited_configuration.h"

#include "window/languages.h"
#include "window/trouble_text.h"

#include <QFileInfo>

namespace workbench {

using tracker::ConfigurationValues;

void EditedConfiguration::readFromTracker(const QByteArray& document, const QString& number)
{
    seenIn_ = number;
    known_ = document;
    offered_.reset();
    source_ = Source::Tracker;
    unknown_.clear();
    document_ = document;
    asRead_ = ConfigurationValues(document);
    tracker_ = asRead_;
    written_.reset();
}

void EditedConfiguration::openFile(const QString& path, const QByteArray& document,
                                   const QStringList& unknown)
{
    unknown_ = unknown;
    source_ = Source::File;
    seenIn_.clear();
    known_.clear();
    offered_.reset();
    file_ = QFileInfo(path).fileName();
    document_ = document;
    asRead_ = ConfigurationValues(document);
    written_.reset();
}

void EditedConfiguration::beginNew()
{
    source_ = Source::New;
    seenIn_.clear();
    known_.clear();
    offered_.reset();
    unknown_.clear();
    asRead_ = ConfigurationValues();
    written_.reset();
}

void EditedConfiguration::written(const QByteArray& document, const QString& number, const QByteArray& held)
{
    if (source_ == Source::New) {
        readFromTracker(document, number);
        known_ = held;
        return;
    }
    seenIn_ = number;
    known_ = held;
    offered_.reset();
    unknown_.clear();
    written_ = changesIn(document);
    trackerHolds(document);
}

void EditedConfiguration::writtenInPart(const QString& number, const QByteArray& held)
{
    if (seenIn_ == number)
        known_ = held;
    trackerHolds(held);
}

void EditedConfiguration::trackerHolds(const QByteArray& document)
{
    tracker_ = ConfigurationValues(document);
}

void EditedConfiguration::offered(const QByteArray& held, bool isBack)
{
    offered_ = held;
    isBack_ = isBack;
}

void EditedConfiguration::tookOver()
{
    if (offered_)
        known_ = *offered_;
}

void EditedConfiguration::close()
{
    source_ = Source::None;
}

std::optional<int> EditedConfiguration::changesIn(const QByteArray& document) const
{
    if (source_ == Source::New || source_ == Source::None)
        return {};
    const auto changes = compare_(document_, document);
    return changes ? static_cast<int>(changes->size())
                   : tracker::differingKeys(asRead_, ConfigurationValues(document));
}

QString EditedConfiguration::text() const
{
    if (source_ == Source::None)
        return QStringLiteral("–");
    if (written_)
        return workbench::text("wb_edited_written").arg(name(), number(*written_));
    if (source_ == Source::File && tracker_)
        return workbench::text("wb_edited_unlike")
            .arg(name(), number(tracker::differingKeys(asRead_, *tracker_)));
    return name();
}

QString EditedConfiguration::name() const
{
    switch (source_) {
    case Source::Tracker:
        return workbench::text("wb_edited_tracker");
    case Source::File:
        return file_;
    case Source::New:
        return workbench::text("wb_edited_new");
    case Source::None:
        break;
    }
    return {};
}

} // namespace workbench
