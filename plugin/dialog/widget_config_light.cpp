#include "dialog/widget_config_light.h"

#include "ui_VLK_Designer_Widget_Config_Light.h"

#include "dialog/file_names.h"
#include "dialog/form_config_light.h"
#include "dialog/held_button.h"
#include "link/requests.h"
#include "windows/disabled_reason.h"
#include "windows/input_guard.h"
#include "windows/page_look.h"
#include "xml/xml_document.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>

VLK_Widget_Config_Light::VLK_Widget_Config_Light(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::VLK_Designer_Widget_Config_Light>())
{
    ui_->setupUi(this);
    vlk::tellWhyDisabled(ui_->pushButton_Light_LoadToDevice, "cfgt6_450");
    using Slot = void (VLK_Widget_Config_Light::*)();
    const std::pair<QPushButton*, Slot> buttons[] = {
        {ui_->pushButton_Light_SaveToFile, &VLK_Widget_Config_Light::slot_pressed_Btn_Light_SaveToFile},
        {ui_->pushButton_Light_LoadToDevice, &VLK_Widget_Config_Light::slot_pressed_Btn_Light_LoadToDevice},
        {ui_->pushButton_Light_ConfigFull, &VLK_Widget_Config_Light::slot_pressed_Btn_Light_ConfigFull},
        {ui_->pushButton_Light_Close, &VLK_Widget_Config_Light::slot_pressed_Btn_Light_Close},
    };
    for (const auto& [button, slot] : buttons) {
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, slot);
    }
    connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this,
            [] { vlk::requests::showHelp(QStringLiteral("r-7106quick.html")); });
    connect(new QShortcut(QKeySequence::Save, this), &QShortcut::activated, ui_->pushButton_Light_SaveToFile,
            &QPushButton::click);
    retranslate();
}

VLK_Widget_Config_Light::~VLK_Widget_Config_Light() = default;

void VLK_Widget_Config_Light::retranslate()
{
    ui_->pushButton_Light_SaveToFile->setText(tr("wrd_028"));
    ui_->pushButton_Light_LoadToDevice->setText(tr("wrd_055"));
    ui_->pushButton_Light_ConfigFull->setText(tr("cfgwnd_002"));
    ui_->pushButton_Light_Close->setText(tr("wrd_054"));
    if (form_)
        form_->retranslate();
}

void VLK_Widget_Config_Light::addReview(QWidget* bar, QWidget* panel)
{
    ui_->verticalLayout->insertWidget(0, bar);
    ui_->verticalLayout->insertWidget(ui_->verticalLayout->count() - 1, panel);
}

void VLK_Widget_Config_Light::addNotice(QWidget* bar)
{
    ui_->verticalLayout->insertWidget(0, bar);
}

VLK_Form_Config_Light& VLK_Widget_Config_Light::form()
{
    if (!form_) {
        form_ = new VLK_Form_Config_Light;
        vlk::guardInputs(form_);
        vlk::dressPage(form_);
        area_ = new QScrollArea;
        area_->setWidgetResizable(true);
        area_->setFrameShape(QFrame::NoFrame);
        area_->setWidget(form_);
        Q_EMIT formMade(form_->settings());
        ui_->gridLayout_Form->addWidget(area_);
        // Behind the form the buttons, as read.
        QWidget* before = form_->lastField();
        for (QWidget* button : {ui_->pushButton_Light_LoadToDevice, ui_->pushButton_Light_SaveToFile,
                                ui_->pushButton_Light_ConfigFull, ui_->pushButton_Light_Close}) {
            setTabOrder(before, button);
            before = button;
        }
    }
    return *form_;
}

void VLK_Widget_Config_Light::showEvent(QShowEvent* event)
{
    form();
    QWidget::showEvent(event);
}

// A form that is not there yet starts with its defaults.
void VLK_Widget_Config_Light::setDefaults()
{
    if (form_)
        form_->setDefaults();
}

void VLK_Widget_Config_Light::loadFromXml(CXmlSection* root)
{
    form().loadFromXml(root);
}

void VLK_Widget_Config_Light::logNews()
{
    form().settings().logNews();
}

void VLK_Widget_Config_Light::saveToXml(CXmlSection* root)
{
    form().saveToXml(root);
}

void VLK_Widget_Config_Light::focusFirstField()
{
    form().focusFirstField();
    area_->verticalScrollBar()->setValue(0);
}

void VLK_Widget_Config_Light::deviceConnected()
{
    connected_ = true;
    ui_->pushButton_Light_LoadToDevice->setEnabled(true);
}

void VLK_Widget_Config_Light::deviceDisconnected()
{
    connected_ = false;
    ui_->pushButton_Light_LoadToDevice->setEnabled(false);
}

void VLK_Widget_Config_Light::slot_pressed_Btn_Light_SaveToFile()
{
    const QString path = vlk::askConfigurationPath(this, QStringLiteral("NONAME"));
    if (path.isEmpty())
        return;
    vlk::HeldButton button(ui_->pushButton_Light_SaveToFile);
    Q_EMIT saveRequested(path);
    button.release();
}

void VLK_Widget_Config_Light::slot_pressed_Btn_Light_LoadToDevice()
{
    vlk::HeldButton button(ui_->pushButton_Light_LoadToDevice);
    Q_EMIT writeRequested();
    button.release(connected_);
}

void VLK_Widget_Config_Light::slot_pressed_Btn_Light_ConfigFull()
{
    Q_EMIT fullRequested();
}

void VLK_Widget_Config_Light::slot_pressed_Btn_Light_Close()
{
    Q_EMIT closeRequested();
}
