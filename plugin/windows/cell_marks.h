#pragma once

// Marks in the cells of a tree of lines: in their upper left corners, so that nothing moves. What a mark says
// stands in the tool tip of its cell.

#include "typing/field_mark.h"

#include <QWidget>

#include <map>
#include <optional>

class QTreeWidget;

namespace vlk {

class CellMarks : public QWidget
{
    Q_OBJECT

public:
    // The marks of a tree, made when it has none yet.
    static CellMarks& of(QTreeWidget* tree);

    // Nothing takes the mark away.
    void set(int line, int column, std::optional<Mark> mark, const QString& text);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    explicit CellMarks(QTreeWidget* tree);

    QTreeWidget* const tree_;
    std::map<std::pair<int, int>, Mark> marks_; // by line and column
};

} // namespace vlk
