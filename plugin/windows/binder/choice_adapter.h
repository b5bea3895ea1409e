#pragma once

// A choice in a combo box: the items show the labels of the codes, their data are the codes.

#include "windows/binder/adapter.h"

class QComboBox;

namespace vlk {

class ChoiceAdapter : public Adapter
{
public:
    ChoiceAdapter(Edits& edits, int index, QComboBox* box);

    void dress() override;
    void show(const QString& value) override;
    void take() override;
    QString held() const override;
    // Code of the first item of the list.
    QString firstItem() const;

private:
    QComboBox* box_;
};

} // namespace vlk
