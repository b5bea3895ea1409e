#include "window/message_log_view.h"

#include "base/whole_file.h"
#include "check/plugin_names.h"
#include "typing/empty_note.h"
#include "typing/file_error.h"
#include "typing/grid.h"
#include "typing/table_look.h"
#include "window/find_field.h"
#include "window/line_icon.h"
#include "window/message_log_filter.h"
#include "window/message_log_model.h"

#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSplitter>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

namespace workbench {

namespace {

constexpr const char* kDirectionKeys[] = {"wb_log_both", "wb_log_to_plugin", "wb_log_to_host"};

} // namespace

MessageLogView::MessageLogView(MessageLogModel* model, QWidget* parent)
    : QWidget(parent), model_(model), filter_(new MessageLogFilter(this)), words_(new QLineEdit(this)),
      directions_(new QComboBox(this)), table_(new QTableView(this)), details_(new QPlainTextEdit(this)),
      count_(new QLabel(this))
{
    filter_->setSourceModel(model_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(vlk::grid::kAroundWindow);
    buildBar();
    buildTable();

    // The log grows behind a filter too. Both are asked, since a note can let a line through the filter.
    for (const QAbstractItemModel* counted :
         {static_cast<QAbstractItemModel*>(model_), static_cast<QAbstractItemModel*>(filter_)}) {
        connect(counted, &QAbstractItemModel::rowsInserted, this, &MessageLogView::showCount);
        connect(counted, &QAbstractItemModel::rowsRemoved, this, &MessageLogView::showCount);
        connect(counted, &QAbstractItemModel::modelReset, this, &MessageLogView::showCount);
    }
    connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &MessageLogView::showCount);
    joinFindField(words_, table_);
    connect(empty_, &EmptyNote::pressed, this, [this] {
        words_->clear();
        directions_->setCurrentIndex(0);
    });
    texts_.bind([this] { showCount(); });
}

void MessageLogView::buildBar()
{
    words_->setObjectName(QStringLiteral("lineEdit_LogFilter"));
    words_->setClearButtonEnabled(true);
    texts_.bind([this] {
        words_->setPlaceholderText(text("wb_log_filter"));
        words_->setAccessibleName(text("wb_log_filter"));
    });
    connect(words_, &QLineEdit::textChanged, this, &MessageLogView::applyFilter);

    directions_->setObjectName(QStringLiteral("comboBox_LogDirection"));
    for (const char* key : kDirectionKeys)
        directions_->addItem(text(key));
    texts_.bind([this] {
        directions_->setAccessibleName(text("wb_log_direction"));
        for (int i = 0; i < directions_->count(); ++i)
            directions_->setItemText(i, text(kDirectionKeys[i]));
    });
    directions_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    connect(directions_, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &MessageLogView::applyFilter);

    auto* bar = new QHBoxLayout;
    bar->setSpacing(vlk::grid::kColumn);
    bar->addWidget(words_, 1);
    bar->addWidget(directions_);
    bar->addWidget(count_);
    const auto addButton = [&](const char* name, const char* icon, const char* key, auto act) {
        auto* button = new QToolButton(this);
        button->setObjectName(QLatin1String(name));
        button->setIcon(lineIcon(QLatin1String(icon)));
        button->setAutoRaise(true);
        texts_.bind([button, key] {
            button->setToolTip(text(key));
            button->setAccessibleName(text(key));
        });
        connect(button, &QToolButton::clicked, this, act);
        bar->addWidget(button);
        return button;
    };
    copy_ = addButton("toolButton_LogCopy", "copy", "wb_log_copy",
                      [this] { QGuiApplication::clipboard()->setText(shownText()); });
    save_ = addButton("toolButton_LogSave", "save", "wb_log_save", [this] { save(); });
    addButton("toolButton_LogClear", "clear", "wb_log_clear", [this] { model_->clear(); });
    static_cast<QVBoxLayout*>(layout())->addLayout(bar);
}

void MessageLogView::buildTable()
{
    table_->setObjectName(QStringLiteral("tableView_Log"));
    table_->setModel(filter_);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    vlk::dressTable(table_, TableUse::Read);
    empty_ = new EmptyNote(table_);
    table_->horizontalHeader()->setStretchLastSection(true);
    const char* const samples[] = {"00:00:00.000", "⇄ m", "00000 m", "TachographFileRequest"};
    for (int column = 0; column < MessageLogModel::Parameters; ++column)
        table_->setColumnWidth(column, vlk::cellWidth(*table_, QString::fromUtf8(samples[column])));
    connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &MessageLogView::showDetails);
    // The range changes with the rows, with the filter and with the height of the list.
    QScrollBar* bar = table_->verticalScrollBar();
    connect(bar, &QScrollBar::valueChanged, this, [this, bar] { follows_ = bar->value() == bar->maximum(); });
    connect(bar, &QScrollBar::rangeChanged, this, [this, bar] {
        if (follows_)
            bar->setValue(bar->maximum());
    });

