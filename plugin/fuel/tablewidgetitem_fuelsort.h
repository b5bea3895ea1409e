#pragma once

// A cell with a number: sorts by it, and keeps it, because a sort compares far more often than cells change.
// A text that is no number counts as 0.

#include <QTableWidgetItem>

class VLK_TableWidgetItem_FuelSort : public QTableWidgetItem
{
public:
    explicit VLK_TableWidgetItem_FuelSort(const QString& text);

    float number() const { return number_; }
    bool isEmpty() const { return isEmpty_; }

    void setData(int role, const QVariant& value) override;
    // False when the other cell is empty or this one has no text at all.
    bool operator<(const QTableWidgetItem& other) const override;

private:
    float number_ = 0;
    bool isEmpty_ = true;
    bool isNull_ = true;
};
