#pragma once

// The stack of pages in the view: shows each record in the content form for its type and version, and its
// head in the event panel. Forms are made on first use.

#include "telemetry/record/telemetry_titles.h"

#include <QByteArray>

#include <optional>

class QStackedWidget;
class QWidget;
class TmiPage_Zeta3;
class VLK_Form_TMI_Production;
class VLK_Form_TMI_Zeta3;
class VLK_Form_TMI_ZetaExt;

namespace vlk {

class EventPanel;

class RecordStack
{
public:
    // The pages of `stack`, in this order.
    enum Page { Empty, Zeta1, Zeta2, Zeta3, ZetaExt, Production };

    // Without a tracker (`live` false) no form shows a control for one.
    RecordStack(QStackedWidget* stack, EventPanel* panel, bool live = true);

    void showNothing();
    // A record from its type byte on. Gives its number; none, and nothing happens, if it is of no known kind.
    std::optional<quint32> showRecord(const QByteArray& record);
    // A record or a packet that somebody else has decoded.
    void showDecoded(const TmiPage_Zeta3& page);
    // The answer to the question for the last key, from its type byte on.
    void showKeyAnswer(const QByteArray& answer);

    void setTracker(const vlk::TelemetryTitles& titles, quint64 capabilityMask);
    // Whether the user may command the tracker from a form.
    // `reasonKey`: why they are closed; null where they are open.
    void setCommandsBlocked(const char* reasonKey);
    // Seconds east of UTC.
    void setUtcOffset(int seconds);
    void retranslate();

private:
    void showPage(Page page);
    // For records of which nothing but the number is known.
    quint32 showNumber(Page page, quint32 number);
    template <class Form>
    quint32 showIn(Form*& form, Page page, const QByteArray& record);
    // The form of a page, in the zone of the view.
    template <class Form>
    Form& formIn(Form*& form, Page page);
    template <class Act>
    void withShownForm(Act act);
    void prepareZeta3();

    QStackedWidget* stack_;
    EventPanel* panel_;
    bool live_;
    VLK_Form_TMI_Zeta3* zeta3_ = nullptr;
    VLK_Form_TMI_ZetaExt* zetaExt_ = nullptr;
    VLK_Form_TMI_Production* production_ = nullptr;
    vlk::TelemetryTitles titles_;
    quint64 capabilityMask_ = 0;
    const char* commandsBlockedBy_ = nullptr;
    int utcOffset_ = 0;
};

} // namespace vlk
