#include "dialog/review_bar.h"

#include "dialog/setting_places.h"
#include "link/device.h"
#include "review/setting_parts.h"
#include "review/setting_words.h"
#include "review/value_text.h"
#include "typing/field_mark.h"
#include "typing/grid.h"
#include "typing/line_icon.h"
#include "windows/named_widget.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QSet>
#include <QShortcut>
#include <QToolButton>

#include <algorithm>

namespace vlk {

namespace {

constexpr int kMostHits = 100;
constexpr int kQuickTable = -1; // of a hit, which is none of review::FileKeys
constexpr int kLinesOnShow = 10;
constexpr QSize kIconSize(20, 16);
const QStringList kUndoKeys{QStringLiteral("Ctrl+Z")};
const QStringList kRedoKeys{QStringLiteral("Ctrl+Shift+Z"), QStringLiteral("Ctrl+Y")};
const QString kDifferencesKey = QStringLiteral("Ctrl+D");
const QString kAdviceKey = QStringLiteral("Ctrl+Shift+D");

// "Track › Reject coordinates › HDOP above:  2.5"; of what is not on show why instead of its value.
QString lineOf(const review::Hit& hit, const Values& values, const QString& whyHidden)
{
    const Setting& setting = values.setting(hit.row);
    const review::SettingWords told = review::wordsOf(values.layout(), hit.row);
    QStringList place{hit.table == kQuickTable ? QString() : told.page, told.group, told.caption};
    if (hit.part >= 0)
        place << review::partCaption(setting, hit.part);
    place.removeAll(QString());
    place.removeDuplicates();
    const QString path = place.join(QStringLiteral(" › "));
    if (!whyHidden.isEmpty())
        return QStringLiteral("%1  (%2)").arg(path, whyHidden);
    const QString value =
        hit.part < 0
            ? valueText(values, hit.row)
            : review::partText(setting, hit.part, review::partOf(setting, hit.part, values.value(hit.row)));
    // A box of a choice says what it chooses.
    return path + QStringLiteral(":  ") + (value == told.caption ? yesNo(true) : value);
}

constexpr const char* kMarkProperty = "mark";
constexpr int kNoMark = -1;

// An icon with the mark in its lower corner. Painted anew only where it is another one, in the colours of the
// window, which has new ones first.
void setMark(QToolButton* button, LineIcon icon, int mark)
{
    if (button->property(kMarkProperty) == mark)
        return;
    button->setProperty(kMarkProperty, mark);
    constexpr int ratio = 2;
    constexpr int gap = 1; // around the mark
    QPixmap pixmap(kIconSize * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    lineIcon(icon).paint(&painter, {0, 0, kIconSize.height(), kIconSize.height()});
    if (mark != kNoMark) {
        const QRect corner(kIconSize.width() - kMarkSize, kIconSize.height() - kMarkSize, kMarkSize,
                           kMarkSize);
        painter.setCompositionMode(QPainter::CompositionMode_Clear);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::black);
        painter.drawEllipse(corner.adjusted(-gap, -gap, gap, gap));
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        painter.translate(corner.topLeft());
        paintMark(painter, static_cast<Mark>(mark), button->window()->palette());
    }
    painter.end();
    button->setIcon(pixmap);
}

} // namespace

ReviewBar::ReviewBar(ConfigurationReview& review, SettingPlaces& places, QWidget* parent)
    : QWidget(parent), review_(review), places_(places),
      undo_(namedWidget<QToolButton>("toolButton_Undo", this)),
      redo_(namedWidget<QToolButton>("toolButton_Redo", this)),
      find_(namedWidget<QLineEdit>("lineEdit_Find", this)),
      changedOnly_(namedWidget<QCheckBox>("checkBox_ChangedOnly", this)),
      differences_(namedWidget<QToolButton>("toolButton_Differences", this)),
      advice_(namedWidget<QToolButton>("toolButton_Advice", this)),
      list_(namedWidget<QListWidget>("listWidget_Found", parent))
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(vlk::grid::kColumn);
    for (QWidget* widget : QWidgetList{undo_, redo_, find_, changedOnly_, differences_, advice_})
        row->addWidget(widget);
    undo_->setIcon(lineIcon(LineIcon::Undo));
    redo_->setIcon(lineIcon(LineIcon::Redo));
    for (QToolButton* button : {undo_, redo_})
        button->setAutoRaise(true);
    for (QToolButton* button : {differences_, advice_}) {
        button->setCheckable(true);
        button->setIconSize(kIconSize);
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    }
    find_->setClearButtonEnabled(true);
    find_->installEventFilter(this);
    list_->setFocusPolicy(Qt::NoFocus);
    list_->setAutoFillBackground(true);
    list_->setUniformItemSizes(true);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->hide();
    connect(undo_, &QToolButton::clicked, &review_.history(), &EditHistory::undo);
    connect(redo_, &QToolButton::clicked, &review_.history(), &EditHistory::redo);
    connect(find_, &QLineEdit::textEdited, this, &ReviewBar::find);
    // The list closes when the focus leaves the field.
    connect(changedOnly_, &QCheckBox::toggled, this, [this] {
        find_->setFocus(Qt::OtherFocusReason);
        find();
    });
    connect(list_, &QListWidget::itemClicked, this, [this] { goTo(list_->currentRow()); });
    connect(differences_, &QToolButton::toggled, this,
            [this](bool on) { Q_EMIT panelRequested(on ? Differences : None); });
    connect(advice_, &QToolButton::toggled, this,
            [this](bool on) { Q_EMIT panelRequested(on ? Advice : None); });
    setMark(advice_, LineIcon::Advice, kNoMark);
    connect(&review_, &ConfigurationReview::changed, this, &ReviewBar::showState);
    connect(new QShortcut(QKeySequence::Find, parent), &QShortcut::activated, this, &ReviewBar::focusFind);
    for (const auto& [button, keys] : {std::pair(undo_, kUndoKeys), std::pair(redo_, kRedoKeys)}) {
        for (const QString& key : keys)
            connect(new QShortcut(QKeySequence(key), parent), &QShortcut::activated, button,
                    &QToolButton::click);
    }
    connect(new QShortcut(QKeySequence(kDifferencesKey), parent), &QShortcut::activated, differences_,
            &QToolButton::toggle);
    connect(new QShortcut(QKeySequence(kAdviceKey), parent), &QShortcut::activated, advice_,
            &QToolButton::toggle);
    retranslate();
}

