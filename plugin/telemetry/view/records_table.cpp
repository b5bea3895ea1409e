#include "telemetry/view/records_table.h"

#include "telemetry/view/records_model.h"
#include "typing/table_look.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>

namespace vlk {

namespace {

constexpr int kWidestColumn = 320;
constexpr int kHeadLines = 2;
constexpr int kHeadPadding = 12; // above and below together
constexpr int kSamples = 32;     // rows spread over the file that a column is measured by

// The width of a head that is broken at its blanks into the lines that there are.
int headWidth(const QString& head, const QFontMetrics& metrics)
{
    int width = metrics.horizontalAdvance(head) / kHeadLines;
    for (const QString& word : head.split(QLatin1Char(' ')))
        width = std::max(width, metrics.horizontalAdvance(word));
    const auto lines = [&] {
        return metrics.boundingRect(0, 0, width, 0, Qt::TextWordWrap, head).height() / metrics.lineSpacing();
    };
    while (width < kWidestColumn && lines() > kHeadLines)
        width += metrics.averageCharWidth();
    return width;
}

void dress(QTableView* table)
{
    table->setFrameShape(QFrame::NoFrame);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    table->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    table->setSortingEnabled(true);
}

} // namespace

RecordsTable::RecordsTable(RecordsModel* model, QWidget* parent)
    : QTableView(parent), model_(model), frozen_(new QTableView(this)), edge_(new QWidget(this))
{
    setModel(model);
    dressTable(this, TableUse::Show);
    dress(this);
    QHeaderView* const heads = horizontalHeader();
    heads->setMinimumHeight(kHeadLines * fontMetrics().lineSpacing() + kHeadPadding);
    heads->setSectionsMovable(true);
    heads->setStretchLastSection(true);
    heads->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(heads, &QWidget::customContextMenuRequested, this, [this, heads](const QPoint& place) {
        const int column = heads->logicalIndexAt(place);
        if (column >= 0 && model_->rowCount() > 0)
            setCurrentIndex(model_->index(std::max(currentIndex().row(), 0), column));
        Q_EMIT menuWanted(heads->viewport()->mapToGlobal(place));
    });
    connect(heads, &QHeaderView::sectionMoved, this, [this](int /*column*/, int from, int to) {
        if (isMoving_)
            return;
        const int kept = static_cast<int>(frozenColumns_.size());
        keepFrozenFirst();
        if (from >= kept && to >= kept)
            Q_EMIT columnMoved();
    });
    connect(this, &QTableView::doubleClicked, this, &RecordsTable::open);
    setUpFrozen();
}

void RecordsTable::setUpFrozen()
{
    frozen_->setObjectName(QStringLiteral("tableWidget_Frozen"));
    frozen_->setModel(model_);
    frozen_->setSelectionModel(selectionModel());
    dressTable(frozen_, TableUse::Show);
    dress(frozen_);
    edge_->setAutoFillBackground(true);
    edge_->setBackgroundRole(QPalette::Mid);
    frozen_->setFocusProxy(this);
    frozen_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    frozen_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    frozen_->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    frozen_->installEventFilter(this);
    connect(frozen_, &QTableView::doubleClicked, this, &RecordsTable::open);
    // The views take a change of rows one after the other. As long as only one of them knows all rows, the
    // place of the frozen columns is cut to what they know: the rows beside them are not moved there.
    const auto isInStep = [this] {
        return frozen_->verticalScrollBar()->maximum() == verticalScrollBar()->maximum();
    };
    connect(frozen_->verticalScrollBar(), &QScrollBar::valueChanged, this, [this, isInStep](int place) {
        if (isInStep())
            verticalScrollBar()->setValue(place);
    });
    const auto follow = [this] { frozen_->verticalScrollBar()->setValue(verticalScrollBar()->value()); };
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, follow);
    connect(frozen_->verticalScrollBar(), &QScrollBar::rangeChanged, this, follow);
    // Either head sorts, both show by what.
    for (const auto& [from, to] : {std::pair(this->horizontalHeader(), frozen_->horizontalHeader()),
                                   std::pair(frozen_->horizontalHeader(), this->horizontalHeader())}) {
        connect(from, &QHeaderView::sortIndicatorChanged, this,
                [this, to = to](int column, Qt::SortOrder order) {
                    const QSignalBlocker quiet(to);
                    to->setSortIndicator(column, order);
                    to->viewport()->update();
                    makeRoomForArrow(column);
                });
    }
}

void RecordsTable::takeColumns()
{
    for (QHeaderView* heads : {horizontalHeader(), frozen_->horizontalHeader()}) {
        const QSignalBlocker quiet(heads);
        heads->setSortIndicator(-1, Qt::AscendingOrder);
    }
    column_ = -1;
    frozenColumns_.clear();
    for (const ItemIndex item : {item("NumPage"), item("Time.local")}) {
        if (const int column = model_->columnOf(item); column >= 0)
            frozenColumns_.push_back(column);
    }
    for (int column = 0; column < model_->columnCount(); ++column)
        frozen_->setColumnHidden(column, !isFrozen(column));
    keepFrozenFirst();
    fitWidths();
}

bool RecordsTable::isFrozen(int column) const
{
    return std::ranges::find(frozenColumns_, column) != frozenColumns_.end();
}

void RecordsTable::keepFrozenFirst()
{
    const QScopedValueRollback moving(isMoving_, true);
    for (std::size_t place = 0; place < frozenColumns_.size(); ++place) {
        for (QHeaderView* heads : {horizontalHeader(), frozen_->horizontalHeader()})
            heads->moveSection(heads->visualIndex(frozenColumns_[place]), static_cast<int>(place));
    }
}

