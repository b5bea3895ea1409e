#include "windows/cell_marks.h"

#include <QEvent>
#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <QTreeWidget>

namespace vlk {

CellMarks& CellMarks::of(QTreeWidget* tree)
{
    auto* known = tree->findChild<CellMarks*>(QString(), Qt::FindDirectChildrenOnly);
    return known ? *known : *new CellMarks(tree);
}

// A child of the tree beside its viewport, which moves what lies in it when it scrolls.
CellMarks::CellMarks(QTreeWidget* tree) : QWidget(tree), tree_(tree)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setObjectName(QStringLiteral("marks_") + tree->objectName());
    tree->viewport()->installEventFilter(this);
    setGeometry(tree->viewport()->geometry());
    const auto follow = [this] { update(); };
    for (QScrollBar* bar : {tree->verticalScrollBar(), tree->horizontalScrollBar()})
        connect(bar, &QScrollBar::valueChanged, this, follow);
    connect(tree->header(), &QHeaderView::sectionResized, this, follow);
    show();
}

void CellMarks::set(int line, int column, std::optional<Mark> mark, const QString& text)
{
    if (mark)
        marks_[{line, column}] = *mark;
    else
        marks_.erase({line, column});
    if (QTreeWidgetItem* item = tree_->topLevelItem(line); item && item->toolTip(column) != text)
        item->setToolTip(column, text);
    update();
}

bool CellMarks::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move)
        setGeometry(tree_->viewport()->geometry());
    return QWidget::eventFilter(watched, event);
}

void CellMarks::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    for (const auto& [cell, mark] : marks_) {
        const QModelIndex index = tree_->model()->index(cell.first, cell.second);
        const QRect rect = tree_->visualRect(index);
        if (rect.isEmpty())
            continue;
        painter.save();
        painter.translate(rect.topLeft());
        paintMark(painter, mark, palette());
        painter.restore();
    }
}

} // namespace vlk
