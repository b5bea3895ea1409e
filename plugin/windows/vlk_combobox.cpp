#include "windows/vlk_combobox.h"

void VLK_ComboBox::showPopup()
{
    popupText_ = currentText();
    QComboBox::showPopup();
}
