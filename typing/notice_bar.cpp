#include "typing/notice_bar.h"

#include "typing/area_keys.h"
#include "typing/line_icon.h"
#include "typing/two_line_label.h"

#include <QAccessible>
#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace vlk {

namespace {

constexpr int kHeight = 36;
constexpr int kMargin = 9;
constexpr int kEdge = 2;
constexpr int kRim = 1; // above and below, with a frame if there is one
constexpr int kGap = 8;
constexpr double kTint = 0.12;
constexpr int kNewsMs = 8000;
constexpr int kReactionMs = 300; // a click by then was meant for the notice before

} // namespace

NoticeBar::NoticeBar(QWidget* parent, const QString& name)
    : QFrame(parent), text_(new TwoLineLabel(this)), buttons_(new QHBoxLayout), place_(new QToolButton(this)),
      close_(new QToolButton(this))
{
    setObjectName(QStringLiteral("noticeBar"));
    text_->setObjectName(name);
    place_->setObjectName(QStringLiteral("label_NoticePlace"));
    close_->setObjectName(name + QStringLiteral("_Close"));
    for (QToolButton* button : {place_, close_}) {
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
        button->installEventFilter(this);
    }
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(kMargin + kMarkSize + kGap, kEdge, kEdge, kEdge);
    row->setSpacing(kGap);
    row->addWidget(text_, 1);
    row->addLayout(buttons_);
    row->addWidget(place_);
    row->addWidget(close_);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(place_, &QToolButton::clicked, this, &NoticeBar::showNext);
    connect(close_, &QToolButton::clicked, this, &NoticeBar::closeShown);
    // The window may have the same key for its areas.
    auto* keys = new QShortcut(Qt::Key_F6, this);
    connect(keys, &QShortcut::activated, this, &NoticeBar::toggleFocus);
    connect(keys, &QShortcut::activatedAmbiguously, this, &NoticeBar::toggleFocus);
    news_.setInterval(kNewsMs);
    connect(&news_, &QTimer::timeout, this, &NoticeBar::endNews);
    setCross();
    retranslate();
    hide();
}

void NoticeBar::keepPlace(Place place)
{
    if (std::exchange(kept_, place) == place)
        return;
    const bool keeps = place != Place::None;
    keptHeight_ = place == Place::Lines ? std::max(kHeight, text_->twoLines() + 2 * kRim) : 0;
    text_->setLimited(keeps);
    QSizePolicy policy = sizePolicy();
    policy.setRetainSizeWhenHidden(keeps);
    setSizePolicy(policy);
    setMaximumHeight(QWIDGETSIZE_MAX);
    claimHeight();
    setVisible(isTelling() || roomBelow_ > 0);
}

void NoticeBar::keepToTwoLines()
{
    text_->setLimited(true);
}

// A layout that asks what height goes with a width asks all its widgets, and a scroll area then takes what
// they like to have for what they need.
bool NoticeBar::hasHeightForWidth() const
{
    return kept_ == Place::None && QFrame::hasHeightForWidth();
}

void NoticeBar::claimHeight()
{
    const bool isOnShow = isTelling();
    const bool keepsPlace = kept_ != Place::None;
    const int wanted = property(kRoomBelow).toInt();
    roomBelow_ = keepsPlace ? 0 : wanted;
    text_->setVisible(isOnShow);
    close_->setVisible(isOnShow && shown()->mayClose);
    QMargins margins = layout()->contentsMargins();
    margins.setTop(isOnShow ? std::max(0, kRim - frameWidth()) : 0);
    margins.setBottom(margins.top() + roomBelow_);
    layout()->setContentsMargins(margins);
    if (keepsPlace) {
        // Before it is visible it has no width to measure lines with, and what is laid out at a height that
        // a resize takes back at once stays there, out of sight.
        const bool hasWidth = isOnShow && isVisible();
        const int own =
            std::max(keptHeight_, hasWidth ? std::max(kHeight, layout()->heightForWidth(width())) : 0);
        setProperty(kOwnHeight, own);
        setFixedHeight(kept_ == Place::Lines ? std::max(own, wanted - kRoomMargin) : own);
    } else {
        setMinimumHeight(isOnShow ? kHeight + roomBelow_ : roomBelow_);
    }
    const bool isCovered = keepsPlace && isOnShow && wanted > 0;
    if (std::exchange(isCovered_, isCovered) == isCovered)
        return;
    if (!isCovered && isOnShow)
        replaced_.start();
    Q_EMIT coverChanged();
}

