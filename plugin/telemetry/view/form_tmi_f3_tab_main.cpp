#include "telemetry/view/form_tmi_f3_tab_main.h"

#include "telemetry/text/item_text.h"
#include "telemetry/text/signal_level.h"
#include "telemetry/view/dashed_value.h"
#include "telemetry/view/item_display.h"
#include "telemetry/view/position_rows.h"
#include "typing/join_fields.h"
#include "typing/present_value.h"
#include "typing/typed_entry.h"

#include <QAbstractSpinBox>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>

using namespace vlk;

namespace {

using Main = VLK_Form_Tmi_F3_Tab_Main;

constexpr ValueSeries kMainDevice[] = {
    {"label_Dev_USB_Value", "tmizta_132", item("Module1.1")},
    {"label_Dev_Bluetooth_Value", "tmizta_143", item("Module2.5")},
    {"label_Dev_WiFi_Value", "tmizta_144", item("Module2.6"), 1, Main::WiFi},
    {"label_Dev_Iridium_Value", "tmift1_003", item("Module3.0"), 1, Main::Iridium},
    {"label_Dev_EnergySaving_Value", "tmizta_130", item("State.6")},
    {"label_Dev_Evacuation_Value", "tmizta_129", item("State.5"), 1, Main::Evacuation},
    {"label_OpenSensor_Value", "tmizta_225", item("State2.0"), 1, Main::OpenSensor},
    {"label_ComplexEvents_Value", "tmift1_004", item("State2.events"), 1, Main::ComplexEvents},
    {"label_Engine_Text", "tmizta_138", item("Module1.7")},
    {"label_Motochas_Value", "tmizta_162", item("Motochas"), 1, Main::Motochas},
    {"label_Motochas_LoadOn_Value", "tmizta_353", item("MotochasLoadOn"), 1, Main::MotochasLoad},
    {"label_Motochas_LoadOff_Value", "tmizta_354", item("MotochasLoadOff"), 1, Main::MotochasLoad},
};

constexpr ValueSeries kConnection[] = {
    {"label_Cnct_State_Value", "tmizta_228", item("StateCnct.connection")},
    {"label_Cnct_Server%1_Value", "tmizta_229", item("StateCnct.3"), 3},
    {"label_Cnct_Services_Value", "tmift1_009", item("StateCnct.6")},
    {"label_Cnct_Bluetooth_Value", "tmizta_143", item("StateCnct.7")},
};

constexpr ValueSeries kMainModem[] = {
    {"label_GSM_State_Value", "tmift1_019", item("Module1.modem")},
};

constexpr ValueSeries kJamming[] = {
    {"label_GSM_Jamming_State", "tmizta_139", item("Module2.jamming")},
    {"label_GPS_Jamming_State", "tmizta_140", item("Module2.2")},
};

constexpr ValueSeries kFixed[] = {
    {"label_Navi_Fixed_Value", "tmizta_141", item("Module2.3")},
};

constexpr ValueSeries kSegment[] = {
    {"label_Navi_LastWay_Value", "tmift1_012", item("Way")},
    {"label_Navi_LastTime_Value", "tmift1_013", item("SecondsLast")},
    {"label_Navi_AllTime_Value", "tmift1_014", item("AllSeconds")},
    {"label_Navi_Reliability_Value", "tmift1_015", item("SecondsLast.reliability")},
};

constexpr ValueSeries kSatellites[] = {
    {"label_NaviInfo_Value_1", "tmift1_040", item("NaviInfoGlonass")},
    {"label_NaviInfo_Value_2", "tmift1_041", item("NaviInfoGPS")},
    {"label_NaviInfo_Value_3", "tmift1_042", item("NaviInfoGalileo")},
    {"label_NaviInfo_Value_4", "tmift1_043", item("NaviInfoCompass")},
    {"label_NaviInfo_Value_5", "tmift1_044", item("NaviInfoBeidou")},
    {"label_NaviInfo_Value_6", "tmift1_045", item("NaviInfoDoris")},
    {"label_NaviInfo_Value_7", "tmift1_046", item("NaviInfoIrnss")},
    {"label_NaviInfo_Value_8", "tmift1_047", item("NaviInfoQzss")},
    {"label_NaviHdop_Value", "tmift1_048", item("NaviHDop")},
    {"label_NaviPdop_Value", "tmift1_049", item("NaviPDop")},
};

constexpr ValueSeries kPreciseNavigation[] = {
    {"label_NaviExt_State_Value", "tmift1_051", item("NaviState.0"), 1, Main::NaviExt},
    {"label_NaviExt_Valid_Value", "tmift1_030", item("NaviState.1"), 1, Main::NaviExt},
    {"label_NaviExt_SatCount_Value", "tmift1_028", item("NaviState.satellites"), 1, Main::NaviExt},
    {"label_NaviExt_Lat_Value", "tmift1_031", item("NaviLatitude"), 1, Main::NaviExt},
    {"label_NaviExt_Lon_Value", "tmift1_032", item("NaviLongitude"), 1, Main::NaviExt},
    {"label_NaviExt_Alt_Value", "tmift1_033", item("NaviAltitude"), 1, Main::NaviExt},
    {"label_NaviExt_Speed_Value", "tmift1_034", item("NaviSpeed"), 1, Main::NaviExt},
    {"label_NaviExt_Course_Value", "tmift1_035", item("NaviCourse"), 1, Main::NaviExt},
};

// The serving cell and two neighbours.
constexpr std::array kCells = {"tmift1_053", "tmift1_054", "tmift1_055"};
constexpr ValueTableRow<3> kStations[] = {
    {"tmizta_180",
     {{{"label_LBS_CellID_Value", item("LbsCellID")},
       {"label_LBS_CellID1_Value", item("LbsCellID_1")},
       {"label_LBS_CellID2_Value", item("LbsCellID_2")}}}},
    {"tmizta_181",
     {{{"label_LBS_Lac_Value", item("LbsLac")},
       {"label_LBS_Lac1_Value", item("LbsLac_1")},
       {"label_LBS_Lac2_Value", item("LbsLac_2")}}}},
    {"tmizta_182",
     {{{"label_LBS_MCC_Value", item("LbsMcc")},
       {"label_LBS_MCC1_Value", item("LbsMcc_1")},
       {"label_LBS_MCC2_Value", item("LbsMcc_2")}}}},
    {"tmizta_183",
     {{{"label_LBS_MNC_Value", item("LbsMnc")},
       {"label_LBS_MNC1_Value", item("LbsMnc_1")},
       {"label_LBS_MNC2_Value", item("LbsMnc_2")}}}},
    {"tmift1_056",
     {{{"label_LBS_Level_Value", item("LbsLevel")},
       {"label_LBS_Level1_Value", item("LbsLevel_1")},
       {"label_LBS_Level2_Value", item("LbsLevel_2")}}}},
};

constexpr ValueSeries kStationTime = {"label_LBS_Time_Value", "tmizta_184", item("LbsTime")};

constexpr ValueSeries kGeofences[] = {
    {"label_Geo_Value_%1", "tmizta_214", item("GeozoneInfo.0"), 10, Main::Geo},
};

// It goes with the window below, whose tracker may be another one when it comes back. Its only field leaves
// the keys that end typing to the dialog, which stays open, and says why, when what was typed is not the
// mileage that would be sent.
class MileageDialog : public QInputDialog
{
public:
    using QInputDialog::QInputDialog;

