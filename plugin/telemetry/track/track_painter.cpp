#include "telemetry/track/track_painter.h"

#include "base/translated.h"
#include "telemetry/curves/curve_looks.h"
#include "telemetry/track/track_model.h"
#include "typing/kept_palette.h"

#include <QLocale>
#include <QPainter>
#include <QPalette>

#include <algorithm>
#include <array>
#include <cmath>

namespace vlk {

namespace {

constexpr double kFitMargin = 40;
constexpr double kFitShare = 0.12;   // of little room
constexpr double kFinestScale = 0.1; // metres a pixel
constexpr int kManyLines = 20'000;   // more of them are drawn thin, which is ten times as fast
constexpr double kLongestBar = 140;
constexpr double kMargin = 10;
constexpr double kStopReach = 5;
constexpr double kEventReach = 4;
constexpr double kMarkRoom = 22;
constexpr double kCurrentReach = 8;
constexpr int kBins = ValueClasses::kMost + 1; // the last for no value

// Lines of the path by the class of their value. One that would cover just the same pixels in the same colour
// as one before is left out, since a vehicle drives the same roads for years.
class PathLines
{
public:
    PathLines(const TrackModel& model, const TrackSight& sight, const TimeSpan& span, const QSizeF& size)
        : model_(model), sight_(sight), span_(span), size_(size), width_(static_cast<int>(size.width()) + 1),
          drawn_(static_cast<std::size_t>(width_) * (static_cast<std::size_t>(size.height()) + 1))
    {
        const TrackPath& path = model.path();
        const TrackPath::Level& level = path.levelFor(sight.metresPerPixel);
        const QRectF seen(sight.toPlace({0, 0}, size), sight.toPlace({size.width(), size.height()}, size));
        for (std::size_t chunk = 0; chunk < level.of.size(); ++chunk) {
            const QRectF& of = level.of[chunk];
            if (of.right() < seen.left() || of.left() > seen.right() || of.bottom() < seen.top() ||
                of.top() > seen.bottom())
                continue;
            const std::size_t first = chunk * TrackPath::Level::kChunk;
            const std::size_t last = std::min(first + TrackPath::Level::kChunk, level.kept.size());
            for (std::size_t i = first; i < last; ++i)
                addLine(i == 0 ? -1 : level.kept[i - 1], level.kept[i]);
        }
        const auto end = static_cast<int>(path.points().size()) - 1;
        if (level.kept.back() != end)
            addLine(level.kept.back(), end);
    }

    const QVector<QLineF>& of(int bin) const { return lines_[bin]; }
    int count() const
    {
        int count = 0;
        for (const QVector<QLineF>& lines : lines_)
            count += lines.size();
        return count;
    }

private:
    void addLine(int from, int to)
    {
        const TrackPath& path = model_.path();
        if (!span_.contains(path.time(to)))
            return;
        const QPointF end = sight_.toPixel(path.place(to), size_);
        const bool isAlone = from < 0 || path.startsSegment(to) || !span_.contains(path.time(from));
        // A place alone is a point of its own.
        const QPointF start = isAlone ? end : sight_.toPixel(path.place(from), size_);
        const int bin = binOf(path.records()[to]);
        std::uint8_t* const here = cell(end);
        const std::uint8_t* const there = cell(start);
        const auto mark = static_cast<std::uint8_t>(bin + 1);
        if (here && there && *here == mark && *there == mark)
            return;
        if (here)
            *here = mark;
        lines_[bin] << QLineF(start, end);
    }

    int binOf(int record) const
    {
        const bool hasValue = values_ && record < static_cast<int>(values_->size());
        const int place = hasValue ? model_.classes().classOf((*values_)[record]) : -1;
        return place < 0 ? kBins - 1 : place;
    }

    std::uint8_t* cell(const QPointF& pixel)
    {
        const bool isSeen =
            pixel.x() >= 0 && pixel.x() <= size_.width() && pixel.y() >= 0 && pixel.y() <= size_.height();
        if (!isSeen)
            return nullptr;
        return &drawn_[static_cast<std::size_t>(pixel.y()) * width_ + static_cast<std::size_t>(pixel.x())];
    }

