#include "telemetry/view/widget_tmi_table.h"

#include "link/requests.h"
#include "telemetry/record/record_head.h"
#include "telemetry/shown/records_notices.h"
#include "telemetry/shown/work_progress.h"
#include "telemetry/view/column_choice.h"
#include "telemetry/view/columns_menu.h"
#include "telemetry/view/damage_text.h"
#include "telemetry/view/file_opening.h"
#include "telemetry/view/filter_field.h"
#include "telemetry/view/find_bar.h"
#include "telemetry/view/growing_records.h"
#include "telemetry/view/record_finder.h"
#include "telemetry/view/records_menu.h"
#include "telemetry/view/records_model.h"
#include "telemetry/view/records_places.h"
#include "telemetry/view/records_table.h"
#include "telemetry/view/selected_records.h"
#include "telemetry/view/table_export.h"
#include "typing/area_keys.h"
#include "typing/empty_note.h"
#include "typing/grid.h"
#include "typing/notice_bar.h"
#include "windows/fit_to_screen.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QTabWidget>
#include <QTimer>

#include <algorithm>
#include <functional>

using namespace vlk;

namespace {

constexpr int kWidth = 1024;
constexpr int kHeight = 680;

} // namespace

VLK_Widget_Tmi_Table::VLK_Widget_Tmi_Table(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowCloseButtonHint | Qt::WindowMaximizeButtonHint),
      shown_(new ShownRecords(this)), model_(new RecordsModel(shown_, this)),
      table_(new RecordsTable(model_, this)), columns_(new ColumnChoice(model_, table_)),
      filter_(new FilterField(shown_, model_, this)),
      findBar_(new FindBar(new RecordFinder(model_, table_), this)),
      notices_(new NoticeBar(this, QStringLiteral("label_Damage"))), progress_(new WorkProgress(this)),
      opening_(new FileOpening(progress_)),
      export_(new TableExport(shown_, model_, table_, notices_, progress_, this)),
      growing_(new GrowingRecords(
          shown_, notices_, [this] { export_->ask(); }, this)),
      empty_(new EmptyNote(table_)), columnsButton_(new QPushButton(this)),
      exportButton_(new QPushButton(this)), helpButton_(new QPushButton(this)), count_(new QLabel(this)),
      work_(new QLabel(this)), sums_(new QLabel(this))
{
    table_->setObjectName(QStringLiteral("tableWidget"));
    columnsButton_->setObjectName(QStringLiteral("pushButton_Columns"));
    exportButton_->setObjectName(QStringLiteral("pushButton_Export"));
    helpButton_->setObjectName(QStringLiteral("pushButton_Help"));
    count_->setObjectName(QStringLiteral("label_Count"));
    work_->setObjectName(QStringLiteral("label_Work"));
    sums_->setObjectName(QStringLiteral("label_Sums"));
    for (QPushButton* button : {columnsButton_, exportButton_, helpButton_}) {
        button->setAutoDefault(false);
        filter_->addWidget(button);
    }
    notices_->keepPlace();
    columnsButton_->setMenu(new ColumnsMenu(model_, columns_, columnsButton_));
    layOut();
    resize(kWidth, kHeight);
    keepOnScreen(this);

    connect(model_, &QAbstractItemModel::modelReset, this, &VLK_Widget_Tmi_Table::takeColumns);
    connect(shown_, &ShownRecords::contentsChanged, this, &VLK_Widget_Tmi_Table::takeContents);
    connect(shown_, &ShownRecords::recordsAdded, this, &VLK_Widget_Tmi_Table::takeAdded);
    connect(shown_, &ShownRecords::passingChanged, this, &VLK_Widget_Tmi_Table::takePassing);
    connect(shown_, &ShownRecords::currentChanged, table_, &RecordsTable::showRecord);
    connect(table_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) {
                if (current.isValid())
                    shown_->setCurrent(model_->recordAt(current.row()));
            });
    // Only the last of many changes in one go counts.
    auto* sums = new QTimer(this);
    sums->setSingleShot(true);
    sums->setInterval(0);
    connect(sums, &QTimer::timeout, this, &VLK_Widget_Tmi_Table::showSums);
    const auto showSoon = [sums] { sums->start(); };
    connect(model_, &QAbstractItemModel::modelReset, sums, showSoon);
    connect(table_->selectionModel(), &QItemSelectionModel::currentChanged, sums, showSoon);
    connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, sums, showSoon);
    connect(table_, &RecordsTable::menuWanted, this, &VLK_Widget_Tmi_Table::showMenu);
    connect(table_, &RecordsTable::recordOpened, this,
            [this](int record) { Q_EMIT recordOpened(shown_->contents(), name_, record); });
    connect(shown_, &ShownRecords::currentChanged, this,
            [this](int record) { Q_EMIT recordChosen(shown_->contents(), record); });
    connect(shown_, &ShownRecords::wentOn, this, [this](double share) {
        work_->setText(share < 1 ? tr("rec_471").arg(static_cast<int>(100 * share)) : QString());
    });
    connect(filter_, &FilterField::applied, this, &VLK_Widget_Tmi_Table::showCount);
    connect(empty_, &EmptyNote::pressed, filter_, &FilterField::clear);
    connect(findBar_, &FindBar::closed, table_, [this] { table_->setFocus(); });
    connect(helpButton_, &QPushButton::clicked, this,
            [this] { requests::showHelp(QLatin1String(places_->helpPage())); });
    connect(opening_, &FileOpening::wholeRead, this, [this](const auto& contents) {
        if (!areTornBySharedLines(*contents))
            shown_->prepare(contents);
    });
    connect(opening_, &FileOpening::opened, this, [this](const auto& contents) {
        // Rows of what no file holds help nobody.
        if (areTornBySharedLines(*contents))
            opening_->start(path_, TelemetryReading::Salvage);
        else
            showContents(contents);
    });
    connect(this, &QDialog::finished, opening_, &FileOpening::stop);
    connect(opening_, &FileOpening::cancelled, this, [this] {
        if (shown_->isBeingRead())
            shown_->setContents(std::make_shared<TelemetryContents>());
        tellCancelled(notices_, [this] {
            table_->setFocus();
            read();
        });
    });
    connect(exportButton_, &QPushButton::clicked, export_, &TableExport::ask);
    connect(export_, &TableExport::allKept, growing_, &GrowingRecords::setKept);
    addKeys();
    retranslate();
}