void ReviewBar::retranslate()
{
    const QString hint =
        QStringLiteral("%1  %2").arg(tr("rev_122"), QKeySequence(QKeySequence::Find).toString());
    find_->setPlaceholderText(hint);
    find_->setAccessibleName(tr("rev_122"));
    changedOnly_->setText(tr("rev_123"));
    search_.reset();
    closeHits();
    showState();
}

void ReviewBar::showState()
{
    const EditHistory& history = review_.history();
    const std::tuple<QToolButton*, const char*, QString, QStringList> steps[] = {
        {undo_, "rev_124", history.undoText(), kUndoKeys}, {redo_, "rev_125", history.redoText(), kRedoKeys}};
    for (const auto& [button, key, step, keys] : steps) {
        const QString text = step.isEmpty() ? tr(key) : QStringLiteral("%1: %2").arg(tr(key), step);
        button->setToolTip(QStringLiteral("%1 (%2)").arg(text, keys.join(QStringLiteral(", "))));
        button->setAccessibleName(text);
        button->setEnabled(!step.isEmpty());
    }
    const int count = review_.edited();
    const int unedited = review_.unedited();
    QString number = QLocale().toString(count);
    if (unedited > 0)
        number += QLatin1Char('+') + QLocale().toString(unedited);
    differences_->setText(number);
    // What nobody has asked for; of quick setup, which always does something, once a write is near.
    const bool isWarned = review_.isQuick() ? unedited > 0 && count > 0 : review_.isLossy();
    setMark(differences_, LineIcon::Differences,
            isWarned    ? static_cast<int>(Mark::Advice)
            : count > 0 ? static_cast<int>(Mark::Changed)
                        : kNoMark);
    const QString told =
        tr(review_.isWritten() ? "rev_257" : "rev_126").arg(QKeySequence(kDifferencesKey).toString());
    differences_->setToolTip(
        unedited > 0 ? told + QLatin1Char('\n') + tr(review_.isQuick() ? "rev_293" : "rev_432") : told);
    differences_->setAccessibleName(QStringLiteral("%1: %2").arg(tr("rev_108"), number));
}

void ReviewBar::addLast(QWidget* widget)
{
    layout()->addWidget(widget);
    setTabOrder(advice_, widget);
}

void ReviewBar::begin()
{
    const QSignalBlocker noSearch(changedOnly_);
    changedOnly_->setChecked(false);
    find_->clear();
    closeHits();
}

void ReviewBar::focusFind()
{
    find_->setFocus(Qt::ShortcutFocusReason);
    find_->selectAll();
}

void ReviewBar::setPanel(Panel panel)
{
    const QSignalBlocker noDifferences(differences_);
    const QSignalBlocker noAdvice(advice_);
    differences_->setChecked(panel == Differences);
    advice_->setChecked(panel == Advice);
}

void ReviewBar::setAdvice(int count, std::optional<Mark> worst)
{
    advice_->setText(QLocale().toString(count));
    setMark(advice_, LineIcon::Advice, worst ? static_cast<int>(*worst) : kNoMark);
    advice_->setToolTip(tr("rev_135").arg(QKeySequence(kAdviceKey).toString()));
    advice_->setAccessibleName(QStringLiteral("%1: %2").arg(tr("rev_131")).arg(count));
}

