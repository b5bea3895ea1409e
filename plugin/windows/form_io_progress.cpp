#include "windows/form_io_progress.h"

#include "ui_VLK_Designer_Form_IO_Progress.h"

#include "windows/box_frame.h"

VLK_Form_IO_Progress::VLK_Form_IO_Progress(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint),
      ui_(std::make_unique<Ui::VLK_Designer_Form_IO_Progress>())
{
    ui_->setupUi(this);
    setModal(true);
    setFixedSize(450, 110);
    connect(ui_->pushButton_Break, &QPushButton::clicked, this,
            &VLK_Form_IO_Progress::slot_pressed_Btn_Break);
}

VLK_Form_IO_Progress::~VLK_Form_IO_Progress() = default;

void VLK_Form_IO_Progress::reset()
{
    setTitleText({});
    for (QLabel* label : findChildren<QLabel*>())
        label->clear();
    ui_->progressBar->setRange(0, 0);
    ui_->progressBar->setValue(0);
}

void VLK_Form_IO_Progress::showForm()
{
    setEverythingVisible();
    show();
}

void VLK_Form_IO_Progress::closeForm()
{
    done(Rejected);
    setEverythingVisible();
}

void VLK_Form_IO_Progress::setMinimum(int minimum)
{
    ui_->progressBar->setMinimum(minimum);
}

void VLK_Form_IO_Progress::setMaximum(int maximum)
{
    ui_->progressBar->setMaximum(maximum);
}

void VLK_Form_IO_Progress::setValue(int value)
{
    ui_->progressBar->setValue(value);
}

void VLK_Form_IO_Progress::setBreakVisible(bool visible)
{
    ui_->pushButton_Break->setVisible(visible);
}

void VLK_Form_IO_Progress::setCountersVisible(bool visible)
{
    for (QLabel* label : {ui_->label_Cur, ui_->label_Slash, ui_->label_All})
        label->setVisible(visible);
}

void VLK_Form_IO_Progress::setTimeVisible(bool visible)
{
    ui_->label_Time->setVisible(visible);
}

void VLK_Form_IO_Progress::setTitleText(const QString& text)
{
    ui_->label_Title->setText(text);
    ui_->progressBar->setAccessibleName(text);
    setWindowTitle(text);
}

void VLK_Form_IO_Progress::setFileTextLeft(const QString& text)
{
    ui_->label_File->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    ui_->label_File->setText(text);
}

void VLK_Form_IO_Progress::setFileTextRight(const QString& text)
{
    ui_->label_File->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    ui_->label_File->setText(text);
}

void VLK_Form_IO_Progress::setCurText(const QString& text)
{
    ui_->label_Cur->setText(text);
}

void VLK_Form_IO_Progress::setAllText(const QString& text)
{
    ui_->label_All->setText(text);
    ui_->label_Slash->setText(text.isEmpty() ? QString() : QStringLiteral("/"));
}

void VLK_Form_IO_Progress::setTimeText(const QString& text)
{
    ui_->label_Time->setText(text);
}

void VLK_Form_IO_Progress::setHintText(const QString& text)
{
    ui_->label_Hint->setText(text);
}

void VLK_Form_IO_Progress::retranslate()
{
    ui_->retranslateUi(this);
}

void VLK_Form_IO_Progress::reject()
{
    slot_pressed_Btn_Break();
    Q_EMIT dismissed();
}

void VLK_Form_IO_Progress::paintEvent(QPaintEvent* event)
{
    QDialog::paintEvent(event);
    vlk::paintBoxFrame(this);
}

void VLK_Form_IO_Progress::slot_pressed_Btn_Break()
{
    Q_EMIT breakProcess();
}

void VLK_Form_IO_Progress::setEverythingVisible()
{
    setBreakVisible(true);
    setCountersVisible(true);
    setTimeVisible(true);
}
