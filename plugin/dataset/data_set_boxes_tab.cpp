#include "dataset/data_set_boxes_tab.h"

#include "base/translated.h"
#include "review/value_text.h"
#include "settings/table_layout.h"
#include "typing/grid.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>

#include <algorithm>
#include <map>

namespace vlk {

namespace {

// What the positions of a field hold while its widget is in this state.
QString stateOf(const MaskField& field, const QWidget* widget)
{
    if (const auto* list = qobject_cast<const QComboBox*>(widget))
        return list->currentData().toString().leftJustified(field.count, QLatin1Char('0'));
    const auto* box = qobject_cast<const QCheckBox*>(widget);
    return QString(field.count, QLatin1Char(box && box->isChecked() ? '1' : '0'));
}

MaskVersion versionAt(const MaskField& field, int position)
{
    return versionOf(field.positions[static_cast<std::size_t>(position)]);
}

} // namespace

DataSetBoxesTab::DataSetBoxesTab(DataSetTab which, int index, const char* title, QWidget* parent)
    : VLK_Form_Config_Set_Zeta3_Tab(index, parent), titleKey_(title)
{
    auto* grid = new QGridLayout(this);
    grid->setVerticalSpacing(grid::kGroup);
    for (const DataSetGroup& row : kDataSetGroups) {
        if (row.tab != which)
            continue;
        auto* box = new QGroupBox(this);
        box->setObjectName(QString::fromLatin1(row.name));
        groups_.push_back({&row, box, new QGridLayout(box), {}});
        Group& group = groups_.back();
        group.grid->setVerticalSpacing(grid::kRow);
        bool shown = false;
        for (const DataSetBox& one : kDataSetBoxes) {
            if (one.tab != which || QLatin1String(one.group) != box->objectName())
                continue;
            makeBox(one, group);
            shown = shown || one.shown;
        }
        box->setVisible(shown);
        grid->addWidget(box, row.row, row.column, row.rows, 1, Qt::AlignTop);
        grid->setColumnStretch(row.column, 1);
        // What is left of the height stays empty, beside a high group below its neighbours.
        if (row.rows > 1)
            grid->setRowStretch(row.row + row.rows - 1, 1);
    }
    grid->setRowStretch(grid->rowCount(), 1);
}

bool DataSetBoxesTab::event(QEvent* event)
{
    if (event->type() == QEvent::ParentChange && parentWidget())
        parentWidget()->installEventFilter(this);
    else if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Show)
        placeGroups();
    return VLK_Form_Config_Set_Zeta3_Tab::event(event);
}

bool DataSetBoxesTab::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        placeGroups();
    return VLK_Form_Config_Set_Zeta3_Tab::eventFilter(watched, event);
}

// Below each other where there is no room for them side by side.
void DataSetBoxesTab::placeGroups()
{
    auto* grid = static_cast<QGridLayout*>(layout());
    std::map<int, int> columns;
    for (const Group& group : groups_) {
        int& width = columns[group.row->column];
        if (!group.widget->isHidden())
            width = std::max(width, group.widget->minimumSizeHint().width());
    }
    int needed = grid->contentsMargins().left() + grid->contentsMargins().right();
    for (const auto& [column, width] : columns)
        needed += width + (width > 0 && column > 0 ? grid->horizontalSpacing() : 0);
    const bool inOneColumn = parentWidget() && needed > parentWidget()->width();
    if (inOneColumn == inOneColumn_)
        return;
    inOneColumn_ = inOneColumn;
    int place = 0;
    for (const auto& [column, width] : columns) {
        grid->setColumnStretch(column, inOneColumn && column > 0 ? 0 : 1);
        for (const Group& group : groups_) {
            if (group.row->column != column)
                continue;
            grid->removeWidget(group.widget);
            if (inOneColumn)
                grid->addWidget(group.widget, place++, 0, Qt::AlignTop);
            else
                grid->addWidget(group.widget, group.row->row, column, group.row->rows, 1, Qt::AlignTop);
        }
    }
}

