#include "telemetry/view/filter_field.h"

#include "link/device.h"
#include "link/requests.h"
#include "telemetry/files/filter_nodes.h"
#include "telemetry/view/filter_in_words.h"
#include "telemetry/view/latest_filters.h"
#include "telemetry/view/records_model.h"
#include "typing/field_mark.h"
#include "typing/grid.h"
#include "typing/line_icon.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCompleter>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>
#include <QStringListModel>

#include <algorithm>
#include <cmath>
#include <set>

namespace vlk {

namespace {

constexpr const char* kLanguages[] = {"ru", "en"};
constexpr quint32 kEventCodes = 256; // that may have words
constexpr double kHalfAnHour = 1800; // seconds

TextSource textsIn(const char* language)
{
    return vlkDevice ? vlkDevice->textsIn(language) : TextSource();
}

// In the language on show and in the others.
QStringList titlesOf(const ComputedColumn& column)
{
    QStringList titles{column.title};
    for (const char* language : kLanguages) {
        const TextSource source = textsIn(language);
        if (source && column.key)
            titles << source(column.key);
    }
    return titles;
}

// Enter on what is offered takes that; Down asks for what was applied before.
class FilterLine : public QLineEdit
{
public:
    FilterLine(QCompleter* completer, QAction* latest, QWidget* parent)
        : QLineEdit(parent), completer_(completer), latest_(latest)
    {
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        const QAbstractItemView* const offered = completer_->popup();
        const bool isOffering = offered->isVisible() && offered->currentIndex().isValid();
        const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (isEnter && isOffering) {
            event->ignore();
        } else if (event->key() == Qt::Key_Down && !offered->isVisible()) {
            latest_->trigger();
        } else {
            QLineEdit::keyPressEvent(event);
            // It presses no button of the window.
            if (isEnter)
                event->accept();
        }
    }

private:
    QCompleter* completer_;
    QAction* latest_;
};

} // namespace

FilterField::FilterField(ShownRecords* shown, RecordsModel* model, QWidget* parent)
    : QWidget(parent), shown_(shown), model_(model), caption_(new QLabel(this)), latest_(new QAction(this)),
      fault_(new QLabel(this)), completer_(new QCompleter(this)), offered_(new QStringListModel(this))
{
    line_ = new FilterLine(completer_, latest_, this);
    line_->setObjectName(QStringLiteral("lineEdit_Filter"));
    line_->setClearButtonEnabled(true);
    // By the button in the line, which empties it behind the action.
    if (const auto* emptied = line_->findChild<QAction*>(QStringLiteral("_q_qlineeditclearaction")))
        connect(emptied, &QAction::triggered, this, &FilterField::applyTyped, Qt::QueuedConnection);
    latest_->setIcon(lineIcon(LineIcon::Down));
    line_->addAction(latest_, QLineEdit::TrailingPosition);
    caption_->setBuddy(line_);
    setFocusProxy(line_);
    fault_->setObjectName(QStringLiteral("label_FilterFault"));
    fault_->setTextFormat(Qt::PlainText);
    fault_->setWordWrap(true);
    fault_->hide();
    completer_->setModel(offered_);
    completer_->setCompletionMode(QCompleter::PopupCompletion);
    completer_->setWidget(line_);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(grid::kAroundWindow);
    grid->setHorizontalSpacing(grid::kColumn);
    grid->setVerticalSpacing(grid::kRow);
    grid->addWidget(caption_, 0, 0);
    grid->addWidget(line_, 0, 1);
    grid->addWidget(fault_, 1, 1);
    grid->setColumnStretch(1, 1);
    connect(line_, &QLineEdit::textEdited, this, &FilterField::offer);
    connect(line_, &QLineEdit::returnPressed, this, &FilterField::applyTyped);
    connect(latest_, &QAction::triggered, this, &FilterField::offerLatest);
    connect(completer_, qOverload<const QString&>(&QCompleter::activated), this, &FilterField::complete);
    connect(shown, &ShownRecords::contentsChanged, this, [this] {
        names_.reset();
        hasAllEvents_ = false;
        applied_.clear();
        appliedFilter_ = {};
        line_->clear();
        tell({});
    });
    // They may bring events of which it knows no words.
    connect(shown, &ShownRecords::recordsAdded, this, [this] { names_.reset(); });
    retranslate();
}

void FilterField::addWidget(QWidget* widget)
{
    auto* grid = static_cast<QGridLayout*>(layout());
    grid->addWidget(widget, 0, grid->columnCount());
}

// Headings and words of both languages, what stands in the heads of this file, and the host's words for the
// events in it.
const FilterNames& FilterField::names()
{
    if (names_)
        return *names_;
    names_.emplace();
    names_->addTexts();
    for (const char* language : kLanguages) {
        const TextSource source = textsIn(language);
        if (!source)
            continue;
        const TextsFrom other(source);
        names_->addTexts();
    }
    QStringList heads;
    for (int column = 0; column < model_->columnCount(); ++column) {
        const CsvColumn* const known = model_->columnAt(column);
        if (!known)
            continue;
        heads << (model_->kind(column) == CellKind::Time
                      ? headingText(*known)
                      : model_->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
        names_->add(heads.last(), known->item);
    }
    names_->offerFirst(heads);
    const std::vector<quint32>& codes = shown_->columns().codes();
    for (const quint32 code : std::set<quint32>(codes.begin(), codes.end()))
        addEvent(code);
    if (hasAllEvents_)
        addAllEvents();
    return *names_;
}

void FilterField::addEvent(quint32 code)
{
    QStringList words{requests::eventText(static_cast<int>(code))};
    for (const char* language : kLanguages)
        words << requests::eventTextIn(language, static_cast<int>(code));
    for (const QString& word : words)
        names_->addWord(word, item("Code"), {static_cast<double>(code), static_cast<double>(code)});
}

void FilterField::addAllEvents()
{
    for (quint32 code = 0; code < kEventCodes; ++code)
        addEvent(code);
}

ParsedFilter FilterField::parsed(const QString& text)
{
    ParsedFilter read = parseFilter(text, names(), shown_->utcOffset());
    if (read.filter || std::exchange(hasAllEvents_, true))
        return read;
    addAllEvents();
    return parseFilter(text, names(), shown_->utcOffset());
}

void FilterField::offer()
{
    tell({});
    completions_ = completions(line_->text(), line_->cursorPosition(), names());
    QStringList texts;
    for (const FilterCompletion& completion : completions_)
        texts << completion.text;
    offered_->setStringList(texts);
    if (texts.isEmpty()) {
        completer_->popup()->hide();
        return;
    }
    completer_->complete();
    // Enter applies what was typed until something of it is gone to.
    completer_->popup()->setCurrentIndex({});
}

void FilterField::complete(const QString& text)
{
    const auto chosen = std::ranges::find(completions_, text, &FilterCompletion::text);
    if (chosen == completions_.end())
        return;
    const int cursor = line_->cursorPosition();
    line_->setSelection(chosen->from, cursor - chosen->from);
    line_->insert(text + QLatin1Char(' '));
}

bool FilterField::giveBack()
{
    if (line_->text() == applied_)
        return false;
    line_->setText(applied_);
    tell({});
    return true;
}

void FilterField::apply(const QString& text)
{
    line_->setText(text);
    applyTyped();
}

void FilterField::applyTyped()
{
    completer_->popup()->hide();
    const QString text = line_->text();
    const ParsedFilter parsed = this->parsed(text);
    if (!parsed.filter) {
        line_->setCursorPosition(parsed.fault.position);
        // In words of the language of the moment.
        tell([this, text] {
            const QString told = faultText(text);
            return isApplied() ? told + QLatin1Char(' ') + tr("rec_511").arg(applied_) : told;
        });
        return;
    }
    tellAbsent(*parsed.filter);
    applied_ = text;
    appliedFilter_ = *parsed.filter;
    keepFilter(parsed.filter->text());
    ShownRecords::Passes passes;
    if (!parsed.filter->empty())
        passes = [this, filter = *parsed.filter](int record) {
            return !passing(filter, shown_->columns(), record).empty();
        };
    shown_->setPassing(passing(*parsed.filter, shown_->columns()), std::move(passes));
    Q_EMIT applied();
}

QString FilterField::faultText(const QString& text)
{
    const FilterFault fault = parseFilter(text, names(), shown_->utcOffset()).fault;
    const QString at = QString::number(fault.position + 1);
    static const QRegularExpression notInWords(QStringLiteral("^\\W"),
                                               QRegularExpression::UseUnicodePropertiesOption);
    const QString rest = foldedForFilter(text.mid(fault.position)).remove(notInWords);
    // It is among the curves, so that somebody looks for it here.
    for (const ComputedColumn& column : shown_->computed()) {
        for (const QString& title : titlesOf(column)) {
            const QString folded = foldedForFilter(title);
            const bool isWhole = rest.size() <= folded.size() || !rest[folded.size()].isLetterOrNumber();
            if (rest.startsWith(folded) && isWhole)
                return tr("rec_746").arg(at, title);
        }
    }
    return tr("rec_005").arg(at, fault.expected);
}

void FilterField::offerLatest()
{
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const QString& kept : latestFilters()) {
        const ParsedFilter parsed = this->parsed(kept);
        const QString filter = parsed.filter ? inWords(*parsed.filter) : kept;
        menu->addAction(QString(filter).replace(QLatin1Char('&'), QLatin1String("&&")), this,
                        [this, filter] { apply(filter); });
    }
    if (menu->isEmpty())
        menu->addAction(tr("rec_301"))->setEnabled(false);
    menu->setMinimumWidth(line_->width());
    menu->popup(line_->mapToGlobal(line_->rect().bottomLeft()));
    menu->setActiveAction(menu->actions().front());
}

QString FilterField::inWords(const Filter& filter)
{
    return filterInWords(filter, names(), *model_, shown_->utcOffset());
}

QString FilterField::conditionOf(int record, int column)
{
    const CsvColumn* const known = model_->columnAt(column);
    const std::optional<quint64> raw = model_->raw(record, column);
    if (!known || !raw)
        return {};
    const double number = itemNumber(*raw, known->item, shown_->columns().userTypes());
    if (std::isnan(number))
        return {};
    const ItemIndex item = model_->kind(column) == CellKind::Time ? vlk::item("Time") : known->item;
    return inWords({nodes::condition(item, Comparison::Equal, number)});
}

QString FilterField::hourAround(int record)
{
    const double time = shown_->columns().times()[record];
    if (time < kHalfAnHour)
        return {};
    return inWords({nodes::inside(item("Time"), {time - kHalfAnHour, time + kHalfAnHour})});
}

void FilterField::tell(const std::function<QString()>& sentence, Mark mark)
{
    told_ = sentence;
    mark_ = mark;
    fault_->setText(sentence ? sentence() : QString());
    fault_->setVisible(static_cast<bool>(sentence));
    markField(line_, MarkReason::Typing, mark, fault_->text());
}

// Columns that no record holds: nothing meets a condition on them, which is not what a value says.
void FilterField::tellAbsent(const Filter& filter)
{
    std::vector<FilterColumn> absent = filter.columns();
    std::erase_if(absent, [this](const FilterColumn& column) {
        const RecordStore& records = shown_->records();
        return std::ranges::any_of(records.layouts(),
                                   [&](const RecordLayout& layout) { return layout.has(elementOf(column)); });
    });
    if (absent.empty() || shown_->records().empty())
        return tell({});
    tell(
        [this, absent] {
            QStringList words;
            for (const FilterColumn& column : absent)
                words << columnInWords(column, names(), *model_);
            return tr("rec_512").arg(words.join(QStringLiteral(", ")));
        },
        Mark::Advice);
}

void FilterField::retranslate()
{
    names_.reset();
    caption_->setText(tr("rec_001"));
    line_->setPlaceholderText(tr("rec_002"));
    line_->setToolTip(tr("rec_003"));
    latest_->setToolTip(tr("rec_300"));
    if (isApplied()) {
        const QString words = inWords(appliedFilter_);
        if (line_->text() == applied_)
            line_->setText(words);
        applied_ = words;
    }
    tell(told_, mark_);
}

} // namespace vlk
