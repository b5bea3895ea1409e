#include "telemetry/view/filter_in_words.h"

#include "base/translated.h"
#include "link/requests.h"
#include "telemetry/files/filter_parser.h"
#include "telemetry/view/records_model.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace vlk {

namespace {

constexpr double kHighestCode = 0xFFFF;

QString valueOf(const FilterColumn& column, double number, const FilterNames& names, qint32 utcOffset)
{
    if (holdsTimes(column))
        return momentText(static_cast<qint64>(number), utcOffset);
    const auto* const item = std::get_if<ItemIndex>(&column);
    if (item && number >= 0 && number <= kHighestCode && number == std::trunc(number)) {
        const QString word = *item == vlk::item("Code") ? requests::eventText(static_cast<int>(number))
                                                        : wordOfCode(*item, static_cast<quint32>(number));
        if (!word.isEmpty() && names.codesOf(column, word) == std::vector{CodeRange{number, number}})
            return QStringLiteral("\"%1\"").arg(word);
    }
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(number, 'g', QLocale::FloatingPointShortest);
}

} // namespace

QString columnInWords(const FilterColumn& column, const FilterNames& names, const RecordsModel& model)
{
    const auto* const item = std::get_if<ItemIndex>(&column);
    const auto isShown = [item](const CsvColumn& shown) {
        return item &&
               (shown.item == *item || (*item == vlk::item("Time") && shown.item == vlk::item("Time.local")));
    };
    const auto known = std::ranges::find_if(csvColumns(), isShown);
    if (known == csvColumns().end()) {
        const std::string_view name = nameOf(column);
        return QString::fromLatin1(name.data(), static_cast<int>(name.size()));
    }
    const int place = model.columnOf(known->item);
    // The head of times has their zone.
    const QString heading = place < 0 || model.kind(place) == CellKind::Time
                                ? headingText(*known)
                                : model.headerData(place, Qt::Horizontal, Qt::DisplayRole).toString();
    const QString withoutUnit = heading.section(QLatin1String(", "), 0, -2);
    return names.column(withoutUnit) == column ? withoutUnit : heading;
}

QString filterInWords(const Filter& filter, const FilterNames& names, const RecordsModel& model,
                      qint32 utcOffset)
{
    const QString words = filter.text(
        {[&](const FilterColumn& column) { return columnInWords(column, names, model); },
         [&](const FilterColumn& column, double number) { return valueOf(column, number, names, utcOffset); },
         translated("rec_110"), translated("rec_111"), translated("rec_424")});
    return parseFilter(words, names, utcOffset).filter == filter ? words : filter.text();
}

} // namespace vlk
