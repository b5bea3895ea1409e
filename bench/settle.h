#pragma once

#include <QCoreApplication>

namespace bench {

// Lets a window lay itself out and paint, and do what it put off until then.
inline void settle()
{
    for (int pass = 0; pass < 3; ++pass)
        QCoreApplication::processEvents();
}

} // namespace bench
