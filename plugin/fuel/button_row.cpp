#include "fuel/button_row.h"

#include <QLayout>
#include <QPushButton>

namespace vlk {

void keepCaptions(const QLayout* row)
{
    constexpr int kEdges = 6;
    for (int i = 0; i < row->count(); ++i) {
        if (auto* button = qobject_cast<QPushButton*>(row->itemAt(i)->widget()))
            button->setMinimumWidth(button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width() +
                                    kEdges);
    }
}

} // namespace vlk
