#include "telemetry/curves/curves_view.h"

#include "telemetry/curves/bands_strip.h"
#include "telemetry/curves/curve_choice.h"
#include "telemetry/curves/curve_legend.h"
#include "telemetry/curves/curves_model.h"
#include "telemetry/curves/curves_plot.h"
#include "telemetry/curves/curves_sheet.h"
#include "telemetry/curves/curves_table.h"
#include "telemetry/curves/hand_over.h"
#include "telemetry/curves/span_moves.h"
#include "typing/grid.h"
#include "windows/named_widget.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace vlk {

namespace {

constexpr int kLeastPlot = 60;
constexpr int kReadablePlot = 100;
constexpr int kLowCurves = 300;
constexpr QSize kCurvesSize(640, 240);
constexpr int kStripShare = 3; // of the height, one in

constexpr int kChosen = -1;

CurvesModel::Choice choiceOf(int preset)
{
    return preset < static_cast<int>(builtInPresets().size()) ? CurvesModel::Choice::Offered
                                                              : CurvesModel::Choice::Chosen;
}

} // namespace

CurvesView::CurvesView(ShownRecords* records, QWidget* parent, NoticeBar* bar)
    : QWidget(parent), records_(records), model_(new CurvesModel(records, this)),
      handOver_(new HandOver(this, bar)), presets_(namedWidget<QComboBox>("comboBox_CurvePreset", this)),
      choose_(namedWidget<QPushButton>("pushButton_ChooseCurves", this)),
      cursorA_(namedWidget<QToolButton>("toolButton_CursorA", this)),
      cursorB_(namedWidget<QToolButton>("toolButton_CursorB", this)),
      handOverMenu_(namedWidget<QPushButton>("pushButton_HandOverCurves", this)),
      legend_(new CurveLegend(model_, false, this)), longLegend_(new CurveLegend(model_, true, this)),
      plot_(new CurvesPlot(model_, this)), strip_(new BandsStrip(model_, plot_, this)),
      line_(namedWidget<QLabel>("label_Cursors", this)),
      allStates_(namedWidget<QToolButton>("toolButton_AllStates", this)), chosen_(chosenCurves())
{
    plot_->setObjectName(QStringLiteral("plot_Curves"));
    plot_->setMinimumHeight(kLeastPlot);
    line_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    presets_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    for (QPushButton* const button : {choose_, handOverMenu_})
        button->setAutoDefault(false);
    for (QToolButton* const button : {cursorA_, cursorB_}) {
        button->setCheckable(true);
        button->setFocusPolicy(Qt::TabFocus);
    }
    cursorA_->setText(QStringLiteral("A"));
    cursorB_->setText(QStringLiteral("B"));
    legend_->setObjectName(QStringLiteral("legend_Curves"));
    QSizePolicy kept = legend_->sizePolicy();
    kept.setRetainSizeWhenHidden(true);
    legend_->setSizePolicy(kept);
    auto* const tools = new QHBoxLayout;
    tools->setSpacing(grid::kColumn);
    tools->addWidget(presets_);
    tools->addWidget(choose_);
    tools->addWidget(legend_, 1);
    tools->addWidget(cursorA_);
    tools->addWidget(cursorB_);
    tools->addWidget(handOverMenu_);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(grid::kWindow, 0, grid::kWindow, 0);
    layout->setSpacing(grid::kRow);
    layout->addLayout(tools);
    layout->addWidget(longLegend_);
    layout->addWidget(plot_, 1);
    layout->addWidget(strip_);
    auto* const told = new QHBoxLayout;
    told->setSpacing(grid::kColumn);
    told->addWidget(line_, 1);
    told->addWidget(allStates_);
    layout->addLayout(told);
    allStates_->setCheckable(true);
    allStates_->setAutoRaise(true);
    allStates_->setFocusPolicy(Qt::TabFocus);
    setFocusProxy(plot_);

    connect(presets_, qOverload<int>(&QComboBox::activated), this, [this](int index) {
        showPreset(index);
        keepChosen(index);
    });
    connect(choose_, &QPushButton::clicked, this, &CurvesView::choose);
    connect(allStates_, &QToolButton::toggled, this, &CurvesView::fitStates);
    // A second press takes it away.
    for (const auto& [button, which] : {std::pair(cursorA_, Cursor::A), std::pair(cursorB_, Cursor::B)})
        connect(button, &QToolButton::clicked, this, [this, which = which] {
            if (model_->moving() != which || !model_->endCursor(which))
                model_->setMoving(which);
        });
    connect(model_, &CurvesModel::changed, this, &CurvesView::refresh);
    connect(model_, &CurvesModel::cursorsChanged, this, &CurvesView::refresh);
    connect(records, &ShownRecords::currentChanged, this, &CurvesView::keepInSight);
    connect(records, &ShownRecords::contentsChanged, this, [this] {
        if (!records_->isBeingRead())
            showUseful(kChosen);
    });
    retranslate();
    showUseful(kChosen);
}

