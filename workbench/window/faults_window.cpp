#include "window/faults_window.h"

#include "typing/grid.h"
#include "typing/title_style.h"
#include "window/faults_panel.h"
#include "window/scrolling.h"
#include "window/tank_panel.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

namespace workbench {

namespace {

// Of the note at the foot, in a window of one column and of two. Its place is kept: what is told comes and
// goes while the user presses boxes above it.
constexpr int kNoteLines = 5;
constexpr int kNoteLinesOfWide = 3;

} // namespace

FaultsWindow::FaultsWindow(tracker::SimulatedTracker& tracker, QWidget* owner)
    : QDialog(owner, Qt::Tool | Qt::WindowCloseButtonHint), panel_(new FaultsPanel(tracker)),
      tanks_(new TankPanel(tracker)), trouble_(new QLabel(this))
{
    setObjectName(QLatin1String(kName));
    setModal(false);
    texts_.bind(this, "wb_faults_title");
    trouble_->setObjectName(QStringLiteral("label_FaultsTrouble"));
    trouble_->setWordWrap(true);
    trouble_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    QSizePolicy kept(QSizePolicy::Ignored, QSizePolicy::Fixed);
    kept.setRetainSizeWhenHidden(true);
    trouble_->setSizePolicy(kept);
    trouble_->hide();
    vlk::dressGroup(tanks_);
    auto* content = new QWidget;
    auto* inside = new QBoxLayout(QBoxLayout::TopToBottom, content);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->addWidget(panel_);
    inside->addWidget(tanks_);
    // On a low screen the two stand beside each other.
    const auto heightOf = [this](int lines) { return lines * trouble_->fontMetrics().lineSpacing(); };
    trouble_->setFixedHeight(heightOf(kNoteLines));
    const QSize all = content->sizeHint() + QSize(0, trouble_->height());
    if (within(all, screen()->availableSize()).height() < all.height()) {
        trouble_->setFixedHeight(heightOf(kNoteLinesOfWide));
        inside->setDirection(QBoxLayout::LeftToRight);
        inside->setAlignment(tanks_, Qt::AlignTop);
    }
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(vlk::grid::kAroundPage);
    column->addWidget(scrolling(content), 1);
    column->addWidget(trouble_);
    retranslate();
    resizeWithin(this, sizeHint());
}

void FaultsWindow::setTrouble(const QString& text)
{
    trouble_->setText(text);
    trouble_->setToolTip(text);
    trouble_->setVisible(!text.isEmpty());
    // The owner's notice of it has come up over this window.
    if (isVisible())
        raise();
}

void FaultsWindow::retranslate()
{
    texts_.apply();
    panel_->retranslate();
    // Letters with Alt are those of the window below, which this one belongs to.
    const auto buttons = panel_->findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons)
        button->setText(button->text().remove(QLatin1Char('&')));
    const auto labels = panel_->findChildren<QLabel*>();
    for (QLabel* label : labels)
        label->setText(label->text().remove(QLatin1Char('&')));
    // In another language the words may need more.
    ensurePolished();
    resizeWithin(this, sizeHint().expandedTo(size()));
}

void FaultsWindow::comeUp(bool withKeyboard)
{
    setAttribute(Qt::WA_ShowWithoutActivating, !withKeyboard);
    if (!isVisible()) {
        place();
        show();
    }
    if (withKeyboard) {
        raise();
        activateWindow();
    }
}

void FaultsWindow::reject()
{
    QDialog::reject();
    parentWidget()->activateWindow();
}

bool FaultsWindow::fitsBeside(const QWidget& window) const
{
    const QScreen* screen = window.screen();
    return screen && screen->availableGeometry().right() - window.frameGeometry().right() >= width();
}

void FaultsWindow::place()
{
    const QWidget& owner = *parentWidget();
    const QRect room = owner.screen() ? owner.screen()->availableGeometry() : owner.frameGeometry();
    resizeWithin(this, size());
    if (wanted_ && (!makesWay_ || covered(*wanted_) == Covered())) {
        moveWithin(this, *wanted_);
        madeWay_ = pos(); // if the screen has no room there
        return;
    }
    const QPoint beside = owner.frameGeometry().topRight() + QPoint(1, 0);
    moveWithin(this, fitsBeside(owner) ? beside : freeCorner(room));
    madeWay_ = pos();
}

FaultsWindow::State FaultsWindow::state() const
{
    const bool isWhereItWasPut = pos() == madeWay_;
    return {{wanted_ && isWhereItWasPut ? *wanted_ : pos(), size()},
            isChosen_ || !isWhereItWasPut,
            tanks_->tank()};
}

void FaultsWindow::follow(const State& state, bool makesWay)
{
    if (state.place.isValid()) {
        wanted_ = state.place.topLeft();
        resize(state.place.size());
    }
    isChosen_ = state.isChosen;
    makesWay_ = makesWay;
    tanks_->setTank(state.tank);
}

FaultsWindow::Covered FaultsWindow::covered(const QPoint& place) const
{
    const QRect here(place, size());
    const auto buttons = parentWidget()->findChildren<QPushButton*>();
    const auto hidden = std::ranges::count_if(buttons, [&](const QPushButton* button) {
        return button->isVisible() && button->window() == parentWidget() &&
               here.intersects({button->mapToGlobal(QPoint()), button->size()});
    });
    // What a box asks is to be read before it is answered.
    const QRect words = qobject_cast<const QMessageBox*>(parentWidget())
                            ? here.intersected(parentWidget()->frameGeometry())
                            : QRect();
    return {hidden, words.width() * words.height()};
}

QPoint FaultsWindow::freeCorner(const QRect& room) const
{
    const int right = room.right() + 1 - width();
    const int bottom = room.bottom() + 1 - height();
    const QPoint corners[] = {{right, bottom}, {room.left(), bottom}, {right, room.top()}, room.topLeft()};
    return *std::ranges::min_element(corners, {}, [this](const QPoint& corner) { return covered(corner); });
}

} // namespace workbench
