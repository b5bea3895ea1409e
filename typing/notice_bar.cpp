#include "typing/notice_bar.h"

#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QToolButton>

namespace vlk {

namespace {

constexpr int kMarkSize = 16;
constexpr qreal kTint = 0.12;

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < 128;
}

QColor adviceColor(const QPalette& palette)
{
    return isDark(palette) ? QColor(0xff, 0xbd, 0x59) : QColor(0x8a, 0x53, 0x00);
}

QColor tinted(const QColor& window, const QColor& mark)
{
    const auto mix = [](qreal under, qreal over) { return under + (over - under) * kTint; };
    return QColor::fromRgbF(mix(window.redF(), mark.redF()), mix(window.greenF(), mark.greenF()),
                            mix(window.blueF(), mark.blueF()));
}

// A filled triangle with an exclamation mark in the colour of what is behind it.
QPixmap adviceMark(const QColor& color, const QColor& behind, qreal ratio)
{
    QPixmap pixmap(QSize(kMarkSize, kMarkSize) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(color);
    painter.drawPolygon(QPolygonF({{8, 2}, {15, 14}, {1, 14}}));
    painter.setPen(QPen(behind, 2, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(8, 6), QPointF(8, 9));
    painter.drawPoint(QPointF(8, 12.5));
    return pixmap;
}

} // namespace

NoticeBar::NoticeBar(const QString& name, QWidget* parent)
    : QFrame(parent), mark_(new QLabel(this)), text_(new QLabel(this)), close_(new QToolButton(this))
{
    text_->setObjectName(name);
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    close_->setObjectName(name + QStringLiteral("_Close"));
    close_->setAutoRaise(true);
    close_->setFocusPolicy(Qt::TabFocus);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 6, 6, 6);
    row->setSpacing(8);
    row->addWidget(mark_);
    row->addWidget(text_, 1);
    row->addWidget(close_);
    setAutoFillBackground(true);
    connect(close_, &QToolButton::clicked, this, [this] {
        clear();
        Q_EMIT dismissed();
    });
    setColors();
    hide();
}

void NoticeBar::tell(const std::function<QString()>& sentence)
{
    if (!sentence) {
        clear();
        return;
    }
    sentence_ = sentence;
    retranslate();
    show();
}

void NoticeBar::clear()
{
    sentence_ = {};
    text_->clear();
    hide();
}

void NoticeBar::retranslate()
{
    const QString close = QCoreApplication::translate("vlk", "wrd_054").remove(QLatin1Char('&'));
    close_->setToolTip(close);
    close_->setAccessibleName(close);
    if (sentence_)
        text_->setText(sentence_());
}

void NoticeBar::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    // Its own colours come to it as an event too, without a change of what they are made of.
    if (event->type() == QEvent::ApplicationPaletteChange)
        setColors();
}

void NoticeBar::setColors()
{
    const QPalette usual = QApplication::palette();
    const QColor mark = adviceColor(usual);
    QPalette own = usual;
    own.setColor(QPalette::Window, tinted(usual.color(QPalette::Window), mark));
    setPalette(own);
    mark_->setPixmap(adviceMark(mark, own.color(QPalette::Window), devicePixelRatioF()));
    close_->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
}

} // namespace vlk
