#pragma once

// Lines up the columns of several grids on one page, whatever frame or group each stands in: every column
// but the last gets the width that the widest of them needs. To be called again after a change of texts.

#include <QList>

class QGridLayout;

namespace vlk {

void alignColumns(const QList<QGridLayout*>& grids, int columns);

} // namespace vlk