void DataSetBoxesTab::makeBox(const DataSetBox& row, Group& group)
{
    QWidget* widget = nullptr;
    if (row.field.items.empty()) {
        auto* box = new QCheckBox(group.widget);
        box->setChecked(row.field.always);
        connect(box, &QCheckBox::toggled, this, &DataSetBoxesTab::maskChanged);
        widget = box;
    } else {
        auto* list = new QComboBox(group.widget);
        for (const Code& item : row.field.items)
            list->addItem(QString(), QString::fromLatin1(item.code));
        connect(list, qOverload<int>(&QComboBox::currentIndexChanged), this, &DataSetBoxesTab::maskChanged);
        widget = list;
    }
    widget->setObjectName(numberedName(row.field.widget, row.field.number));
    widget->setVisible(row.shown);
    place(row, widget, group);
    boxes_.push_back({&row, widget});
}

void DataSetBoxesTab::place(const DataSetBox& row, QWidget* widget, Group& group)
{
    if (row.field.always) {
        auto* frame = group.widget->findChild<QFrame*>(QStringLiteral("frame_Always"));
        if (!frame) {
            frame = new QFrame(group.widget);
            frame->setObjectName(QStringLiteral("frame_Always"));
            frame->setEnabled(false);
            auto* inside = new QVBoxLayout(frame);
            inside->setContentsMargins({});
            inside->setSpacing(grid::kRow);
            group.grid->addWidget(frame, group.nextRow++, 0);
        }
        frame->layout()->addWidget(widget);
        return;
    }
    if (!group.row->inColumns || row.field.number == 0) {
        group.grid->addWidget(widget, group.nextRow++, 0);
        return;
    }
    const QString kind = QString::fromLatin1(row.field.widget);
    auto column = std::ranges::find(group.columns, kind);
    if (column == group.columns.end())
        column = group.columns.insert(column, kind);
    const int index = static_cast<int>(column - group.columns.begin());
    group.grid->addWidget(widget, row.field.number, index);
    group.grid->setColumnStretch(index, 1);
}

void DataSetBoxesTab::retranslate()
{
    if (titleKey_)
        setTitle(translated(titleKey_));
    for (const Group& group : groups_) {
        if (group.row->title)
            group.widget->setTitle(translated(group.row->title));
    }
    for (const Box& box : boxes_) {
        const MaskField& field = box.row->field;
        box.widget->setAccessibleName(fieldText(field));
        if (auto* check = qobject_cast<QCheckBox*>(box.widget))
            check->setText(fieldText(field));
        auto* list = qobject_cast<QComboBox*>(box.widget);
        for (int item = 0; list && item < list->count(); ++item)
            list->setItemText(item, codeText(field.items[static_cast<std::size_t>(item)]));
    }
}

QWidget* DataSetBoxesTab::box(const char* name) const
{
    return findChild<QWidget*>(QString::fromLatin1(name));
}

void DataSetBoxesTab::fill(MaskVersion version, QString& mask) const
{
    for (const Box& box : boxes_) {
        const MaskField& field = box.row->field;
        const QString part = stateOf(field, box.widget);
        for (int i = 0; i < field.count; ++i) {
            if (versionAt(field, i) == version)
                mask.replace(field.positions[static_cast<std::size_t>(i)], 1, part[i]);
        }
    }
}

// A box with positions of two versions is set by the first from its first position, by the second from all.
void DataSetBoxesTab::load(MaskVersion version, const QString& mask)
{
    for (const Box& box : boxes_) {
        MaskField field = box.row->field;
        const bool concerned =
            std::ranges::any_of(field.positions.begin(), field.positions.begin() + field.count,
                                [&](int position) { return versionOf(position) == version; });
        if (!concerned)
            continue;
        while (versionAt(field, field.count - 1) > version)
            --field.count;
        const QString part = maskPart(field, mask);
        if (auto* list = qobject_cast<QComboBox*>(box.widget)) {
            if (const int item = maskItem(field, part); item >= 0)
                list->setCurrentIndex(item);
        } else if (auto* check = qobject_cast<QCheckBox*>(box.widget)) {
            check->setChecked(isMaskOn(field, part));
        }
    }
}

void DataSetBoxesTab::enable(MaskVersion version, bool on)
{
    for (const Box& box : boxes_) {
        if (versionAt(box.row->field, 0) == version)
            box.widget->setEnabled(on);
    }
}

} // namespace vlk