    details_->setObjectName(QStringLiteral("plainTextEdit_LogDetails"));
    details_->setReadOnly(true);
    details_->setTabChangesFocus(true);
    details_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    texts_.bind([this] {
        details_->setPlaceholderText(text("wb_log_details"));
        details_->setAccessibleName(text("wb_log_parameters"));
    });

    auto* splitter = new QSplitter(Qt::Vertical, this);
    splitter->addWidget(table_);
    splitter->addWidget(details_);
    splitter->setStretchFactor(0, 5);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    static_cast<QVBoxLayout*>(layout())->addWidget(splitter, 1);
}

void MessageLogView::applyFilter()
{
    // A line that is looked at stays in sight among those that come back.
    const QModelIndex current = table_->currentIndex();
    const bool isLookedAt = table_->viewport()->rect().intersects(table_->visualRect(current));
    filter_->setWords(words_->text());
    filter_->setDirections(MessageLogFilter::Directions(directions_->currentIndex()));
    if (isLookedAt && table_->currentIndex().isValid()) {
        table_->doItemsLayout(); // which takes the range from the rows that there are now
        table_->scrollTo(table_->currentIndex(), QAbstractItemView::PositionAtCenter);
    }
    showCount();
}

void MessageLogView::showCount()
{
    if (model_->rowCount() == 0)
        empty_->tell(text("wb_log_empty"));
    else
        empty_->tell(text("wb_nothing_matches"), text("wb_clear_filter"));
    count_->setText(countText(filter_->rowCount()));
    const int selected = table_->selectionModel()->selectedRows().size();
    const int taken = selected < 2 ? filter_->rowCount() : selected;
    const QString excerpt = taken == model_->rowCount() ? QString() : QStringLiteral(": ") + countText(taken);
    for (auto [button, key] : {std::pair(copy_, "wb_log_copy"), {save_, "wb_log_save"}}) {
        button->setToolTip(text(key) + excerpt);
        button->setAccessibleName(text(key) + excerpt);
    }
}

QString MessageLogView::countText(int part) const
{
    const QLocale locale;
    const int all = model_->rowCount();
    return part == all ? locale.toString(all)
                       : text("wb_log_count").arg(locale.toString(part), locale.toString(all));
}

void MessageLogView::showDetails()
{
    const QModelIndex current = filter_->mapToSource(table_->currentIndex());
    if (!current.isValid()) {
        details_->clear();
        return;
    }
    const auto cell = [&](MessageLogModel::Column column) {
        return current.sibling(current.row(), column).data().toString();
    };
    details_->setPlainText(QStringLiteral("%1 %2 %3\n%4")
                               .arg(cell(MessageLogModel::Way), cell(MessageLogModel::Number),
                                    cell(MessageLogModel::Name), cell(MessageLogModel::Parameters)));
}

QString MessageLogView::shownText() const
{
    const QVector<int> rows = takenRows();
    QString text;
    if (rows.size() != model_->rowCount()) {
        text = workbench::text("wb_log_excerpt").arg(countText(rows.size()));
        QStringList conditions(words_->text().simplified());
        if (directions_->currentIndex() > 0)
            conditions << directions_->currentText();
        conditions.removeAll(QString());
        if (!conditions.isEmpty())
            text += QStringLiteral(". ") +
                    workbench::text("wb_log_filtered").arg(conditions.join(QLatin1String(", ")));
        text += QLatin1Char('\n');
    }
    for (const int row : rows)
        text += model_->line(row) + QLatin1Char('\n');
    return text;
}

QVector<int> MessageLogView::takenRows() const
{
    const QItemSelectionModel* selection = table_->selectionModel();
    const bool all = selection->selectedRows().size() < 2;
    QVector<int> rows;
    for (int row = 0; row < filter_->rowCount(); ++row) {
        if (all || selection->isRowSelected(row, {}))
            rows << filter_->mapToSource(filter_->index(row, 0)).row();
    }
    return rows;
}

bool MessageLogView::saveTo(const QString& path, QString* error) const
{
    QSaveFile file(path);
    if (vlk::saveWhole(file, shownText().toUtf8()))
        return true;
    *error = text("wb_file_unwritable").arg(path, vlk::fileErrorText(file.errorString()));
    return false;
}

void MessageLogView::save()
{
    QFileDialog dialog(this, save_->toolTip(), QDir::homePath(),
                       text("wb_log_file_type") + QStringLiteral(" (*.txt)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("txt"));
    dialog.selectFile(QStringLiteral("messages.txt"));
    QString error;
    if (dialog.exec() == QDialog::Accepted && !saveTo(dialog.selectedFiles().value(0), &error))
        QMessageBox::warning(this, text("wb_title"), error);
}

void MessageLogView::retranslate()
{
    texts_.apply();
    model_->retranslate();
    showCount();
    showDetails();
}

} // namespace workbench
