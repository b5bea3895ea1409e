#pragma once

#include <QLayout>
#include <QWidget>

namespace vlk {

// What is in a page needs this height where the page is so wide: texts that wrap need more where it is
// narrow.
inline int neededHeight(const QWidget* page, int width)
{
    const QLayout* layout = page->layout();
    return layout && layout->hasHeightForWidth() ? layout->totalHeightForWidth(width)
                                                 : page->minimumSizeHint().height();
}

} // namespace vlk
