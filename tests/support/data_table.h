#pragma once

// The columns and rows of a Qt Test data function in one statement:
//     DataTable<int, QString>({"port", "shown"}).row("lowest", 0, "0").row("highest", 65535, "65535");

#include <QTest>

#include <initializer_list>

template <class... Cells>
class DataTable
{
public:
    explicit DataTable(std::initializer_list<const char*> columns)
    {
        auto column = columns.begin();
        (QTest::addColumn<Cells>(*column++), ...);
    }

    const DataTable& row(const char* name, const Cells&... cells) const
    {
        (QTest::newRow(name) << ... << cells);
        return *this;
    }
};
