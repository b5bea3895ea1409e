#pragma once

// The menu of a cell of the table of records.

#include <QMenu>

#include <functional>

namespace vlk {

class ColumnChoice;
class FilterField;
class RecordsModel;
class RecordsTable;

struct RecordsMenuParts
{
    RecordsModel* model;
    RecordsTable* table;
    ColumnChoice* columns;
    FilterField* filter;
    std::function<void()> copy;
};

// For the current cell.
void fillRecordsMenu(QMenu& menu, const RecordsMenuParts& parts);

} // namespace vlk
