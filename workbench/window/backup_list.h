#pragma once

// All backups by tracker and date, the attached tracker and the newest first, each with its note and with how
// many settings differ from the one before; and the field that filters them.

#include "window/key_texts.h"

#include <QHash>
#include <QTimer>
#include <QVector>
#include <QWidget>

class QLineEdit;
class QTreeWidget;

namespace vlk {
class EmptyNote;
} // namespace vlk

namespace workbench {

class Backups;
class HostSession;
struct Backup;

// The one before it of the same tracker; 0 where there is none.
int earlierThan(const Backups& backups, const Backup& backup);
// "No. 48"
QString backupName(int backup);

class BackupList : public QWidget
{
    Q_OBJECT

public:
    explicit BackupList(HostSession& session, QWidget* parent = nullptr);

    void fill();
    // Of those that the filter has left, of the first tracker; 0 while there is none.
    int newest() const;
    void select(int backup);
    void clearFilter();
    // It may be called otherwise now.
    void nameAttached();
    void retranslate() { texts_.apply(); }

Q_SIGNALS:
    // 0: none, as a tracker's heading, or the filter has left none.
    void selected(int backup);
    // By Enter or a double click: to what it is about.
    void entered();

private:
    void buildTree();
    void filter();
    void tellEmpty();
    void countNext();

    HostSession& session_;
    KeyTexts texts_;
    QLineEdit* filter_;
    QTreeWidget* tree_;
    vlk::EmptyNote* empty_ = nullptr;
    QHash<int, int> changes_; // since the one before, by number
    QVector<int> uncounted_;
    QTimer counting_;
};

} // namespace workbench