void RecordsTable::arrange(const std::vector<int>& columns)
{
    {
        const QScopedValueRollback moving(isMoving_, true);
        for (std::size_t place = 0; place < columns.size(); ++place)
            horizontalHeader()->moveSection(horizontalHeader()->visualIndex(columns[place]),
                                            static_cast<int>(place));
    }
    keepFrozenFirst();
}

int RecordsTable::widthOfHead(int column) const
{
    const QString head = model_->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    return headWidth(head, fontMetrics()) + 4 * fontMetrics().averageCharWidth();
}

// The arrow of the sorting is as wide as half the head is high.
void RecordsTable::makeRoomForArrow(int column)
{
    if (column < 0)
        return;
    const int width = std::max(columnWidth(column), widthOfHead(column) + horizontalHeader()->height() / 2);
    setColumnWidth(column, width);
    frozen_->setColumnWidth(column, width);
    placeFrozen();
}

// By the head and some of the rows: the view would ask all of them that it can see, in every column.
void RecordsTable::fitWidths()
{
    const int rows = model_->rowCount();
    for (int column = 0; column < model_->columnCount(); ++column) {
        int width = widthOfHead(column);
        for (int sample = 0; sample < std::min(rows, kSamples); ++sample) {
            // The last row too, where numbers are largest.
            const int row = static_cast<int>(qint64{rows - 1} * sample / std::max(kSamples - 1, 1));
            width = std::max(width, cellWidth(*this, model_->index(row, column).data().toString()));
        }
        // Packets are rare, and the rows that were looked at may hold none.
        const bool isWide = !model_->columnAt(column);
        width = isWide ? kWidestColumn : std::min(width, kWidestColumn);
        setColumnWidth(column, width);
        frozen_->setColumnWidth(column, width);
    }
    placeFrozen();
}

std::vector<int> RecordsTable::shownColumns() const
{
    std::vector<int> columns;
    const QHeaderView* const heads = horizontalHeader();
    for (int place = 0; place < heads->count(); ++place) {
        if (!heads->isSectionHidden(heads->logicalIndex(place)))
            columns.push_back(heads->logicalIndex(place));
    }
    return columns;
}

std::vector<int> RecordsTable::selectedRecords() const
{
    std::vector<int> rows;
    const QItemSelection selection = selectionModel()->selection();
    for (const QItemSelectionRange& range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    }
    std::ranges::sort(rows);
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    std::ranges::transform(rows, rows.begin(), [this](int row) { return model_->recordAt(row); });
    return rows;
}

bool RecordsTable::areSeveralSelected() const
{
    const QItemSelection selection = selectionModel()->selection();
    return !selection.isEmpty() &&
           (selection.front().height() > 1 || selection.back().top() != selection.front().top());
}

bool RecordsTable::showRecord(int record)
{
    const int row = model_->rowOf(record);
    if (row < 0)
        return false;
    if (row == currentIndex().row())
        return true;
    const bool isKept = column_ >= 0 && !isColumnHidden(column_);
    // Alone, whatever keys are held that moved to it elsewhere.
    selectionModel()->setCurrentIndex(model_->index(row, isKept ? column_ : shownColumns().front()),
                                      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(currentIndex(), PositionAtCenter);
    return true;
}

void RecordsTable::scrollTo(const QModelIndex& index, ScrollHint hint)
{
    if (isFrozen(index.column())) {
        const int place = horizontalScrollBar()->value();
        QTableView::scrollTo(index, hint);
        horizontalScrollBar()->setValue(place);
        return;
    }
    QTableView::scrollTo(index, hint);
    const int hidden = frozen_->width() - visualRect(index).left();
    if (index.isValid() && hidden > 0)
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - hidden);
}

void RecordsTable::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    if (current.isValid())
        column_ = current.column();
}

void RecordsTable::updateGeometries()
{
    QTableView::updateGeometries();
    placeFrozen();
}

void RecordsTable::placeFrozen()
{
    int width = 0;
    for (const int column : frozenColumns_)
        width += isColumnHidden(column) ? 0 : columnWidth(column);
    frozen_->setVisible(width > 0);
    const int headHeight = horizontalHeader()->height();
    frozen_->horizontalHeader()->setFixedHeight(headHeight);
    // Without rows its head alone: below it stands the note that there are none.
    frozen_->setGeometry(0, 0, width, headHeight + (model_->rowCount() > 0 ? viewport()->height() : 0));
    frozen_->verticalScrollBar()->setValue(verticalScrollBar()->value());
    edge_->setGeometry(width - 1, 0, width > 0 ? 1 : 0, frozen_->height());
    edge_->raise();
}

void RecordsTable::open(const QModelIndex& index)
{
    if (index.isValid())
        Q_EMIT recordOpened(model_->recordAt(index.row()));
}

void RecordsTable::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        return open(currentIndex());
    QTableView::keyPressEvent(event);
}

// Without a current row the view would go to the first one, unless the mouse gave it the keyboard.
void RecordsTable::focusInEvent(QFocusEvent* event)
{
    QFocusEvent byMouse(event->type(), Qt::MouseFocusReason);
    QTableView::focusInEvent(currentIndex().isValid() ? event : &byMouse);
}

void RecordsTable::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Keyboard)
        askMenu();
    else
        Q_EMIT menuWanted(event->globalPos());
}

void RecordsTable::askMenu()
{
    Q_EMIT menuWanted(viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft()));
}

bool RecordsTable::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == frozen_ && event->type() == QEvent::ContextMenu) {
        contextMenuEvent(static_cast<QContextMenuEvent*>(event));
        return true;
    }
    return QTableView::eventFilter(watched, event);
}

} // namespace vlk
