#include "command/expected_value.h"

#include "review/settable.h"
#include "settings/shared_rows.h"
#include "window/languages.h"
#include "xml/xml_text.h"

#include <algorithm>

namespace workbench::command {

namespace {

using vlk::Change;
using vlk::Limits;

// Kinds that say what they take; of any other kind the sentence stands alone. A function here whose
// parameters are not those of the call below is unused, and does not compile.
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

// What can be typed, in words.
struct TypedRow
{
    const char* pattern;
    const char* key;
};

constexpr TypedRow kTyped[] = {{vlk::shared::kPasswordPattern, "cli_323"},
                               {vlk::shared::kPhonePattern, "cli_324"},
                               {R"(^\d{0,8}$)", "cli_327"}};

// What is asked of the signs of a text that is not too long.
QString expectedSigns(const vlk::Text& row, const QString& refused)
{
    if (vlk::sectionText(refused) == refused && vlk::decodeValue(refused) != refused)
        return text("cli_322");
    const auto* typed = std::ranges::find_if(kTyped, [&](const TypedRow& known) {
        return row.pattern && QLatin1String(known.pattern) == QLatin1String(row.pattern);
    });
    return text(typed == std::end(kTyped) ? "cli_321" : typed->key);
}

QString expected(const vlk::Text& row, const Limits&)
{
    return row.maxLength > 0 ? text("cli_261").arg(row.maxLength) : QString();
}

} // namespace

QString withExpected(const QString& sentence, const vlk::review::PresetProblem& problem)
{
    if (!problem.setting || problem.change == Change::ByRule)
        return sentence;
    const vlk::Number* number = problem.setting->number();
    if (!problem.error.isEmpty() && !(number && number->isPort))
        return QStringLiteral("%1: %2").arg(sentence, problem.error);
    const auto* line = problem.setting->as<vlk::Text>();
    if (line && line->unexpectedKey && problem.change != Change::TooLong)
        return QStringLiteral("%1: %2").arg(sentence, text(line->unexpectedKey));
    if (line && problem.change != Change::TooLong)
        return text("cli_253").arg(sentence, expectedSigns(*line, problem.text));
    const QString said = std::visit(
        [&](const auto& row) {
            if constexpr (requires { expected(row, problem.limits); })
                return expected(row, problem.limits);
            else
                return QString();
        },
        problem.setting->kind);
    return said.isEmpty() ? sentence : text("cli_253").arg(sentence, said);
}

} // namespace workbench::command
