#include "typing/table_look.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QProxyStyle>
#include <QShortcut>
#include <QStyleFactory>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTimer>
#include <QToolTip>
#include <QTreeView>

#include <algorithm>

namespace vlk {

namespace {

constexpr int kRowPadding = 8;  // above and below together
constexpr int kCellPadding = 6; // left, and right

// The part of kCellPadding that styles leave by themselves.
int ownPadding(const QWidget* table)
{
    return table->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, table) + 1;
}

class CellDelegate : public QStyledItemDelegate
{
public:
    CellDelegate(Qt::TextElideMode elide, QObject* parent) : QStyledItemDelegate(parent), elide_(elide) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QStyleOptionViewItem cell = option;
        initStyleOption(&cell, index);
        cell.textElideMode = elide_;
        const QStyle* style = option.widget->style();
        // The whole cell first, then its content within less.
        style->drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, cell.widget);
        cell.rect = content(cell);
        style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
        // The frame of a style is hardly seen in a dark window, and here nothing else tells the row.
        if (option.state.testFlag(QStyle::State_HasFocus) && !option.state.testFlag(QStyle::State_Selected)) {
            painter->setPen(option.palette.color(QPalette::Text));
            painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
        }
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const int padding = option.rect.width() - content(option).width();
        if (!option.features.testFlag(QStyleOptionViewItem::WrapText))
            return {QStyledItemDelegate::sizeHint(option, index).width() + padding,
                    option.fontMetrics.height() + kRowPadding};
        QStyleOptionViewItem cell = option;
        cell.rect = content(option);
        return QStyledItemDelegate::sizeHint(cell, index) + QSize(padding, kRowPadding);
    }

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override
    {
        const QString text = index.data().toString();
        if (event->type() != QEvent::ToolTip || !index.data(Qt::ToolTipRole).isNull() ||
            cellWidth(*view, text) <= option.rect.width())
            return QStyledItemDelegate::helpEvent(event, view, option, index);
        QToolTip::showText(event->globalPos(), text, view);
        return true;
    }

private:
    static QRect content(const QStyleOptionViewItem& cell)
    {
        const int padding = kCellPadding - ownPadding(cell.widget);
        return cell.rect.adjusted(padding, 0, -padding, 0);
    }

    Qt::TextElideMode elide_;
};

// Heads begin where the texts of their cells do, and end in an ellipsis where they are cut. Header views
// would cut texts that fit.
class HeadStyle : public QProxyStyle
{
public:
    explicit HeadStyle(QObject* parent)
        : QProxyStyle(QStyleFactory::create(QApplication::style()->objectName()))
    {
        setParent(parent);
    }

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override
    {
        return metric == PM_HeaderMargin ? kCellPadding : QProxyStyle::pixelMetric(metric, option, widget);
    }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override
    {
        const auto* head = qstyleoption_cast<const QStyleOptionHeader*>(option);
        if (element != CE_HeaderLabel || !head || head->textAlignment & Qt::TextWordWrap ||
            head->text.contains(QLatin1Char('\n')))
            return QProxyStyle::drawControl(element, option, painter, widget);
        QStyleOptionHeader cut = *head;
        cut.text = head->fontMetrics.elidedText(head->text, Qt::ElideRight, head->rect.width());
        QProxyStyle::drawControl(element, &cut, painter, widget);
    }
};

const QHeaderView* headsOf(const QAbstractItemView& view)
{
    if (const auto* table = qobject_cast<const QTableView*>(&view))
        return table->horizontalHeader();
    const auto* tree = qobject_cast<const QTreeView*>(&view);
    return tree ? tree->header() : nullptr;
}

bool isHidden(const QAbstractItemView& view, int row)
{
    const auto* table = qobject_cast<const QTableView*>(&view);
    return table && table->isRowHidden(row);
}

