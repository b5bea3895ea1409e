#include "fuel/paste_preview.h"

#include "typing/table_look.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// The first ones.
template <class All, class Name>
QString named(const All& all, Name name)
{
    constexpr std::size_t kNamed = 8;
    QStringList names;
    for (std::size_t i = 0; i < std::min(all.size(), kNamed); ++i)
        names << name(all[i]);
    if (all.size() > kNamed)
        names << QStringLiteral("…");
    return names.join(QStringLiteral("; "));
}

void addSentence(QVBoxLayout* column, const char* name, const QString& text)
{
    auto* sentence = new QLabel(text);
    sentence->setObjectName(QLatin1String(name));
    sentence->setWordWrap(true);
    column->addWidget(sentence);
}

// By their volume, as the table shows them.
vlk::FuelPoints pointsOf(const vlk::FuelRows& rows)
{
    vlk::FuelPoints points;
    for (const vlk::FuelRow& row : rows)
        points.push_back({vlk::fuelNumber(row.volume), vlk::fuelNumber(row.value)});
    std::ranges::stable_sort(points, {}, &vlk::FuelPoint::volume);
    return points;
}

} // namespace

QString PastePreview::reasons(const std::vector<vlk::LeftOutLine>& leftOut, const vlk::FuelCaptions& captions)
{
    static constexpr std::pair<vlk::FuelRefusal, const char*> kWords[] = {
        {vlk::FuelRefusal::NoNumber, "cfgt6_425"},
        {vlk::FuelRefusal::OutOfRange, "cfgt6_426"},
        {vlk::FuelRefusal::TooManyDecimals, "cfgt6_427"},
        {vlk::FuelRefusal::TooManyLines, "cfgt6_428"},
    };
    const auto told = [&captions](const vlk::LeftOutLine& line) {
        const auto* word =
            std::ranges::find(kWords, line.reason, &std::pair<vlk::FuelRefusal, const char*>::first);
        return QStringLiteral("%1 (%2): %3")
            .arg(QString::number(line.line), line.isOfVolume ? captions.volume : captions.value,
                 tr(word->second));
    };
    return tr("cfgt6_424").arg(named(leftOut, told));
}

QString PastePreview::leftOutText(const std::vector<vlk::LeftOutLine>& leftOut,
                                  const vlk::FuelCaptions& captions)
{
    return tr("cfgt6_410").arg(leftOut.size()) + QLatin1Char(' ') + reasons(leftOut, captions);
}

QString PastePreview::fallingText(const vlk::FuelPoints& points)
{
    const auto volumes = [&points](std::size_t point) {
        return QStringLiteral("%1 → %2")
            .arg(static_cast<double>(points[point - 1].volume))
            .arg(static_cast<double>(points[point].volume));
    };
    const auto falling = vlk::fallingPoints(points);
    if (falling.empty())
        return {};
    return tr("cfgt6_403").replace(QLatin1String("%1"), named(falling, volumes));
}

void PastePreview::addOrder(QVBoxLayout* column, vlk::FuelOrder order, const vlk::FuelCaptions& captions)
{
    const bool isVolumeFirst = order == vlk::FuelOrder::VolumeFirst;
    addSentence(column, "label_Order", tr("rec_541").arg(isVolumeFirst ? captions.volume : captions.value));
    auto* swap = new QPushButton(tr("rec_542"));
    swap->setObjectName(QStringLiteral("pushButton_Swap"));
    swap->setAutoDefault(false);
    connect(swap, &QPushButton::clicked, this, [this] { done(kSwapped); });
    column->addWidget(swap, 0, Qt::AlignLeft);
}

PastePreview::PastePreview(const vlk::JoiningRows& joining, const vlk::PastedRows& pasted,
                           const vlk::FuelCaptions& captions, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowCloseButtonHint)
{
    setObjectName(QStringLiteral("dialog_Paste"));
    setWindowTitle(tr("cfgt6_402"));
    auto* column = new QVBoxLayout(this);
    const auto count = static_cast<int>(joining.rows.size());
    column->addWidget(new QLabel(tr("cfgt6_409").arg(count)));

    auto* table = new QTableWidget(count, 2);
    table->setObjectName(QStringLiteral("tableWidget_Paste"));
    table->setHorizontalHeaderLabels({captions.volume, captions.value});
    for (int column = 0; column < table->columnCount(); ++column)
        table->horizontalHeaderItem(column)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    vlk::dressTable(table, vlk::TableUse::Read);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionMode(QAbstractItemView::NoSelection);
    for (int row = 0; row < count; ++row) {
        const vlk::FuelRow& texts = joining.rows[static_cast<std::size_t>(row)];
        for (const auto& [at, text] : {std::pair(0, texts.volume), std::pair(1, texts.value)}) {
            auto* item = new QTableWidgetItem(text);
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            table->setItem(row, at, item);
        }
    }
    column->addWidget(table);

    if (!pasted.areHeaded)
        addOrder(column, pasted.order, captions);
    if (const QString falling = fallingText(pointsOf(joining.rows)); !falling.isEmpty())
        addSentence(column, "label_PastedFalling", falling);
    if (!pasted.leftOut.empty())
        addSentence(column, "label_LeftOut", leftOutText(pasted.leftOut, captions));
    if (joining.known > 0)
        addSentence(column, "label_Known", tr("cfgt6_417").arg(joining.known));
    if (!joining.others.empty()) {
        const auto volume = [](const vlk::FuelRow& row) { return row.volume; };
        addSentence(column, "label_Others", tr("cfgt6_418").arg(named(joining.others, volume)));
        replace_ = new QCheckBox(tr("cfgt6_419"));
        replace_->setObjectName(QStringLiteral("checkBox_Replace"));
        replace_->setChecked(true);
        column->addWidget(replace_);
    }
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(tr("wrd_034"), QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(tr("wrd_031"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column->addWidget(buttons);
    resize(320, 360);
}

bool PastePreview::isToReplace() const
{
    return replace_ && replace_->isChecked();
}
