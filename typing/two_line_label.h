#pragma once

// A sentence that may be kept to two lines, so that a longer one moves nothing: what does not fit is left out
// behind an ellipsis, and the tool tip tells all. The text stays whole for whoever asks for it.

#include <QLabel>

namespace vlk {

class TwoLineLabel : public QLabel
{
    Q_OBJECT

public:
    explicit TwoLineLabel(QWidget* parent);

    void setLimited(bool isLimited);
    // What two lines take.
    int twoLines() const;

    int heightForWidth(int width) const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool isCut() const;

    bool isLimited_ = false;
};

} // namespace vlk
