#pragma once

// A text in a line edit. One that cannot be right is taken, and a sign in the line says what is wrong.

#include "windows/binder/adapter.h"

#include <QRegularExpression>

class QAction;
class QLineEdit;

namespace vlk {

class TextAdapter : public Adapter
{
public:
    TextAdapter(Edits& edits, int index, QLineEdit* edit);

    void dress() override;
    void show(const QString& value) override;
    void take() override { edited(held()); }
    QString held() const override;

private:
    void mark();

    QLineEdit* edit_;
    QRegularExpression expected_;
    QAction* sign_ = nullptr; // of a text that is not as expected
};

} // namespace vlk
