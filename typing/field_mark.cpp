#include "typing/field_mark.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStringList>
#include <QVariant>

#include <algorithm>
#include <map>
#include <optional>

namespace vlk {

namespace {

constexpr int kMarkGap = 3; // between the shape and the caption
constexpr int kRatio = 2;   // of icons, which look well on any screen then
constexpr const char* kPropertyName = "fieldMark";

// The frame round an invalid field. It covers that of the style, and so tells too which field has the focus.
class Outline : public QWidget
{
public:
    explicit Outline(QWidget* field) : QWidget(field)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        follow();
    }
    void follow()
    {
        setGeometry(parentWidget()->rect());
        raise();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(markColor(Mark::Invalid, palette()), 2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 2, 2);
        if (!parentWidget()->hasFocus())
            return;
        painter.setPen(markColor(Mark::Changed, palette()));
        painter.drawRect(QRectF(rect()).adjusted(2.5, 2.5, -2.5, -2.5));
    }
};

// The shape beside the caption, and what the field is marked for.
class FieldMark : public QWidget
{
public:
    explicit FieldMark(QWidget* field)
        : QWidget(field->parentWidget()), field_(field), ownToolTip_(field->toolTip()),
          ownDescription_(field->accessibleDescription())
    {
        setObjectName(QStringLiteral("mark_") + field->objectName());
        resize(kMarkSize, kMarkSize);
        // The field may stand in a frame of its own.
        for (QWidget* form = field->parentWidget(); form && !caption_; form = form->parentWidget()) {
            const auto labels = form->findChildren<QLabel*>();
            const auto caption = std::ranges::find_if(
                labels, [field](const QLabel* label) { return label->buddy() == field; });
            if (caption != labels.end())
                caption_ = *caption;
            if (form->layout() && form->layout()->count() > 1)
                break;
        }
        field->installEventFilter(this);
        if (caption_)
            caption_->installEventFilter(this);
        connect(field, &QObject::destroyed, this, &QObject::deleteLater);
    }

    void set(MarkReason reason, Mark mark, const QString& text)
    {
        if (text.isEmpty())
            reasons_.erase(reason);
        else
            reasons_[reason] = {mark, text};
        tell();
    }

    void setTyping(bool isTyping)
    {
        isTyping_ = isTyping;
        tell();
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::Show:
        case QEvent::Hide:
        case QEvent::ZOrderChange:
            place();
            break;
        case QEvent::FocusIn:
        case QEvent::FocusOut:
            if (outline_)
                outline_->update();
            break;
        case QEvent::ToolTipChange:
            if (watched == field_ && !isTelling_) {
                ownToolTip_ = field_->toolTip();
                tell();
            }
            break;
        default:
            break;
        }
        return QWidget::eventFilter(watched, event);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        paintMark(painter, worst(), palette());
    }
    // Its menu is that of the field; what is around it has one of its own.
    void mousePressEvent(QMouseEvent* event) override
    {
        event->setAccepted(event->button() == Qt::RightButton);
    }
    void contextMenuEvent(QContextMenuEvent* event) override
    {
        QContextMenuEvent ofField(event->reason(), field_->rect().center(), event->globalPos(),
                                  event->modifiers());
        QCoreApplication::sendEvent(field_, &ofField);
        event->setAccepted(ofField.isAccepted());
    }

private:
    struct Told
    {
        Mark mark;
        QString text;
    };

    // The reasons that hold now.
    std::map<MarkReason, Told> shown() const
    {
        std::map<MarkReason, Told> shown = reasons_;
        if (isTyping_) {
            shown.erase(MarkReason::Value);
            shown.erase(MarkReason::Advice);
        }
        return shown;
    }

    Mark worst() const
    {
        Mark worst = Mark::Changed;
        for (const auto& [reason, told] : shown())
            worst = std::max(worst, told.mark);
        return worst;
    }