    const TrackModel& model_;
    const TrackSight sight_;
    const TimeSpan span_;
    const QSizeF size_;
    const NumberColumn* const values_ = model_.values();
    std::size_t width_;
    std::vector<std::uint8_t> drawn_; // a pixel each: the bin of what was drawn there last, and 1
    std::array<QVector<QLineF>, kBins> lines_;
};

// Finds room for marks that are seen: one is drawn of those that would cover each other.
class Crowd
{
public:
    explicit Crowd(const QSizeF& size)
        : across_(cell(size.width() + kMargin) + 1), taken_(across_ * (cell(size.height() + kMargin) + 1))
    {
    }

    bool hasRoomAt(const QPointF& pixel)
    {
        return !std::exchange(taken_[cell(pixel.y()) * across_ + cell(pixel.x())], true);
    }

private:
    static std::size_t cell(double pixel) { return static_cast<std::size_t>((pixel + kMargin) / kMarkRoom); }

    const std::size_t across_;
    std::vector<std::uint8_t> taken_;
};

class TrackDrawing
{
public:
    TrackDrawing(QPainter& painter, const QSizeF& size, const TrackModel& model, const TrackSight& sight,
                 const TimeSpan& span, const TimeSpan& around, const QPalette& palette)
        : painter_(painter), size_(size), model_(model), sight_(sight), span_(span), around_(around),
          palette_(palette), text_(palette.color(QPalette::Text)), base_(palette.color(QPalette::Base)),
          metrics_(painter.font())
    {
    }

    void draw()
    {
        painter_.fillRect(QRectF(QPointF(), size_), base_);
        if (model_.path().isEmpty()) {
            painter_.setPen(palette_.color(QPalette::Disabled, QPalette::Text));
            painter_.drawText(QRectF(QPointF(), size_), Qt::AlignCenter | Qt::TextWordWrap,
                              translated(model_.isBeingMade() ? "rec_371" : "rec_193"));
            return;
        }
        if (around_ != span_)
            drawAround();
        drawPath();
        drawStops();
        drawEvents();
        drawCurrent();
        drawLegend();
        drawScale();
        drawNorth();
    }

private:
    double timeOf(int record) const { return model_.records().columns().times()[record]; }

    // The last point of the record or before it; nothing where that is not shown.
    std::optional<QPointF> pixelOf(int record) const
    {
        const int point = model_.path().pointOf(record);
        return point < 0 ? std::nullopt : pixelOfPoint(point, around_);
    }

    std::optional<QPointF> pixelOfPoint(int point, const TimeSpan& span) const
    {
        if (!span.contains(model_.path().time(point)))
            return std::nullopt;
        return sight_.toPixel(model_.path().place(point), size_);
    }

    // Its colours would tell speeds of another time.
    void drawAround()
    {
        const PathLines lines(model_, sight_, around_, size_);
        painter_.setRenderHint(QPainter::Antialiasing);
        painter_.setPen(QPen(palette_.color(QPalette::Mid), 1));
        for (int bin = 0; bin < kBins; ++bin)
            painter_.drawLines(lines.of(bin));
    }

    void drawPath()
    {
        const PathLines lines(model_, sight_, span_, size_);
        const bool isFast = lines.count() > kManyLines;
        painter_.setRenderHint(QPainter::Antialiasing, !isFast);
        for (int bin = kBins - 1, next = 0; next < kBins; bin = next++) {
            const QVector<QLineF>& binLines = lines.of(bin);
            if (binLines.isEmpty())
                continue;
            const bool hasValue = bin < ValueClasses::kMost;
            const double width = isFast ? 1 : hasValue ? 2 + 0.4 * bin : 1.5;
            QPen pen(model_.classes().colour(hasValue ? bin : -1, palette_), width);
            pen.setCapStyle(Qt::RoundCap);
            painter_.setPen(pen);
            painter_.drawLines(binLines);
        }
        painter_.setRenderHint(QPainter::Antialiasing);
    }

