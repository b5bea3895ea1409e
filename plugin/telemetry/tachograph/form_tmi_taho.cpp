#include "telemetry/tachograph/form_tmi_taho.h"

#include "ui_VLK_Designer_Form_TMI_Taho.h"

#include "base/clock.h"
#include "link/requests.h"
#include "telemetry/text/tachograph_answer.h"
#include "typing/join_fields.h"
#include "typing/notice_bar.h"
#include "typing/title_style.h"
#include "typing/typed_entry.h"
#include "windows/fit_to_screen.h"

#include <QShortcut>

#include <array>

using namespace vlk;

namespace {

// What lines of the file area are kept; a tracker that reports without end must not fill the memory.
constexpr int kLinesKept = 2000;

// By the items of comboBox_Quest.
constexpr int kQuestions[] = {1, 3, 4, 5};

enum class Argument : std::uint8_t { None, Card, Time };

// By the items of comboBox_File.
struct TachographFile
{
    const char* text;
    std::uint8_t code;
    Argument argument;
};
constexpr TachographFile kFiles[] = {
    {"tmiw_040", 5, Argument::Card}, {"tmiw_041", 0, Argument::None}, {"tmiw_042", 1, Argument::Time},
    {"tmiw_043", 2, Argument::None}, {"tmiw_044", 3, Argument::None}, {"tmiw_045", 4, Argument::None},
};

// A slot of the tachograph goes out with all higher bits set.
constexpr std::uint32_t kSlotBits = 0xFFFFFF00;

Argument argumentAt(int index)
{
    return index >= 0 && index < static_cast<int>(std::size(kFiles)) ? kFiles[index].argument
                                                                     : Argument::None;
}

// New texts for the items of a box, which keeps its choice.
void setItems(QComboBox* box, const QStringList& texts)
{
    for (int i = 0; i < texts.size(); ++i) {
        if (i < box->count())
            box->setItemText(i, texts[i]);
        else
            box->addItem(texts[i]);
    }
}

} // namespace

VLK_Form_TMI_Taho::VLK_Form_TMI_Taho(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowCloseButtonHint | Qt::WindowMaximizeButtonHint),
      ui_(std::make_unique<Ui::VLK_Designer_Form_TMI_Taho>()), bar_(new vlk::NoticeBar(this))
{
    ui_->setupUi(this);
    ui_->verticalLayout->insertWidget(0, bar_);
    bar_->keepPlace();
    dressGroups(this);
    ui_->frame_FileAutorize->hide();
    ui_->pushButton_Autorize->hide();
    ui_->textEdit_File->document()->setMaximumBlockCount(kLinesKept);

    using Slot = void (VLK_Form_TMI_Taho::*)();
    const std::pair<QPushButton*, Slot> buttons[] = {
        {ui_->pushButton_Quest, &VLK_Form_TMI_Taho::slot_pressed_BtnQuest},
        {ui_->pushButton_Autorize, &VLK_Form_TMI_Taho::slot_pressed_BtnAutorize},
        {ui_->pushButton_Create, &VLK_Form_TMI_Taho::slot_pressed_BtnCreate},
        {ui_->pushButton_Load, &VLK_Form_TMI_Taho::slot_pressed_BtnLoad},
    };
    for (const auto& [button, slot] : buttons) {
        button->setAutoDefault(false);
        connect(button, &QPushButton::pressed, this, slot);
    }
    const auto showHelp = [] { vlk::requests::showHelp(QStringLiteral("r-7106taho.html")); };
    for (QPushButton* button : {ui_->pushButton_Help, ui_->pushButton_Close})
        button->setAutoDefault(false);
    connect(ui_->pushButton_Help, &QPushButton::clicked, this, showHelp);
    connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this, showHelp);
    connect(ui_->pushButton_Close, &QPushButton::clicked, this, &QDialog::close);
    connect(ui_->comboBox_File, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &VLK_Form_TMI_Taho::slot_currentIndexChanged_File);
    vlk::joinFields(this);
    vlk::keepOnScreen(this);
    retranslate();
}

VLK_Form_TMI_Taho::~VLK_Form_TMI_Taho() = default;

void VLK_Form_TMI_Taho::open()
{
    ui_->pushButton_Load->setEnabled(false);
    ui_->dateTimeEdit_File->setDateTime(now());
    ui_->textEdit_Quest->clear();
    ui_->textEdit_File->clear();
    ui_->comboBox_File->setCurrentIndex(0);
    ui_->comboBox_Card->setCurrentIndex(0);
    slot_currentIndexChanged_File(0);
    show();
    raise();
    activateWindow();
}

