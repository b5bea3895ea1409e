#include "command/expected_value.h"

#include "review/settable.h"
#include "window/languages.h"

#include <algorithm>

namespace workbench::command {

namespace {

using vlk::Change;
using vlk::Limits;

// One function a kind that can say it.
QString expected(const auto&, const Limits&)
{
    return {};
}

QString expected(const vlk::Flag& row, const Limits&)
{
    return text("cli_254").arg(row.on);
}

QString expected(const vlk::Number& row, const Limits& limits)
{
    if (row.isPort)
        return text("cli_255").arg(vlk::review::kLowestPort).arg(vlk::review::kHighestPort);
    const char* key = row.hexadecimal ? "cli_257" : row.isText ? "cli_256" : "cli_255";
    QString range = text(key).arg(fileNumber(row, limits.least), fileNumber(row, limits.most));
    if (row.isText && row.decimals > 0)
        range = text("cli_298").arg(range).arg(row.decimals);
    const bool isZeroApart = row.zeroIsOff && (limits.least > 0 || limits.most < 0);
    return isZeroApart ? text("cli_258").arg(range) : range;
}

QString expected(const vlk::Period& row, const Limits&)
{
    int least = 0;
    int most = 0;
    for (const vlk::PeriodPart& part : row.parts) {
        least += part.least * part.seconds;
        most += part.most * part.seconds;
    }
    return text("cli_255").arg(std::max(least, row.least)).arg(most);
}

QString expected(const vlk::Digits& row, const Limits&)
{
    const int top = std::ranges::max_element(row.positions, {}, &vlk::Position::top)->top;
    return text("cli_259").arg(row.positions.size()).arg(top);
}

QString expected(const vlk::Mask& row, const Limits&)
{
    return text("cli_259").arg(row.length).arg(1);
}

QString expected(const vlk::Choice& row, const Limits& limits)
{
    QStringList codes;
    for (const vlk::Code& code : row.codes) {
        if (offersCode(code, limits))
            codes << (*code.code ? QString::fromLatin1(code.code) : QStringLiteral("\"\""));
    }
    return codes.isEmpty() ? QString() : text("cli_260").arg(codes.join(QStringLiteral(", ")));
}

QString expected(const vlk::Text& row, const Limits&)
{
    return row.maxLength > 0 ? text("cli_261").arg(row.maxLength) : QString();
}

} // namespace

QString withExpected(const QString& sentence, const vlk::review::PresetProblem& problem)
{
    if (!problem.setting || problem.change == Change::byRule)
        return sentence;
    const auto* line = problem.setting->as<vlk::Text>();
    if (line && problem.change != Change::tooLong)
        return line->unexpectedKey ? QStringLiteral("%1: %2").arg(sentence, text(line->unexpectedKey))
                                   : sentence;
    const QString said =
        std::visit([&](const auto& row) { return expected(row, problem.limits); }, problem.setting->kind);
    return said.isEmpty() ? sentence : text("cli_253").arg(sentence, said);
}

} // namespace workbench::command
