// What is typed as a filter: it is read again as it is kept, completed, and held against records.

#include "support/records.h"
#include "telemetry/files/filter_parser.h"

#include <cstdlib>

using namespace vlk;

namespace {

FilterNames allNames()
{
    FilterNames names;
    names.addTexts();
    names.addWord(QStringLiteral("Fuel drain"), item("Code"), {35, 35});
    return names;
}

RecordStore someRecords()
{
    std::mt19937 random(7106);
    RecordStore records;
    for (int i = 0; i < 5; ++i)
        records.add(30, everyField(), plausibleBlock(random));
    return records;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const FilterNames names = allNames();
    static const RecordStore records = someRecords();
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const ParsedFilter parsed = parseFilter(text, names, 10800);
    const int cursor = parsed.filter ? text.size() / 2 : parsed.fault.position;
    if (cursor < 0 || cursor > text.size())
        std::abort();
    for (const FilterCompletion& completion : completions(text, cursor, names)) {
        if (completion.from < 0 || completion.from > cursor)
            std::abort();
    }
    if (!parsed.filter)
        return 0;
    const ParsedFilter again = parseFilter(parsed.filter->text(), names, 0);
    RecordColumns columns(records);
    if (!again.filter || *again.filter != *parsed.filter ||
        passing(*again.filter, columns) != passing(*parsed.filter, columns))
        std::abort();
    return 0;
}
