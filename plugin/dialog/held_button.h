#pragma once

// A button that is disabled while its work is done, and keeps the focus, which would go to its neighbour.

#include <QPushButton>

namespace vlk {

class HeldButton
{
public:
    explicit HeldButton(QPushButton* button) : button_(button), hadFocus_(button->hasFocus())
    {
        button_->setEnabled(false);
    }

    void release(bool enabled = true)
    {
        button_->setEnabled(enabled);
        if (hadFocus_)
            button_->setFocus();
    }

private:
    QPushButton* button_;
    bool hadFocus_;
};

} // namespace vlk
