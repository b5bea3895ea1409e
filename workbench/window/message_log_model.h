#pragma once

// The message log: every message in both directions, and what the plug-in warned of in its own log, the
// newest last. It holds a bounded number of entries and drops the oldest tenth when it is full. Bytes are
// kept as they came and turned into hex when they are looked at.

#include "check/plugin_names.h"
#include "plugin/host/host_interface.h"

#include <QAbstractTableModel>

#include <deque>

namespace workbench {

struct LoggedMessage
{
    QDateTime time;
    vlk::Direction direction = vlk::Direction::ToPlugin;
    quint32 id = 0;
    QString words;
    QByteArray bytes;
    QString note;     // what is wrong with it, empty for most
    QString category; // of a warning, which has words and nothing else; empty for a message
};

class MessageLogModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Time, Way, Number, Name, Parameters, ColumnCount };
    // Gives the vlk::Direction of a row as an integer.
    static constexpr int kDirectionRole = Qt::UserRole;
    static constexpr int kDefaultCapacity = 100'000;

    explicit MessageLogModel(int capacity = kDefaultCapacity, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    // Says what is wrong with the message that came last.
    void markNewest(const QString& note);

    // One line, the columns divided by tabs.
    QString line(int row) const;

public Q_SLOTS:
    // Reads the parameters before it returns.
    void append(vlk::Direction direction, quint32 id, const void* p1, const void* p2);
    void appendWarning(const QString& category, const QString& text);
    void clear();
    // The headings in the language in use.
    void retranslate();

private:
    void add(LoggedMessage message);
    QString cell(const LoggedMessage& message, int column) const;

    std::deque<LoggedMessage> messages_;
    int capacity_;
};

} // namespace workbench
