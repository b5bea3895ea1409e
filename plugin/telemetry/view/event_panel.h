#pragma once

// The head of the record on show: number, time, event in the host's words, and the modes of the device. The
// view and the browser of stored files each have one, `frame_TMI_Title`.

#include <QFrame>

#include <memory>

class QGroupBox;
class QLabel;
class TmiPage_Zeta3;

namespace vlk {

class ValueLabel;

class EventPanel : public QFrame
{
    Q_OBJECT

public:
    // What a record without a state has for its operating mode.
    static constexpr int kNoMode = -1;

    explicit EventPanel(QWidget* parent = nullptr);

    void setRecord(const TmiPage_Zeta3& page);
    // The time alone, after a change of its zone.
    void setTime(const TmiPage_Zeta3& page);
    // For records of which nothing but the number is known.
    void setNumberAlone(quint32 number);
    void clear();
    // Extra packets have no modes of their own.
    void setModesVisible(bool visible);

    // For the time since when the record holds no longer.
    QLabel* since() const { return since_; }
    // The number on show, 0 without one.
    quint32 number() const;
    void retranslate();

Q_SIGNALS:
    // Operating mode 0 to 3 of the record that was set, or kNoMode.
    void signal_OperatingMode(int mode);

private:
    QGroupBox* group_;
    QLabel* numberText_;
    ValueLabel* number_;
    QLabel* timeText_;
    ValueLabel* time_;
    QLabel* since_;
    QLabel* eventText_;
    ValueLabel* event_;
    QLabel* stateText_;
    ValueLabel* guard_;
    ValueLabel* test_;
    ValueLabel* alarm_;
};

} // namespace vlk
