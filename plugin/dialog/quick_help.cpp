#include "dialog/quick_help.h"

#include <QCoreApplication>

#include <iterator>

namespace vlk {

namespace {

constexpr const char* kPlain = "%1";
constexpr const char* kLine = "%1<br>";
constexpr const char* kParagraph = "%1<br><br>";
constexpr const char* kItem = "- %1<br>";
constexpr const char* kLastItem = "- %1";
constexpr const char* kNote = "<i>%1</i><br>";
constexpr const char* kLastNote = "<i>%1</i><br><br>";
constexpr const char* kHeading = "<center><b>%1</b></center><br>";

struct Passage
{
    QuickHelp help;
    const char* key;
    const char* format;
};

constexpr Passage kPassages[] = {
    {QuickHelp::passwords, "cfgt4_090", kPlain},

    {QuickHelp::accessPoint, "cfgt1_024", kHeading},
    {QuickHelp::accessPoint, "cfgwl_038", kLine},
    {QuickHelp::accessPoint, "cfgwl_039", kParagraph},
    {QuickHelp::accessPoint, "cfgwl_040", kHeading},
    {QuickHelp::accessPoint, "cfgwl_041", kLine},
    {QuickHelp::accessPoint, "cfgwl_042", kItem},
    {QuickHelp::accessPoint, "cfgwl_043", kItem},
    {QuickHelp::accessPoint, "cfgwl_044", kItem},
    {QuickHelp::accessPoint, "cfgwl_045", kNote},
    {QuickHelp::accessPoint, "cfgwl_046", kLastItem},

    {QuickHelp::server, "cfgwl_048", kHeading},
    {QuickHelp::server, "cfgwl_049", kLine},
    {QuickHelp::server, "cfgwl_050", kLine},
    {QuickHelp::server, "cfgwl_051", kLastNote},
    {QuickHelp::server, "cfgwl_052", kHeading},
    {QuickHelp::server, "cfgwl_053", kLine},
    {QuickHelp::server, "cfgwl_054", kLine},
    {QuickHelp::server, "cfgwl_055", kLine},
    {QuickHelp::server, "cfgwl_056", kParagraph},
    {QuickHelp::server, "cfgwl_057", kPlain},

    {QuickHelp::track, "cfgwl_059", kLine},
    {QuickHelp::track, "cfgwl_060", kLine},
    {QuickHelp::track, "cfgwl_061", kItem},
    {QuickHelp::track, "cfgwl_062", kItem},
    {QuickHelp::track, "cfgwl_063", kItem},
    {QuickHelp::track, "cfgwl_064", kItem},
    {QuickHelp::track, "cfgwl_065", kLastItem},

    {QuickHelp::sensors, "cfgwl_067", kLine},
    {QuickHelp::sensors, "cfgwl_068", kPlain},
};

constexpr const char* kTitles[] = {"wrd_005", "cfgt1_024", "cfgwl_047", "cfgwl_058", "cfgwl_066"};

} // namespace

QString quickHelpTitle(QuickHelp help)
{
    return QCoreApplication::translate("vlk", kTitles[static_cast<std::size_t>(help)]);
}

QString quickHelpText(QuickHelp help)
{
    QString text;
    for (const Passage& passage : kPassages) {
        if (passage.help == help)
            text += QString::fromLatin1(passage.format).arg(QCoreApplication::translate("vlk", passage.key));
    }
    return text;
}

} // namespace vlk
