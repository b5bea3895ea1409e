// Reading and writing a complete configuration (10 sections, 60 groups, 720 attributes) through sections,
// against QXmlSimpleReader with a handler that does nothing over the same file. The counter "x reader" is the
// ratio to that. Where the system has a folder in memory the file lies there, since a save waits for the
// disk.

#include "bench/side_by_side.h"
#include "bench/xml_reader_alone.h"
#include "xml/xml_document.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

constexpr int kSections = 10;
constexpr int kGroups = 6;
constexpr int kKeys = 12;

QString numbered(const char* stem, int number)
{
    return stem + QString::number(number);
}

void saveConfiguration(const QString& path)
{
    vlk::XmlDocument document(path, "DEVICE");
    document.root()->clear();
    document.root()->setString("model", "R-7106");
    for (int s = 0; s < kSections; ++s) {
        const auto section = document.root()->child(numbered("SECTION", s));
        section->clear();
        for (int g = 0; g < kGroups; ++g) {
            const auto group = section->child(numbered("GROUP", g), CXmlNode::Empty);
            for (int k = 0; k < kKeys; k += 2) {
                group->setInt(numbered("number", k), 1000 * k + g);
                group->setString(numbered("text", k), QString::fromUtf8("Датчик & бак"));
            }
            group->commit();
        }
        section->commit();
    }
    document.save();
}

int loadConfiguration(const QString& path)
{
    vlk::XmlDocument document(path, "DEVICE");
    int sum = 0;
    for (int s = 0; s < kSections; ++s) {
        const auto section = document.root()->existing(numbered("SECTION", s));
        for (int g = 0; g < kGroups; ++g) {
            const auto group = section->existing(numbered("GROUP", g));
            for (int k = 0; k < kKeys; k += 2) {
                sum += group->getInt(numbered("number", k), 0);
                sum += group->getString(numbered("text", k)).size();
            }
        }
    }
    return sum;
}

const QString& configuration()
{
    const QDir memory("/dev/shm");
    static const QTemporaryDir folder((memory.exists() ? memory : QDir::temp()).filePath("bench_XXXXXX"));
    static const QString path = [] {
        const QString made = folder.filePath("configuration.xml");
        saveConfiguration(made);
        return made;
    }();
    return path;
}

template <typename Work>
void againstReader(benchmark::State& state, Work work)
{
    const QString& path = configuration();
    bench::sideBySide(
        state, "x reader", [&] { benchmark::DoNotOptimize(work(path)); },
        [&] { benchmark::DoNotOptimize(bench::readWithoutUse(path)); });
}

void loadThroughSections(benchmark::State& state)
{
    againstReader(state, loadConfiguration);
}

void saveThroughSections(benchmark::State& state)
{
    againstReader(state, [](const QString& path) { return saveConfiguration(path), 0; });
}

BENCHMARK(loadThroughSections)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(saveThroughSections)->UseManualTime()->Unit(benchmark::kMicrosecond);

} // namespace
