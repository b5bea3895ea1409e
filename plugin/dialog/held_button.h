#pragma once

// A button that is disabled while its work is done, and keeps the focus, which would go to its neighbour.

#include <QPushButton>

namespace vlk {

class HeldButton
{
public:
    // Behind a dialog that has just closed the window is not the active one yet.
    explicit HeldButton(QPushButton* button)
        : button_(button), hadFocus_(button->window()->focusWidget() == button)
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