    // The field, which there is once the dialog knows what it asks for.
    void joinField()
    {
        box_ = findChild<QAbstractSpinBox*>();
        // Both decimal signs.
        vlk::joinFields(this);
        box_->installEventFilter(this);
        parentWidget()->window()->installEventFilter(this);
    }

    void done(int result) override
    {
        if (result == Accepted) {
            auto* entry = vlk::TypedEntry::of(box_);
            entry->finish();
            if (const QString news = entry->takeNews(); !news.isEmpty()) {
                setLabelText(VLK_Form_Tmi_F3_Tab_Main::tr("tmift1_061") + QLatin1Char('\n') + news);
                box_->setFocus();
                box_->selectAll();
                return;
            }
        }
        QInputDialog::done(result);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == parentWidget()->window() && event->type() == QEvent::Hide && !event->spontaneous())
            reject();
        if (watched != box_ || event->type() != QEvent::KeyPress)
            return QInputDialog::eventFilter(watched, event);
        switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            accept();
            return true;
        case Qt::Key_Escape:
            reject();
            return true;
        default:
            return QInputDialog::eventFilter(watched, event);
        }
    }

private:
    QAbstractSpinBox* box_ = nullptr;
};

const QString kMileage = QStringLiteral("label_Navi_Way_Value");

// Under the label of the field: that of the record on show, where it has one.
void showMileageOnShow(QInputDialog& dialog, const QString& mileage)
{
    dialog.sizeHint(); // by which it arranges itself
    auto* column = qobject_cast<QVBoxLayout*>(dialog.layout());
    if (!column || mileage.isEmpty())
        return;
    auto* shown = new QLabel(VLK_Form_Tmi_F3_Tab_Main::tr("tmiw_300").arg(mileage));
    shown->setObjectName(QStringLiteral("label_Run_Shown"));
    shown->setTextInteractionFlags(Qt::TextSelectableByMouse);
    column->insertWidget(1, shown);
}

} // namespace

