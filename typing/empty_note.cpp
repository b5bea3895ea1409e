#include "typing/empty_note.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QGraphicsOpacityEffect>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QTreeView>
#include <QVBoxLayout>

namespace vlk {

namespace {

constexpr double kPale = 0.6;

bool hasShownRow(const QAbstractItemView& view)
{
    const int rows = view.model()->rowCount();
    const auto* table = qobject_cast<const QTableView*>(&view);
    const auto* tree = qobject_cast<const QTreeView*>(&view);
    for (int row = 0; row < rows; ++row) {
        const bool isHidden =
            table ? table->isRowHidden(row) : tree && tree->isRowHidden(row, tree->rootIndex());
        if (!isHidden)
            return true;
    }
    return false;
}

} // namespace

EmptyNote::EmptyNote(QAbstractItemView* view)
    : QWidget(view->viewport()), view_(view), sentence_(new QLabel(this)), button_(new QPushButton(this))
{
    sentence_->setObjectName(QStringLiteral("label_Empty"));
    sentence_->setAlignment(Qt::AlignCenter);
    sentence_->setWordWrap(true);
    sentence_->setTextFormat(Qt::PlainText);
    // Grey in whatever colours the window has.
    auto* pale = new QGraphicsOpacityEffect(sentence_);
    pale->setOpacity(kPale);
    sentence_->setGraphicsEffect(pale);
    button_->setObjectName(QStringLiteral("pushButton_Empty"));
    button_->setAutoDefault(false);
    button_->hide();
    auto* column = new QVBoxLayout(this);
    column->addStretch();
    column->addWidget(sentence_);
    column->addWidget(button_, 0, Qt::AlignHCenter);
    column->addStretch();
    connect(button_, &QPushButton::clicked, this, &EmptyNote::pressed);
    const QAbstractItemModel* model = view->model();
    connect(model, &QAbstractItemModel::rowsInserted, this, &EmptyNote::refresh);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &EmptyNote::refresh);
    connect(model, &QAbstractItemModel::modelReset, this, &EmptyNote::refresh);
    view->viewport()->installEventFilter(this);
    refresh();
}

void EmptyNote::tell(const QString& sentence, const QString& button)
{
    sentence_->setText(sentence);
    button_->setText(button);
    button_->setHidden(button.isEmpty());
}

void EmptyNote::refresh()
{
    setGeometry(view_->viewport()->rect());
    setHidden(hasShownRow(*view_));
}

bool EmptyNote::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        setGeometry(view_->viewport()->rect());
    return QWidget::eventFilter(watched, event);
}

} // namespace vlk
