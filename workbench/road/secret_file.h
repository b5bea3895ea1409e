#pragma once

// Files in which passwords stand: replaced as a whole, and only their owner can read them.

#include <QByteArray>
#include <QFile>

namespace workbench {

constexpr QFile::Permissions kOwnerOnly = QFile::ReadOwner | QFile::WriteOwner;

// False, with the reason, when it could not be saved; what was there stays.
bool saveSecret(const QString& path, const QByteArray& content, QString* reason);

} // namespace workbench
