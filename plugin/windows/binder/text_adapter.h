#pragma once

// A text in a line edit. One that cannot be right is taken, and a mark at the line says what is wrong.

#include "windows/binder/adapter.h"

class QLineEdit;

namespace vlk {

class TextAdapter : public Adapter
{
public:
    TextAdapter(const Text& text, const Joint& joint, QLineEdit* edit);

    void dress() override;
    void show(const QString& value) override;
    void forget() override;
    QString held() const override;
    QStringList news() const override;

private:
    void take() { edited(held()); }
    void expect();

    const Text& text_;
    QLineEdit* edit_;
};

std::unique_ptr<Adapter> adapterFor(const Text& row, const Joint& joint);
QWidget* inputOf(const Text&);

} // namespace vlk