void VLK_Widget_Tmi_Table::layOut()
{
    auto* place = new QWidget(this);
    auto* grid = new QGridLayout(place);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(table_, 0, 0);
    places_ = new RecordsPlaces(place, makeRecordsParts(shown_, notices_, this), this);
    auto* status = new QWidget(this);
    auto* line = new QHBoxLayout(status);
    line->setContentsMargins(grid::kAroundWindow);
    line->setSpacing(grid::kPair);
    line->addWidget(count_);
    line->addWidget(work_);
    line->addStretch(1);
    line->addWidget(sums_);
    sums_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    int row = 0;
    for (QWidget* part :
         {static_cast<QWidget*>(notices_), static_cast<QWidget*>(filter_), static_cast<QWidget*>(places_),
          static_cast<QWidget*>(findBar_), static_cast<QWidget*>(progress_), status})
        layout->addWidget(part, row++, 0);
    layout->setRowStretch(2, 1);
    const QWidgetList order{filter_, columnsButton_, exportButton_, helpButton_, table_};
    for (int place = 1; place < order.size(); ++place)
        setTabOrder(order[place - 1], order[place]);
    filter_->setFocus();
}

void VLK_Widget_Tmi_Table::addKeys()
{
    const std::pair<QKeySequence, std::function<void()>> keys[] = {
        {QKeySequence::Find, [this] { findBar_->open(); }},
        {QKeySequence(Qt::Key_F3), [this] { findBar_->goOn(1); }},
        {QKeySequence(QStringLiteral("Shift+F3")), [this] { findBar_->goOn(-1); }},
        {QKeySequence(QStringLiteral("Ctrl+PgDown")), [this] { places_->turn(1); }},
        {QKeySequence(QStringLiteral("Ctrl+PgUp")), [this] { places_->turn(-1); }},
        {QKeySequence(Qt::Key_F1), [this] { helpButton_->click(); }},
    };
    for (const auto& [sequence, act] : keys)
        connect(new QShortcut(sequence, this), &QShortcut::activated, this, act);
    const auto onTable = [this](const QKeySequence& keys) {
        return new QShortcut(keys, table_, nullptr, nullptr, Qt::WidgetShortcut);
    };
    connect(onTable(QKeySequence::Copy), &QShortcut::activated, this, &VLK_Widget_Tmi_Table::copy);
    // Not every keyboard has a key for it.
    connect(onTable(QStringLiteral("Shift+F10")), &QShortcut::activated, table_, &RecordsTable::askMenu);
    new AreaKeys(this, [this]() -> std::vector<QWidgetList> {
        QWidget* const curves = places_->widget(0);
        return {{filter_->focusProxy()},        {table_},   {places_->views()},
                {curves->focusProxy(), curves}, {findBar_}, {columnsButton_, exportButton_, helpButton_}};
    });
}

