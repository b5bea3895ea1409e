#pragma once

// The distances in the windows of either program, in logical pixels. There are no others.

#include <QMargins>
#include <QStyle>

#include <optional>

namespace vlk::grid {

inline constexpr int kWindow = 6;  // margin around all that a window holds
inline constexpr int kPage = 9;    // margin around what stands on a page, and in a group but for its left
inline constexpr int kRow = 6;     // between rows
inline constexpr int kColumn = 8;  // between columns
inline constexpr int kPair = 16;   // between pairs of caption and field in a row
inline constexpr int kGroup = 12;  // between groups
inline constexpr int kIndent = 16; // left margin in a group

inline constexpr QMargins kAroundWindow{kWindow, kWindow, kWindow, kWindow};
inline constexpr QMargins kAroundPage{kPage, kPage, kPage, kPage};
inline constexpr QMargins kInGroup{kIndent, kRow, kPage, kPage};

// Distances of layouts that say nothing of their own; what stands in another layout has those of that one.
inline std::optional<int> metric(QStyle::PixelMetric metric)
{
    switch (metric) {
    case QStyle::PM_LayoutLeftMargin:
    case QStyle::PM_LayoutTopMargin:
    case QStyle::PM_LayoutRightMargin:
    case QStyle::PM_LayoutBottomMargin:
        return kPage;
    case QStyle::PM_LayoutHorizontalSpacing:
        return kColumn;
    case QStyle::PM_LayoutVerticalSpacing:
        return kRow;
    default:
        return {};
    }
}

} // namespace vlk::grid
