#pragma once

// F6 in a window goes from area to area, Shift+F6 the other way: from its bar of notices over what it shows
// and its panels to its buttons, and round. The first F6 after a while goes to a bar that is there, wherever
// the focus is, and the next one on from there. An area that the focus comes back to has it where it was; one
// that is hidden, or has nothing for the keyboard, is passed over.

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QWidgetList>

#include <functional>
#include <map>

namespace vlk {

class AreaKeys : public QObject
{
    Q_OBJECT

public:
    // The parts of each area; asked for at every step. Bars of notices are the first area by themselves.
    using Areas = std::function<std::vector<QWidgetList>()>;

    AreaKeys(QWidget* window, Areas areas);

    // Null where a window has none.
    static AreaKeys* of(const QWidget* window);
    // One area on, or back.
    void go(int step);

private:
    std::vector<QWidgetList> areasNow() const;
    bool enter(int index, const QWidgetList& area);

    QWidget* window_;
    Areas areas_;
    QElapsedTimer round_;                   // since the last step
    int before_ = 0;                        // the area from which a step led to a bar
    std::map<int, QPointer<QWidget>> left_; // what had the focus in an area
};

} // namespace vlk