CurvesView::~CurvesView() = default;

QSize CurvesView::sizeHint() const
{
    return kCurvesSize;
}

void CurvesView::resizeEvent(QResizeEvent*)
{
    fit();
}

// What the legend takes the states have not.
void CurvesView::fit()
{
    fitLegend();
    fitStates();
}

// Names that have no room beside the buttons stand below them, whole; shortened where that would take the
// room of low curves, beside the buttons or else on one line.
void CurvesView::fitLegend()
{
    const int taken = presets_->sizeHint().width() + choose_->sizeHint().width() +
                      cursorA_->sizeHint().width() + cursorB_->sizeHint().width() +
                      handOverMenu_->sizeHint().width() + 5 * grid::kColumn;
    const bool isLow = height() < kLowCurves;
    const int needed = isLow ? std::min(legend_->leastWidth(), legend_->widthOfAll()) : legend_->widthOfAll();
    const bool hasRoom = needed <= contentsRect().width() - taken - 2 * grid::kWindow;
    legend_->setVisible(hasRoom);
    longLegend_->setHidden(hasRoom);
    longLegend_->setWrapped(!isLow);
}

// Beside curves that can be read.
int CurvesView::roomForStates() const
{
    const int toldHeight = std::max(line_->sizeHint().height(), allStates_->sizeHint().height());
    const int others = presets_->sizeHint().height() + kReadablePlot + toldHeight + 3 * grid::kRow;
    const int legend = longLegend_->isHidden() ? 0 : longLegend_->heightForWidth(width()) + grid::kRow;
    return height() - others - legend;
}

// Low curves have no room for all states: what is missing is told, and comes where the user wants it.
void CurvesView::fitStates()
{
    strip_->setMostHeight(std::min(height() / kStripShare, roomForStates()));
    const QStringList leftOut = strip_->leftOut();
    if (allStates_->isChecked())
        strip_->setMostHeight(QWIDGETSIZE_MAX);
    allStates_->setHidden(leftOut.isEmpty());
    if (leftOut.isEmpty())
        return;
    allStates_->setText(allStates_->isChecked() ? tr("rec_413")
                                                : tr("rec_412").arg(QLocale().toString(leftOut.size())));
    allStates_->setToolTip(leftOut.join(QLatin1String(", ")));
}

void CurvesView::setTitle(const QString& title)
{
    title_ = title;
}

bool CurvesView::endCursorB()
{
    return model_->endCursor(Cursor::B);
}

void CurvesView::retranslate()
{
    presets_->setAccessibleName(tr("rec_180"));
    choose_->setText(tr("rec_181"));
    handOverMenu_->setText(tr("rec_182"));
    cursorA_->setToolTip(tr("rec_183"));
    cursorB_->setToolTip(tr("rec_184"));
    plot_->setAccessibleName(tr("rec_185"));
    plot_->setWhatsThis(tr("rec_186"));
    delete handOverMenu_->menu();
    auto* const menu = new QMenu(handOverMenu_);
    menu->addAction(tr("rec_187"), this, &CurvesView::askPicture);
    menu->addAction(tr("rec_188"), this, &CurvesView::askTable);
    menu->addAction(tr("rec_189"), this, [this] {
        handOver_->print([this](QPainter& painter, const QSize& size) { paintInSight(painter, size); });
    });
    handOverMenu_->setMenu(menu);
    fillPresets();
    model_->retranslate();
    plot_->retranslate();
}

void CurvesView::fillPresets()
{
    const int current = presets_->currentIndex();
    presets_->clear();
    for (const BuiltInPreset& preset : builtInPresets())
        presets_->addItem(tr(preset.title), presetItems(preset.curves) + presetItems(preset.states));
    for (const CurvePreset& preset : keptPresets())
        presets_->addItem(preset.name, preset.items);
    presets_->setPlaceholderText(tr("rec_190"));
    presets_->setCurrentIndex(current < presets_->count() ? current : -1);
}

