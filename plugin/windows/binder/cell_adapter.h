#pragma once

// A text or a number in a cell of a tree of rows.

#include "windows/binder/adapter.h"

class QTreeWidget;

namespace vlk {

class CellAdapter : public Adapter
{
public:
    CellAdapter(const Joint& joint, QTreeWidget* tree);

    void dress() override {}
    void show(const QString& value) override;
    QString held() const override;

private:
    void take() { edited(held()); }

    QTreeWidget* tree_;
    int line_;
};

} // namespace vlk
