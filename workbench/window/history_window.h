#pragma once

// All backups of all trackers by tracker and date, what changed from one to the next, and the differences
// between any two, or to a file, or to what the tracker holds now. One is brought back whole or by chosen
// settings on the road of every write.

#include "window/key_texts.h"
#include "window/sentence.h"
#include "window/setting_change_model.h"

#include <QDialog>
#include <QStringList>

#include <optional>
#include <utility>
#include <vector>

class QComboBox;
class QPushButton;
class QTableView;

namespace vlk {
class EmptyNote;
}

namespace workbench {

class BackupList;
class HostSession;
class Settings;
class SettingColumns;

class HistoryWindow : public QDialog
{
    Q_OBJECT

public:
    HistoryWindow(HostSession& session, Settings& settings, QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    // What is compared.
    struct Sides
    {
        int backup = 0;
        int other = 0; // as in the list of others; 0 for none
        QString file;

        bool operator==(const Sides&) const = default;
    };

    QWidget* buildDifferences();
    QWidget* buildButtons();
    QPushButton* addButton(QLayout* line, const char* name, const char* key, void (HistoryWindow::*act)());
    void fill();
    // 0 when none is selected.
    int selected() const;
    void select(int number);
    void offerOthers();
    void chooseOther(int index);
    void compare();
    void chooseKeeping();
    void updateButtons();
    void note();
    void bringBack();
    void bringChosen();
    void tell(const Sentence& failure);
    // What stands on the other side; none when it does not come.
    // With why there is none.
    std::optional<QByteArray> other(Sentence& why);
    // Of a backup; null when it can be read.
    Sentence whyUnreadable(int backup) const;
    QString headOf(int column) const;
    // Paths of what is chosen, or was when these two were last looked at.
    QStringList& chosenOf(const Sides& sides);

    HostSession& session_;
    Settings& settings_;
    KeyTexts texts_;
    BackupList* list_;
    QComboBox* one_;
    QComboBox* other_;
    SettingChangeModel model_;
    QTableView* table_;
    SettingColumns* columns_ = nullptr;
    vlk::EmptyNote* empty_ = nullptr;
    QComboBox* keep_;
    QPushButton* note_ = nullptr;
    QPushButton* chosen_ = nullptr;
    QPushButton* whole_ = nullptr;
    QString file_; // that was chosen to compare with
    Sides compared_;
    bool isCompared_ = false; // both could be read
    std::vector<std::pair<Sides, QStringList>> chosenOf_;
};

} // namespace workbench
