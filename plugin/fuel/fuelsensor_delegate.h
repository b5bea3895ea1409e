#pragma once

// The editor of a cell with a decimal number from 0 to `top`. Escape leaves the cell as it was, Enter takes
// the number once it is one.

#include <QItemDelegate>

class VLK_FuelSensor_Delegate : public QItemDelegate
{
    Q_OBJECT

public:
    VLK_FuelSensor_Delegate(double top, int decimals, QObject* parent);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

protected:
    bool eventFilter(QObject* editor, QEvent* event) override;

private:
    double top_;
    int decimals_;
};
