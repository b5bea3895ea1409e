#pragma once

// A mask in a widget of its own kind.

#include "windows/binder/adapter.h"
#include "windows/binder/mask_widget.h"

namespace vlk {

class MaskAdapter : public Adapter
{
public:
    // Both are the same widget.
    MaskAdapter(const Joint& joint, QWidget* widget, MaskWidget* mask);
    ~MaskAdapter() override;
    Q_DISABLE_COPY(MaskAdapter)

    void dress() override;
    void show(const QString& value) override;
    QString held() const override { return mask_->mask(); }

private:
    void take() { edited(held()); }

    QWidget* widget_;
    MaskWidget* mask_;
    QString shown_; // empty once it was edited
};

std::unique_ptr<Adapter> adapterFor(const Mask& row, const Joint& joint);
QWidget* inputOf(const Mask&);

} // namespace vlk
