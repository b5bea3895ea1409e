#include "telemetry/view/record_group.h"

#include "base/translated.h"
#include "telemetry/view/dashed_value.h"
#include "telemetry/view/item_display.h"
#include "telemetry/view/value_label.h"
#include "telemetry/view/value_width.h"
#include "typing/grid.h"
#include "typing/present_value.h"
#include "typing/title_style.h"

#include <QGridLayout>

namespace vlk {

namespace {

// Bounds in characters for a name that the user gave.
constexpr int kLeastCharacters = 12;
constexpr int kMostCharacters = 24;
constexpr int kColumnsOfList = 4; // caption, title, value, room

QString numbered(const char* key, int number)
{
    QString text = translated(key);
    if (number == 0)
        return text;
    const QString marker = QStringLiteral("<val>");
    if (text.contains(marker))
        return text.replace(marker, QString::number(number));
    return text + QLatin1Char(' ') + QString::number(number);
}

QString numberedName(const char* name, int number)
{
    const QString text = QLatin1String(name);
    return text.contains(QLatin1String("%1")) ? text.arg(number) : text;
}

QString captionName(const QString& value)
{
    const QLatin1String ending("_Value");
    return value.contains(ending) ? QString(value).replace(ending, QLatin1String("_Text"))
                                  : value + QLatin1String("_Caption");
}

} // namespace

RecordGroup::RecordGroup(const char* objectName, const char* titleKey, QWidget* parent)
    : QGroupBox(parent), titleKey_(titleKey), grid_(new QGridLayout(this))
{
    setObjectName(QLatin1String(objectName));
    dressGroup(this);
    grid_->setContentsMargins(grid::kInGroup);
    grid_->setHorizontalSpacing(grid::kColumn);
    grid_->setVerticalSpacing(grid::kRow);
}

int RecordGroup::startBelow() const
{
    return grid_->count() == 0 ? 0 : grid_->rowCount();
}

QLabel* RecordGroup::addCaption(const char* key, int number, const QString& objectName)
{
    auto* label = new QLabel(this);
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    captions_.push_back({label, key, number});
    return label;
}

ValueLabel* RecordGroup::addValue(const QString& objectName, ItemIndex item)
{
    auto* label = new ValueLabel(objectName, this);
    showAsPresent(label);
    values_.push_back({label, item});
    return label;
}

// The caption and the value of one of a series.
RecordGroup::Row& RecordGroup::addPair(const ValueSeries& series, int number)
{
    const QString name = numberedName(series.value, number);
    QLabel* caption = addCaption(series.caption, number, captionName(name));
    rows_.push_back({series.part, {caption, addValue(name, series.item + std::max(number - 1, 0))}});
    return rows_.back();
}

void RecordGroup::addListRow(const ValueSeries& series, int index, int row, int column)
{
    const int number = series.count > 1 ? index + 1 : 0;
    Row& pair = addPair(series, number);
    grid_->addWidget(pair.widgets[0], row, column);
    grid_->addWidget(pair.widgets[1], row, column + 2);
    if (series.title) {
        auto* title = new ValueLabel(numberedName(series.title, number), this);
        title->setTextWidths(kLeastCharacters, kMostCharacters);
        titles_.push_back(title);
        pair.widgets.push_back(title);
        grid_->addWidget(title, row, column + 1);
        grid_->setColumnStretch(column + 1, kMostCharacters);
    }
}

void RecordGroup::addWideRow(const ValueSeries& value)
{
    const int row = startBelow();
    const Row& pair = addPair(value, 0);
    grid_->addWidget(pair.widgets[0], row, 0);
    grid_->addWidget(pair.widgets[1], row, 1, 1, grid_->columnCount() - 1);
}

void RecordGroup::addList(std::span<const ValueSeries> list, int rowsBelow)
{
    const int first = startBelow();
    isPlainList_ = rowsBelow == kAllRows;
    int at = 0;
    for (const ValueSeries& series : list) {
        for (int i = 0; i < series.count; ++i, ++at)
            addListRow(series, i, first + at % rowsBelow, at / rowsBelow * kColumnsOfList);
    }
    grid_->setColumnStretch((at - 1) / rowsBelow * kColumnsOfList + 3, 1);
}

DashedValue* RecordGroup::addRow(const char* captionKey, QWidget* value)
{
    const int row = startBelow();
    auto* dashed = new DashedValue(value);
    grid_->addWidget(addCaption(captionKey, 0, captionName(value->objectName())), row, 0);
    grid_->addWidget(dashed, row, 2, 1, 2);
    return dashed;
}

void RecordGroup::addCommand(QWidget* widget)
{
    const int column = titles_.empty() ? 2 : 0;
    grid_->addWidget(widget, startBelow(), column, 1, kColumnsOfList - column, Qt::AlignLeft);
}

void RecordGroup::addCaptions(std::span<const char* const> keys, int row, int column)
{
    for (const char* key : keys)
        grid_->addWidget(addCaption(key, 0), row, column++, Qt::AlignRight);
}

void RecordGroup::addColumns(std::span<const ValueSeries> columns, int rowsBelow)
{
    const int first = startBelow();
    const int width = static_cast<int>(columns.size()) + 2; // the number in front, room behind
    for (int i = 0; i < columns[0].count; ++i) {
        const int row = first + 1 + i % rowsBelow;
        int column = i / rowsBelow * width;
        auto* number = new QLabel(QString::number(i + 1), this);
        rows_.push_back({columns[0].part, {number}});
        grid_->addWidget(number, row, column++, Qt::AlignRight);
        for (const ValueSeries& series : columns) {
            if (i % rowsBelow == 0)
                addCaptions({&series.caption, 1}, first, column);
            if (i < series.count) {
                ValueLabel* value = addValue(numberedName(series.value, i + 1), series.item + i);
                rows_.back().widgets.push_back(value);
                placeInTable(value, row, column);
            }
            ++column;
        }
        grid_->setColumnStretch(column, 1);
    }
}

void RecordGroup::addCells(const char* caption, std::span<const ValueCell> cells)
{
    const int row = startBelow();
    int column = 0;
    rows_.push_back({0, {addCaption(caption, 0)}});
    grid_->addWidget(rows_.back().widgets.front(), row, column++);
    for (const ValueCell& cell : cells) {
        ValueLabel* value = addValue(QLatin1String(cell.value), cell.item);
        rows_.back().widgets.push_back(value);
        placeInTable(value, row, column++);
    }
    grid_->setColumnStretch(column, 1);
}

void RecordGroup::placeInTable(ValueLabel* value, int row, int column)
{
    value->setAlignment(Qt::AlignRight);
    grid_->addWidget(value, row, column, Qt::AlignRight);
}

RecordGroup::Widths RecordGroup::listWidths() const
{
    Widths widest;
    for (const Row& row : rows_) {
        if (!isPlainList_ || row.widgets[0]->isHidden())
            continue;
        widest.captions = std::max(widest.captions, row.widgets[0]->sizeHint().width());
        widest.values = std::max(widest.values, row.widgets[1]->minimumWidth());
    }
    return widest;
}

void RecordGroup::setListWidths(const Widths& widths)
{
    if (!isPlainList_)
        return;
    grid_->setColumnMinimumWidth(0, widths.captions);
    grid_->setColumnMinimumWidth(2, widths.values);
}

void RecordGroup::setTitles(std::span<const QString> titles)
{
    for (std::size_t i = 0; i < std::min(titles.size(), titles_.size()); ++i)
        titles_[i]->setText(titles[i]);
}

void RecordGroup::showRow(const Row& row, bool visible)
{
    for (QWidget* widget : row.widgets)
        widget->setVisible(visible);
}

void RecordGroup::setPartVisible(int part, bool visible)
{
    bool any = false;
    for (const Row& row : rows_) {
        if (row.part == part)
            showRow(row, visible);
        any = any || !row.widgets.front()->isHidden();
    }
    setHidden(!any);
}

void RecordGroup::setRowsVisible(int count)
{
    int at = 0;
    for (const Row& row : rows_)
        showRow(row, at++ < count);
}

void RecordGroup::fill(const TmiPage_Zeta3& page)
{
    for (const Value& value : values_)
        showItem(*value.label, page, value.item);
}

bool RecordGroup::hasValues() const
{
    if (isHidden())
        return false;
    // What has a text whatever the record holds tells nothing of it.
    const auto isOnShow = [this](const Value& value) {
        return value.label->isVisibleTo(this) && !value.label->isAbsent() &&
               !kItems[value.item].rule().always;
    };
    const auto dashed = findChildren<DashedValue*>();
    return std::ranges::any_of(values_, isOnShow) ||
           std::ranges::any_of(dashed, [](const DashedValue* value) { return !value->isAbsent(); });
}

void RecordGroup::retranslate()
{
    setTitle(translated(titleKey_));
    for (const Caption& caption : captions_)
        caption.label->setText(numbered(caption.key, caption.number));
    for (const Value& value : values_)
        value.label->setTextWidth(widestText(value.label->fontMetrics(), value.item));
}

} // namespace vlk
