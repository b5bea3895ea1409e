#pragma once

// Settings in which two configurations differ, in words, one a row: which setting, and what either side
// holds. Where rows can be chosen each has a check mark. Where some change that nobody has edited, a last
// column tells why, and the others alone have the mark of a change.

#include "road/setting_change.h"

#include <QAbstractTableModel>
#include <QSet>

class QTableView;

namespace workbench {

// "Data transfer, Server 1, port"; the key itself where nobody knows it.
QString settingName(const SettingChange& change);
// What a side holds; a dash where it lacks the key.
QString shownValue(const QString& value, const QString& words);

// The height of all rows and the heads, however few there are.
int heightOfRows(const QTableView& table);

class SettingChangeModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Setting, Before, After, Note, ColumnCount };
    using Heads = std::function<QString(int column)>;

    SettingChangeModel(Heads heads, bool canBeChosen, QObject* parent = nullptr);

    void setChanges(const SettingChanges& changes, const QStringList& chosen = {});
    const SettingChanges& changes() const { return changes_; }
    QStringList chosen() const;
    void retranslate();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    Heads heads_;
    bool canBeChosen_;
    bool hasNotes_ = false;
    SettingChanges changes_;
    QSet<QString> chosen_; // paths
};

} // namespace workbench
