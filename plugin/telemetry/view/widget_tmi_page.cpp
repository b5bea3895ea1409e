#include "telemetry/view/widget_tmi_page.h"

#include "ui_VLK_Designer_Widget_Tmi_Page.h"

#include "link/requests.h"
#include "telemetry/shown/work_progress.h"
#include "telemetry/view/damage_text.h"
#include "telemetry/view/event_panel.h"
#include "telemetry/view/file_opening.h"
#include "telemetry/view/value_label.h"
#include "typing/join_fields.h"
#include "typing/line_icon.h"
#include "typing/notice_bar.h"
#include "typing/typed_entry.h"
#include "windows/fit_to_screen.h"

#include <QDir>
#include <QFileInfo>
#include <QShortcut>

#include <algorithm>
#include <limits>

using namespace vlk;

namespace {

std::unique_ptr<Ui::VLK_Designer_Widget_Tmi_Page> setUpPageUi(QDialog* window)
{
    auto ui = std::make_unique<Ui::VLK_Designer_Widget_Tmi_Page>();
    ui->setupUi(window);
    return ui;
}

// The positions span the numbers of the records, gaps included. Where numbers repeat or fall, there is a
// position for each page at least.
int lastPosition(const RecordStore& records)
{
    const int behind = records.size() - 1;
    const qint64 span = qint64{records.at(behind)->number()} - records.at(0)->number();
    const qint64 last = std::max<qint64>(span, behind);
    return static_cast<int>(std::min<qint64>(last, std::numeric_limits<int>::max()));
}

} // namespace

VLK_Widget_Tmi_Page::VLK_Widget_Tmi_Page(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowCloseButtonHint | Qt::WindowMaximizeButtonHint),
      ui_(setUpPageUi(this)), file_(new vlk::ValueLabel(QStringLiteral("label_File"))),
      eventPanel_(new vlk::EventPanel(this)),
      damageNotice_(new vlk::NoticeBar(this, QStringLiteral("label_Damage"))),
      progress_(new vlk::WorkProgress(this)), opening_(new vlk::FileOpening(progress_)),
      stack_(ui_->stackedWidget, eventPanel_, false), contents_(std::make_shared<vlk::TelemetryContents>())
{
    ui_->verticalLayout->insertWidget(0, damageNotice_);
    ui_->verticalLayout->insertWidget(1, progress_);
    connect(opening_, &FileOpening::opened, this, &VLK_Widget_Tmi_Page::takeContents);
    connect(this, &QDialog::finished, opening_, &FileOpening::stop);
    connect(opening_, &FileOpening::cancelled, this,
            [this] { tellCancelled(damageNotice_, [this] { opening_->start(path_); }); });
    file_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    ui_->verticalLayout_Event->addWidget(file_);
    ui_->verticalLayout_Event->addWidget(eventPanel_);
    ui_->pushButton_Go->hide();
    ui_->label_NoRecord->hide();
    // The texts of the two buttons are numbers; arrows tell where they lead.
    ui_->pushButton_Begin->setIcon(lineIcon(LineIcon::Begin));
    ui_->pushButton_End->setIcon(lineIcon(LineIcon::End));
    connectControls();
    vlk::keepOnScreen(this);
    stack_.showNothing();
    retranslate();
}

VLK_Widget_Tmi_Page::~VLK_Widget_Tmi_Page() = default;

