#pragma once

// The message log with what one does with it: filter, copy, save, clear. Follows the newest message while the
// list stands at its end.

#include "window/key_texts.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QTableView;
class QToolButton;

namespace vlk {
class EmptyNote;
}

namespace workbench {

class MessageLogFilter;
class MessageLogModel;

class MessageLogView : public QWidget
{
    Q_OBJECT

public:
    explicit MessageLogView(MessageLogModel* model, QWidget* parent = nullptr);

    // The rows that the filter lets through, a line each; only the selected ones when some are selected.
    // Where that is not the whole log, a line before them says so.
    QString shownText() const;
    // False with a text for the user when the file cannot be written.
    bool saveTo(const QString& path, QString* error) const;

    void retranslate();

private:
    void buildBar();
    void buildTable();
    void applyFilter();
    void showDetails();
    void showCount();
    void save();
    QVector<int> takenRows() const;
    QString countText(int part) const;

    MessageLogModel* model_;
    MessageLogFilter* filter_;
    KeyTexts texts_;
    QLineEdit* words_;
    QComboBox* directions_;
    QTableView* table_;
    vlk::EmptyNote* empty_ = nullptr;
    QPlainTextEdit* details_;
    QLabel* count_;
    bool follows_ = true; // the list stands at its end
    QToolButton* copy_ = nullptr;
    QToolButton* save_ = nullptr;
};

} // namespace workbench
