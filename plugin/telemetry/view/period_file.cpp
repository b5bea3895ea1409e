#include "telemetry/view/period_file.h"

#include "link/requests.h"

#include <QLoggingCategory>

namespace vlk {

namespace {
Q_LOGGING_CATEGORY(lcTelemetry, "vlk.telemetry")
}

bool writePeriod(const QString& path, TelemetryForm form, const RecordBytes& records,
                 const TelemetryOrigin& origin)
{
    TelemetryPages pages;
    pages.reserve(records.size());
    for (const QByteArray& record : records) {
        pages.push_back(std::make_unique<TmiPage_Zeta3>(record.constData(), record.size()));
        pages.back()->setUtcOffset(origin.timeOffset);
    }
    if (saveTelemetryFile(path, form, pages, origin, &requests::eventText))
        return true;
    qCWarning(lcTelemetry).noquote() << "a period of" << records.size() << "records was not saved as" << path;
    return false;
}

} // namespace vlk