void VLK_Widget_Tmi_Table::open(const QString& path)
{
    if (!growing_->mayGo(this, GrowingRecords::Going::Others))
        return;
    // A file may be large: two of them need not be in memory.
    open(std::make_shared<TelemetryContents>(), QFileInfo(path).fileName());
    path_ = path;
    read();
}

// What is on show stays until it has been read anew.
void VLK_Widget_Tmi_Table::read()
{
    if (shown_->records().empty())
        shown_->setContents(std::make_shared<TelemetryContents>(), ShownRecords::Reading::Underway);
    opening_->start(path_);
}

void VLK_Widget_Tmi_Table::open(const std::shared_ptr<TelemetryContents>& contents, const QString& name,
                                Growth growth)
{
    const bool areSame = growth == Growth::Live && contents == growsFrom_ && growing_->isGrowing();
    if (!areSame && !growing_->mayGo(this, GrowingRecords::Going::Others))
        return;
    opening_->stop();
    filter_->setFocus();
    if (areSame) {
        // The zone may have been chosen anew.
        if (grown_->records.utcOffset() != contents->records.utcOffset()) {
            grown_->records.setUtcOffset(contents->records.utcOffset());
            shown_->setContents(grown_);
        }
        growing_->again();
        return;
    }
    name_ = name;
    growing_->forget();
    for (const int notice : {TooManyNotice, HandedOverNotice})
        notices_->end(notice);
    growsFrom_ = growth == Growth::Live ? contents : nullptr;
    grown_ = growsFrom_ ? std::make_shared<TelemetryContents>(*contents) : nullptr;
    showContents(grown_ ? grown_ : contents);
    places_->setName(name);
    export_->setName(name);
    showTitle();
    if (growth == Growth::Live)
        growing_->begin();
}

void VLK_Widget_Tmi_Table::endGrowth()
{
    growing_->end();
}

void VLK_Widget_Tmi_Table::takeLive(const QByteArray& record, quint32 number)
{
    if (growing_->takes(number))
        append(record);
}

void VLK_Widget_Tmi_Table::takePresent(const QByteArray& state, quint32 number)
{
    if (growing_->takesPresent(number))
        append(withoutNumber(state));
}

void VLK_Widget_Tmi_Table::append(const QByteArray& record)
{
    shown_->append(bytesAt(record.constData(), record.size()), table_->areSeveralSelected()
                                                                   ? ShownRecords::Current::Stays
                                                                   : ShownRecords::Current::Follows);
}

void VLK_Widget_Tmi_Table::follow(const std::shared_ptr<const TelemetryContents>& contents, int record)
{
    if (contents == shown_->contents())
        shown_->setCurrent(record);
}

void VLK_Widget_Tmi_Table::showContents(const std::shared_ptr<TelemetryContents>& contents)
{
    tellDamage(notices_, *contents,
               {[this](int record) { shown_->setCurrent(record); },
                [this] {
                    // The bar would give the keyboard to its cross.
                    table_->setFocus();
                    opening_->start(path_, TelemetryReading::Salvage);
                }});
    tellPart(notices_, *contents, [this](int record) { shown_->setCurrent(record); });
    shown_->setContents(contents);
    tellStrayed(notices_, shown_->strayed(), [this](int record) { shown_->setCurrent(record); });
}

void VLK_Widget_Tmi_Table::takeColumns()
{
    table_->takeColumns();
    columns_->takeColumns(shown_->records());
}

void VLK_Widget_Tmi_Table::takeContents()
{
    table_->scrollToTop();
    takePassing();
}

void VLK_Widget_Tmi_Table::takeAdded()
{
    columns_->lookFurther();
    showCount();
    table_->showRecord(shown_->current());
}

void VLK_Widget_Tmi_Table::takePassing()
{
    showCount();
    // A current record that does not pass stays the current one, which moves for the user alone.
    if (!table_->showRecord(shown_->current()))
        table_->scrollToTop();
}

