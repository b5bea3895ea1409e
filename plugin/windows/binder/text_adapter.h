#pragma once

// A text in a line edit.

#include "windows/binder/adapter.h"

class QLineEdit;

namespace vlk {

class TextAdapter : public Adapter
{
public:
    TextAdapter(Binder& binder, int index, QLineEdit* edit);

    void dress() override;
    void show(const QString& value) override;
    void take() override { edited(held()); }
    QString held() const override;

private:
    QLineEdit* edit_;
};

} // namespace vlk
