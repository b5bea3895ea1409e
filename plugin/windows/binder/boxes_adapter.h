#pragma once

// One value over several boxes: a choice over boxes of which at most one is checked, a string of digits over
// check boxes and combo boxes, a bit mask over check boxes.

#include "windows/binder/adapter.h"

#include <vector>

namespace vlk {

class ExclusiveAdapter : public Adapter
{
public:
    ExclusiveAdapter(const Choice& choice, const Joint& joint);

    void dress() override;
    void show(const QString& value) override;
    QString held() const override;

private:
    void take();

    const Choice& choice_;
    std::vector<QWidget*> boxes_; // one a code, null for a code without one
};

class PositionsAdapter : public Adapter
{
public:
    PositionsAdapter(const Digits& digits, const Joint& joint);

    void dress() override;
    void show(const QString& value) override;
    QString held() const override;

private:
    void take() { edited(held()); }
    int digit(std::size_t position) const;

    const Digits& digits_;
    std::vector<QWidget*> boxes_;  // one a position, null for a position without one
    std::vector<QWidget*> checks_; // beside lists, null for a position without one
};

std::unique_ptr<Adapter> adapterFor(const Digits& row, const Joint& joint);
QWidget* inputOf(const Digits&);

} // namespace vlk