    void tell()
    {
        QStringList texts;
        for (const auto& [reason, told] : shown())
            texts << told.text;
        const QString text = texts.join(QLatin1Char('\n'));
        setToolTip(text);
        field_->setAccessibleDescription(text.isEmpty() ? ownDescription_ : text);
        if (!text.isEmpty() && !ownToolTip_.isEmpty())
            texts << ownToolTip_;
        isTelling_ = true;
        field_->setToolTip(text.isEmpty() ? ownToolTip_ : texts.join(QLatin1Char('\n')));
        isTelling_ = false;
        place();
        update();
    }

    // Where the shape stands, and in which of the widgets around the field.
    struct Spot
    {
        QWidget* host;
        QPoint corner;
    };

    // Left of the caption, or of a box that owns its words, else between the caption and its field, else in
    // the field's corner.
    Spot spot() const
    {
        QWidget* form = field_->parentWidget();
        while (caption_ && !form->isAncestorOf(caption_) && !form->isWindow())
            form = form->parentWidget();
        const QRect field(field_->mapTo(form, QPoint(0, 0)), field_->size());
        if (caption_ && !caption_->isHidden()) {
            const QRect caption(caption_->mapTo(form, QPoint(0, 0)), caption_->size());
            if (const auto before = leftOf(caption, form))
                return *before;
            const int words = caption.left() + std::min(caption.width(), caption_->sizeHint().width());
            const QPoint between(field.left() - kMarkSize - kMarkGap, caption.center().y() - kMarkSize / 2);
            if (between.x() >= words && isFree(*form, between, nullptr))
                return {form, between};
        } else if (qobject_cast<QAbstractButton*>(field_)) {
            if (const auto before = leftOf(field, form))
                return *before;
        }
        // Over the corner rather than in it, where it would hide what the field holds.
        return {form, {std::max(0, field.left() - kMarkSize / 2), std::max(0, field.top() - kMarkSize / 2)}};
    }

    // A spot beside a part of the form; where that begins at its edge, in the margin of what is around it.
    std::optional<Spot> leftOf(const QRect& part, QWidget* form) const
    {
        QPoint corner(part.left() - kMarkSize - kMarkGap, part.center().y() - kMarkSize / 2);
        const QWidget* inner = nullptr;
        for (QWidget* host = form;; host = host->parentWidget()) {
            // A margin may be as narrow as the shape.
            const QPoint close(std::max(corner.x(), std::min(corner.x() + kMarkGap, 0)), corner.y());
            if (close.x() >= -1)
                return isFree(*host, close, inner) ? std::optional(Spot{host, close}) : std::nullopt;
            const QWidget* outer = host->parentWidget();
            if (host->isWindow() || qobject_cast<const QAbstractScrollArea*>(outer->parentWidget()))
                return std::nullopt;
            corner = host->mapToParent(corner);
            inner = host;
        }
    }

    // `inner`: the part of the host that holds the field.
    bool isFree(const QWidget& host, QPoint corner, const QWidget* inner) const
    {
        const QRect shape(corner, size());
        const auto siblings = host.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        return host.rect().adjusted(-1, 0, 0, 0).contains(shape) &&
               std::ranges::none_of(siblings, [&](const QWidget* other) {
                   return other != this && other != caption_ && other != inner && !other->isHidden() &&
                          other->geometry().intersects(shape);
               });
    }

    void place()
    {
        bool isShown = !shown().empty();
        if (isShown) {
            const auto [host, corner] = spot();
            if (host != parentWidget())
                setParent(host);
            // The field moves with what stands around it, and so does the mark.
            for (QWidget* inner = field_->parentWidget(); inner != host; inner = inner->parentWidget())
                inner->installEventFilter(this);
            move(corner);
            isShown = field_->isVisibleTo(host);
        }
        setVisible(isShown);
        raise();
        const bool isOutlined = isShown && worst() == Mark::Invalid;
        if (isOutlined && !outline_)
            outline_ = new Outline(field_);
        if (outline_) {
            outline_->setVisible(isOutlined);
            outline_->follow();
        }
    }

