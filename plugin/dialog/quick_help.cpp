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
    {QuickHelp::Passwords, "cfgt4_090", kPlain},

    {QuickHelp::AccessPoint, "cfgt1_024", kHeading},
    {QuickHelp::AccessPoint, "cfgwl_038", kLine},
    {QuickHelp::AccessPoint, "cfgwl_039", kParagraph},
    {QuickHelp::AccessPoint, "cfgwl_040", kHeading},
    {QuickHelp::AccessPoint, "cfgwl_041", kLine},
    {QuickHelp::AccessPoint, "cfgwl_042", kItem},
    {QuickHelp::AccessPoint, "cfgwl_043", kItem},
    {QuickHelp::AccessPoint, "cfgwl_044", kItem},
    {QuickHelp::AccessPoint, "cfgwl_045", kNote},
    {QuickHelp::AccessPoint, "cfgwl_046", kLastItem},

    {QuickHelp::Server, "cfgwl_048", kHeading},
    {QuickHelp::Server, "cfgwl_049", kLine},
    {QuickHelp::Server, "cfgwl_050", kLine},
    {QuickHelp::Server, "cfgwl_051", kLastNote},
    {QuickHelp::Server, "cfgwl_052", kHeading},
    {QuickHelp::Server, "cfgwl_053", kLine},
    {QuickHelp::Server, "cfgwl_054", kLine},
    {QuickHelp::Server, "cfgwl_055", kLine},
    {QuickHelp::Server, "cfgwl_056", kParagraph},
    {QuickHelp::Server, "cfgwl_057", kPlain},

    {QuickHelp::Track, "cfgwl_059", kLine},
    {QuickHelp::Track, "cfgwl_060", kLine},
    {QuickHelp::Track, "cfgwl_061", kItem},
    {QuickHelp::Track, "cfgwl_062", kItem},
    {QuickHelp::Track, "cfgwl_063", kItem},
    {QuickHelp::Track, "cfgwl_064", kItem},
    {QuickHelp::Track, "cfgwl_065", kLastItem},

    {QuickHelp::Sensors, "cfgwl_067", kLine},
    {QuickHelp::Sensors, "cfgwl_068", kPlain},
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
