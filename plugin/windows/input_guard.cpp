#include "windows/input_guard.h"

#include "typing/join_fields.h"
#include "typing/wheel_guard.h"

#include <QPushButton>

namespace vlk {

void guardInputs(QWidget* page)
{
    joinFields(page);
    guardFromWheel(page);
    const auto buttons = page->findChildren<QPushButton*>();
    for (QPushButton* button : buttons)
        button->setAutoDefault(false);
}

} // namespace vlk
