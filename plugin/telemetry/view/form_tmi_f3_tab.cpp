#include "telemetry/view/form_tmi_f3_tab.h"

#include <QVBoxLayout>

VLK_Form_Tmi_F3_Tab::VLK_Form_Tmi_F3_Tab(const char* titleKey, int columns, QWidget* parent)
    : QWidget(parent), titleKey_(titleKey)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    auto* sideBySide = new QHBoxLayout;
    layout->addLayout(sideBySide);
    layout->addStretch();
    for (int i = 0; i < columns; ++i) {
        auto* column = new QVBoxLayout;
        column->addStretch();
        columns_.push_back(column);
        sideBySide->addLayout(column, 1);
    }
}

QString VLK_Form_Tmi_F3_Tab::title() const
{
    return tr(titleKey_);
}

vlk::RecordGroup* VLK_Form_Tmi_F3_Tab::addGroup(int column, const char* objectName, const char* titleKey)
{
    auto* group = new vlk::RecordGroup(objectName, titleKey, this);
    groups_.push_back(group);
    columns_[column]->insertWidget(columns_[column]->count() - 1, group);
    return group;
}

vlk::RecordGroup* VLK_Form_Tmi_F3_Tab::addWideGroup(const char* objectName, const char* titleKey)
{
    auto* group = new vlk::RecordGroup(objectName, titleKey, this);
    groups_.push_back(group);
    auto* column = qobject_cast<QVBoxLayout*>(layout());
    column->insertWidget(column->count() - 1, group);
    return group;
}

void VLK_Form_Tmi_F3_Tab::fill(const TmiPage_Zeta3& page)
{
    for (vlk::RecordGroup* group : groups_)
        group->fill(page);
}

void VLK_Form_Tmi_F3_Tab::retranslate()
{
    for (vlk::RecordGroup* group : groups_)
        group->retranslate();
}
