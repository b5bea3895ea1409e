#include "dialog/list_panel.h"

#include "typing/empty_note.h"
#include "typing/grid.h"
#include "typing/line_icon.h"
#include "typing/table_look.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <QToolButton>

#include <algorithm>

namespace vlk {

namespace {

constexpr int kLeastHeight = 120;
constexpr int kEdge = 5;
constexpr int kRowsForWidths = 50;

} // namespace

ListPanel::ListPanel(const char* name, QWidget* parent)
    : QWidget(parent), title_(new QLabel(this)), table_(new QTableView(this)), close_(new QToolButton(this)),
      edge_(new QWidget(this))
{
    const QString end = QString::fromLatin1(name);
    setObjectName(QStringLiteral("widget_") + end);
    title_->setObjectName(QStringLiteral("label_") + end);
    table_->setObjectName(QStringLiteral("tableView_") + end);
    close_->setObjectName(QStringLiteral("toolButton_Close") + end);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->installEventFilter(this);
    table_->viewport()->installEventFilter(this);
    close_->setAutoRaise(true);
    close_->setIcon(lineIcon(LineIcon::Cross));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(vlk::grid::kRow);
    edge_->setObjectName(QStringLiteral("edge_") + end);
    edge_->setFixedHeight(kEdge);
    edge_->setCursor(Qt::SplitVCursor);
    edge_->installEventFilter(this);
    auto* head = new QHBoxLayout;
    head->setSpacing(vlk::grid::kColumn);
    head->addWidget(title_);
    head->addStretch();
    head->addWidget(close_);
    layout->addLayout(head);
    layout->addWidget(table_);
    connect(table_, &QTableView::doubleClicked, this,
            [this](const QModelIndex& index) { take(index.row()); });
    connect(close_, &QToolButton::clicked, this, &ListPanel::closed);
    hide();
}

void ListPanel::setModel(QAbstractItemModel& model)
{
    table_->setModel(&model);
    dressTable(table_, TableUse::Read);
    table_->horizontalHeader()->setStretchLastSection(true);
    table_->horizontalHeader()->setResizeContentsPrecision(kRowsForWidths);
    empty_ = new EmptyNote(table_);
}

void ListPanel::addToHead(const QWidgetList& widgets)
{
    auto* head = static_cast<QHBoxLayout*>(layout()->itemAt(0)->layout());
    for (QWidget* widget : widgets) {
        head->insertWidget(head->count() - 2, widget);
        if (auto* button = qobject_cast<QPushButton*>(widget))
            button->setAutoDefault(false);
    }
    // Tab goes from what fills the table to its lines, and from there to what is done with them.
    QWidgetList order = widgets;
    const auto buttons = std::stable_partition(
        order.begin(), order.end(), [](QWidget* widget) { return !qobject_cast<QPushButton*>(widget); });
    first_ = buttons == order.begin() ? nullptr : order.front();
    order.insert(buttons, table_);
    order << close_;
    for (int next = 1; next < order.size(); ++next)
        setTabOrder(order[next - 1], order[next]);
}

void ListPanel::press(const QPushButton* button, const std::function<void()>& act)
{
    const bool hadFocus = button->hasFocus();
    act();
    if (hadFocus && !button->isEnabled())
        table_->setFocus(Qt::OtherFocusReason);
}

void ListPanel::setTitle(const QString& title, QWidget* buddy)
{
    title_->setText(title);
    title_->setBuddy(buddy);
}

void ListPanel::retranslate()
{
    close_->setToolTip(tr("rev_116"));
    close_->setAccessibleName(tr("rev_116"));
}

void ListPanel::setPanelHeight(int height)
{
    setFixedHeight(std::clamp(height, kLeastHeight, std::max(kLeastHeight, window()->height() / 2)));
}

void ListPanel::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    edge_->setGeometry(0, 0, width(), kEdge);
}

void ListPanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    refresh();
}

void ListPanel::showNow()
{
    show();
    if (!table_->currentIndex().isValid())
        table_->setCurrentIndex(table_->model()->index(0, 0));
}

// Of an empty list what fills it.
void ListPanel::open()
{
    showNow();
    const bool isEmpty = table_->model()->rowCount() == 0;
    (isEmpty && first_ ? first_ : table_)->setFocus(Qt::ShortcutFocusReason);
}

bool ListPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == edge_ && event->type() == QEvent::MouseMove) {
        setPanelHeight(height() - static_cast<QMouseEvent*>(event)->pos().y());
        return true;
    }
    if (watched == edge_ && event->type() == QEvent::MouseButtonRelease)
        Q_EMIT heightChosen(height());
    // When the table has seen it itself.
    if (watched == table_->viewport() && event->type() == QEvent::Resize)
        QTimer::singleShot(0, this, [this] { fitTable(); });
    const int line = table_->currentIndex().row();
    if (watched != table_ || event->type() != QEvent::KeyPress || line < 0)
        return QWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        take(line);
        return true;
    case Qt::Key_Space:
        toggle(selectedLines());
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

QVector<int> ListPanel::selectedLines() const
{
    QVector<int> lines{table_->currentIndex().row()};
    // Ctrl and an arrow go on and leave the selection where it was, maybe out of sight.
    if (!table_->selectionModel()->isRowSelected(lines.first(), {}))
        return lines;
    for (const QModelIndex& index : table_->selectionModel()->selectedRows()) {
        if (!lines.contains(index.row()))
            lines << index.row();
    }
    return lines;
}

void ListPanel::keyPressEvent(QKeyEvent* event)
{
    auto* button = qobject_cast<QPushButton*>(focusWidget());
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && button && button->hasFocus())
        return button->click();
    if (event->key() != Qt::Key_Escape)
        return QWidget::keyPressEvent(event);
    Q_EMIT closed();
    event->accept();
}

} // namespace vlk
