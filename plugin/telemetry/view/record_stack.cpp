#include "telemetry/view/record_stack.h"

#include "link/device.h"
#include "telemetry/record/record_head.h"
#include "telemetry/record/tmi_page_zeta2.h"
#include "telemetry/view/event_panel.h"
#include "telemetry/view/form_tmi_production.h"
#include "telemetry/view/form_tmi_zeta3.h"
#include "telemetry/view/form_tmi_zetaext.h"

#include <QStackedWidget>
#include <QVBoxLayout>

namespace vlk {

RecordStack::RecordStack(QStackedWidget* stack, EventPanel* panel, bool live)
    : stack_(stack), panel_(panel), live_(live)
{
}

void RecordStack::showNothing()
{
    stack_->setCurrentIndex(Empty);
    if (zeta3_)
        zeta3_->begin();
    panel_->clear();
    panel_->setModesVisible(true);
    panel_->hide();
}

std::optional<quint32> RecordStack::showRecord(const QByteArray& record)
{
    const RecordHead head = readHead(bytesAt(record.constData(), record.size()));
    if (head.type == kExtraPacket)
        return showIn(zetaExt_, ZetaExt, record);
    if (head.type != kTelemetryRecord)
        return {};
    switch (head.ver) {
    case kProtocol1:
        return showNumber(Zeta1, 0);
    case kProtocol2:
        return showNumber(Zeta2, TmiPage_Zeta2(record.constData(), record.size()).number());
    case kProtocol3:
        if (vlkDevice && vlkDevice->isProduction())
            return showIn(production_, Production, record);
        return showIn(zeta3_, Zeta3, record);
    default:
        return {};
    }
}

void RecordStack::showDecoded(const TmiPage_Zeta3& page)
{
    if (page.isExtra())
        formIn(zetaExt_, ZetaExt).fill(page);
    else
        formIn(zeta3_, Zeta3).fill(page);
    panel_->setRecord(page);
    showPage(page.isExtra() ? ZetaExt : Zeta3);
}

void RecordStack::showKeyAnswer(const QByteArray& answer)
{
    if (answer.isEmpty())
        return;
    QByteArray packet = answer;
    packet[0] = static_cast<char>(kExtraPacket);
    formIn(zetaExt_, ZetaExt).takeKeyAnswer(packet);
    showPage(ZetaExt);
}

void RecordStack::showPage(Page page)
{
    stack_->setCurrentIndex(page);
    // Extra packets have no modes of their own.
    panel_->setModesVisible(page != ZetaExt);
    panel_->show();
}

quint32 RecordStack::showNumber(Page page, quint32 number)
{
    showPage(page);
    panel_->setNumberAlone(number);
    return number;
}

template <class Form>
quint32 RecordStack::showIn(Form*& form, Page page, const QByteArray& record)
{
    formIn(form, page).takeRecord(record);
    showPage(page);
    return static_cast<quint32>(form->number());
}

template <class Form>
Form& RecordStack::formIn(Form*& form, Page page)
{
    if (!form) {
        form = new Form(panel_);
        auto* layout = new QVBoxLayout(stack_->widget(page));
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(form);
        if constexpr (std::is_same_v<Form, VLK_Form_TMI_Zeta3>)
            prepareZeta3();
    }
    form->setUtcOffset(utcOffset_);
    return *form;
}

template <class Act>
void RecordStack::withShownForm(Act act)
{
    const int page = stack_->currentIndex();
    if (page == Zeta3 && zeta3_)
        act(*zeta3_);
    else if (page == ZetaExt && zetaExt_)
        act(*zetaExt_);
    else if (page == Production && production_)
        act(*production_);
}

void RecordStack::prepareZeta3()
{
    if (!zeta3_)
        return;
    zeta3_->setLive(live_);
    zeta3_->setTitles(titles_);
    zeta3_->setCapabilityMask(capabilityMask_);
    zeta3_->setCommandsBlocked(commandsBlockedBy_);
}

void RecordStack::setTracker(const TelemetryTitles& titles, quint64 capabilityMask)
{
    titles_ = titles;
    capabilityMask_ = capabilityMask;
    prepareZeta3();
}

void RecordStack::setCommandsBlocked(const char* reasonKey)
{
    commandsBlockedBy_ = reasonKey;
    prepareZeta3();
}

// Only the form on show may write the time in the panel; the others get the zone with their next record.
void RecordStack::setUtcOffset(int seconds)
{
    utcOffset_ = seconds;
    withShownForm([seconds](auto& form) { form.setUtcOffset(seconds); });
}

void RecordStack::retranslate()
{
    panel_->retranslate();
    if (zeta3_)
        zeta3_->retranslate();
    if (zetaExt_)
        zetaExt_->retranslate();
    if (production_)
        production_->retranslate();
    withShownForm([this](const auto& form) {
        if (form.page())
            panel_->setRecord(*form.page());
    });
}

} // namespace vlk