void VLK_Form_TMI_Taho::takeAnswer(const QByteArray& answer)
{
    const TachographAnswer read = tachographAnswer(answer, now());
    if (read.subject == TachographAnswer::Subject::Nothing)
        return;
    const bool ofFile = read.subject == TachographAnswer::Subject::File;
    QTextEdit* area = ofFile ? ui_->textEdit_File : ui_->textEdit_Quest;
    if (!ofFile)
        area->clear();
    for (const QString& line : read.lines)
        area->append(line);
    if (!ofFile)
        area->moveCursor(QTextCursor::Start);
    if (read.readyFile) {
        tahoFileName_ = *read.readyFile;
        ui_->pushButton_Load->setEnabled(true);
    }
}

void VLK_Form_TMI_Taho::takeFetched(bool done)
{
    ui_->textEdit_File->append(tachographFetchedLine(done));
}

void VLK_Form_TMI_Taho::retranslate()
{
    setWindowTitle(tr("wrd_065"));
    bar_->retranslate();
    ui_->groupBox_Quest->setTitle(tr("tmiw_032"));
    ui_->pushButton_Quest->setText(tr("tmiw_032"));
    ui_->groupBox_File->setTitle(tr("tmiw_036"));
    ui_->label_Login->setText(tr("wrd_066"));
    ui_->label_Password->setText(tr("wrd_067"));
    ui_->pushButton_Autorize->setText(tr("tmiw_037"));
    ui_->pushButton_Create->setText(tr("tmiw_038"));
    ui_->pushButton_Load->setText(tr("tmiw_039"));
    ui_->pushButton_Help->setText(tr("wrd_027"));
    ui_->pushButton_Close->setText(tr("wrd_054"));
    ui_->textEdit_Quest->setAccessibleName(tr("tmiw_032"));
    ui_->comboBox_Quest->setAccessibleName(tr("tmiw_032"));
    ui_->textEdit_File->setAccessibleName(tr("tmiw_036"));
    ui_->comboBox_File->setAccessibleName(tr("tmiw_036"));
    ui_->comboBox_Card->setAccessibleName(tr("tmiw_046"));
    ui_->dateTimeEdit_File->setAccessibleName(tr("tmiw_042"));

    const auto numbered = [](const QString& text, int number) {
        return QStringLiteral("%1 %2 %3").arg(text, tr("abbr_047")).arg(number);
    };
    setItems(ui_->comboBox_Quest,
             {tr("tmiw_033"), numbered(tr("tmiw_034"), 1), numbered(tr("tmiw_034"), 2), tr("tmiw_035")});
    setItems(ui_->comboBox_Card, {numbered(tr("tmiw_046"), 1), numbered(tr("tmiw_046"), 2)});
    QStringList files;
    for (const TachographFile& file : kFiles)
        files << tr(file.text);
    setItems(ui_->comboBox_File, files);
}

void VLK_Form_TMI_Taho::slot_pressed_BtnQuest()
{
    const int index = ui_->comboBox_Quest->currentIndex();
    if (index >= 0 && index < static_cast<int>(std::size(kQuestions)))
        Q_EMIT signal_GetTahoQuest(kQuestions[index]);
}

// The tracker has no login to a tachograph.
void VLK_Form_TMI_Taho::slot_pressed_BtnAutorize() {}

void VLK_Form_TMI_Taho::slot_pressed_BtnCreate()
{
    const int index = ui_->comboBox_File->currentIndex();
    if (index < 0 || index >= static_cast<int>(std::size(kFiles)))
        return;
    szQueryTaho request{0, kFiles[index].code, 0};
    switch (kFiles[index].argument) {
    case Argument::Card:
        request.parameter = kSlotBits | static_cast<std::uint32_t>(ui_->comboBox_Card->currentIndex() + 1);
        break;
    case Argument::Time:
        vlk::TypedEntry::finishIn(this);
        request.parameter = static_cast<std::uint32_t>(ui_->dateTimeEdit_File->dateTime().toSecsSinceEpoch());
        break;
    case Argument::None:
        break;
    }
    Q_EMIT signal_GetTahoFile(&request);
}

void VLK_Form_TMI_Taho::slot_pressed_BtnLoad()
{
    // A dialog opens while the mouse is down, so the button would not see it released.
    ui_->pushButton_Load->setDown(false);
    Q_EMIT signal_GetTahoFile_Read(tahoFileName_);
}

void VLK_Form_TMI_Taho::slot_currentIndexChanged_File(int index)
{
    ui_->comboBox_Card->setEnabled(argumentAt(index) == Argument::Card);
    ui_->dateTimeEdit_File->setEnabled(argumentAt(index) == Argument::Time);
}
