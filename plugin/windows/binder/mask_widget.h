#pragma once

// What a widget that shows a mask and lets it be edited offers to the binder, whatever it is made of. A mask
// is a text of "0" and "1".

#include <QString>

#include <functional>

namespace vlk {

class MaskWidget
{
public:
    virtual ~MaskWidget() = default;

    virtual void showMask(const QString& mask) = 0;
    virtual QString mask() const = 0;

    // Called whenever mask() gives something else.
    std::function<void()> edited;
};

} // namespace vlk
