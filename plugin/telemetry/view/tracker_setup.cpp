#include "telemetry/view/tracker_setup.h"

#include "xml/xml_document.h"

#include <QFileInfo>

#include <span>

namespace vlk {

namespace {

// Configurations name their lines and sensors in more than one way.
struct TitleSource
{
    const char* section;
    const char* child; // %1 from 1 to kTitlesRead
    const char* attribute;
    std::span<QString> (*titles)(TelemetryTitles& titles);
};

constexpr int kTitlesRead = 8;

std::span<QString> inputs(TelemetryTitles& titles)
{
    return titles.inputs;
}
std::span<QString> outputs(TelemetryTitles& titles)
{
    return titles.outputs;
}
std::span<QString> temperatures(TelemetryTitles& titles)
{
    return titles.temperatures;
}

constexpr TitleSource kTitleSources[] = {
    {"SENSORS", "IN%1", "name", &inputs},
    {"OUTPUTS", "LINE%1", "nickname", &outputs},
    {"OUTPUTS", "OUT%1", "nickname", &outputs},
    {"TEMPSENS", "SENS%1", "nickname", &temperatures},
    {"TEMPSENS", "Temp%1", "nickname", &temperatures},
};

void readText(CXmlSection* root, const char* section, const QString& child, const char* attribute,
              QString& text)
{
    if (const auto outer = root->existing(QLatin1String(section))) {
        if (const auto inner = outer->existing(child))
            text = inner->getString(QLatin1String(attribute), text);
    }
}

} // namespace

void readTrackerSetup(const QString& path, TrackerSetup& setup)
{
    setup.objectName = TrackerSetup().objectName;
    setup.balanceUssd.clear();
    // Opening a document makes the file where there is none.
    if (!QFileInfo(path).isFile())
        return;
    XmlDocument document(path, QStringLiteral("DEVICE"));
    if (!document.isOpen())
        return;
    CXmlSection* root = document.root();
    readText(root, "TRANS", QStringLiteral("OBJECT"), "name", setup.objectName);
    readText(root, "SYSTEM", QStringLiteral("BALANCE"), "USSD", setup.balanceUssd);
    for (const TitleSource& source : kTitleSources) {
        const auto titles = source.titles(setup.titles).first<kTitlesRead>();
        for (int i = 0; i < kTitlesRead; ++i)
            readText(root, source.section, QString::fromLatin1(source.child).arg(i + 1), source.attribute,
                     titles[i]);
    }
}

} // namespace vlk
