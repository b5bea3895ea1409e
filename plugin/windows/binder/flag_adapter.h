#pragma once

// A flag in a check box, a radio button or a checkable group box.

#include "windows/binder/adapter.h"

namespace vlk {

class FlagAdapter : public Adapter
{
public:
    FlagAdapter(const Flag& flag, const Joint& joint, QWidget* box);

    void dress() override;
    void show(const QString& value) override;
    QString held() const override;

private:
    void take() { edited(held()); }

    const Flag& flag_;
    QWidget* box_;
};

std::unique_ptr<Adapter> adapterFor(const Flag& row, const Joint& joint);
QWidget* inputOf(const Flag&);

} // namespace vlk
