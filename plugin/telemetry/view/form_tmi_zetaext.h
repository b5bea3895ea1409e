#pragma once

// An extra packet: the navigation data of its head, and a row for each entry of its area, such as a touch key
// or a card that was read.

#include "telemetry/view/record_on_show.h"
#include "telemetry/view/value_rows.h"

#include <QWidget>

class QGroupBox;
class QTreeWidget;

class VLK_Form_TMI_ZetaExt : public QWidget
{
    Q_OBJECT

public:
    // Records go to `panel` too, if there is one.
    explicit VLK_Form_TMI_ZetaExt(vlk::EventPanel* panel, QWidget* parent = nullptr);

    // A packet of the telemetry road, from its type byte on.
    void takeRecord(const QByteArray& packet) { fill(record_.take(packet)); }
    // The answer to the question for the last key, from its type byte on.
    void takeKeyAnswer(const QByteArray& answer) { fill(record_.takeKeyAnswer(answer)); }
    void fill(const TmiPage_Zeta3& page);

    // Seconds east of UTC.
    void setUtcOffset(int seconds);
    // -1 before the first record.
    qint64 number() const { return record_.number(); }
    const TmiPage_Zeta3* page() const { return record_.page(); }
    void retranslate();

private:
    vlk::RecordOnShow record_;
    vlk::ValueRows rows_;
    QGroupBox* navigation_;
    QTreeWidget* treeWidget_;
};