void VLK_Widget_Tmi_Page::connectControls()
{
    using Page = VLK_Widget_Tmi_Page;
    const std::pair<QPushButton*, void (Page::*)()> buttons[] = {
        {ui_->pushButton_Begin, &Page::slot_Pressed_PushButton_Begin},
        {ui_->pushButton_Get_Prev, &Page::slot_Pressed_PushButton_Get_Prev},
        {ui_->pushButton_Get_Next, &Page::slot_Pressed_PushButton_Get_Next},
        {ui_->pushButton_End, &Page::slot_Pressed_PushButton_End},
        {ui_->pushButton_Go, &Page::slot_Pressed_PushButton_Go},
        {ui_->pushButton_Close, &Page::slot_Pressed_PushButton_Close},
        {ui_->pushButton_Help, &Page::slot_Pressed_PushButton_Help},
    };
    for (const auto& [button, slot] : buttons) {
        connect(button, &QPushButton::pressed, this, slot);
        // Enter in the spin box must not press whatever button is near.
        button->setAutoDefault(false);
    }
    for (const auto& [key, button, slot] :
         {std::tuple(Qt::Key_PageUp, ui_->pushButton_Get_Prev, &Page::slot_Pressed_PushButton_Get_Prev),
          {Qt::Key_PageDown, ui_->pushButton_Get_Next, &Page::slot_Pressed_PushButton_Get_Next}}) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, [this, button = button, slot = slot] {
            if (button->isEnabled())
                (this->*slot)();
        });
    }
    // By the key that opens a table in the main window.
    connect(new QShortcut(QStringLiteral("Ctrl+L"), this), &QShortcut::activated, this,
            [this] { Q_EMIT tableWanted(path_); });
    joinFields(this);
    connect(ui_->horizontalSlider, &QSlider::valueChanged, this, &Page::slot_valueChanged_horizontalSlider);
    connect(ui_->spinBox_Go, qOverload<int>(&QSpinBox::valueChanged), this,
            &Page::slot_valueChanged_spinBox_Go);
}

void VLK_Widget_Tmi_Page::open(const QString& path)
{
    stack_.showNothing();
    file_->setValue(QFileInfo(path).fileName());
    file_->setToolTip(QDir::toNativeSeparators(path));
    // A file may be large: two of them need not be in memory.
    contents_ = std::make_shared<TelemetryContents>();
    path_ = path;
    opening_->start(path);
}

void VLK_Widget_Tmi_Page::open(std::shared_ptr<const TelemetryContents> contents, const QString& name,
                               int record)
{
    opening_->stop();
    stack_.showNothing();
    path_.clear();
    file_->setValue(name);
    file_->setToolTip(QString());
    takeContents(std::move(contents));
    ui_->horizontalSlider->setValue(record);
}

void VLK_Widget_Tmi_Page::follow(const std::shared_ptr<const TelemetryContents>& contents, int record)
{
    if (contents != contents_ || !isVisible())
        return;
    // The table may have got live records since.
    if (record > ui_->horizontalSlider->maximum()) {
        const int last = lastPosition(records());
        ui_->pushButton_End->setText(QString::number(last));
        ui_->horizontalSlider->setMaximum(last);
        ui_->spinBox_Go->setMaximum(last);
    }
    ui_->horizontalSlider->setValue(record);
}

void VLK_Widget_Tmi_Page::takeContents(std::shared_ptr<const TelemetryContents> contents)
{
    contents_ = std::move(contents);
    tellDamage(damageNotice_, *contents_,
               {[this](int record) { ui_->horizontalSlider->setValue(record); },
                [this] { opening_->start(path_, TelemetryReading::Salvage); }});
    tellPart(damageNotice_, *contents_, [this](int record) { ui_->horizontalSlider->setValue(record); });
    ui_->label_NoRecord->hide();
    if (records().empty())
        return;
    stack_.setTracker(contents_->origin.titles, 0);
    setRange(lastPosition(records()));
    goTo(0);
}

void VLK_Widget_Tmi_Page::setRange(int last)
{
    const QSignalBlocker quietSlider(ui_->horizontalSlider);
    const QSignalBlocker quietSpinBox(ui_->spinBox_Go);
    ui_->pushButton_Begin->setText(QString::number(0));
    ui_->pushButton_End->setText(QString::number(last));
    ui_->horizontalSlider->setRange(0, last);
    ui_->horizontalSlider->setValue(0);
    ui_->spinBox_Go->setRange(0, last);
    ui_->spinBox_Go->setValue(0);
}

