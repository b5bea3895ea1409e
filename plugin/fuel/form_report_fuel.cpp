#include "fuel/form_report_fuel.h"

#include "ui_VLK_Designer_FormReportFuel.h"

#include "base/clock.h"
#include "fuel/table/fuel_report.h"
#include "windows/fit_to_screen.h"

#include <QPrintDialog>
#include <QPrinter>

VLK_FormReportFuel::VLK_FormReportFuel(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint),
      ui_(std::make_unique<Ui::VLK_Designer_FormReportFuel>())
{
    ui_->setupUi(this);
    // At this size the lines of the form are as long as the paper is wide.
    QFont font(QStringLiteral("Courier New"));
    font.setPointSizeF(7.5);
    font.setStyleHint(QFont::TypeWriter);
    ui_->textEdit_Report->setFont(font);
    // It is the paper, whatever the colours of the windows.
    QPalette paper = ui_->textEdit_Report->palette();
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    ui_->textEdit_Report->setPalette(paper);
    ui_->pushButton_Print->setAutoDefault(false);
    connect(ui_->pushButton_Print, &QPushButton::clicked, this, &VLK_FormReportFuel::slot_pressed_Btn_Print);
    resize(588, 788);
    vlk::keepOnScreen(this);
    retranslate();
}

VLK_FormReportFuel::~VLK_FormReportFuel() = default;

void VLK_FormReportFuel::retranslate()
{
    setWindowTitle(tr("cfgt6_053"));
    ui_->pushButton_Print->setText(tr("wrd_030"));
    ui_->pushButton_Print->setToolTip(tr("cfgt6_054"));
    ui_->textEdit_Report->setAccessibleName(tr("cfgt6_053"));
}

void VLK_FormReportFuel::showReport(const QString& shortName, const QString& tankName,
                                    const vlk::FuelPoints& points)
{
    show();
    raise();
    ui_->textEdit_Report->setHtml(vlk::fuelReport(shortName, tankName, points, vlk::now()));
}

void VLK_FormReportFuel::slot_pressed_Btn_Print()
{
    QPrinter printer;
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() == QDialog::Accepted)
        ui_->textEdit_Report->document()->print(&printer);
}
