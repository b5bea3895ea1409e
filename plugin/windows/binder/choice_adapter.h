#pragma once

// A choice in a combo box: the items show the labels of the codes, their data are the codes.

#include "windows/binder/adapter.h"

#include <optional>
#include <utility>

class QComboBox;

namespace vlk {

class ChoiceAdapter : public Adapter
{
public:
    ChoiceAdapter(const Choice& choice, const Joint& joint, QComboBox* box);

    void dress() override;
    void show(const QString& value) override;
    QString held() const override;
    // Code of the first item of the list.
    QString firstItem() const;

private:
    void take();

    const Choice& choice_;
    QComboBox* box_;
    // The code that was shown last and its item: the list tells the code of an item slowly.
    std::optional<std::pair<QString, int>> shown_;
};

// In a list, or over boxes.
std::unique_ptr<Adapter> adapterFor(const Choice& row, const Joint& joint);
QWidget* inputOf(const Choice&);

} // namespace vlk
