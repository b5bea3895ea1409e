#include "telemetry/view/event_panel.h"

#include "link/requests.h"
#include "telemetry/text/item_text.h"
#include "telemetry/view/item_display.h"
#include "telemetry/view/value_label.h"
#include "telemetry/view/value_rows.h"
#include "typing/field_mark.h"
#include "typing/grid.h"
#include "typing/kept_palette.h"
#include "typing/title_style.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

namespace vlk {

namespace {

template <ElementIndex index>
int elementOf(const TmiPage_Zeta3& page)
{
    return page.isExtra() ? static_cast<int>(page.extra().value<index>())
                          : static_cast<int>(page.value<index>());
}

} // namespace

EventPanel::EventPanel(QWidget* parent)
    : QFrame(parent), group_(new QGroupBox(this)),
      numberText_(makeCaption(QStringLiteral("label_Event_NumPage_Text"))),
      number_(makeValue(QStringLiteral("label_Event_NumPage_Value"))),
      timeText_(makeCaption(QStringLiteral("label_Event_DateTime_Text"))),
      time_(makeValue(QStringLiteral("label_Event_DateTime_Value"))),
      since_(new ValueLabel(QStringLiteral("label_Event_Since"))),
      eventText_(makeCaption(QStringLiteral("label_Event_Code_Text"))),
      event_(makeValue(QStringLiteral("label_Event_Code_Value"))),
      stateText_(makeCaption(QStringLiteral("label_Event_State_Text"))),
      guard_(makeValue(QStringLiteral("label_Event_Mode_Guard_Value"))),
      test_(makeValue(QStringLiteral("label_Event_Mode_Test_Value"))),
      alarm_(makeValue(QStringLiteral("label_Event_Mode_Alarm_Value")))
{
    setObjectName(QStringLiteral("frame_TMI_Title"));
    group_->setObjectName(QStringLiteral("groupBox_Event"));
    auto* frame = new QVBoxLayout(this);
    frame->setContentsMargins(0, 0, 0, 0);
    frame->addWidget(group_);

    auto* grid = new QGridLayout(group_);
    dressGroup(group_);
    grid->setHorizontalSpacing(grid::kColumn);
    grid->addWidget(numberText_, 0, 0);
    grid->addWidget(number_, 0, 1);
    grid->addWidget(timeText_, 0, 2);
    grid->addWidget(time_, 0, 3);
    grid->addWidget(since_, 0, 4);
    grid->addWidget(eventText_, 1, 0);
    grid->addWidget(event_, 1, 1, 1, 4);
    grid->addWidget(stateText_, 2, 0);
    grid->addLayout(besideEachOther({guard_, test_, alarm_}), 2, 1, 1, 4);
    grid->setColumnStretch(4, 1);
    // The row of modes keeps its place while they are hidden.
    grid->setRowMinimumHeight(2, guard_->sizeHint().height());
    grid->setColumnMinimumWidth(1, number_->fontMetrics().horizontalAdvance(QStringLiteral("0000000000")));
    grid->setColumnMinimumWidth(3, widthOfTime(time_));

    since_->setForegroundRole(QPalette::PlaceholderText);
    keepPalette(alarm_, withInvalidText);
    retranslate();
}

void EventPanel::setRecord(const TmiPage_Zeta3& page)
{
    showItem(*number_, page, item("NumPage"));
    setTime(page);
    if (holds(page, element("Code")))
        event_->setValue(requests::eventText(elementOf<element("Code")>(page)));
    else
        event_->setAbsent();
    showItem(*guard_, page, item("State.mode"));
    test_->setValue(text(page, item("State.0")));
    alarm_->setValue(text(page, item("State.2")));
    const bool hasState = holds(page, element("State"));
    Q_EMIT signal_OperatingMode(hasState ? elementOf<element("State")>(page) >> 3 & 3 : kNoMode);
}

void EventPanel::setTime(const TmiPage_Zeta3& page)
{
    showItem(*time_, page, item("Time"));
}

void EventPanel::setNumberAlone(quint32 number)
{
    clear();
    number_->setValue(QString::number(number));
}

void EventPanel::clear()
{
    for (ValueLabel* label : {number_, time_, event_, guard_, test_, alarm_})
        label->setValue({});
    Q_EMIT signal_OperatingMode(kNoMode);
}

void EventPanel::setModesVisible(bool visible)
{
    stateText_->setVisible(visible);
    for (ValueLabel* label : {guard_, test_, alarm_})
        label->setVisible(visible);
}

quint32 EventPanel::number() const
{
    return number_->text().toUInt();
}

void EventPanel::retranslate()
{
    group_->setTitle(tr("tmiw_017"));
    numberText_->setText(tr("tmiw_018"));
    eventText_->setText(tr("tmiw_019"));
    timeText_->setText(tr("tmiw_020"));
    stateText_->setText(tr("tmiw_021"));
}

} // namespace vlk
