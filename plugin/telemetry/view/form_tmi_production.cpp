#include "telemetry/view/form_tmi_production.h"

#include "link/device.h"
#include "telemetry/text/signal_level.h"
#include "telemetry/view/dashed_value.h"
#include "telemetry/view/item_display.h"
#include "telemetry/view/position_rows.h"
#include "telemetry/view/value_label.h"
#include "telemetry/view/value_width.h"
#include "typing/grid.h"
#include "typing/present_value.h"
#include "typing/title_style.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>
#include <QScrollArea>
#include <QScrollBar>

using namespace vlk;

namespace {

constexpr ValueRow kProductionModem[] = {
    {"label_GSM_State_Value", "tmift1_019", item("Module1.modem")},
};

constexpr ValueRow kProductionAnalog[] = {
    {"label_Analog_Reserv_Value", "tmift2_022", item("Reserv")},
    {"label_Analog_Ain3_Value", "tmift2_023", item("StateU_Ain3"), "label_Analog_Ain3_Unit"},
};

// The inputs have a fixed caption in front of their text.
struct InputRow
{
    const char* stem;
    const char* caption;
    ItemIndex item;
};
constexpr InputRow kProductionInputs[] = {
    {"label_In_I1_%1", "lN1:", item("StateIn1.0")},
    {"label_In_I2_%1", "lN2:", item("StateIn1.1")},
};

constexpr ValueRow kReliability[] = {
    {"label_Navi_Reliability_Value", "tmift1_038", item("SecondsLast.reliability"), "label_28", "abbr_008"},
};

struct SegmentValue
{
    const char* stem;
    ItemIndex item;
};
constexpr SegmentValue kLastSegment[] = {
    {"label_Navi_LastWay_%1", item("Way")},
    {"label_Navi_LastTime_%1", item("SecondsLast")},
    {"label_Navi_AllTime_%1", item("AllSeconds")},
};

template <ElementIndex index, int lowest, int highest>
bool isWithin(const TmiPage_Zeta3& page)
{
    return page.value<index>() >= lowest && page.value<index>() <= highest;
}

struct Limit
{
    const char* label;
    bool (*passes)(const TmiPage_Zeta3& page);
    int lastMode; // host modes from 1 to this one
};
constexpr Limit kLimits[] = {
    {"label_Analog_Reserv_Value", &isWithin<element("Reserv"), 4100, 4500>, 2},
    {"label_Analog_Ain3_Value", &isWithin<element("StateU_Ain3"), 4800, 5200>, 2},
    {"label_Navi_Valid_Value",
     [](const TmiPage_Zeta3& page) { return (page.value<element("StateNGauge")>() >> 1 & 1) != 0; }, 1},
};

QString named(const char* stem, const char* end)
{
    return QString::fromLatin1(stem).arg(QLatin1String(end));
}

} // namespace

VLK_Form_TMI_Production::VLK_Form_TMI_Production(vlk::EventPanel* panel, QWidget* parent)
    : QWidget(parent), record_(panel), levelText_(makeCaption(QStringLiteral("label_GSM_Level_Text"))),
      level_(new QProgressBar(this)), scroll_(new QScrollArea(this)), columns_(new QHBoxLayout)
{
    auto* modem = addGroup("groupBox_GSM", "tmift1_018");
    rows_.add(modem, kProductionModem);
    level_->setObjectName(QStringLiteral("progressBar_GSM_Level_Value"));
    level_->setRange(0, 100);
    level_->setValue(0);
    standOut(level_);
    level_->setFormat(kLevelFormat);
    modem->addWidget(levelText_, modem->rowCount(), 0);
    levelShown_ = new DashedValue(level_);
    modem->addWidget(levelShown_, modem->rowCount() - 1, 1);

    rows_.add(addGroup("groupBox_Analog", "tmift2_002"), kProductionAnalog);

    auto* inputs = addGroup("groupBox_In", "tmift2_006");
    for (const InputRow& row : kProductionInputs) {
        QLabel* caption = makeCaption(named(row.stem, "Caption"));
        caption->setText(QLatin1String(row.caption));
        inputTexts_.push_back(makeCaption(named(row.stem, "Text")));
        inputValues_.push_back(makeValue(named(row.stem, "Value")));
        const int at = inputs->rowCount();
        inputs->addLayout(besideEachOther({caption, inputTexts_.back()}), at, 0);
        inputs->addWidget(inputValues_.back(), at, 1);
    }
    inputs->setColumnStretch(1, 1);

    auto* navigation = addGroup("groupBox_Navi", "tmift1_025");
    rows_.add(navigation, kFixRows<ValueRow>);
    rows_.add(navigation, kPositionRows<ValueRow>);
    addLastSegment(navigation);
    rows_.add(navigation, kReliability);
    navigation->setRowStretch(navigation->rowCount(), 1);

    auto* left = new QVBoxLayout;
    left->setSpacing(grid::kGroup);
    for (std::size_t i = 0; i + 1 < groups_.size(); ++i)
        left->addWidget(groups_[i].box);
    left->addStretch();
    auto* content = new QWidget;
    content->setLayout(columns_);
    columns_->setContentsMargins(grid::kAroundPage);
    columns_->addLayout(left, 2);
    columns_->addWidget(groups_.back().box, 3);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setWidgetResizable(true);
    scroll_->setWidget(content);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(scroll_);
    retranslate();
}