    void drawStops()
    {
        Crowd crowd(size_);
        for (const Stop& stop : model_.stops()) {
            // It may have begun before the time that is shown.
            if (timeOf(stop.last) < span_.from || timeOf(stop.first) > span_.to)
                continue;
            const std::optional<QPointF> pixel = pixelOf(stop.first);
            if (!pixel || !isSeen(*pixel) || !crowd.hasRoomAt(*pixel))
                continue;
            painter_.setPen(QPen(text_, 1.5));
            painter_.setBrush(base_);
            painter_.drawRect(
                QRectF(*pixel - QPointF(kStopReach, kStopReach), QSizeF(2 * kStopReach, 2 * kStopReach)));
        }
    }

    void drawEvents()
    {
        Crowd crowd(size_);
        painter_.setPen(QPen(base_, 1));
        painter_.setBrush(text_);
        // With a million events none is looked for by itself: events and points rise together, and of those
        // at one place the first is drawn.
        const std::vector<int>& records = model_.path().records();
        auto behind = records.begin();
        for (const int record : model_.events()) {
            const auto before = behind;
            behind = std::find_if(behind, records.end(), [record](int other) { return other > record; });
            if (behind == before)
                continue;
            const std::optional<QPointF> pixel =
                pixelOfPoint(static_cast<int>(behind - records.begin()) - 1, span_);
            if (!pixel || !isSeen(*pixel) || !crowd.hasRoomAt(*pixel))
                continue;
            painter_.drawPolygon(
                QPolygonF({*pixel + QPointF(0, -kEventReach), *pixel + QPointF(kEventReach, 0),
                           *pixel + QPointF(0, kEventReach), *pixel + QPointF(-kEventReach, 0)}));
        }
        for (const FoundEvent& event : model_.records().found()) {
            const std::optional<QPointF> pixel = pixelOf(event.record);
            if (pixel && isSeen(*pixel) && span_.contains(timeOf(event.record)))
                paintFoundEvent(painter_, event.isRise, *pixel, palette_);
        }
    }

    void drawCurrent()
    {
        const int record = model_.records().current();
        const std::optional<QPointF> pixel = pixelOf(record);
        if (!pixel || !span_.contains(timeOf(record)))
            return;
        // Dashed where the record itself has no place.
        const TrackPath& path = model_.path();
        const bool isItself = path.points()[path.pointOf(record)].record == record;
        painter_.setBrush(Qt::NoBrush);
        painter_.setPen(QPen(base_, 5));
        painter_.drawEllipse(*pixel, kCurrentReach, kCurrentReach);
        painter_.setPen(QPen(text_, 2.5, isItself ? Qt::SolidLine : Qt::DashLine));
        painter_.drawEllipse(*pixel, kCurrentReach, kCurrentReach);
    }

    void drawLegend()
    {
        const ValueClasses& classes = model_.classes();
        if (classes.count() == 0)
            return;
        const QLocale locale;
        QStringList rows;
        for (int place = 0; place < classes.count(); ++place) {
            const QString from = locale.toString(classes.from(place), 'g', 6);
            rows << (classes.count() == 1 ? from
                                          : QStringLiteral("%1–%2").arg(
                                                from, locale.toString(classes.from(place + 1), 'g', 6)));
        }
        const QString title = withUnit(*model_.column());
        const double row = metrics_.height();
        const double sample = 2 * row;
        double width = metrics_.horizontalAdvance(title);
        for (const QString& text : rows)
            width = std::max(width, sample + metrics_.horizontalAdvance(text));
        QRectF frame(kMargin, kMargin, width + row, row * (rows.size() + 1) + row / 2);
        drawFrame(frame);
        frame.adjust(row / 2, row / 4, 0, 0);
        painter_.setPen(text_);
        painter_.drawText(frame, title);
        for (int place = 0; place < rows.size(); ++place) {
            const double top = frame.top() + row * (place + 1);
            painter_.setPen(QPen(classes.colour(place, palette_), 2 + 0.4 * place));
            painter_.drawLine(QPointF(frame.left(), top + row / 2),
                              QPointF(frame.left() + sample - row / 2, top + row / 2));
            painter_.setPen(text_);
            painter_.drawText(QPointF(frame.left() + sample, top + metrics_.ascent()), rows[place]);
        }
    }

