#include "review/report.h"

#include "settings/kinds/spelling.h"
#include "settings/value_text.h"

#include <algorithm>
#include <utility>

namespace vlk::review {

namespace {

QString element(const char* name, const QString& text)
{
    return QStringLiteral("<%1>%2</%1>\n").arg(QLatin1String(name), text.toHtmlEscaped());
}

// Puts the rows of a page under its groups, each heading where it changes.
class Body
{
public:
    void add(const SettingWords& words, const QString& value)
    {
        if (words.page != page_) {
            endTable();
            html_ += element("h2", words.page);
        }
        if (words.page != page_ || words.group != group_) {
            endTable();
            if (!words.group.isEmpty() && words.group != words.page)
                html_ += element("h3", words.group);
        }
        page_ = words.page;
        group_ = words.group;
        if (!std::exchange(inTable_, true))
            html_ += QStringLiteral("<table width=\"100%\" cellpadding=\"2\">\n");
        html_ += QStringLiteral("<tr><td width=\"60%\">%1</td><td>%2</td></tr>\n")
                     .arg(words.caption.toHtmlEscaped(), value.toHtmlEscaped());
    }
    QString html()
    {
        endTable();
        return html_;
    }

private:
    void endTable()
    {
        if (std::exchange(inTable_, false))
            html_ += QStringLiteral("</table>\n");
    }

    QString html_;
    QString page_;
    QString group_;
    bool inTable_ = false;
};

bool isTold(const Values& values, int row, const std::vector<int>& keys, int table)
{
    const int key = FileKeys::all().of(table, row);
    const Setting& holder = values.setting(values.holder(row));
    return key >= 0 && holder.shown() && (holder.shown()->captionKey || holder.is<Digits>()) &&
           values.isWritten(row) && (keys.empty() || std::find(keys.begin(), keys.end(), key) != keys.end());
}

QString bodyOf(const Configuration& configuration, const Report& report)
{
    Body body;
    for (std::size_t table = 0; table < configuration.tables().size(); ++table) {
        const Values& values = configuration.tables()[table];
        for (int row = 0; row < values.count(); ++row) {
            if (!isTold(values, row, report.keys, static_cast<int>(table)))
                continue;
            const QString text =
                report.secrets == Secrets::shown
                    ? valueText(values.setting(values.holder(row)), values.written(row), values.unitKey(row))
                    : valueText(values, row, values.written(row));
            body.add(wordsOf(values.layout(), row), text);
        }
    }
    return body.html();
}

} // namespace

QString toHtml(const Configuration& configuration, const Report& report)
{
    QString html = QStringLiteral("<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\">\n") +
                   element("title", report.title) + QStringLiteral("</head><body>\n") +
                   element("h1", report.title);
    for (const QString& line : report.about)
        html += element("p", line);
    if (!report.advice.isEmpty()) {
        html += element("h2", translated("rev_020")) + QStringLiteral("<ul>\n");
        for (const QString& sentence : report.advice)
            html += element("li", sentence);
        html += QStringLiteral("</ul>\n");
    }
    return html + bodyOf(configuration, report) + QStringLiteral("</body></html>\n");
}

} // namespace vlk::review
