#include "telemetry/curves/curve_legend.h"

#include "telemetry/curves/curve_looks.h"
#include "telemetry/curves/curves_model.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <iterator>

namespace vlk {

namespace {

constexpr int kSampleWidth = 24;
constexpr int kSampleMargin = 4;
constexpr int kEntryMargin = 12;
constexpr int kLeastLetters = 10;
constexpr int kLegendPadding = 4;

} // namespace

CurveLegend::CurveLegend(CurvesModel* model, bool isWrapped, QWidget* parent)
    : QWidget(parent), model_(model), isWrapped_(isWrapped)
{
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(isWrapped);
    setSizePolicy(policy);
    connect(model, &CurvesModel::changed, this, &CurveLegend::refresh);
    connect(model, &CurvesModel::cursorsChanged, this, &CurveLegend::refresh);
    refresh();
}

void CurveLegend::setWrapped(bool isWrapped)
{
    if (isWrapped == isWrapped_)
        return;
    isWrapped_ = isWrapped;
    updateGeometry();
    update();
}

void CurveLegend::refresh()
{
    QStringList told;
    for (int place = 0; place < static_cast<int>(model_->curves().size()); ++place)
        told << textOf(place);
    setAccessibleDescription(told.join(QLatin1String("; ")));
    updateGeometry();
    update();
}

QString CurveLegend::textOf(int place) const
{
    return withUnit(model_->curves()[place].column);
}

QFont CurveLegend::fontOf(int place) const
{
    QFont font = this->font();
    if (place == model_->focused())
        font.setWeight(QFont::DemiBold);
    return font;
}

std::vector<QRect> CurveLegend::places(int width) const
{
    const auto count = static_cast<int>(model_->curves().size());
    const int height = fontMetrics().height() + kLegendPadding;
    std::vector<QRect> places;
    int x = 0;
    int y = 0;
    for (int place = 0; place < count; ++place) {
        const QFontMetrics metrics(fontOf(place));
        int needed = kSampleWidth + kSampleMargin + metrics.horizontalAdvance(textOf(place)) + kEntryMargin;
        if (isWrapped_ && x > 0 && x + needed > width) {
            x = 0;
            y += height;
        }
        places.emplace_back(x, y, needed, height);
        x += needed;
    }
    if (isWrapped_ || x <= width)
        return places;
    // Short names stay whole, the others get what is left in equal parts.
    std::vector<int> needed;
    std::ranges::transform(places, std::back_inserter(needed), &QRect::width);
    std::ranges::sort(needed);
    int left = width;
    int most = 0;
    for (int place = 0; place < count; ++place) {
        most = std::max(left / (count - place), 0);
        left -= std::min(needed[place], most);
    }
    x = 0;
    for (QRect& place : places) {
        place = {x, 0, std::min(place.width(), most), height};
        x += place.width();
    }
    return places;
}

// The room for all entries, whichever of the curves is the focused one.
int CurveLegend::widthOfAll() const
{
    QFont font = this->font();
    font.setWeight(QFont::DemiBold);
    const QFontMetrics metrics(font);
    int width = 0;
    for (int place = 0; place < static_cast<int>(model_->curves().size()); ++place)
        width += kSampleWidth + kSampleMargin + metrics.horizontalAdvance(textOf(place)) + kEntryMargin;
    return width;
}

int CurveLegend::leastWidth() const
{
    const int least =
        kSampleWidth + kSampleMargin + kLeastLetters * fontMetrics().averageCharWidth() + kEntryMargin;
    return least * static_cast<int>(model_->curves().size());
}

QSize CurveLegend::sizeHint() const
{
    return {0, fontMetrics().height() + kLegendPadding};
}

int CurveLegend::heightForWidth(int width) const
{
    const std::vector<QRect> all = places(width);
    return all.empty() ? 0 : all.back().bottom() + 1;
}

void CurveLegend::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const std::vector<QRect> all = places(width());
    for (int place = 0; place < static_cast<int>(all.size()); ++place) {
        const QRect& entry = all[place];
        const QColor colour = curveColor(place, palette());
        const double middle = entry.center().y() + 0.5;
        painter.setPen(QPen(colour, place == model_->focused() ? 2 : 1));
        painter.drawLine(QPointF(entry.left(), middle), QPointF(entry.left() + kSampleWidth, middle));
        paintCurveShape(painter, place, {entry.left() + kSampleWidth / 2.0, middle}, colour);
        const QRect text = entry.adjusted(kSampleWidth + kSampleMargin, 0, -kEntryMargin / 2, 0);
        painter.setFont(fontOf(place));
        painter.setPen(palette().color(QPalette::WindowText));
        // Sensors of a kind differ at the end.
        painter.drawText(
            text, Qt::AlignLeft | Qt::AlignVCenter,
            QFontMetrics(fontOf(place)).elidedText(textOf(place), Qt::ElideMiddle, text.width()));
    }
}

int CurveLegend::entryAt(const QPoint& place) const
{
    const std::vector<QRect> all = places(width());
    const auto found = std::ranges::find_if(all, [&](const QRect& entry) { return entry.contains(place); });
    return found == all.end() ? -1 : static_cast<int>(found - all.begin());
}

void CurveLegend::mousePressEvent(QMouseEvent* event)
{
    model_->setFocused(entryAt(event->pos()));
}

bool CurveLegend::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto& help = static_cast<QHelpEvent&>(*event);
    const int entry = entryAt(help.pos());
    QToolTip::showText(help.globalPos(), entry < 0 ? QString() : textOf(entry), this);
    return true;
}

} // namespace vlk
