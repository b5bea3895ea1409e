#include "telemetry/view/columns_menu.h"

#include "telemetry/view/column_choice.h"
#include "telemetry/view/records_model.h"

#include <QKeyEvent>

#include <map>

namespace vlk {

namespace {

class StayingMenu : public QMenu
{
public:
    using QMenu::QMenu;

protected:
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (!toggle())
            QMenu::mouseReleaseEvent(event);
    }
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() != Qt::Key_Space || !toggle())
            QMenu::keyPressEvent(event);
    }

private:
    bool toggle()
    {
        QAction* const action = activeAction();
        const bool isToggled = action && action->isCheckable() && action->isEnabled();
        if (isToggled)
            action->trigger();
        return isToggled;
    }
};

} // namespace

ColumnsMenu::ColumnsMenu(RecordsModel* model, ColumnChoice* choice, QWidget* parent)
    : QMenu(parent), model_(model), choice_(choice)
{
    connect(this, &QMenu::aboutToShow, this, &ColumnsMenu::fill);
}

void ColumnsMenu::fill()
{
    qDeleteAll(findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly));
    clear();
    std::map<ColumnGroup, std::vector<int>> groups;
    for (int column = 0; column < model_->columnCount(); ++column)
        groups[choice_->groupOf(column)].push_back(column);
    for (const auto& [group, columns] : groups) {
        auto* menu = new StayingMenu(tr(kColumnGroupTexts[static_cast<std::size_t>(group)]), this);
        fillGroup(menu, columns);
        addMenu(menu);
    }
    addSeparator();
    connect(addAction(tr("rec_013")), &QAction::triggered, choice_, &ColumnChoice::forget);
}

void ColumnsMenu::fillGroup(QMenu* menu, const std::vector<int>& columns)
{
    const std::pair<const char*, bool> all[] = {{"rec_010", true}, {"rec_011", false}};
    for (const auto& [key, shown] : all)
        connect(menu->addAction(tr(key)), &QAction::triggered, choice_,
                [this, columns, shown = shown] { choice_->show(columns, shown); });
    menu->addSeparator();
    for (const int column : columns) {
        QString text = model_->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        if (choice_->isEmpty(column))
            text = tr("rec_012").arg(text);
        QAction* const action = menu->addAction(text.replace(QLatin1Char('&'), QLatin1String("&&")));
        action->setCheckable(true);
        action->setChecked(choice_->isShown(column));
        action->setEnabled(!choice_->isFixed(column));
        connect(action, &QAction::toggled, choice_,
                [this, column](bool shown) { choice_->show({column}, shown); });
    }
}

} // namespace vlk