QGridLayout* VLK_Form_TMI_Production::addGroup(const char* name, const char* key)
{
    auto* box = new QGroupBox(this);
    box->setObjectName(QLatin1String(name));
    dressGroup(box);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(grid::kInGroup);
    grid->setHorizontalSpacing(grid::kColumn);
    groups_.push_back({box, grid, key});
    return grid;
}

void VLK_Form_TMI_Production::addLastSegment(QGridLayout* grid)
{
    for (const SegmentValue& segment : kLastSegment) {
        segmentCaptions_.push_back(makeCaption(named(segment.stem, "Text")));
        segmentValues_.push_back(makeValue(named(segment.stem, "Value")));
    }
    segmentCaptions_.push_back(makeCaption(QStringLiteral("label_Navi_AllTime_Sec_Text")));
    const int at = grid->rowCount();
    grid->addWidget(segmentCaptions_[0], at, 0);
    grid->addLayout(besideEachOther({segmentValues_[0], segmentCaptions_[1], segmentValues_[1],
                                     segmentCaptions_[2], segmentValues_[2], segmentCaptions_[3]}),
                    at, 1);
}

void VLK_Form_TMI_Production::setUtcOffset(int seconds)
{
    if (record_.setUtcOffset(seconds))
        fill(*record_.page());
}

void VLK_Form_TMI_Production::fill(const TmiPage_Zeta3& page)
{
    markLimits(page);
    rows_.fill(page);
    level_->setValue(signalPercent(page.value<element("GSM")>()));
    levelShown_->setAbsent(!holds(page, element("GSM")));
    for (std::size_t i = 0; i < std::size(kProductionInputs); ++i)
        showItem(*inputValues_[i], page, kProductionInputs[i].item);
    for (std::size_t i = 0; i < std::size(kLastSegment); ++i)
        showItem(*segmentValues_[i], page, kLastSegment[i].item);
}

void VLK_Form_TMI_Production::markLimits(const TmiPage_Zeta3& page)
{
    const QPalette normal = findChild<QLabel*>(QStringLiteral("label_GSM_State_Text"))->palette();
    QPalette failed = normal;
    failed.setColor(QPalette::WindowText, Qt::red);
    const int mode = vlkDevice ? vlkDevice->mode() : 0;
    for (const Limit& limit : kLimits) {
        const bool applies = mode >= 1 && mode <= limit.lastMode;
        findChild<QLabel*>(QLatin1String(limit.label))
            ->setPalette(applies && !limit.passes(page) ? failed : normal);
    }
}

// The groups below each other have their values in one column.
void VLK_Form_TMI_Production::alignValues()
{
    int widest = 0;
    const std::span below(groups_.data(), groups_.size() - 1);
    for (const Group& group : below) {
        for (int row = 0; row < group.grid->rowCount(); ++row) {
            if (const QLayoutItem* caption = group.grid->itemAtPosition(row, 0))
                widest = std::max(widest, caption->sizeHint().width());
        }
    }
    for (const Group& group : below)
        group.grid->setColumnMinimumWidth(0, widest);

    // Whatever the numbers are, the row of the last segment has its room.
    int segment = 0;
    for (std::size_t i = 0; i < std::size(kLastSegment); ++i) {
        segment += widestText(segmentValues_[i]->fontMetrics(), kLastSegment[i].item) +
                   segmentCaptions_[i + 1]->sizeHint().width() + 2 * grid::kColumn;
    }
    groups_.back().grid->setColumnMinimumWidth(1, segment);
}

void VLK_Form_TMI_Production::arrange()
{
    const QMargins margins = columns_->contentsMargins();
    int needed = margins.left() + margins.right() + columns_->spacing() +
                 scroll_->verticalScrollBar()->sizeHint().width();
    for (int i = 0; i < columns_->count(); ++i)
        needed += columns_->itemAt(i)->minimumSize().width();
    columns_->setDirection(width() < needed ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

void VLK_Form_TMI_Production::resizeEvent(QResizeEvent* event)
{
    arrange();
    QWidget::resizeEvent(event);
}

void VLK_Form_TMI_Production::retranslate()
{
    for (const Group& group : groups_)
        group.box->setTitle(QCoreApplication::translate("vlk", group.key));
    rows_.retranslate();
    levelText_->setText(tr("tmift1_020"));
    for (QLabel* label : inputTexts_)
        label->setText(tr("tmift2_007"));
    const QStringList parts = partsAroundValues(tr("tmift1_037"));
    for (std::size_t i = 0; i < segmentCaptions_.size(); ++i)
        segmentCaptions_[i]->setText(parts.value(static_cast<int>(i)));
    alignValues();
    arrange();
    if (record_.page())
        fill(*record_.page());
}
