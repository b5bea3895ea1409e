#include "telemetry/view/records_parts.h"

#include "base/translated.h"
#include "telemetry/curves/curves_view.h"
#include "telemetry/fuel_view/fuel_view.h"
#include "telemetry/fuel_view/summary_view.h"
#include "telemetry/track/track_view.h"
#include "telemetry/view/period_file.h"

#include <QFileInfo>

namespace vlk {

namespace {

// What stands above pictures, and in the names of files.
template <class View>
RecordsPart titledPart(View* view, const char* title)
{
    return {view, title, [view] { view->retranslate(); },
            [view](const QString& name) { view->setTitle(QFileInfo(name).completeBaseName()); }};
}

std::vector<FoundEvent> marksOf(const std::vector<FuelEvent>& events)
{
    std::vector<FoundEvent> marks;
    for (const FuelEvent& event : events) {
        const char* const kind = event.isRefuelling() ? "rec_240" : "rec_241";
        marks.push_back(
            {event.record, event.isRefuelling(),
             QStringLiteral("%1 %2 %3")
                 .arg(translated(kind), QString::number(qRound(event.litres())), translated("abbr_026"))});
    }
    return marks;
}

// What was found of the fuel, for the curves, the track and the summary.
void tellFuel(ShownRecords* shown, const FuelView& fuel, SummaryView* summary)
{
    std::vector<ComputedColumn> litres;
    if (!fuel.litres().empty())
        litres.push_back({QStringLiteral("litres"), translated("rec_295"), translated("abbr_026"),
                          fuel.litres(), "rec_295"});
    shown->setComputed(std::move(litres));
    shown->setFound(marksOf(fuel.events()));
    summary->setFuel(fuel.litres(), fuel.events());
}

} // namespace

std::vector<RecordsPart> makeRecordsParts(ShownRecords* shown, NoticeBar* bar, QWidget* parent)
{
    auto* curves = new CurvesView(shown, parent, bar);
    auto* track = new TrackView(shown, parent, bar);
    auto* summary = new SummaryView(shown, parent, bar);
    auto* fuel = new FuelView(shown, parent, bar);
    const auto pictureOf = [](auto* view) {
        return [view](QPainter& painter, const QSize& size, const TimeSpan& span) {
            view->paint(painter, size, span);
        };
    };
    fuel->setPictures(pictureOf(curves), pictureOf(track),
                      [track](const TimeSpan& span) { return track->caption(span); });
    QObject::connect(fuel, &FuelView::fuelChanged, summary,
                     [shown, fuel, summary] { tellFuel(shown, *fuel, summary); });
    RecordsPart top = titledPart(curves, nullptr);
    top.stepBack = [curves] { return curves->endCursorB(); };
    constexpr const char* fuelHelp = "r-7106fuelList.html";
    RecordsPart figures = titledPart(summary, "rec_292");
    figures.helpPage = fuelHelp;
    return {
        std::move(top),
        titledPart(track, "rec_199"),
        std::move(figures),
        {fuel,
         "rec_295",
         [shown, fuel, summary] {
             fuel->retranslate();
             tellFuel(shown, *fuel, summary);
         },
         [fuel](const QString& name) {
             fuel->setTitle(QFileInfo(name).completeBaseName());
             fuel->setVehicle(vehicleOfFile(name));
         },
         {},
         fuelHelp},
    };
}

} // namespace vlk
