// Tachograph answers of every length and kind: what belongs to the answer and how many lines it may have.

#include "telemetry/text/tachograph_answer.h"

#include <cstdlib>

using namespace vlk;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const TachographAnswer answer = tachographAnswer(bytes, QDateTime(QDate(2025, 2, 1), QTime(12, 0)));
    const bool nothing = answer.subject == TachographAnswer::Subject::Nothing;
    if (nothing && (!answer.lines.isEmpty() || answer.readyFile))
        std::abort();
    if (answer.readyFile && (bytes[7] != 0 || answer.readyFile->size() > 72))
        std::abort();
    if (answer.lines.size() > 20)
        std::abort();
    // Nothing of the tracker's texts may act as markup: every tag is one of ours.
    for (const QString& line : answer.lines) {
        if (line.count(QLatin1Char('<')) !=
            line.count(QLatin1String("<b>")) + line.count(QLatin1String("</b>")))
            std::abort();
    }
    return 0;
}
