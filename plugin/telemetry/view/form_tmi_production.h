#pragma once

// The check of a finished tracker in the production modes: modem, inputs, navigation, and two voltages that
// have limits. What fails its limit shows red; a value that the record lacks counts as 0 and fails. Where the
// window is too narrow for two columns, they stand below each other.

#include "telemetry/view/record_on_show.h"
#include "telemetry/view/value_rows.h"

#include <QWidget>

class QBoxLayout;
class QGridLayout;
class QGroupBox;
class QProgressBar;
class QScrollArea;
namespace vlk {
class DashedValue;
} // namespace vlk

class VLK_Form_TMI_Production : public QWidget
{
    Q_OBJECT

public:
    // Records go to `panel` too, if there is one.
    explicit VLK_Form_TMI_Production(vlk::EventPanel* panel, QWidget* parent = nullptr);

    // A record, from its type byte on.
    void takeRecord(const QByteArray& record) { fill(record_.take(record)); }
    // Seconds east of UTC.
    void setUtcOffset(int seconds);
    // -1 before the first record.
    qint64 number() const { return record_.number(); }
    const TmiPage_Zeta3* page() const { return record_.page(); }
    void retranslate();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QGridLayout* addGroup(const char* name, const char* key);
    // The row "distance, seconds on the way, all seconds", whose captions are parts of one text.
    void addLastSegment(QGridLayout* grid);
    void fill(const TmiPage_Zeta3& page);
    void markLimits(const TmiPage_Zeta3& page);
    void alignValues();
    void arrange();

    struct Group
    {
        QGroupBox* box;
        QGridLayout* grid;
        const char* key;
    };

    vlk::RecordOnShow record_;
    vlk::ValueRows rows_;
    std::vector<Group> groups_;
    std::vector<QLabel*> inputTexts_;
    std::vector<vlk::ValueLabel*> inputValues_;
    QLabel* levelText_;
    QProgressBar* level_;
    vlk::DashedValue* levelShown_ = nullptr;
    std::vector<QLabel*> segmentCaptions_;
    std::vector<vlk::ValueLabel*> segmentValues_;
    QScrollArea* scroll_;
    QBoxLayout* columns_;
};
