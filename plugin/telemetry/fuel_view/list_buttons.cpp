#include "telemetry/fuel_view/list_buttons.h"

#include "telemetry/curves/hand_over.h"
#include "typing/grid.h"
#include "typing/table_look.h"
#include "windows/named_widget.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTableView>

namespace vlk {

ListButtons::ListButtons(const char* name, HandOver* handOver, QWidget* parent)
    : QWidget(parent), handOver_(handOver), copy_(new QPushButton(this)), save_(new QPushButton(this))
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(vlk::grid::kColumn);
    for (const auto& [button, kind] : {std::pair(copy_, "Copy"), std::pair(save_, "Save")}) {
        button->setObjectName(
            QStringLiteral("pushButton_%1%2").arg(QLatin1String(kind), QLatin1String(name)));
        button->setAutoDefault(false);
        row->addWidget(button);
    }
    save_->setText(QStringLiteral("CSV…"));
    connect(copy_, &QPushButton::clicked, this, &ListButtons::copy);
    connect(save_, &QPushButton::clicked, this, &ListButtons::save);
}

void ListButtons::setList(const QTableView* table, std::function<QString()> csv)
{
    table_ = table;
    csv_ = std::move(csv);
}

void ListButtons::retranslate(const QString& list)
{
    list_ = list;
    copy_->setText(tr("rev_114"));
    save_->setToolTip(tr("rev_115"));
}

void ListButtons::refresh()
{
    for (QPushButton* button : {copy_, save_})
        button->setEnabled(table_->model()->rowCount() > 0);
}

// All of it, or the lines that are chosen of several; one alone is chosen to look at it.
void ListButtons::copy() const
{
    const bool areSeveral = table_->selectionModel()->selectedRows().size() > 1;
    QApplication::clipboard()->setText(tableText(*table_, areSeveral ? CopiedRows::Chosen : CopiedRows::All));
}

void ListButtons::save()
{
    // With a mark of the encoding, by which spreadsheets know it.
    const QByteArray csv = "\xEF\xBB\xBF" + csv_().toUtf8();
    handOver_->askTable(QStringLiteral("%1 %2").arg(title_, list_).trimmed(),
                        [&csv](QIODevice& device) { return device.write(csv) == csv.size(); });
}

} // namespace vlk
