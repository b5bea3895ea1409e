#include "window/recent_files.h"

#include "check/plugin_names.h"
#include "typing/empty_note.h"
#include "typing/title_style.h"
#include "window/short_file_name.h"
#include "window/stored_file.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QStyleOption>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

namespace workbench {

namespace {

constexpr int kPathRole = Qt::UserRole;
constexpr int kWindowRole = Qt::UserRole + 1;

// Takes what room there is, and asks for three lines. Without a frame it outlines the focus itself.
class ShortList : public QListWidget
{
public:
    using QListWidget::QListWidget;

    QSize minimumSizeHint() const override
    {
        return {QListWidget::minimumSizeHint().width(), fontMetrics().height() * 3};
    }
    QSize sizeHint() const override { return minimumSizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QListWidget::paintEvent(event);
        QPainter painter(viewport());
        QStyleOption option;
        option.initFrom(this);
        vlk::outlineFocus(QStyle::PE_Frame, option, painter, this);
    }
};

class NameDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const QWidget* list = option->widget;
        const int margin = list->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, list) + 1;
        option->text = shortFileName(option->text, option->fontMetrics, option->rect.width() - 2 * margin);
    }
};

} // namespace

RecentFiles::RecentFiles(Settings& settings, QWidget* parent)
    : QGroupBox(parent), settings_(settings), list_(new ShortList(this)), menu_(new QMenu(this))
{
    texts_.bind(static_cast<QGroupBox*>(this), "wb_recent");
    texts_.bind(menu_, "wb_recent");
    list_->setObjectName(QStringLiteral("listWidget_Recent"));
    list_->setFrameShape(QFrame::NoFrame);
    list_->setItemDelegate(new NameDelegate(list_));
    menu_->setToolTipsVisible(true);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->setContextMenuPolicy(Qt::CustomContextMenu);
    texts_.bind([this] { list_->setAccessibleName(plainText("wb_recent")); });
    connect(list_, &QListWidget::itemActivated, this, [this](const QListWidgetItem* item) {
        Q_EMIT chosen(item->data(kPathRole).toString(), item->data(kWindowRole).value<TelemetryWindow>());
    });
    connect(list_, &QListWidget::customContextMenuRequested, this, &RecentFiles::offerWindows);

    auto* empty = new EmptyNote(list_);
    texts_.bind([empty] { empty->tell(text("wb_recent_none")); });
    auto* hint = texts_.bind(new QLabel(this), "wb_drop_hint");
    hint->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(list_, 1);
    layout->addWidget(hint);
    refresh();
}

void RecentFiles::add(const QString& path, TelemetryWindow window)
{
    settings_.addRecentFile(path, window);
    refresh();
}

void RecentFiles::remove(const QString& path)
{
    settings_.removeRecentFile(path);
    refresh();
}

void RecentFiles::refresh()
{
    list_->clear();
    menu_->clear();
    for (const RecentFile& file : settings_.recentFiles()) {
        auto* item = new QListWidgetItem(QFileInfo(file.path).fileName(), list_);
        item->setData(kPathRole, file.path);
        item->setData(kWindowRole, QVariant::fromValue(file.window));
        item->setToolTip(QDir::toNativeSeparators(file.path));
        constexpr int widest = 480;
        QString name = shortFileName(item->text(), menu_->fontMetrics(), widest);
        QAction* action = menu_->addAction(name.replace(QLatin1Char('&'), QLatin1String("&&")), this,
                                           [this, file] { Q_EMIT chosen(file.path, file.window); });
        action->setToolTip(item->toolTip());
    }
    menu_->setEnabled(!menu_->isEmpty());
}

void RecentFiles::offerWindows(const QPoint& at)
{
    const QListWidgetItem* item = list_->itemAt(at);
    if (!item)
        return;
    const QString path = item->data(kPathRole).toString();
    if (storedFileKind(path) != StoredFile::Telemetry)
        return;
    QMenu offers;
    for (const auto& [key, window] : {std::pair("wb_browse_short", TelemetryWindow::Browser),
                                      std::pair("wb_table_short", TelemetryWindow::Table)})
        offers.addAction(text(key))->setData(QVariant::fromValue(window));
    if (const QAction* action = offers.exec(list_->viewport()->mapToGlobal(at)))
        Q_EMIT chosen(path, action->data().value<TelemetryWindow>());
}

} // namespace workbench
