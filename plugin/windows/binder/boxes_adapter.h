#pragma once

// One value over several boxes: a choice over boxes of which at most one is checked, a string of digits over
// check boxes and combo boxes, a bit mask over check boxes.

#include "windows/binder/adapter.h"

#include <vector>

namespace vlk {

class ExclusiveAdapter : public Adapter
{
public:
    ExclusiveAdapter(Edits& edits, int row, std::vector<QWidget*> boxes);

    void dress() override;
    void show(const QString& value) override;
    QString held() const override;

private:
    void take();

    std::vector<QWidget*> boxes_; // one a code, null for a code without one
};

class PositionsAdapter : public Adapter
{
public:
    // `checks`: check boxes beside lists, null for a position without one.
    PositionsAdapter(Edits& edits, int row, std::vector<QWidget*> boxes, std::vector<QWidget*> checks);

    void dress() override;
    void show(const QString& value) override;
    QString held() const override;

private:
    void take() { edited(held()); }
    int digit(std::size_t position) const;

    std::vector<QWidget*> boxes_; // one a position, null for a position without one
    std::vector<QWidget*> checks_;
};

} // namespace vlk
