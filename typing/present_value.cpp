#include "typing/present_value.h"

#include "typing/kept_palette.h"

#include <QDoubleSpinBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QStyleOptionFrame>

namespace vlk {

namespace {
constexpr auto kIsPresent = "isPresentValue";
const QString kDash = QStringLiteral("–");

class DashInstead : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::Paint)
            return false;
        auto* line = static_cast<QLineEdit*>(watched);
        QStyleOptionFrame panel;
        panel.initFrom(line);
        panel.lineWidth = 0; // as a line without a frame has it
        QPainter painter(line);
        line->style()->drawPrimitive(QStyle::PE_PanelLineEdit, &panel, &painter, line);
        constexpr int kBefore = 2; // of the text
        const QPalette colours = line->palette();
        painter.setPen(between(colours.color(QPalette::Text), colours.color(QPalette::Base)));
        painter.drawText(line->contentsRect().adjusted(kBefore, 0, -kBefore, 0),
                         static_cast<int>(line->alignment()), kDash);
        return true;
    }
};

} // namespace

void standOut(QWidget* value, bool present)
{
    QFont font = value->font();
    font.setWeight(present ? QFont::DemiBold : QFont::Normal);
    value->setFont(font);
    value->setProperty(kIsPresent, present);
    auto* line = qobject_cast<QLineEdit*>(value);
    auto* box = qobject_cast<QAbstractSpinBox*>(value);
    if (line)
        line->setFrame(!present);
    if (box) {
        box->setFrame(!present);
        box->setReadOnly(present);
        box->setButtonSymbols(present ? QAbstractSpinBox::NoButtons : QAbstractSpinBox::UpDownArrows);
    }
    if (line || box)
        value->setFocusPolicy(present ? Qt::ClickFocus : Qt::StrongFocus);
}

void showAsPresent(QWidget* value, bool present)
{
    standOut(value, present);
    if (!value->inherits("QLineEdit") && !value->inherits("QAbstractSpinBox"))
        return;
    value->setPalette(present ? ofPresentValue(value->palette()) : QPalette());
}

void showAsOld(QWidget* value, bool old)
{
    if (qobject_cast<QLabel*>(value)) {
        // Its palette may tell something of the value.
        value->setForegroundRole(old ? QPalette::PlaceholderText : QPalette::NoRole);
    } else if (value->inherits("QProgressBar")) {
        value->setDisabled(old);
    } else {
        const QPalette present = ofPresentValue({});
        value->setPalette(old ? ofOldValue(present) : present);
    }
}

void showAllAsOld(const QWidget* among, bool old)
{
    for (QWidget* value : among->findChildren<QWidget*>()) {
        if (value->property(kIsPresent).toBool())
            showAsOld(value, old);
    }
}

void showPresentValue(QDoubleSpinBox* box, double value)
{
    box->setSpecialValueText(QString());
    box->setValue(value);
}

void showNoPresentValue(QDoubleSpinBox* box)
{
    box->setValue(box->minimum());
    box->setSpecialValueText(kDash);
}

void showDash(QLineEdit* line, bool isAbsent)
{
    auto* dash = line->findChild<DashInstead*>(QString(), Qt::FindDirectChildrenOnly);
    if (isAbsent && !dash)
        line->installEventFilter(new DashInstead(line));
    else if (!isAbsent)
        delete dash;
    line->update();
}

} // namespace vlk

#include "present_value.moc"
