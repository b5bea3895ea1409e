#pragma once

// Lists of codes: every item has the text of a code, and the code itself as its data.

#include "review/value_text.h"
#include "settings/kinds/choice.h"

#include <QComboBox>

namespace vlk {

// Those of the codes that the list has at present.
inline void fillCodes(QComboBox* box, std::span<const Code> codes, const Limits& limits)
{
    box->clear();
    for (const Code& code : codes) {
        if (offersCode(code, limits))
            box->addItem(codeText(code), QString::fromLatin1(code.code));
    }
}

// No item for a code that the list lacks.
inline void selectCode(QComboBox* box, const QString& code)
{
    if (box->currentIndex() < 0 || box->currentData() != code)
        box->setCurrentIndex(box->findData(code));
}

} // namespace vlk
