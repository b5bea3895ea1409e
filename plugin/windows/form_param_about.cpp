#include "windows/form_param_about.h"

#include "ui_VLK_Designer_Form_Param_About.h"

#include "windows/box_frame.h"

#include <QHideEvent>

VLK_Form_Param_About::VLK_Form_Param_About(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint),
      ui_(std::make_unique<Ui::VLK_Designer_Form_Param_About>())
{
    ui_->setupUi(this);
    setModal(true);
    connect(ui_->pushButton_Ok, &QPushButton::clicked, this, &VLK_Form_Param_About::slot_pressed_Btn_Ok);
}

VLK_Form_Param_About::~VLK_Form_Param_About() = default;

void VLK_Form_Param_About::setTitle(const QString& title)
{
    ui_->label_Title->setText(title);
    ui_->textEdit->setAccessibleName(title);
    setWindowTitle(title);
}

void VLK_Form_Param_About::setHtml(const QString& html)
{
    ui_->textEdit->clear();
    ui_->textEdit->setHtml(html);
}

void VLK_Form_Param_About::retranslate()
{
    ui_->retranslateUi(this);
}

void VLK_Form_Param_About::hideEvent(QHideEvent* event)
{
    QDialog::hideEvent(event);
    // A spontaneous event means that the desktop hides the window for a while; the texts stay then.
    if (!event->spontaneous())
        clearTexts();
}

void VLK_Form_Param_About::paintEvent(QPaintEvent* event)
{
    QDialog::paintEvent(event);
    vlk::paintBoxFrame(this);
}

void VLK_Form_Param_About::slot_pressed_Btn_Ok()
{
    clearTexts();
    close();
}

void VLK_Form_Param_About::clearTexts()
{
    setTitle({});
    setHtml({});
}
