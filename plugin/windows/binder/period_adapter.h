#pragma once

// A period in seconds over several spin boxes from the largest unit down. Where the period has a smallest
// value, the last box cannot go below it while the boxes before it stand at 0.

#include "windows/binder/adapter.h"

#include <vector>

class QSpinBox;

namespace vlk {

class PeriodAdapter : public Adapter
{
public:
    PeriodAdapter(Edits& edits, int index, std::vector<QSpinBox*> boxes);

    void dress() override;
    void show(const QString& value) override;
    void take() override;
    QString held() const override;

private:
    void limitLast();

    std::vector<QSpinBox*> boxes_;
};

} // namespace vlk
