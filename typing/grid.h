#pragma once

// The distances in the windows of either program, in logical pixels. There are no others.

#include <QMargins>
#include <QStyle>

#include <optional>

namespace vlk::grid {

inline constexpr int window = 6;  // margin around all that a window holds
inline constexpr int page = 9;    // margin around what stands on a page, and in a group but for its left
inline constexpr int row = 6;     // between rows
inline constexpr int column = 8;  // between columns
inline constexpr int pair = 16;   // between pairs of caption and field in a row
inline constexpr int group = 12;  // between groups
inline constexpr int indent = 16; // left margin in a group

inline constexpr QMargins aroundWindow{window, window, window, window};
inline constexpr QMargins aroundPage{page, page, page, page};
inline constexpr QMargins inGroup{indent, row, page, page};

// The margin of layouts that say nothing of their own.
inline std::optional<int> metric(QStyle::PixelMetric metric)
{
    switch (metric) {
    case QStyle::PM_LayoutLeftMargin:
    case QStyle::PM_LayoutTopMargin:
    case QStyle::PM_LayoutRightMargin:
    case QStyle::PM_LayoutBottomMargin:
        return page;
    default:
        return {};
    }
}

} // namespace vlk::grid
