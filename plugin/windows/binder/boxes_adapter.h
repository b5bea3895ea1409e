#pragma once

// One value over several boxes: a choice over boxes of which at most one is checked, a string of digits over
// check boxes and combo boxes, a bit mask over check boxes.

#include "windows/binder/adapter.h"

#include <vector>

namespace vlk {

class ExclusiveAdapter : public Adapter
{
public:
    ExclusiveAdapter(Edits& edits, int index, std::vector<QWidget*> boxes);

    void dress() override;
    void show(const QString& value) override;
    void take() override;
    QString held() const override;

private:
    std::vector<QWidget*> boxes_; // one a code, null for a code without one
};

class PositionsAdapter : public Adapter
{
public:
    // `checks`: check boxes beside lists, null for a position without one.
    PositionsAdapter(Edits& edits, int index, std::vector<QWidget*> boxes, std::vector<QWidget*> checks);

    void dress() override;
    void show(const QString& value) override;
    void take() override { edited(held()); }
    QString held() const override;

private:
    int digit(std::size_t position) const;

    std::vector<QWidget*> boxes_; // one a position, null for a position without one
    std::vector<QWidget*> checks_;
};

} // namespace vlk