    // Metres a pixel on the earth, in the middle of what is seen, where the plane has its own.
    double metresPerPixel() const
    {
        const QPointF half(size_.width() / 4, 0);
        const QPointF middle(size_.width() / 2, size_.height() / 2);
        const double metres = metresBetween(model_.path().at(sight_.toPlace(middle - half, size_)),
                                            model_.path().at(sight_.toPlace(middle + half, size_)));
        return metres > 0 ? metres / (2 * half.x()) : sight_.metresPerPixel;
    }

    void drawScale()
    {
        const double longest = kLongestBar * metresPerPixel();
        if (!(longest > 0))
            return;
        double metres = std::pow(10, std::floor(std::log10(longest)));
        for (const double factor : {5, 2}) {
            if (factor * metres <= longest) {
                metres *= factor;
                break;
            }
        }
        const bool isFar = metres >= 1000;
        const QString text = QLocale().toString(isFar ? metres / 1000 : metres) + QChar::Nbsp +
                             translated(isFar ? "abbr_023" : "abbr_022");
        const double length = metres / longest * kLongestBar;
        const double row = metrics_.height();
        const QRectF frame(size_.width() - kMargin - length - row, size_.height() - kMargin - 1.8 * row,
                           length + row, 1.8 * row);
        drawFrame(frame);
        const double y = frame.bottom() - row / 3;
        const double x = frame.left() + row / 2;
        painter_.setPen(QPen(text_, 2));
        painter_.drawPolyline(QPolygonF({{x, y - 5}, {x, y}, {x + length, y}, {x + length, y - 5}}));
        painter_.drawText(QRectF(frame.left(), frame.top(), frame.width(), row + 2), Qt::AlignCenter, text);
    }

    void drawNorth()
    {
        const double row = metrics_.height();
        const double x = size_.width() - kMargin - row;
        const double top = kMargin;
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(text_);
        painter_.drawPolygon(
            QPolygonF({{x, top}, {x + row / 2, top + row}, {x, top + row * 0.75}, {x - row / 2, top + row}}));
        painter_.setPen(text_);
        painter_.drawText(QRectF(x - row, top + row, 2 * row, row), Qt::AlignCenter, translated("rec_194"));
    }

    void drawFrame(const QRectF& frame)
    {
        QColor veil = base_;
        veil.setAlpha(215);
        painter_.setPen(QPen(between(text_, base_), 1));
        painter_.setBrush(veil);
        painter_.drawRect(frame);
    }

    bool isSeen(const QPointF& pixel) const
    {
        return pixel.x() >= -kMargin && pixel.x() <= size_.width() + kMargin && pixel.y() >= -kMargin &&
               pixel.y() <= size_.height() + kMargin;
    }

    QPainter& painter_;
    const QSizeF size_;
    const TrackModel& model_;
    const TrackSight sight_;
    const TimeSpan span_;
    const TimeSpan around_;
    const QPalette& palette_;
    const QColor text_;
    const QColor base_;
    const QFontMetricsF metrics_;
};

} // namespace

TrackSight sightOf(const QRectF& bounds, const QSizeF& size)
{
    const auto scale = [](double metres, double pixels) {
        return metres / std::max(pixels - 2 * std::min(kFitMargin, kFitShare * pixels), 1.0);
    };
    return {bounds.center(), std::max({scale(bounds.width(), size.width()),
                                       scale(bounds.height(), size.height()), kFinestScale})};
}

void paintTrack(QPainter& painter, const QSizeF& size, const TrackModel& model, const TrackSight& sight,
                const TimeSpan& span, const TimeSpan& around, const QPalette& palette)
{
    painter.save();
    painter.setClipRect(QRectF(QPointF(), size));
    TrackDrawing(painter, size, model, sight, span, around, palette).draw();
    painter.restore();
}

} // namespace vlk
