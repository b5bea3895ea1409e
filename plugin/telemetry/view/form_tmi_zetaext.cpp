#include "telemetry/view/form_tmi_zetaext.h"

#include "telemetry/text/key_text.h"
#include "typing/grid.h"
#include "typing/table_look.h"
#include "typing/title_style.h"

#include <QGroupBox>
#include <QHeaderView>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace vlk;

namespace {

constexpr ValueRow kPlace[] = {
    {"label_Navi_State_Value", "tmiex_002", item("StateNGauge.0")},
    {"label_Navi_Count_Value", "tmiex_003", item("StateNGauge.satellites")},
    {"label_Navi_Date_Value", "tmiex_004", item("LastTime")},
    {"label_Navi_Lat_Value", "tmiex_005", item("Latitude")},
    {"label_Navi_Lon_Value", "tmiex_006", item("Longitude")},
};

constexpr ValueRow kPacketMotion[] = {
    {"label_Navi_Alt_Value", "tmiex_007", item("Altitude")},
    {"label_Navi_Speed_Value", "tmiex_008", item("Speed")},
    {"label_Navi_Course_Value", "tmiex_009", item("Course")},
    {"label_Navi_Way_Value", "tmiex_010", item("Run")},
};

QString unknownText(const ExtraEntry& entry)
{
    const QByteArray bytes(reinterpret_cast<const char*>(entry.value.data()),
                           static_cast<int>(entry.value.size()));
    return QStringLiteral("%1  (size = %2 byte)")
        .arg(QString::fromLatin1(bytes.toHex(' ')), QString::number(entry.size));
}

QStringList cellsOf(const ExtraEntry& entry)
{
    switch (entry.type) {
    case ExtraEntry::TouchKey:
        return {QStringLiteral("TM key"), keyText(entry.number())};
    case ExtraEntry::Card:
        return {QStringLiteral("Card"), entry.text()};
    case ExtraEntry::Rfid:
        return {QStringLiteral("RFID"), keyText(entry.number())};
    default:
        return {QStringLiteral("Unknow packet"), unknownText(entry)};
    }
}

} // namespace

VLK_Form_TMI_ZetaExt::VLK_Form_TMI_ZetaExt(vlk::EventPanel* panel, QWidget* parent)
    : QWidget(parent), record_(panel), navigation_(new QGroupBox(this)), treeWidget_(new QTreeWidget(this))
{
    navigation_->setObjectName(QStringLiteral("groupBox_NaviMain"));
    dressGroup(navigation_);
    auto* grid = new QGridLayout(navigation_);
    grid->setContentsMargins(grid::kInGroup);
    grid->setHorizontalSpacing(grid::kColumn);
    rows_.add(grid, kPlace);
    rows_.add(grid, kPacketMotion, 2);

    treeWidget_->setObjectName(QStringLiteral("treeWidget"));
    treeWidget_->setColumnCount(2);
    dressTable(treeWidget_);
    treeWidget_->header()->setDefaultAlignment(Qt::AlignCenter);
    treeWidget_->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(navigation_);
    layout->addWidget(treeWidget_, 1);
    retranslate();
}

void VLK_Form_TMI_ZetaExt::fill(const TmiPage_Zeta3& page)
{
    rows_.fill(page);
    treeWidget_->clear();
    page.extra().forEachEntry([this](const ExtraEntry& entry) {
        auto* row = new QTreeWidgetItem(treeWidget_, cellsOf(entry));
        for (int column = 0; column < treeWidget_->columnCount(); ++column)
            row->setTextAlignment(column, Qt::AlignCenter);
    });
}

void VLK_Form_TMI_ZetaExt::setUtcOffset(int seconds)
{
    if (record_.setUtcOffset(seconds))
        rows_.fill(*record_.page());
}

void VLK_Form_TMI_ZetaExt::retranslate()
{
    navigation_->setTitle(tr("tmiex_001"));
    treeWidget_->setHeaderLabels({tr("tmiex_011"), tr("tmiex_012")});
    rows_.retranslate();
    if (record_.page())
        rows_.fill(*record_.page());
}
