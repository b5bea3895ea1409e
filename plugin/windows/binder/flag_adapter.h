#pragma once

// A flag in a check box, a radio button or a checkable group box.

#include "windows/binder/adapter.h"

namespace vlk {

class FlagAdapter : public Adapter
{
public:
    FlagAdapter(Edits& edits, int row, QWidget* box);

    void dress() override;
    void show(const QString& value) override;
    QString held() const override;

private:
    void take() { edited(held()); }

    QWidget* box_;
};

} // namespace vlk
