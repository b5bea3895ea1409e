#include "telemetry/view/records_menu.h"

#include "base/translated.h"
#include "telemetry/view/column_choice.h"
#include "telemetry/view/filter_field.h"
#include "telemetry/view/records_model.h"
#include "telemetry/view/records_table.h"
#include "telemetry/view/selected_records.h"

#include <QApplication>
#include <QClipboard>

namespace vlk {

namespace {

void add(QMenu& menu, const char* key, const char* keys, bool isPossible, const std::function<void()>& act)
{
    QAction* const action = menu.addAction(translated(key));
    action->setShortcut(QKeySequence(QLatin1String(keys)));
    action->setEnabled(isPossible);
    QObject::connect(action, &QAction::triggered, &menu, act);
}

void addCopying(QMenu& menu, const char* key, const QString& text)
{
    add(menu, key, "", !text.isEmpty(), [text] { QApplication::clipboard()->setText(text); });
}

} // namespace

void fillRecordsMenu(QMenu& menu, const RecordsMenuParts& parts)
{
    const QModelIndex cell = parts.table->currentIndex();
    if (!cell.isValid())
        return;
    const int record = parts.model->recordAt(cell.row());
    const int column = cell.column();
    add(menu, "rec_060", "Ctrl+C", true, parts.copy);
    addCopying(menu, "rec_061", placeText(*parts.model, record, false));
    addCopying(menu, "rec_062", placeText(*parts.model, record, true));
    menu.addSeparator();
    const QString condition = parts.filter->conditionOf(record, column);
    add(menu, "rec_063", "", !condition.isEmpty(),
        [filter = parts.filter, condition] { filter->apply(condition); });
    const QString hour = parts.filter->hourAround(record);
    add(menu, "rec_425", "", !hour.isEmpty(), [filter = parts.filter, hour] { filter->apply(hour); });
    add(menu, "rec_064", "Return", true,
        [table = parts.table, record] { Q_EMIT table->recordOpened(record); });
    menu.addSeparator();
    ColumnChoice* const columns = parts.columns;
    add(menu, "rec_065", "", !columns->isFixed(column),
        [columns, column] { columns->show({column}, false); });
    for (const auto& [key, step] : {std::pair("rec_066", -1), std::pair("rec_067", 1)})
        add(menu, key, "", columns->canMove(column, step),
            [columns, column, step = step] { columns->move(column, step); });
}

} // namespace vlk