void CurvesView::showPreset(int index)
{
    model_->show(presets_->itemData(index).toStringList(), choiceOf(index));
}

// What the user chose or, where the records have no curve of it, the first preset of which they have one.
void CurvesView::showUseful(int preset)
{
    const auto builtIn = static_cast<int>(builtInPresets().size());
    const int index = preset == kChosen ? chosenPreset() : preset % builtIn;
    presets_->setCurrentIndex(index);
    if (index < 0)
        model_->showLater(chosen_.items, CurvesModel::Choice::Chosen);
    else
        model_->showLater(presets_->itemData(index).toStringList(), choiceOf(index));
    records_->later([this, preset, index, builtIn] {
        if (model_->curves().empty() && presets_->currentIndex() == index && preset < builtIn)
            showUseful(preset + 1);
    });
}

void CurvesView::keepChosen(int preset)
{
    const auto builtIn = static_cast<int>(builtInPresets().size());
    chosen_ = {};
    if (preset >= builtIn)
        chosen_.name = presets_->itemText(preset);
    else if (preset >= 0)
        chosen_.name = QLatin1String(builtInPresets()[static_cast<std::size_t>(preset)].title);
    else
        chosen_.items = model_->shownNames();
    keepChosenCurves(chosen_);
}

// -1 if it is none.
int CurvesView::chosenPreset() const
{
    const auto builtIn = static_cast<int>(builtInPresets().size());
    int preset = presets_->count() - 1;
    while (preset >= 0 && chosen_.name != (preset < builtIn ? QLatin1String(builtInPresets()[preset].title)
                                                            : presets_->itemText(preset)))
        --preset;
    return preset;
}

void CurvesView::choose()
{
    const bool isOwn = presets_->currentIndex() >= static_cast<int>(builtInPresets().size());
    CurveChoice dialog(model_, isOwn ? presets_->currentText() : QString(), this);
    connect(&dialog, &CurveChoice::chosen, this, [this] {
        presets_->setCurrentIndex(-1);
        keepChosen(-1);
    });
    connect(&dialog, &CurveChoice::presetKept, this, [this](const QString& name) {
        fillPresets();
        // The last one, should it be called as one of those that are always there.
        int index = presets_->count() - 1;
        while (index >= 0 && presets_->itemText(index) != name)
            --index;
        presets_->setCurrentIndex(index);
        keepChosen(index);
    });
    connect(&dialog, &CurveChoice::presetDeleted, this, [this] {
        fillPresets();
        presets_->setCurrentIndex(-1);
        keepChosen(-1);
    });
    dialog.exec();
}

void CurvesView::refresh()
{
    fit();
    line_->setText(model_->cursorLine());
    plot_->setAccessibleDescription(line_->text());
    for (const auto& [button, which] : {std::pair(cursorA_, Cursor::A), std::pair(cursorB_, Cursor::B)}) {
        const bool isMoving = model_->moving() == which && model_->cursor(which) >= 0;
        button->setChecked(isMoving);
        // Dark buttons look alike, pressed or not.
        QFont font = button->font();
        font.setBold(isMoving);
        button->setFont(font);
    }
}

// What the table shows is in sight here too.
void CurvesView::keepInSight(int record)
{
    const quint32 time = records_->columns().times()[record];
    if (time != 0)
        records_->setInSight(holding(records_->inSight(), time, records_->wholeTime()));
}

void CurvesView::paint(QPainter& painter, const QSize& size, const TimeSpan& span) const
{
    paintCurves(painter, size, *model_, span, title_);
}

void CurvesView::paintInSight(QPainter& painter, const QSize& size) const
{
    paint(painter, size, records_->inSight());
}

bool CurvesView::write(QIODevice& device) const
{
    return writeCurves(device, *model_, records_->inSight());
}

void CurvesView::saveTo(const QString& path)
{
    if (path.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive))
        handOver_->saveTable(path, [this](QIODevice& device) { return write(device); });
    else
        handOver_->savePicture(path,
                               [this](QPainter& painter, const QSize& size) { paintInSight(painter, size); });
}

void CurvesView::askPicture()
{
    handOver_->askPicture(QStringLiteral("%1 %2").arg(title_, presets_->currentText()).trimmed(),
                          [this](QPainter& painter, const QSize& size) { paintInSight(painter, size); });
}

void CurvesView::askTable()
{
    handOver_->askTable(QStringLiteral("%1 %2").arg(title_, presets_->currentText()).trimmed(),
                        [this](QIODevice& device) { return write(device); });
}

} // namespace vlk