    QWidget* field_;
    QPointer<QLabel> caption_;
    QString ownToolTip_;
    const QString ownDescription_;
    bool isTelling_ = false;
    bool isTyping_ = false;
    Outline* outline_ = nullptr;
    std::map<MarkReason, Told> reasons_;
};

} // namespace

QColor markColor(Mark mark, const QPalette& palette)
{
    const bool isDark = palette.color(QPalette::Window).lightness() < 128;
    switch (mark) {
    case Mark::Right:
        return QColor(isDark ? 0x7fd491 : 0x1b6e33);
    case Mark::Changed:
        return QColor(isDark ? 0x7ab8f5 : 0x1f5f9e);
    case Mark::Advice:
        return QColor(isDark ? 0xffbd59 : 0x8a5300);
    case Mark::Invalid:
        break;
    }
    return QColor(isDark ? 0xff9d94 : 0xb3261e);
}

QPalette withInvalidText(QPalette palette)
{
    palette.setColor(QPalette::WindowText, markColor(Mark::Invalid, palette));
    return palette;
}

void paintMark(QPainter& painter, Mark mark, const QPalette& palette)
{
    painter.setRenderHint(QPainter::Antialiasing);
    if (mark == Mark::Right) {
        painter.setPen(QPen(markColor(mark, palette), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(Qt::NoBrush);
        painter.drawPolyline(QPolygonF({{1.2, 5.4}, {4, 8.2}, {8.8, 2}}));
        return;
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(markColor(mark, palette));
    const QColor& inside = palette.color(QPalette::Window);
    if (mark == Mark::Advice) {
        painter.drawPolygon(QPolygonF({{5, 0}, {10, 10}, {0, 10}}));
        painter.setPen(QPen(inside, 1.4, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(5, 3.6), QPointF(5, 6.2));
        painter.drawPoint(QPointF(5, 8.4));
        return;
    }
    painter.drawEllipse(QRectF(0, 0, kMarkSize, kMarkSize));
    if (mark == Mark::Changed)
        return;
    painter.setPen(QPen(inside, 1.6, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(3.2, 3.2), QPointF(6.8, 6.8));
    painter.drawLine(QPointF(6.8, 3.2), QPointF(3.2, 6.8));
}

QPixmap markPixmap(Mark mark, const QPalette& palette, int side, qreal ratio)
{
    QPixmap pixmap(QSize(side, side) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.scale(static_cast<qreal>(side) / kMarkSize, static_cast<qreal>(side) / kMarkSize);
    paintMark(painter, mark, palette);
    return pixmap;
}

QIcon markIcon(Mark mark, const QPalette& palette)
{
    QPalette selected = palette;
    selected.setColor(QPalette::Window, palette.color(QPalette::Highlight));
    QIcon icon(markPixmap(mark, palette, kMarkSize, kRatio));
    icon.addPixmap(markPixmap(mark, selected, kMarkSize, kRatio), QIcon::Selected);
    return icon;
}

QIcon tabMark(std::optional<Mark> mark, const QPalette& palette)
{
    if (mark)
        return QIcon(markPixmap(*mark, palette, kMarkSize, kRatio));
    QPixmap none(kRatio * QSize(kMarkSize, kMarkSize));
    none.fill(Qt::transparent);
    return QIcon(none);
}

namespace {
// Null where it has none.
FieldMark* fieldMarkOf(const QWidget* field)
{
    return static_cast<FieldMark*>(field->property(kPropertyName).value<QWidget*>());
}
} // namespace

void markField(QWidget* field, MarkReason reason, Mark mark, const QString& text)
{
    FieldMark* shape = fieldMarkOf(field);
    if (!shape && !text.isEmpty() && field->parentWidget()) {
        shape = new FieldMark(field);
        field->setProperty(kPropertyName, QVariant::fromValue<QWidget*>(shape));
    }
    if (shape)
        shape->set(reason, mark, text);
}

void setTyping(QWidget* field, bool isTyping)
{
    if (FieldMark* shape = fieldMarkOf(field))
        shape->setTyping(isTyping);
}

} // namespace vlk
