#include "telemetry/curves/curve_choice.h"

#include "telemetry/curves/curve_presets.h"
#include "telemetry/curves/curves_model.h"
#include "typing/grid.h"
#include "windows/fit_to_screen.h"
#include "windows/named_widget.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace vlk {

namespace {

constexpr int kNameOfColumn = Qt::UserRole;
constexpr QSize kChoiceSize(420, 460);

} // namespace

CurveChoice::CurveChoice(CurvesModel* model, const QString& preset, QWidget* parent)
    : QDialog(parent), model_(model), preset_(preset),
      find_(namedWidget<QLineEdit>("lineEdit_FindCurve", this)),
      list_(namedWidget<QListWidget>("listWidget_Curves", this)),
      note_(namedWidget<QLabel>("label_CurveChoice", this)),
      name_(namedWidget<QLineEdit>("lineEdit_PresetName", this)),
      keep_(namedWidget<QPushButton>("pushButton_KeepPreset", this)),
      delete_(namedWidget<QPushButton>("pushButton_DeletePreset", this))
{
    setObjectName(QStringLiteral("dialog_CurveChoice"));
    setWindowTitle(tr("rec_173"));
    find_->setPlaceholderText(tr("rec_174"));
    find_->setAccessibleName(tr("rec_174"));
    find_->setClearButtonEnabled(true);
    list_->setAccessibleName(tr("rec_173"));
    note_->setWordWrap(true);
    note_->setText(
        tr("rec_175").arg(CurvesModel::kMostCurves).arg(CurvesModel::kMostAxes).arg(CurvesModel::kMostBands));
    name_->setText(preset);
    name_->setPlaceholderText(tr("rec_176"));
    name_->setAccessibleName(tr("rec_176"));
    keep_->setText(tr("rec_177"));
    delete_->setText(tr("rec_178"));
    auto* const close = namedWidget<QPushButton>("pushButton_CloseCurveChoice", this);
    close->setText(tr("rec_179"));
    for (QPushButton* const button : {keep_, delete_, close})
        button->setAutoDefault(false);
    auto* const presetRow = new QHBoxLayout;
    presetRow->setSpacing(vlk::grid::kColumn);
    for (QWidget* const widget : QWidgetList{name_, keep_, delete_})
        presetRow->addWidget(widget);
    auto* const buttons = new QHBoxLayout;
    buttons->setSpacing(vlk::grid::kColumn);
    buttons->addStretch();
    buttons->addWidget(close);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(find_);
    layout->addWidget(list_, 1);
    layout->addWidget(note_);
    layout->addLayout(presetRow);
    layout->addLayout(buttons);
    resize(kChoiceSize);
    keepOnScreen(this);
    fill();
    connect(find_, &QLineEdit::textChanged, this, &CurveChoice::narrow);
    connect(list_, &QListWidget::itemChanged, this, &CurveChoice::tick);
    connect(name_, &QLineEdit::textChanged, this, &CurveChoice::refreshButtons);
    connect(keep_, &QPushButton::clicked, this, &CurveChoice::keep);
    connect(name_, &QLineEdit::returnPressed, keep_, &QPushButton::click);
    connect(delete_, &QPushButton::clicked, this, &CurveChoice::remove);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    refreshButtons();
}

// The first one ends the typing of a name, the next one the dialog.
void CurveChoice::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape || focusWidget() != name_)
        return QDialog::keyPressEvent(event);
    name_->setText(preset_);
    list_->setFocus();
}

void CurveChoice::fill()
{
    const QSignalBlocker noTicks(list_);
    const QStringList shown = model_->shownNames();
    const auto add = [&](const CurveColumn& column) {
        auto* const item = new QListWidgetItem(withUnit(column), list_);
        item->setData(kNameOfColumn, column.name);
        item->setCheckState(shown.contains(column.name) ? Qt::Checked : Qt::Unchecked);
    };
    for (const CurveColumn& column : curveColumns(model_->records()))
        add(column);
    for (const CurveColumn& column : stateColumns(model_->records()))
        add(column);
    if (list_->count() > 0)
        list_->setCurrentRow(0);
}

// What there is no room for loses its tick again, and the sentence below says why.
void CurveChoice::tick(QListWidgetItem* item)
{
    QStringList names = model_->shownNames();
    const QString name = item->data(kNameOfColumn).toString();
    if (item->checkState() == Qt::Checked)
        names << name;
    else
        names.removeAll(name);
    model_->show(names, CurvesModel::Choice::Chosen);
    const bool isShown = model_->shownNames().contains(name);
    QFont font = note_->font();
    font.setBold(item->checkState() == Qt::Checked && !isShown);
    note_->setFont(font);
    const QSignalBlocker noTicks(list_);
    item->setCheckState(isShown ? Qt::Checked : Qt::Unchecked);
    Q_EMIT chosen();
}

void CurveChoice::narrow(const QString& words)
{
    const QStringList all = words.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (int row = 0; row < list_->count(); ++row) {
        QListWidgetItem* const item = list_->item(row);
        const QString text = item->text() + QLatin1Char(' ') + item->data(kNameOfColumn).toString();
        item->setHidden(!std::ranges::all_of(
            all, [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); }));
    }
    // A key must not act on a row that nobody sees.
    int row = std::max(list_->currentRow(), 0);
    if (row < list_->count() && list_->item(row)->isHidden())
        row = 0;
    while (row < list_->count() && list_->item(row)->isHidden())
        ++row;
    list_->setCurrentRow(row < list_->count() ? row : -1);
}

void CurveChoice::refreshButtons()
{
    const QString name = name_->text().trimmed();
    const std::vector<CurvePreset> kept = keptPresets();
    keep_->setEnabled(!name.isEmpty());
    delete_->setEnabled(std::ranges::find(kept, name, &CurvePreset::name) != kept.end());
}

void CurveChoice::keep()
{
    const QString name = name_->text().trimmed();
    std::vector<CurvePreset> kept = keptPresets();
    std::erase_if(kept, [&](const CurvePreset& preset) { return preset.name == name; });
    kept.push_back({name, model_->shownNames()});
    keepPresets(kept);
    preset_ = name;
    refreshButtons();
    Q_EMIT presetKept(name);
}

void CurveChoice::remove()
{
    const QString name = name_->text().trimmed();
    std::vector<CurvePreset> kept = keptPresets();
    std::erase_if(kept, [&](const CurvePreset& preset) { return preset.name == name; });
    keepPresets(kept);
    preset_.clear();
    refreshButtons();
    Q_EMIT presetDeleted(name);
}

} // namespace vlk