void VLK_Widget_Tmi_Page::showPage(int position)
{
    currentPage_ = position;
    stack_.showDecoded(*records().at(position));
}

void VLK_Widget_Tmi_Page::goTo(int position)
{
    if (records().empty())
        return;
    const bool isFirst = position == 0;
    const bool isLast = position + 1 >= records().size();
    ui_->pushButton_Begin->setEnabled(!isFirst);
    ui_->pushButton_Get_Prev->setEnabled(!isFirst);
    ui_->pushButton_Get_Next->setEnabled(!isLast);
    ui_->pushButton_End->setEnabled(!isLast);
    if (position < records().size())
        showPage(position);
    describePosition();
}

void VLK_Widget_Tmi_Page::describePosition()
{
    const int pageCount = records().size();
    ui_->label_NoRecord->setVisible(ui_->horizontalSlider->maximum() >= pageCount);
    ui_->label_NoRecord->setText(ui_->horizontalSlider->value() < pageCount ? QString() : tr("tmiw_183"));
}

void VLK_Widget_Tmi_Page::retranslate()
{
    setLocale(QLocale());
    setWindowTitle(tr("tmiw_031"));
    ui_->label_NoData->setText(tr("tmiw_002"));
    ui_->pushButton_Get_Prev->setText(tr("wrd_061"));
    ui_->pushButton_Get_Next->setText(tr("wrd_062"));
    ui_->pushButton_Help->setText(tr("wrd_027"));
    ui_->pushButton_Close->setText(tr("wrd_054"));
    ui_->horizontalSlider->setAccessibleName(tr("tmiw_003"));
    ui_->spinBox_Go->setAccessibleName(tr("tmiw_003"));
    for (const auto& [button, key] :
         {std::pair(ui_->pushButton_Begin, "tmiw_184"), std::pair(ui_->pushButton_End, "tmiw_185")}) {
        button->setToolTip(tr(key));
        button->setAccessibleName(tr(key));
    }
    damageNotice_->retranslate();
    progress_->retranslate();
    stack_.retranslate();
    if (records().empty())
        return;
    showPage(currentPage_);
    describePosition();
}

void VLK_Widget_Tmi_Page::slot_valueChanged_horizontalSlider(int position)
{
    ui_->spinBox_Go->setValue(position);
    goTo(position);
    if (position < records().size())
        Q_EMIT recordShown(contents_, position);
}

void VLK_Widget_Tmi_Page::slot_valueChanged_spinBox_Go(int position)
{
    ui_->horizontalSlider->setValue(position);
}

void VLK_Widget_Tmi_Page::slot_Pressed_PushButton_Begin()
{
    ui_->horizontalSlider->setValue(ui_->horizontalSlider->minimum());
}

void VLK_Widget_Tmi_Page::slot_Pressed_PushButton_Get_Prev()
{
    const int lastPage = records().size() - 1;
    ui_->horizontalSlider->setValue(std::min(ui_->horizontalSlider->value() - 1, lastPage));
}

void VLK_Widget_Tmi_Page::slot_Pressed_PushButton_Get_Next()
{
    ui_->horizontalSlider->setValue(ui_->horizontalSlider->value() + 1);
}

void VLK_Widget_Tmi_Page::slot_Pressed_PushButton_End()
{
    ui_->horizontalSlider->setValue(ui_->horizontalSlider->maximum());
}

void VLK_Widget_Tmi_Page::slot_Pressed_PushButton_Go()
{
    TypedEntry::finishIn(this);
    ui_->horizontalSlider->setValue(ui_->spinBox_Go->value());
}

void VLK_Widget_Tmi_Page::slot_Pressed_PushButton_Close()
{
    close();
}

void VLK_Widget_Tmi_Page::slot_Pressed_PushButton_Help()
{
    requests::showHelp(QStringLiteral("r-7106tmiView.html"));
}
