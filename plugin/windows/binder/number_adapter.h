#pragma once

// A number in a spin box, with a slider beside it or with a check box that switches it off. Switching off
// sets 0 and remembers the number, switching on brings it back.

#include "windows/binder/adapter.h"
#include "windows/binder/number_box.h"

namespace vlk {

class NumberAdapter : public Adapter
{
public:
    // `companion`: a check box or a slider, or null.
    NumberAdapter(const Number& number, const Joint& joint, QWidget* box, QWidget* companion);

    void dress() override;
    void show(const QString& value) override;
    QString held() const override;
    void doubt(const QString& complaint) override;
    void forget() override { remembered_ = 0; }
    void finishTyping() override { box_.finishTyping(); }
    QStringList news() const override { return {box_.news(), complaint_}; }

private:
    void take();
    bool isOn() const;
    void setLimits();
    void switched(bool on);

    const Number& number_;
    NumberBox box_;
    NumberBox slider_;
    QWidget* check_ = nullptr;
    double remembered_ = 0;
    QString complaint_; // about a value that is doubtful
};

std::unique_ptr<Adapter> adapterFor(const Number& row, const Joint& joint);
QWidget* inputOf(const Number& row);

} // namespace vlk