void ReviewBar::makeSearch()
{
    std::vector<const Values*> tables(review::FileKeys::all().tables());
    for (std::size_t table = 0; table < tables.size(); ++table)
        tables[table] = review_.valuesOf(static_cast<int>(table));
    searchesQuick_ = review_.isQuick();
    if (searchesQuick_)
        tables.push_back(review_.valuesOf(kQuickTable));
    const bool isRussian = QLocale().language() == QLocale::Russian;
    search_ = std::make_unique<review::Search>(tables, vlkDevice ? vlkDevice->textsIn(isRussian ? "en" : "ru")
                                                                 : TextSource());
}

// Quick setup has names and values of its own, and one setting for several of the full one's.
std::vector<review::Hit> ReviewBar::found(const QString& words)
{
    if (!search_ || searchesQuick_ != review_.isQuick())
        makeSearch();
    std::vector<review::Hit> all = search_->find(words);
    if (!searchesQuick_)
        return all;
    std::vector<review::Hit> hits;
    QSet<int> quick;
    for (review::Hit hit : all) {
        if (hit.table == review::FileKeys::all().tables())
            hit.table = kQuickTable;
        hit = places_.onShow(hit);
        if (hit.table == kQuickTable && quick.contains(hit.row))
            continue;
        if (hit.table == kQuickTable)
            quick.insert(hit.row);
        hits.push_back(hit);
    }
    return hits;
}

void ReviewBar::find()
{
    const QString words = find_->text().trimmed();
    if (words.isEmpty() && !changedOnly_->isChecked())
        return closeHits();
    hits_ = found(words);
    if (changedOnly_->isChecked())
        std::erase_if(hits_,
                      [this](const review::Hit& hit) { return !review_.isEdited(hit.table, hit.row); });
    hits_.resize(std::min<std::size_t>(hits_.size(), kMostHits));
    std::erase_if(hits_, [this](const review::Hit& hit) {
        return places_.isShownNowhere(hit.table, hit.row, hit.part);
    });
    // Quick setup has few of them.
    if (review_.isQuick())
        std::stable_partition(hits_.begin(), hits_.end(), [this](const review::Hit& hit) {
            return places_.whyHidden(hit.table, hit.row).isEmpty();
        });
    list_->clear();
    for (const review::Hit& hit : hits_)
        addLine(hit);
    if (hits_.empty())
        list_->addItem(tr("rev_127"));
    list_->setCurrentRow(0);
    const int line = list_->sizeHintForRow(0);
    const QWidget* window = list_->parentWidget();
    const QPoint below = find_->mapTo(window, QPoint(0, find_->height()));
    list_->setGeometry(
        QRect(below, QSize(window->width() - below.x() - 6,
                           line * std::min(list_->count(), kLinesOnShow) + 2 * list_->frameWidth())));
    list_->show();
    list_->raise();
}

// What is not on show is pale.
void ReviewBar::addLine(const review::Hit& hit)
{
    const QString whyHidden = places_.whyHidden(hit.table, hit.row);
    auto* item = new QListWidgetItem(lineOf(hit, *review_.valuesOf(hit.table), whyHidden), list_);
    item->setToolTip(item->text());
    if (!whyHidden.isEmpty())
        item->setForeground(palette().color(QPalette::Disabled, QPalette::Text));
}

void ReviewBar::closeHits()
{
    hits_.clear();
    list_->hide();
}

void ReviewBar::goTo(int line)
{
    if (line < 0 || line >= static_cast<int>(hits_.size()))
        return;
    const review::Hit hit = hits_[line];
    closeHits();
    places_.goTo(hit.table, hit.row, hit.part);
}

// The marks have colours of their own.
void ReviewBar::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::PaletteChange)
        return;
    for (const auto& [button, icon] :
         {std::pair(differences_, LineIcon::Differences), std::pair(advice_, LineIcon::Advice)}) {
        const QVariant mark = button->property(kMarkProperty);
        button->setProperty(kMarkProperty, {});
        setMark(button, icon, mark.isValid() ? mark.toInt() : kNoMark);
    }
}

bool ReviewBar::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == find_ && event->type() == QEvent::FocusOut) {
        const bool isPress = static_cast<QFocusEvent*>(event)->reason() == Qt::MouseFocusReason;
        if (!isPress || !list_->underMouse())
            closeHits();
    }
    if (watched == find_ && event->type() == QEvent::ShortcutOverride) {
        // What has been typed is taken back first.
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool leaves = (key->matches(QKeySequence::Undo) && !find_->isUndoAvailable()) ||
                            (key->matches(QKeySequence::Redo) && !find_->isRedoAvailable());
        if (leaves)
            event->ignore();
        return leaves;
    }
    if (watched != find_ || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        if (list_->isHidden())
            find();
        QCoreApplication::sendEvent(list_, event);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        goTo(list_->currentRow());
        return true;
    case Qt::Key_Escape:
        if (list_->isHidden() && find_->text().isEmpty())
            return QWidget::eventFilter(watched, event);
        find_->clear();
        closeHits();
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

} // namespace vlk
