#pragma once

// The head of a column in a table of settings: small, as many columns are to fit beside each other, and at
// the bottom of its cell, as others may have more lines.

#include <QLabel>

namespace vlk {

inline QLabel* columnHead()
{
    auto* head = new QLabel;
    QFont small = head->font();
    small.setPointSizeF(small.pointSizeF() * 0.85);
    head->setFont(small);
    head->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    return head;
}

} // namespace vlk
