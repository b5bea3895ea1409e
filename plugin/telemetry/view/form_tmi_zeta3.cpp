#include "telemetry/view/form_tmi_zeta3.h"

#include "windows/vlk_tabwidget.h"

#include <QVBoxLayout>

VLK_Form_TMI_Zeta3::VLK_Form_TMI_Zeta3(EventPanel* panel, QWidget* parent)
    : QWidget(parent), record_(panel), tabWidget_(new VLK_TabWidget(this))
{
    tabWidget_->setObjectName(QStringLiteral("tabWidget"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(tabWidget_);
}
