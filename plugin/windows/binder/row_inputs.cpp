#include "windows/binder/row_inputs.h"

#include "settings/table_layout.h"
#include "typing/grid.h"
#include "windows/binder/adapters.h"

#include <QHBoxLayout>
#include <QLabel>

namespace vlk {

std::vector<const Setting*> rowsOfForm(const SettingsTable& table, std::string_view form, Numbers numbers)
{
    std::vector<const Setting*> rows;
    for (const Setting& setting : table.rows) {
        const Shown* shown = setting.shown();
        if (shown && shown->widget && shown->widget.form() == form &&
            (numbers.outer == 0 || shown->numbers.outer == numbers.outer) &&
            (numbers.inner == 0 || shown->numbers.inner == numbers.inner))
            rows.push_back(&setting);
    }
    return rows;
}

QWidget* makeInput(const Setting& setting)
{
    const Shown* shown = setting.shown();
    QWidget* input = std::visit([](const auto& row) { return inputOf(row); }, setting.kind);
    if (!input)
        qFatal("%s has no widget of its own", setting.base().pathName());
    input->setObjectName(numberedName(shown->widget.tail, shown->numbers));
    return input;
}

void RowLines::add(const Setting& setting)
{
    QWidget* input = makeInput(setting);
    if (look_ == Look::Simple && setting.is<Flag>()) {
        grid_->addWidget(input, line_++, 0, 1, 3);
        return;
    }
    auto* label = new QLabel;
    label->setObjectName(QStringLiteral("label_") + input->objectName().section(QLatin1Char('_'), 1));
    label->setBuddy(input);
    if (look_ == Look::Paired) {
        addPaired(setting, label, input);
        return;
    }
    grid_->addWidget(label, line_, 0);
    grid_->addWidget(input, line_++, 1);
}

void RowLines::addPaired(const Setting& setting, QWidget* label, QWidget* input)
{
    if (setting.is<Choice>()) {
        input->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        grid_->addWidget(label, line_, 0);
        grid_->addWidget(input, line_++, 1, 1, 3);
        return;
    }
    if (setting.is<Flag>()) {
        auto* pair = new QHBoxLayout;
        pair->setSpacing(vlk::grid::kColumn);
        pair->addWidget(input);
        pair->addWidget(label, 1);
        grid_->addLayout(pair, line_, half_, 1, 2);
    } else {
        grid_->addWidget(label, line_, half_);
        grid_->addWidget(input, line_, half_ + 1, Qt::AlignLeft);
    }
    half_ += 2;
}

} // namespace vlk