VLK_Form_Tmi_F3_Tab_Main::VLK_Form_Tmi_F3_Tab_Main(QWidget* parent)
    : VLK_Form_Tmi_F3_Tab("tmift1_001", parent), level_(new QProgressBar), sim1_(new QRadioButton),
      sim2_(new QRadioButton), run_(new QPushButton)
{
    addGroup(0, "groupBox_Device", "tmift1_002")->addList(kMainDevice);
    addGroup(0, "groupBox_Cnct", "tmift1_005")->addList(kConnection);
    addGsm();
    addNavigation();
    addGroup(1, "groupBox_NaviExt", "tmizta_178")->addList(kPreciseNavigation);
    addGroup(2, "groupBox_NaviInfo", "tmift1_050")->addList(kSatellites, 5);
    RecordGroup* stations = addGroup(2, "groupBox_LBS", "tmift1_052");
    stations->addTable(kCells, std::span<const ValueTableRow<3>>(kStations));
    stations->addWideRow(kStationTime);
    addGroup(2, "groupBox_Geo", "tmift1_058")->addList(kGeofences, 5);
}

void VLK_Form_Tmi_F3_Tab_Main::addGsm()
{
    RecordGroup* group = addGroup(0, "groupBox_GSM", "tmift1_018");
    group->addList(kMainModem);

    level_->setObjectName(QStringLiteral("progressBar_GSM_Level_Value"));
    level_->setRange(0, 100);
    level_->setValue(0);
    standOut(level_);
    level_->setFormat({});
    level_->setAlignment(Qt::AlignCenter);
    levelShown_ = group->addRow("tmift1_020", level_);

    // They show which card is in use and are not for choosing.
    auto* cards = new QWidget;
    cards->setObjectName(QStringLiteral("widget_Sim_Value"));
    auto* row = new QHBoxLayout(cards);
    row->setContentsMargins(0, 0, 0, 0);
    int number = 1;
    for (QRadioButton* card : {sim1_, sim2_}) {
        card->setObjectName(QStringLiteral("radioButton_Sim_%1").arg(number));
        card->setAutoExclusive(false);
        card->setEnabled(false);
        card->setAccessibleName(QStringLiteral("SIM %1").arg(number));
        row->addWidget(card);
        row->addWidget(new QLabel(QString::number(number)));
        ++number;
    }
    row->addStretch();
    cardShown_ = group->addRow("tmizta_135", cards);
    group->addList(kJamming);
}

void VLK_Form_Tmi_F3_Tab_Main::addNavigation()
{
    RecordGroup* group = addGroup(1, "groupBox_Navi", "tmift1_025");
    group->addList(kFixRows<ValueSeries>);
    group->addList(kFixed);
    group->addList(kPositionRows<ValueSeries>);
    run_->setObjectName(QStringLiteral("pushButton_Run"));
    connect(run_, &QPushButton::pressed, this, &VLK_Form_Tmi_F3_Tab_Main::slot_pressed_Btn_SetRun);
    group->addCommand(run_);
    addGroup(1, "groupBox_Navi_Last", "tmift1_016")->addList(kSegment);
}

QWidget* VLK_Form_Tmi_F3_Tab_Main::commands() const
{
    return run_;
}

void VLK_Form_Tmi_F3_Tab_Main::fill(const TmiPage_Zeta3& page)
{
    VLK_Form_Tmi_F3_Tab::fill(page);

    const std::uint8_t level = page.value<element("GSM")>();
    const bool isKnown = level < kNoSignalLevel;
    level_->setValue(signalPercent(level));
    level_->setFormat(isKnown ? QString(kLevelFormat) : tr("tmizta_027"));
    levelShown_->setAbsent(!holds(page, element("GSM")));

    const bool hasCard = page.has(element("Module1"));
    const bool second = (page.value<element("Module1")>() >> 4 & 1) != 0;
    sim1_->setChecked(hasCard && !second);
    sim2_->setChecked(hasCard && second);
    cardShown_->setAbsent(!hasCard);
}

void VLK_Form_Tmi_F3_Tab_Main::retranslate()
{
    VLK_Form_Tmi_F3_Tab::retranslate();
    run_->setText(tr("tmift1_060"));
}

void VLK_Form_Tmi_F3_Tab_Main::slot_pressed_Btn_SetRun()
{
    constexpr double kHighest = 10'000'000;
    MileageDialog dialog(this);
    dialog.setInputMode(QInputDialog::DoubleInput);
    dialog.setWindowTitle(tr("tmift1_036"));
    dialog.setLabelText(tr("tmift1_061"));
    dialog.setDoubleRange(0, kHighest);
    dialog.setDoubleDecimals(2);
    dialog.setDoubleValue(0);
    showMileageOnShow(dialog, findChild<QLabel*>(kMileage)->text());
    dialog.joinField();
    if (dialog.exec() == QDialog::Accepted)
        Q_EMIT signal_Set_Run(static_cast<float>(dialog.doubleValue()));
}