// To the first or the last row, which is chosen alone then. With Ctrl a view goes there and leaves chosen
// what was, so that the next key acts on a row out of sight too.
class EndKeys : public QObject
{
public:
    // `isList`: without Ctrl as well, instead of along the row.
    EndKeys(QAbstractItemView* view, bool isList) : QObject(view), view_(view), isList_(isList)
    {
        view->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (isGoing_ || event->type() != QEvent::KeyPress ||
            view_->selectionMode() == QAbstractItemView::NoSelection)
            return QObject::eventFilter(watched, event);
        const auto* key = static_cast<QKeyEvent*>(event);
        const Qt::KeyboardModifiers held = key->modifiers() & ~Qt::KeypadModifier;
        const bool isEnd = key->key() == Qt::Key_Home || key->key() == Qt::Key_End;
        if (!isEnd || (!isList_ && held != Qt::ControlModifier))
            return QObject::eventFilter(watched, event);
        const QModelIndex from = view_->currentIndex();
        QKeyEvent whole(QEvent::KeyPress, key->key(), Qt::ControlModifier);
        isGoing_ = true;
        QCoreApplication::sendEvent(view_, &whole);
        isGoing_ = false;
        const QModelIndex to = view_->currentIndex();
        const bool extends = held.testFlag(Qt::ShiftModifier) && from.isValid() &&
                             view_->selectionMode() == QAbstractItemView::ExtendedSelection;
        if (extends)
            view_->selectionModel()->select(QItemSelection(std::min(from, to), std::max(from, to)),
                                            QItemSelectionModel::Select | QItemSelectionModel::Rows);
        else
            view_->selectionModel()->select(to,
                                            QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        return true;
    }

private:
    QAbstractItemView* view_;
    bool isList_;
    bool isGoing_ = false;
};

void dressView(QAbstractItemView* view, QHeaderView* heads)
{
    view->setAlternatingRowColors(true);
    heads->setHighlightSections(false);
    heads->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    heads->setStyle(new HeadStyle(heads));
}

void dressCells(QAbstractItemView* view)
{
    view->setItemDelegate(new CellDelegate(Qt::ElideRight, view));
}

void addCopy(QAbstractItemView* view)
{
    auto* copy = new QShortcut(QKeySequence::Copy, view, nullptr, nullptr, Qt::WidgetShortcut);
    QObject::connect(copy, &QShortcut::activated, view, [view] {
        // Heads alone would cost what is held there, for nothing.
        if (const QString text = tableText(*view); text.count(QLatin1Char('\n')) > 1)
            QApplication::clipboard()->setText(text);
    });
}

} // namespace

void dressTable(QTableView* table, TableUse use)
{
    dressView(table, table->horizontalHeader());
    if (use != TableUse::Edit) {
        dressCells(table);
        new EndKeys(table, use == TableUse::Read);
    }
    if (use == TableUse::Read)
        addCopy(table);
    table->setShowGrid(use == TableUse::Edit);
    table->setWordWrap(false);
    table->setTabKeyNavigation(false);
    const int height = table->fontMetrics().height() + kRowPadding;
    table->verticalHeader()->hide();
    table->verticalHeader()->setMinimumSectionSize(height);
    table->verticalHeader()->setDefaultSectionSize(height);
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
}

void dressTable(QTreeView* tree)
{
    dressView(tree, tree->header());
    dressCells(tree);
    new EndKeys(tree, true);
    addCopy(tree);
    tree->setRootIsDecorated(false);
    tree->setUniformRowHeights(true);
}

void elideInTheMiddle(QAbstractItemView* table, int column)
{
    table->setItemDelegateForColumn(column, new CellDelegate(Qt::ElideMiddle, table));
}

void wrapTexts(QTableView* table)
{
    constexpr int mostLines = 4;
    table->setWordWrap(true);
    auto* due = new QTimer(table);
    due->setSingleShot(true);
    const QAbstractItemView* view = table;
    QObject::connect(due, &QTimer::timeout, table, [table, view] {
        const int line = table->fontMetrics().height();
        for (int row = 0; row < table->model()->rowCount(); ++row)
            table->setRowHeight(row, std::clamp(view->sizeHintForRow(row), line + kRowPadding,
                                                mostLines * line + kRowPadding));
    });
    const auto wrap = [due] { due->start(0); };
    QObject::connect(table->horizontalHeader(), &QHeaderView::sectionResized, due, wrap);
    QObject::connect(table->model(), &QAbstractItemModel::modelReset, due, wrap);
    wrap();
}

int cellWidth(const QAbstractItemView& table, const QString& text)
{
    // Letters lean a little out of what they are said to take.
    constexpr int kLean = 2;
    return table.fontMetrics().horizontalAdvance(text) + kLean + 2 * kCellPadding;
}

QString tableText(const QAbstractItemView& table, CopiedRows rows)
{
    const QAbstractItemModel& model = *table.model();
    const QHeaderView* heads = headsOf(table);
    QVector<int> columns;
    for (int place = 0; heads && place < heads->count(); ++place) {
        if (!heads->isSectionHidden(heads->logicalIndex(place)))
            columns << heads->logicalIndex(place);
    }
    QString text;
    const auto addLine = [&](auto cell) {
        QStringList cells;
        for (const int column : std::as_const(columns))
            cells << cell(column).simplified();
        text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    };
    addLine([&](int column) { return model.headerData(column, Qt::Horizontal).toString(); });
    QVector<int> shown;
    QVector<int> chosen;
    for (int row = 0; row < model.rowCount(); ++row) {
        if (isHidden(table, row))
            continue;
        shown << row;
        if (table.selectionModel()->rowIntersectsSelection(row, {}))
            chosen << row;
    }
    for (const int row : rows == CopiedRows::All || chosen.isEmpty() ? shown : chosen)
        addLine([&](int column) {
            const QModelIndex index = model.index(row, column);
            const QVariant copied = index.data(kCopiedRole);
            return (copied.isValid() ? copied : index.data()).toString();
        });
    return text;
}

} // namespace vlk
