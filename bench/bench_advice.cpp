// Advice about the simulated tracker's factory configuration, against a look at each of its values. The
// counter "x look" is the ratio to that.

#include "bench/side_by_side.h"
#include "document/configuration.h"
#include "review/advice.h"
#include "settings/all_settings.h"
#include "xml/xml_document.h"

namespace {

vlk::Configuration factory()
{
    vlk::Configuration configuration(vlk::allSettings());
    vlk::XmlDocument file(QStringLiteral(VLK_SOURCE "/workbench/tracker/factory.xml"), "DEVICE");
    configuration.read(*file.root());
    return configuration;
}

int lookAtAll(const vlk::Configuration& configuration)
{
    int signs = 0;
    for (const vlk::Values& table : configuration.tables()) {
        for (int row = 0; row < table.count(); ++row)
            signs += table.value(row).size();
    }
    return signs;
}

void advice(benchmark::State& state)
{
    const vlk::Configuration configuration = factory();
    bench::sideBySide(
        state, "x look", [&] { benchmark::DoNotOptimize(vlk::review::advise(configuration)); },
        [&] { benchmark::DoNotOptimize(lookAtAll(configuration)); });
}

BENCHMARK(advice)->UseManualTime()->Unit(benchmark::kMicrosecond);

} // namespace
