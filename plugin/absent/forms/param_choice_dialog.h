#pragma once

// A list of values with check marks and a filter, in which the user says which of them are on offer to the
// free slots of a record. When he applies it, the dialog offers what he has checked and withdraws what he has
// unchecked; what was on offer and stays so is not told again.

#include "absent/params/user_param.h"

#include <QDialog>
#include <QStringList>

class QLabel;
class QLineEdit;
class QSortFilterProxyModel;
class QStandardItem;
class QStandardItemModel;
class QTreeView;

namespace vlk {

struct ParamChoice
{
    QString group;    // heading, the same for those that belong together; none: no headings
    UserParam param;  // without a size it cannot be chosen
    QStringList bits; // that it consists of
    bool onOffer = false;
};

class ParamChoiceDialog : public QDialog
{
    Q_OBJECT

public:
    ParamChoiceDialog(const QString& title, const QList<ParamChoice>& choices, QWidget* parent = nullptr);

    void accept() override;

Q_SIGNALS:
    void signal_UserParam_Add(const QString& code, const QString& name, const QString& third, int size);
    void signal_UserParam_Del(const QString& code, const QString& name, const QString& third, int size);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void fill();
    void filter(const QString& text);
    void tellState();
    int checkedCount() const;

    const QList<ParamChoice> choices_;
    QList<QStandardItem*> items_; // of the choices
    QStandardItemModel* model_;
    QSortFilterProxyModel* shown_;
    QLineEdit* filter_;
    QTreeView* list_;
    QLabel* state_;
};

} // namespace vlk
