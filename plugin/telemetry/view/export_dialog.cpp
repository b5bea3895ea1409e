#include "telemetry/view/export_dialog.h"

#include "base/last_folder.h"
#include "link/device.h"
#include "typing/grid.h"
#include "windows/save_dialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QRadioButton>

namespace vlk {

namespace {

constexpr const char* kWhatTexts[] = {"rec_087", "rec_088", "rec_089"}; // by ExportChoice::What

} // namespace

ExportDialog::ExportDialog(const ExportChoice& choice, const Counts& counts, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowCloseButtonHint), what_(new QButtonGroup(this)),
      form_(new QComboBox(this)), sign_(new QComboBox(this)), columns_(new QCheckBox(tr("rec_098"), this))
{
    setWindowTitle(tr("rec_085"));
    form_->setObjectName(QStringLiteral("comboBox_Form"));
    sign_->setObjectName(QStringLiteral("comboBox_Sign"));
    columns_->setObjectName(QStringLiteral("checkBox_Columns"));
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(vlk::grid::kAroundPage);
    grid->setHorizontalSpacing(vlk::grid::kColumn);
    grid->setVerticalSpacing(vlk::grid::kRow);
    int row = 0;
    const auto addCaption = [&](const char* key, QWidget* field) {
        auto* caption = new QLabel(tr(key), this);
        caption->setBuddy(field);
        grid->addWidget(caption, row, 0);
        if (field)
            grid->addWidget(field, row++, 1);
    };
    addCaption("rec_086", nullptr);
    for (int what = 0; what < static_cast<int>(counts.size()); ++what) {
        auto* box = new QRadioButton(tr(kWhatTexts[what]).arg(QLocale().toString(counts[what])), this);
        box->setObjectName(QStringLiteral("radioButton_What%1").arg(what));
        box->setEnabled(counts[what] > 0);
        box->setChecked(counts[what] > 0 && (what == choice.what || what_->checkedId() < 0));
        what_->addButton(box, what);
        grid->addWidget(box, row++, 1);
    }
    addCaption("rec_090", form_);
    for (const ExportFormRow& form : kExportForms)
        form_->addItem(tr(form.key), static_cast<int>(form.form));
    form_->setCurrentIndex(form_->findData(static_cast<int>(choice.form)));
    addCaption("rec_091", sign_);
    sign_->addItems({tr("rec_092"), tr("rec_093")});
    sign_->setCurrentIndex(choice.decimalComma ? 1 : 0);
    columns_->setChecked(choice.onlyShownColumns);
    grid->addWidget(columns_, row++, 1);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(vlk::grid::kColumn);
    auto* save = new QPushButton(tr("rec_094"), this);
    save->setObjectName(QStringLiteral("pushButton_SaveAs"));
    save->setDefault(true);
    auto* cancel = new QPushButton(tr("wrd_031"), this);
    cancel->setObjectName(QStringLiteral("pushButton_Cancel"));
    buttons->addStretch(1);
    buttons->addWidget(save);
    buttons->addWidget(cancel);
    grid->addLayout(buttons, row, 0, 1, 2);
    connect(save, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(form_, qOverload<int>(&QComboBox::currentIndexChanged), this, &ExportDialog::enableOptions);
    enableOptions();
    // Tab goes from top to bottom, whatever was made first.
    const QWidgetList order{what_->buttons().last(), form_, sign_, columns_, save, cancel};
    for (int place = 1; place < order.size(); ++place)
        setTabOrder(order[place - 1], order[place]);
    what_->checkedButton()->setFocus();
}

// Only tables have columns, and numbers of either sign.
void ExportDialog::enableOptions()
{
    const bool isTable = rowOf(choice().form).hasDecimalSign;
    sign_->setEnabled(isTable);
    columns_->setEnabled(isTable);
}

ExportChoice ExportDialog::choice() const
{
    return {static_cast<ExportChoice::What>(what_->checkedId()),
            static_cast<ExportForm>(form_->currentData().toInt()), sign_->currentIndex() == 1,
            columns_->isChecked()};
}

QString ExportDialog::askPath(ExportForm form, const QString& proposed, QWidget* parent)
{
    const ExportFormRow& row = rowOf(form);
    const QString suffix = QLatin1String(row.suffix);
    const QString folder = lastFolder(FileKind::Records, vlkDevice ? vlkDevice->tmiFolder() : QString());
    SaveDialog dialog(parent, tr("rec_085"), folder, QStringLiteral("%1 (*.%2)").arg(tr(row.key), suffix),
                      suffix);
    dialog.setObjectName(QStringLiteral("fileDialog_Told")); // by the bar: the host need not
    dialog.selectFile(QStringLiteral("%1.%2").arg(proposed, suffix));
    QString path = dialog.ask();
    if (!path.isEmpty())
        rememberFolder(FileKind::Records, path);
    return path;
}

} // namespace vlk
