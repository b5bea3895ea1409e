#pragma once

// A value that is shown by a widget of its own, a bar or the like: where the record lacks it, the dash of
// absent values stands in its place.

#include <QStackedWidget>

namespace vlk {

class DashedValue : public QStackedWidget
{
    Q_OBJECT

public:
    explicit DashedValue(QWidget* value);

    void setAbsent(bool absent);
    bool isAbsent() const { return currentIndex() == Dash; }

private:
    enum Page { Value, Dash };
};

} // namespace vlk
