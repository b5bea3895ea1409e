#pragma once

// Some settings of one configuration file laid into another, with those without which they would do nothing
// there: the switch that closes them, the type of their form, the field of the record that they fill.

#include <QByteArray>
#include <QStringList>

#include <optional>

namespace vlk::review {

// The text with what `from` has at the paths, keys that it lacks taken out, and whatever comes along; all the
// rest of it stays as it stands. Paths that no setting has are passed over. None when one of the two cannot
// be read, or a setting has no place there.
std::optional<QByteArray> withSettings(const QByteArray& text, const QByteArray& from,
                                       const QStringList& paths);

} // namespace vlk::review
