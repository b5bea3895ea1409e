#pragma once

// Two values with a least distance, on a slider with two handles; each has a spin box of its own.

#include "windows/binder/adapter.h"

class VLK_DblSlider2;

namespace vlk {

class HandlesAdapter : public QObject
{
    Q_OBJECT

public:
    HandlesAdapter(Edits& edits, const Distance& rule, VLK_DblSlider2* slider);

    void show();

private:
    double gap() const;
    void take();
    void moveHandles();

    Edits& edits_;
    const Distance& rule_;
    VLK_DblSlider2* slider_;
    bool taking_ = false;
};

} // namespace vlk