void NoticeBar::setBehind(int count)
{
    if (std::exchange(behind_, count) != count)
        showPlace();
}

void NoticeBar::showPlace()
{
    const int count = static_cast<int>(told_.size()) + behind_;
    const Told* shown = onShow();
    const auto isBefore = [&](const Told& told) { return shown && comesBefore(told, *shown); };
    place_->setText(tr("wrd_401").arg(1 + std::ranges::count_if(told_, isBefore)).arg(count));
    place_->setVisible(shown && count > 1);
    place_->setEnabled(told_.size() > 1);
}

bool NoticeBar::event(QEvent* event)
{
    if (event->type() == QEvent::DynamicPropertyChange &&
        static_cast<QDynamicPropertyChangeEvent*>(event)->propertyName() == kRoomBelow) {
        claimHeight();
        if (!isTelling())
            setVisible(roomBelow_ > 0);
    }
    return QFrame::event(event);
}

void NoticeBar::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    claimHeight();
}

void NoticeBar::showEvent(QShowEvent* event)
{
    QFrame::showEvent(event);
    claimHeight();
}

const Notice* NoticeBar::shown() const
{
    const Told* told = onShow();
    return told ? &told->notice : nullptr;
}

void NoticeBar::showNext()
{
    const Told* shown = onShow();
    const Told* next = nullptr;
    for (const Told& told : told_) {
        if (shown && comesBefore(*shown, told) && (!next || comesBefore(told, *next)))
            next = &told;
    }
    chosen_ = next ? std::optional(next->number) : std::nullopt;
    refresh();
    replaced_.invalidate();
}

void NoticeBar::closeShown()
{
    const Told* told = onShow();
    if (!told)
        return;
    const int number = told->number;
    end(number);
    // The user has seen this one come.
    replaced_.invalidate();
    Q_EMIT closed(number);
}

void NoticeBar::setCross()
{
    close_->setIcon(lineIcon(LineIcon::Cross));
}

void NoticeBar::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        setCross();
}

// Enter presses a button of the bar as Space does. The first click of a double click may have put another
// button, or another notice, under the mouse.
bool NoticeBar::eventFilter(QObject* watched, QEvent* event)
{
    auto* const button = qobject_cast<QAbstractButton*>(watched);
    if (!button || button->parent() != this)
        return QFrame::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress) {
        const auto* const pressed = static_cast<QKeyEvent*>(event);
        const bool isEnter = pressed->key() == Qt::Key_Return || pressed->key() == Qt::Key_Enter;
        if (isEnter && !pressed->isAutoRepeat())
            button->click();
        return isEnter;
    }
    const bool isLate = replaced_.isValid() && !replaced_.hasExpired(kReactionMs);
    return event->type() == QEvent::MouseButtonDblClick ||
           (event->type() == QEvent::MouseButtonPress && isLate);
}

void NoticeBar::put(Told told)
{
    const auto isSame = [&told](const Told& other) { return other.number == told.number; };
    if (std::erase_if(told_, isSame) == 0 || told.notice.mark == Mark::Invalid)
        chosen_.reset();
    told_.push_back(std::move(told));
    refresh();
}

void NoticeBar::tell(int number, const Notice& notice)
{
    put({number, notice, {}, false});
}

void NoticeBar::tell(int number, const std::function<Notice()>& notice)
{
    put({number, notice(), notice, false});
}

void NoticeBar::tellNews(int number, const std::function<Notice()>& notice)
{
    put({number, notice(), notice, true});
    news_.start();
}

void NoticeBar::endNews()
{
    if (underMouse() || isAncestorOf(QApplication::focusWidget()))
        return;
    news_.stop();
    std::erase_if(told_, [](const Told& told) { return told.isNews; });
    refresh();
}

void NoticeBar::tell(const std::function<QString()>& sentence)
{
    if (sentence)
        tell(0, [sentence] { return Notice{Mark::Advice, sentence(), {}}; });
    else
        end(0);
}

void NoticeBar::end(int number)
{
    if (chosen_ == number)
        chosen_.reset();
    if (std::erase_if(told_, [number](const Told& told) { return told.number == number; }) > 0)
        refresh();
}

bool NoticeBar::isOnShow(int number) const
{
    const Told* shown = onShow();
    return shown && !isCovered_ && shown->number == number;
}

