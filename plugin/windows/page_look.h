#pragma once

// The dress of a settings page, kept up by walking its widgets: margins, titles of groups, one column of
// captions, fields of equal widths, and two pairs of caption and field in a row that become one where the
// page is too narrow. What comes into the page later is dressed too.
//
//     vlk::dressPage(page);

class QWidget;

namespace vlk {

// Where the property "byColumns" of a group is true, fields that stand below each other belong together, and
// stay so where the page is narrow.
void dressPage(QWidget* page);

} // namespace vlk
