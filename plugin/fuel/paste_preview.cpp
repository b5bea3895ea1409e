#include "fuel/paste_preview.h"

#include "typing/table_look.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// The numbers of the first lines.
QString named(const std::vector<int>& lines)
{
    constexpr std::size_t kNamed = 8;
    QStringList numbers;
    for (std::size_t i = 0; i < std::min(lines.size(), kNamed); ++i)
        numbers << QString::number(lines[i]);
    if (lines.size() > kNamed)
        numbers << QStringLiteral("…");
    return numbers.join(QStringLiteral(", "));
}

} // namespace

PastePreview::PastePreview(const vlk::PastedRows& pasted, const vlk::FuelCaptions& captions, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowCloseButtonHint)
{
    setObjectName(QStringLiteral("dialog_Paste"));
    setWindowTitle(tr("cfgt6_402"));
    auto* column = new QVBoxLayout(this);
    const auto count = static_cast<int>(pasted.rows.size());
    column->addWidget(new QLabel(tr("cfgt6_409").arg(count)));

    auto* table = new QTableWidget(count, 2);
    table->setObjectName(QStringLiteral("tableWidget_Paste"));
    table->setHorizontalHeaderLabels({captions.volume, captions.value});
    for (int column = 0; column < table->columnCount(); ++column)
        table->horizontalHeaderItem(column)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    vlk::dressTable(table, vlk::TableUse::read);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionMode(QAbstractItemView::NoSelection);
    for (int row = 0; row < count; ++row) {
        const vlk::FuelRow& texts = pasted.rows[static_cast<std::size_t>(row)];
        for (const auto& [at, text] : {std::pair(0, texts.volume), std::pair(1, texts.value)}) {
            auto* item = new QTableWidgetItem(text);
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            table->setItem(row, at, item);
        }
    }
    column->addWidget(table);

    if (!pasted.leftOut.empty()) {
        auto* leftOut =
            new QLabel(tr("cfgt6_410").arg(QString::number(pasted.leftOut.size()), named(pasted.leftOut)));
        leftOut->setObjectName(QStringLiteral("label_LeftOut"));
        leftOut->setWordWrap(true);
        column->addWidget(leftOut);
    }
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(tr("wrd_034"), QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(tr("wrd_031"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column->addWidget(buttons);
    resize(320, 360);
}