void VLK_Widget_Tmi_Table::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape || !stepBack())
        QDialog::keyPressEvent(event);
}

void VLK_Widget_Tmi_Table::closeEvent(QCloseEvent* event)
{
    if (export_->endBeforeClosing())
        QDialog::closeEvent(event);
    else
        event->ignore();
}

// By Esc and by the cross.
void VLK_Widget_Tmi_Table::reject()
{
    if (growing_->mayGo(this, GrowingRecords::Going::Close))
        QDialog::reject();
}

// What was opened, typed or put on the records last goes first; false where nothing is left of it.
bool VLK_Widget_Tmi_Table::stepBack()
{
    const bool isInField =
        qobject_cast<QLineEdit*>(focusWidget()) || qobject_cast<QAbstractSpinBox*>(focusWidget());
    if (progress_->isRunning()) {
        Q_EMIT progress_->cancelled();
        return true;
    }
    if (progress_->hasJustEnded())
        return true;
    if (findBar_->isVisible()) {
        findBar_->close();
        return true;
    }
    if (filter_->giveBack())
        return true;
    if (isInField) {
        if (focusWidget() == filter_->focusProxy())
            table_->setFocus();
    } else if (!places_->stepBack()) {
        const bool isFiltered = filter_->isApplied();
        if (isFiltered)
            filter_->clear();
        return isFiltered;
    }
    return true;
}

void VLK_Widget_Tmi_Table::showTitle()
{
    setWindowTitle(name_.isEmpty() ? tr("tmiw_031") : QStringLiteral("%1 - %2").arg(name_, tr("tmiw_031")));
}

void VLK_Widget_Tmi_Table::showCount()
{
    const QLocale locale;
    const QString all = locale.toString(shown_->records().size());
    const bool areAllShown = model_->rowCount() == shown_->records().size();
    const QString count =
        areAllShown ? tr("rec_051").arg(all) : tr("rec_052").arg(locale.toString(model_->rowCount()), all);
    const auto damaged = std::ranges::count_if(shown_->contents()->damaged,
                                               [this](int record) { return model_->rowOf(record) >= 0; });
    count_->setText(damaged > 0 ? tr("rec_297").arg(count, locale.toString(static_cast<qlonglong>(damaged)))
                                : count);
    count_->setHidden(shown_->isBeingRead());
    exportButton_->setEnabled(!shown_->records().empty());
    columnsButton_->setEnabled(model_->columnCount() > 0);
    if (shown_->records().empty())
        empty_->tell(tr(shown_->isBeingRead() ? "rec_371" : "tmiw_002"));
    else
        empty_->tell(tr("rev_127"), tr("rec_054"));
}

void VLK_Widget_Tmi_Table::showSums()
{
    shown_->setChosen(table_->areSeveralSelected() ? table_->selectedRecords() : std::vector<int>());
    sums_->setText(sumsText(*model_, table_->currentIndex().column(), *shown_));
}

void VLK_Widget_Tmi_Table::showMenu(const QPoint& globalPlace)
{
    QMenu menu(this);
    fillRecordsMenu(menu, {model_, table_, columns_, filter_, [this] { copy(); }});
    if (!menu.isEmpty())
        menu.exec(globalPlace);
}

void VLK_Widget_Tmi_Table::copy()
{
    if (table_->selectedRecords().size() > kMostCopied) {
        notices_->tell(TooManyNotice, [] {
            return Notice{Mark::Advice,
                          tr("rec_055").arg(QLocale().toString(static_cast<qulonglong>(kMostCopied))),
                          {}};
        });
        return;
    }
    notices_->end(TooManyNotice);
    QApplication::clipboard()->setText(selectionText(*model_, *table_));
}

void VLK_Widget_Tmi_Table::retranslate()
{
    setLocale(QLocale());
    columnsButton_->setText(tr("rec_006"));
    exportButton_->setText(tr("rec_007"));
    helpButton_->setText(tr("wrd_027"));
    table_->setAccessibleName(tr("rec_008"));
    notices_->retranslate();
    model_->retranslate();
    table_->fitWidths();
    filter_->retranslate();
    findBar_->retranslate();
    progress_->retranslate();
    export_->retranslate();
    places_->retranslate();
    showCount();
    showSums();
    showTitle();
}