void NoticeBar::retranslate()
{
    place_->setToolTip(tr("wrd_403"));
    place_->setAccessibleDescription(tr("wrd_403"));
    close_->setToolTip(tr("wrd_402"));
    close_->setAccessibleName(tr("wrd_402"));
    for (Told& told : told_) {
        if (told.again)
            told.notice = told.again();
    }
    refresh();
}

bool NoticeBar::comesBefore(const Told& a, const Told& b) const
{
    const auto rank = [](const Told& told) {
        return std::pair(told.notice.mark == Mark::Invalid, told.isNews);
    };
    if (rank(a) != rank(b))
        return rank(a) > rank(b);
    if (a.notice.mark != b.notice.mark)
        return a.notice.mark > b.notice.mark;
    return isNewestFirst_ ? &a > &b : a.number < b.number;
}

const NoticeBar::Told* NoticeBar::onShow() const
{
    const auto chosen =
        std::ranges::find_if(told_, [this](const Told& told) { return chosen_ == told.number; });
    if (chosen != told_.end())
        return &*chosen;
    const auto worst =
        std::ranges::min_element(told_, [this](const Told& a, const Told& b) { return comesBefore(a, b); });
    return worst == told_.end() ? nullptr : &*worst;
}

void NoticeBar::refresh()
{
    // A button that is pressed may end its own notice.
    const bool hadFocus = isAncestorOf(QApplication::focusWidget());
    while (QLayoutItem* item = buttons_->takeAt(0)) {
        item->widget()->hide();
        item->widget()->setObjectName({}); // which the next one gets at once
        item->widget()->deleteLater();
        delete item;
    }
    setProperty(kCount, static_cast<int>(told_.size()));
    const Told* shown = onShow();
    if (shown && onShow_ && onShow_ != shown->number)
        replaced_.start();
    onShow_ = shown ? std::optional(shown->number) : std::nullopt;
    if (!shown) {
        if (hadFocus && before_)
            before_->setFocus();
        text_->clear();
        place_->hide();
        claimHeight();
        setVisible(roomBelow_ > 0);
        return;
    }
    QWidget* before = close_; // in the order of Tab
    for (const Notice::Action& action : shown->notice.actions) {
        auto* button = new QPushButton(action.text, this);
        button->setObjectName(
            QStringLiteral("%1_Action%2").arg(text_->objectName()).arg(buttons_->count() + 1));
        button->setAutoDefault(false);
        button->setFocusPolicy(Qt::TabFocus);
        button->installEventFilter(this);
        connect(button, &QPushButton::clicked, this, [act = action.act] { act(); });
        buttons_->addWidget(button);
        setTabOrder(std::exchange(before, button), button);
        button->show();
    }
    // The cross is the last one.
    setTabOrder(before, place_);
    setTabOrder(place_, close_);
    showPlace();
    const bool isNews = text_->text() != shown->notice.text || isHidden();
    text_->setText(shown->notice.text);
    text_->setToolTip(shown->notice.more);
    setAccessibleName(shown->notice.text);
    setAccessibleDescription(shown->notice.more);
    show();
    claimHeight();
    update();
    if (hadFocus)
        close_->setFocus();
    if (isNews) {
        QAccessibleEvent alert(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

void NoticeBar::toggleFocus()
{
    if (AreaKeys* areas = AreaKeys::of(window()))
        areas->go(1);
    else if (!isAncestorOf(QApplication::focusWidget()))
        takeFocus();
    else if (before_)
        before_->setFocus();
}

void NoticeBar::takeFocus()
{
    before_ = QApplication::focusWidget();
    QWidget* first = buttons_->isEmpty() ? close_ : buttons_->itemAt(0)->widget();
    first->setFocus(Qt::ShortcutFocusReason);
}

void NoticeBar::paintEvent(QPaintEvent* /*event*/)
{
    const Told* shown = onShow();
    if (!shown)
        return;
    QPainter painter(this);
    QColor tint = markColor(shown->notice.mark, palette());
    tint.setAlphaF(kTint);
    const QRect own = rect().adjusted(0, 0, 0, -roomBelow_);
    painter.fillRect(own, tint);
    painter.translate(QPoint(kMargin, (own.height() - kMarkSize) / 2));
    paintMark(painter, shown->notice.mark, palette());
}

} // namespace vlk
