#pragma once

// The table by which the tracker picks the access point of a SIM by itself: ten rows of operator code, access
// point, login and password, all free text. The full window and the quick window have one each.

#include "settings/operators.h"
#include "settings/settings_table.h"

namespace vlk {

inline constexpr auto kApnRows = rowsOf(
    group("AUTOAPN"), repeat<kApnRowCount>([](int number) {
        const MobileOperator& row = defaultApnRow(number - 1);
        return rowsOf(text("sID%1", row.code).inCell("treeWidget_ListApn", 1).caption("cfgt1_106"),
                      text("name%1", row.apn).inCell("treeWidget_ListApn", 2).caption("cfgt1_029"),
                      text("login%1", row.login).inCell("treeWidget_ListApn", 3).caption("cfgt1_031"),
                      text("pass%1", row.password).inCell("treeWidget_ListApn", 4).caption("cfgt1_033"));
    }));

} // namespace vlk
