#include "pages/form_config_accel.h"

#include "windows/needed_height.h"

#include <QEvent>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

// As high as its content: the area around the page scrolls.
class WholeScrollArea : public QScrollArea
{
public:
    QSize minimumSizeHint() const override
    {
        return {QScrollArea::minimumSizeHint().width(), vlk::neededHeight(widget(), viewport()->width())};
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == widget() &&
            (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize))
            updateGeometry();
        return QScrollArea::eventFilter(watched, event);
    }
};

} // namespace

VLK_Form_Config_Accel::VLK_Form_Config_Accel(QWidget* parent)
    : QWidget(parent), tabs_(new QTabWidget), virtual_(new VLK_Form_Config_Accel_Virtual)
{
    auto* scroll = new WholeScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setWidget(virtual_);
    tabs_->setObjectName(QStringLiteral("tabWidget_Accel"));
    virtual_->setTabIndex(tabs_->addTab(scroll, QString()));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(tabs_);
    connect(tabs_, &QTabWidget::currentChanged, this, &VLK_Form_Config_Accel::slot_indexChangeed_tabWidget);
    tabs_->setTabText(virtual_->tabIndex(), title());
}

void VLK_Form_Config_Accel::retranslate()
{
    virtual_->retranslate();
    tabs_->setTabText(virtual_->tabIndex(), title());
}

void VLK_Form_Config_Accel::slot_indexChangeed_tabWidget(int index)
{
    if (index != virtual_->tabIndex())
        stopAuto();
}
