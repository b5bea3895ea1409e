#include "absent/forms/param_choice_dialog.h"

#include "typing/grid.h"
#include "windows/fit_to_screen.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace vlk {

namespace {

QStandardItem* plainItem(const QString& text)
{
    auto* item = new QStandardItem(text);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    return item;
}

} // namespace

ParamChoiceDialog::ParamChoiceDialog(const QString& title, const QList<ParamChoice>& choices, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowCloseButtonHint), choices_(choices),
      model_(new QStandardItemModel(this)), shown_(new QSortFilterProxyModel(this)), filter_(new QLineEdit),
      list_(new QTreeView), state_(new QLabel)
{
    setWindowTitle(QString(title).remove(QChar(0x2026)));
    filter_->setObjectName(QStringLiteral("lineEdit_Filter"));
    filter_->setPlaceholderText(tr("cfgt5_013"));
    filter_->setAccessibleName(tr("cfgt5_013"));
    filter_->setClearButtonEnabled(true);
    list_->setObjectName(QStringLiteral("treeView_Params"));
    list_->setAccessibleName(windowTitle());
    state_->setObjectName(QStringLiteral("label_State"));
    state_->setWordWrap(true);

    auto* buttons = new QDialogButtonBox;
    buttons->addButton(tr("wrd_026"), QDialogButtonBox::AcceptRole)
        ->setObjectName(QStringLiteral("pushButton_Apply"));
    buttons->addButton(tr("wrd_031"), QDialogButtonBox::RejectRole)
        ->setObjectName(QStringLiteral("pushButton_Cancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* bottom = new QHBoxLayout;
    bottom->setSpacing(vlk::grid::kColumn);
    bottom->addWidget(state_, 1);
    bottom->addWidget(buttons);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(filter_);
    layout->addWidget(list_);
    layout->addLayout(bottom);

    fill();
    shown_->setSourceModel(model_);
    shown_->setFilterCaseSensitivity(Qt::CaseInsensitive);
    shown_->setRecursiveFilteringEnabled(true);
    list_->setModel(shown_);
    list_->setUniformRowHeights(true);
    list_->setRootIsDecorated(!choices.isEmpty() && !choices.first().group.isEmpty());
    list_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    list_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    list_->header()->setStretchLastSection(false);
    connect(filter_, &QLineEdit::textChanged, this, &ParamChoiceDialog::filter);
    connect(model_, &QStandardItemModel::itemChanged, this, &ParamChoiceDialog::tellState);
    filter({});
    resize(640, 520);
    keepOnScreen(this);
}

// Headings hold choices, choices hold their bits.
void ParamChoiceDialog::fill()
{
    model_->setHorizontalHeaderLabels({tr("cfgt5_014"), tr("cfgt5_015")});
    QStandardItem* parent = model_->invisibleRootItem();
    for (const ParamChoice& choice : choices_) {
        if (!choice.group.isEmpty() &&
            (parent == model_->invisibleRootItem() || parent->text() != choice.group)) {
            parent = plainItem(choice.group);
            model_->appendRow({parent, plainItem({})});
        }
        QStandardItem* item = plainItem(choice.param.name);
        QStandardItem* type = plainItem(choice.param.third);
        if (choice.param.bytes > 0) {
            item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
            item->setCheckState(choice.onOffer ? Qt::Checked : Qt::Unchecked);
        } else {
            item->setEnabled(false);
            item->setToolTip(tr("cfgt5_017"));
            type->setEnabled(false);
        }
        for (const QString& bit : choice.bits)
            item->appendRow({plainItem(bit), plainItem({})});
        parent->appendRow({item, type});
        items_ << item;
    }
}

void ParamChoiceDialog::filter(const QString& text)
{
    shown_->setFilterFixedString(text.trimmed());
    // A bit that matches is in sight; without a filter the bits are folded away.
    if (text.trimmed().isEmpty()) {
        list_->collapseAll();
        list_->expandToDepth(0);
    } else {
        list_->expandAll();
    }
    tellState();
}

// Enter goes from the filter on to the list and is no answer yet; on a button it presses that.
void ParamChoiceDialog::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter)
        list_->setFocus();
    else
        QDialog::keyPressEvent(event);
}

int ParamChoiceDialog::checkedCount() const
{
    return static_cast<int>(std::ranges::count_if(
        items_, [](const QStandardItem* item) { return item->checkState() == Qt::Checked; }));
}

void ParamChoiceDialog::tellState()
{
    if (choices_.isEmpty())
        state_->setText(tr("cfgt5_018"));
    else if (shown_->rowCount() == 0)
        state_->setText(tr("cfgt5_019"));
    else
        state_->setText(tr("cfgt5_016").arg(checkedCount()));
}

void ParamChoiceDialog::accept()
{
    for (int i = 0; i < items_.size(); ++i) {
        const bool checked = items_[i]->checkState() == Qt::Checked;
        const UserParam& param = choices_[i].param;
        if (checked == choices_[i].onOffer)
            continue;
        if (checked)
            Q_EMIT signal_UserParam_Add(param.code, param.name, param.third, param.bytes);
        else
            Q_EMIT signal_UserParam_Del(param.code, param.name, param.third, param.bytes);
    }
    QDialog::accept();
}

} // namespace vlk
