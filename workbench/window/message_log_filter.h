#pragma once

// The part of the message log that is shown: one direction or both, and the rows in whose number, name or
// parameters every word of the filter occurs, in whatever case.

#include <QSortFilterProxyModel>
#include <QStringList>

namespace workbench {

class MessageLogFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    enum class Directions { Both, ToPlugin, ToHost };

    using QSortFilterProxyModel::QSortFilterProxyModel;

    void setWords(const QString& words);
    void setDirections(Directions directions);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    QStringList words_;
    Directions directions_ = Directions::Both;
};

} // namespace workbench
