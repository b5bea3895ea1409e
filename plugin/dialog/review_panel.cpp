#include "dialog/review_panel.h"

#include "base/whole_file.h"
#include "dialog/setting_places.h"
#include "typing/empty_note.h"
#include "typing/line_icon.h"
#include "typing/table_look.h"
#include "windows/named_widget.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QCoreApplication>
#include <QFileDialog>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSaveFile>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

namespace vlk {

namespace {

using Against = ConfigurationReview::Against;

constexpr int kHeight = 200;

} // namespace

ReviewPanel::ReviewPanel(ConfigurationReview& review, SettingPlaces& places, QWidget* parent)
    : QWidget(parent), review_(review), places_(places), model_(review),
      title_(namedWidget<QLabel>("label_Differences", this)),
      against_(namedWidget<QComboBox>("comboBox_Against", this)),
      table_(namedWidget<QTableView>("tableView_Differences", this)),
      takeOver_(namedWidget<QPushButton>("pushButton_TakeOver", this)),
      copy_(namedWidget<QPushButton>("pushButton_CopyDifferences", this)),
      csv_(namedWidget<QPushButton>("pushButton_SaveDifferences", this)),
      close_(namedWidget<QToolButton>("toolButton_ClosePanel", this))
{
    setObjectName(QStringLiteral("widget_Review"));
    table_->setModel(&model_);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    dressTable(table_, TableUse::read);
    table_->horizontalHeader()->setStretchLastSection(true);
    table_->installEventFilter(this);
    empty_ = new EmptyNote(table_);
    for (int i = 0; i < 3; ++i)
        against_->addItem(QString());
    close_->setAutoRaise(true);
    close_->setIcon(lineIcon(LineIcon::cross));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(6);
    layout->addWidget(makeHead());
    layout->addWidget(table_);
    setFixedHeight(kHeight);
    connect(&model_, &QAbstractItemModel::modelReset, this, &ReviewPanel::showState);
    connect(&model_, &QAbstractItemModel::dataChanged, this, &ReviewPanel::showState);
    connect(against_, QOverload<int>::of(&QComboBox::activated), this, &ReviewPanel::chooseAgainst);
    connect(table_, &QTableView::doubleClicked, this, &ReviewPanel::goTo);
    connect(takeOver_, &QPushButton::clicked, this, &ReviewPanel::takeOver);
    connect(copy_, &QPushButton::clicked, this,
            [this] { QApplication::clipboard()->setText(tableText(*table_)); });
    connect(csv_, &QPushButton::clicked, this, &ReviewPanel::saveCsv);
    connect(close_, &QToolButton::clicked, this, &ReviewPanel::closed);
    retranslate();
    hide();
}

QWidget* ReviewPanel::makeHead()
{
    auto* head = new QWidget(this);
    auto* row = new QHBoxLayout(head);
    row->setContentsMargins({});
    row->setSpacing(8);
    for (QWidget* widget : QWidgetList{title_, against_, takeOver_, copy_, csv_})
        row->addWidget(widget);
    row->addStretch();
    row->addWidget(close_);
    for (QPushButton* button : {takeOver_, copy_, csv_})
        button->setAutoDefault(false);
    title_->setBuddy(against_);
    return head;
}

void ReviewPanel::retranslate()
{
    title_->setText(tr("rev_108"));
    const char* sides[] = {"rev_109", "rev_110", "rev_111"};
    for (int i = 0; i < against_->count(); ++i)
        against_->setItemText(i, tr(sides[i]));
    copy_->setText(tr("rev_114"));
    csv_->setText(tr("rev_115"));
    close_->setToolTip(tr("rev_116"));
    close_->setAccessibleName(tr("rev_116"));
    if (isVisible())
        model_.refresh();
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
    empty_->tell(tr("rev_117"));
    table_->resizeColumnsToContents();
}

void ReviewPanel::open()
{
    show();
    model_.refresh();
    table_->setFocus(Qt::ShortcutFocusReason);
    if (!table_->currentIndex().isValid())
        table_->setCurrentIndex(model_.index(0, 0));
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
    if (!review_.compareWith(against, path))
        empty_->tell(tr("rev_119").arg(path));
}

void ReviewPanel::goTo(const QModelIndex& index)
{
    if (!index.isValid())
        return;
    const review::Difference& difference = model_.at(index.row());
    if (difference.key >= 0)
        places_.goTo(review::FileKeys::all()[difference.key].table, difference.row);
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
    // With a mark of the encoding, by which spreadsheets know it.
    saveWhole(file, "\xEF\xBB\xBF" + model_.csv().toUtf8());
}

bool ReviewPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == table_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        const QModelIndex current = table_->currentIndex();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            goTo(current);
            return true;
        }
        if (key == Qt::Key_Space && current.isValid()) {
            const QModelIndex box = current.siblingAtColumn(DifferenceModel::Page);
            const bool isChosen = box.data(Qt::CheckStateRole).toInt() == Qt::Checked;
            model_.setData(box, isChosen ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void ReviewPanel::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        Q_EMIT closed();
        event->accept();
        return;
    }
    QWidget::keyPressEvent(event);
}

} // namespace vlk
