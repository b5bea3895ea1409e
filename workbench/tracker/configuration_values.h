#pragma once

// A configuration document flattened to "key path, value" pairs in the order of the file. This is the
// tracker's own reading, apart from the plug-in's on purpose: what one of them gets wrong the other shows.

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QVector>

namespace tracker {

class ConfigurationValues
{
public:
    // Reads a document; on a malformed one error() says where and why, and there are no values.
    explicit ConfigurationValues(const QByteArray& document = {});

    QString error() const { return error_; }
    QString root() const { return root_; }
    QString rootAttribute(const QString& name) const { return rootAttributes_.value(name); }

    // Paths in the order of the file, without those of the root's attributes.
    const QVector<QString>& paths() const { return paths_; }
    bool contains(const QString& path) const { return values_.contains(path); }
    QString text(const QString& path, const QString& absent = {}) const
    {
        return values_.value(path, absent);
    }
    // 0 for a text that is no number.
    int number(const QString& path, int absent = 0) const;

private:
    void add(const QString& path, const QString& value);

    QString error_;
    QString root_;
    QHash<QString, QString> rootAttributes_;
    QVector<QString> paths_;
    QHash<QString, QString> values_;
};

// In how many keys the two differ; a key that only one has counts. Sections that only one has are left out: a
// file sets the sections that it has and leaves the rest alone.
int differingKeys(const ConfigurationValues& one, const ConfigurationValues& other);

} // namespace tracker
