#include "command/origin_losses.h"

#include "command/output.h"
#include "telemetry/files/title_lines.h"
#include "window/languages.h"

namespace workbench::command {

namespace {

using vlk::TelemetryOrigin;

QString titlesOf(const TelemetryOrigin& origin)
{
    QString all;
    for (const vlk::TitleLine& line : vlk::kTitleLines) {
        if (const QString& title = titleOf(origin.titles, line); !title.isEmpty())
            all += QString::fromLatin1(line.tag.data(), static_cast<int>(line.tag.size())) + title;
    }
    return all;
}

// Why something is left out.
constexpr const char* kNoPlace = "cli_313";
constexpr const char* kOtherHeading = "cli_314"; // which holds that of another file
constexpr const char* kNotNamed = "cli_329";     // by --tracker

struct Fact
{
    const char* key;
    QString (*of)(const TelemetryOrigin& origin); // empty: nothing to lose
    const char* xml;                              // why that form would leave it out
    const char* tmi;
};

const Fact kFacts[] = {
    {"cli_328", [](const TelemetryOrigin& origin) { return origin.model; }, kOtherHeading, kOtherHeading},
    {"cli_315", [](const TelemetryOrigin& origin) { return origin.vendor; }, kOtherHeading, kNoPlace},
    {"cli_316",
     [](const TelemetryOrigin& origin) {
         return origin.timeOffset == 0 ? QString() : QString::number(origin.timeOffset);
     },
     kOtherHeading, kNoPlace},
    {"cli_317", titlesOf, kOtherHeading, kNoPlace},
    {"cli_318",
     [](const TelemetryOrigin& origin) {
         const QString letters = typeLetters(origin.titles);
         return letters == typeLetters(vlk::TelemetryTitles()) ? QString() : letters;
     },
     kOtherHeading, kNoPlace},
    {"cli_319", [](const TelemetryOrigin& origin) { return origin.trackerId; }, kNoPlace, kNotNamed},
};

} // namespace

OriginLosses::OriginLosses(const Conversion& asked) : asked_(asked) {}

void OriginLosses::add(const File& file, const TelemetryOrigin& origin, const QString& tracker)
{
    const bool isXml = asked_.form == QLatin1String("xml");
    // Tables, tracks and texts are no form to keep telemetry in.
    if (!isXml && asked_.form != QLatin1String("tmi"))
        return;
    told_.push_back({file, origin});
    // Whoever names a tracker means that one.
    told_.back().origin.trackerId = isXml || asked_.tracker.isEmpty() ? tracker : asked_.tracker;
}

QByteArray OriginLosses::lines(const TelemetryOrigin& written) const
{
    const bool isXml = asked_.form == QLatin1String("xml");
    QByteArray lines;
    for (const Told& told : told_) {
        for (const char* reason : {kNoPlace, kOtherHeading, kNotNamed}) {
            QStringList left;
            for (const Fact& fact : kFacts) {
                const QString value = fact.of(told.origin);
                const bool isKept = reason != kNoPlace && value == fact.of(written);
                if ((isXml ? fact.xml : fact.tmi) == reason && !value.isEmpty() && !isKept)
                    left << text(fact.key);
            }
            if (!left.isEmpty())
                lines += complaint(told.file.name, text(reason).arg(left.join(QStringLiteral(", "))));
        }
    }
    return lines;
}

} // namespace workbench::command
