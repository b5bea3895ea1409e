#include "dialog/review_panel.h"

#include "base/save_log.h"
#include "base/whole_file.h"
#include "dialog/setting_places.h"
#include "typing/empty_note.h"
#include "typing/table_look.h"
#include "windows/named_widget.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QCoreApplication>
#include <QFileDialog>
#include <QPushButton>
#include <QSaveFile>
#include <QTableView>

#include <algorithm>

namespace vlk {

using Against = ConfigurationReview::Against;

ReviewPanel::ReviewPanel(ConfigurationReview& review, SettingPlaces& places, QWidget* parent)
    : ListPanel("Differences", parent), review_(review), places_(places), model_(review),
      against_(namedWidget<QComboBox>("comboBox_Against", this)),
      takeOver_(namedWidget<QPushButton>("pushButton_TakeOver", this)),
      copy_(namedWidget<QPushButton>("pushButton_CopyDifferences", this)),
      csv_(namedWidget<QPushButton>("pushButton_SaveDifferences", this))
{
    setModel(model_);
    for (int i = 0; i < 3; ++i)
        against_->addItem(QString());
    addToHead({against_, takeOver_, copy_, csv_});
    connect(&review_, &ConfigurationReview::changed, this, [this] {
        if (isVisible())
            refresh();
    });
    connect(&model_, &QAbstractItemModel::modelReset, this, &ReviewPanel::showState);
    connect(&model_, &QAbstractItemModel::dataChanged, this, &ReviewPanel::showState);
    connect(against_, QOverload<int>::of(&QComboBox::activated), this, &ReviewPanel::chooseAgainst);
    connect(takeOver_, &QPushButton::clicked, this, &ReviewPanel::takeOver);
    connect(copy_, &QPushButton::clicked, this,
            [this] { QApplication::clipboard()->setText(tableText(*table())); });
    connect(csv_, &QPushButton::clicked, this, &ReviewPanel::saveCsv);
}

void ReviewPanel::retranslate()
{
    ListPanel::retranslate();
    setTitle(tr("rev_108"), against_);
    int side = 0;
    for (const char* key : {"rev_109", "rev_110", "rev_111"})
        against_->setItemText(side++, tr(key));
    copy_->setText(tr("rev_114"));
    csv_->setText(tr("rev_115"));
    if (isVisible())
        refresh();
    showState();
}

void ReviewPanel::showState()
{
    const bool isFile = review_.against() == Against::file;
    against_->setCurrentIndex(static_cast<int>(review_.against()));
    takeOver_->setText(tr(isFile ? "rev_112" : "rev_113"));
    takeOver_->setEnabled(!model_.chosenKeys().empty());
    for (QPushButton* button : {copy_, csv_})
        button->setEnabled(model_.rowCount() > 0);
    empty()->tell(tr("rev_117"));
    table()->resizeColumnsToContents();
    // A record of many fields would push what stands there now out of sight.
    for (const int column : {DifferenceModel::Caption, DifferenceModel::Before, DifferenceModel::Now})
        table()->setColumnWidth(column, std::min(table()->columnWidth(column), table()->width() * 3 / 10));
}

void ReviewPanel::chooseAgainst(int index)
{
    const auto against = static_cast<Against>(index);
    QString path;
    if (against == Against::otherFile) {
        path = QFileDialog::getOpenFileName(this, tr("rev_111"), {}, tr("rev_118"));
        if (path.isEmpty())
            return showState();
    }
    if (review_.compareWith(against, path))
        return;
    showState();
    empty()->tell(tr("rev_119").arg(path));
}

void ReviewPanel::take(int line)
{
    const review::Difference& difference = model_.at(line);
    if (difference.key >= 0)
        places_.goTo(review::FileKeys::all()[difference.key].table, difference.row);
}

void ReviewPanel::toggle(int line)
{
    const QModelIndex box = model_.index(line, DifferenceModel::Page);
    const bool isChosen = box.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    model_.setData(box, isChosen ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

void ReviewPanel::takeOver()
{
    const bool isFile = review_.against() == Against::file;
    review_.takeOver(model_.chosenKeys(),
                     [isFile] { return QCoreApplication::translate("vlk", isFile ? "rev_120" : "rev_121"); });
}

void ReviewPanel::saveCsv()
{
    const QString path = QFileDialog::getSaveFileName(this, tr("rev_115"), {}, QStringLiteral("CSV (*.csv)"));
    if (path.isEmpty())
        return;
    QSaveFile file(path);
    QString reason;
    // With a mark of the encoding, by which spreadsheets know it.
    if (!saveWhole(file, "\xEF\xBB\xBF" + model_.csv().toUtf8(), &reason))
        qCWarning(lcSave).noquote() << path + QStringLiteral(": ") + reason;
}

} // namespace vlk
