#include "telemetry/view/find_bar.h"

#include "telemetry/view/record_finder.h"
#include "typing/grid.h"
#include "typing/line_icon.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace vlk {

namespace {

constexpr int kLineWidth = 240;

} // namespace

FindBar::FindBar(RecordFinder* finder, QWidget* parent)
    : QFrame(parent), finder_(finder), caption_(new QLabel(this)), words_(new QLineEdit(this)),
      back_(new QToolButton(this)), forward_(new QToolButton(this)), close_(new QToolButton(this)),
      told_(new QLabel(this))
{
    words_->setObjectName(QStringLiteral("lineEdit_Find"));
    words_->setMaximumWidth(kLineWidth);
    words_->installEventFilter(this);
    caption_->setBuddy(words_);
    told_->setObjectName(QStringLiteral("label_Find"));
    told_->setTextFormat(Qt::PlainText);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(grid::kAroundWindow);
    row->setSpacing(grid::kColumn);
    row->addWidget(caption_);
    row->addWidget(words_, 1);
    const std::tuple<QToolButton*, const char*, LineIcon, int> steps[] = {
        {back_, "toolButton_FindBack", LineIcon::Up, -1}, {forward_, "toolButton_FindOn", LineIcon::Down, 1}};
    for (const auto& [button, name, icon, step] : steps) {
        button->setObjectName(QLatin1String(name));
        button->setIcon(lineIcon(icon));
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
        connect(button, &QToolButton::clicked, this, [this, step = step] { goOn(step); });
        row->addWidget(button);
    }
    row->addWidget(told_);
    row->addStretch(1);
    close_->setObjectName(QStringLiteral("toolButton_FindClose"));
    close_->setIcon(lineIcon(LineIcon::Cross));
    close_->setAutoRaise(true);
    close_->setFocusPolicy(Qt::TabFocus);
    row->addWidget(close_);
    connect(close_, &QToolButton::clicked, this, &FindBar::close);
    connect(words_, &QLineEdit::textEdited, this, [this] { tell({}); });
    connect(finder, &RecordFinder::found, this, [this](int round) {
        if (round == 0)
            tell({});
        else
            tell([round] { return tr(round > 0 ? "rec_044" : "rec_047"); });
    });
    connect(finder, &RecordFinder::nothingFound, this, [this] { tell([] { return tr("rev_127"); }); });
    connect(finder, &RecordFinder::searching, this, [this](double share) {
        tell([share] { return tr("rec_046").arg(static_cast<int>(share * 100)); });
    });
    retranslate();
    hide();
}

void FindBar::open()
{
    show();
    words_->setFocus(Qt::ShortcutFocusReason);
    words_->selectAll();
}

void FindBar::goOn(int step)
{
    if (words_->text().simplified().isEmpty())
        open();
    else
        finder_->find(words_->text(), step);
}

void FindBar::close()
{
    finder_->stop();
    tell({});
    hide();
    Q_EMIT closed();
}

void FindBar::tell(const std::function<QString()>& sentence)
{
    sentence_ = sentence;
    told_->setText(sentence ? sentence() : QString());
}

void FindBar::retranslate()
{
    caption_->setText(tr("rec_040"));
    const std::pair<QToolButton*, const char*> hints[] = {
        {back_, "rec_041"}, {forward_, "rec_042"}, {close_, "rec_043"}};
    for (const auto& [button, key] : hints) {
        button->setToolTip(tr(key));
        button->setAccessibleName(tr(key));
    }
    tell(sentence_);
}

bool FindBar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QFrame::eventFilter(watched, event);
    const auto* const pressed = static_cast<QKeyEvent*>(event);
    switch (pressed->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        goOn((pressed->modifiers() & Qt::ShiftModifier) != 0 ? -1 : 1);
        return true;
    case Qt::Key_Escape:
        close();
        return true;
    default:
        return false;
    }
}

} // namespace vlk
