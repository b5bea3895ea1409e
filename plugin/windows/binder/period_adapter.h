#pragma once

// A period in seconds over several spin boxes from the largest unit down. Where the period has a smallest
// value, the last box cannot go below it while the boxes before it stand at 0.

#include "windows/binder/adapter.h"
#include "windows/binder/number_box.h"

#include <vector>

namespace vlk {

class PeriodAdapter : public Adapter
{
public:
    PeriodAdapter(const Period& period, const Joint& joint, const std::vector<QWidget*>& boxes);

    void dress() override;
    void show(const QString& value) override;
    QString held() const override;
    void finishTyping() override;
    QStringList news() const override;

private:
    void take();
    void limitLast();

    const Period& period_;
    std::vector<NumberBox> boxes_;
};

std::unique_ptr<Adapter> adapterFor(const Period& row, const Joint& joint);
QWidget* inputOf(const Period&);

} // namespace vlk
