#include "telemetry/files/telemetry_csv_writer.h"

#include "telemetry/files/output_buffer.h"
#include "telemetry/files/table_columns.h"
#include "telemetry/files/title_lines.h"

namespace vlk {

namespace {

const QLatin1String kLineEnd("\r\n");

class CsvWriter
{
public:
    CsvWriter(QIODevice& device, const TelemetryPages& pages, const TelemetryTitles& titles,
              const EventText& eventText)
        : out_(device), pages_(pages), eventText_(eventText),
          userTypes_(typeLetters(titles).toLatin1().toStdString()), columns_(columnsOf(pages))
    {
    }

    bool write()
    {
        addHeadings();
        for (const auto& page : pages_) {
            if (page->isExtra())
                addPacket(*page);
            else
                addRecord(*page);
        }
        return out_.finish();
    }

private:
    void addHeadings()
    {
        for (const CsvColumn& column : columns_)
            row_ += headingText(column) + QLatin1Char(';');
        if (hasPackets(pages_))
            row_ += Word("tmizta_359").text() + QLatin1Char(';');
        endRow();
    }

    void addRecord(const TmiPage_Zeta3& page)
    {
        for (const CsvColumn& column : columns_)
            addCell(page, column);
        endRow();
    }

    // Cells that no packet can have are bare; the entries follow the last cell without a separator.
    void addPacket(const TmiPage_Zeta3& page)
    {
        for (const CsvColumn& column : columns_) {
            if (isInPackets(column))
                addCell(page, column);
            else
                row_ += QLatin1Char(';');
        }
        page.extra().forEachEntry([&](const ExtraEntry& entry) { row_ += entryText(entry); });
        endRow();
    }

    void addCell(const TmiPage_Zeta3& page, const CsvColumn& column)
    {
        row_ += QLatin1String("=\"");
        const bool isEvent =
            column.element() == element("Code") && (page.isExtra() || page.has(column.element()));
        const QString event = isEvent && eventText_ ? eventText_(codeOf(page)) : QString();
        row_ += event.isEmpty() ? cellText(page, column, {userTypes_}) : event;
        row_ += QLatin1String("\";");
    }

    void endRow()
    {
        row_ += kLineEnd;
        out_ << row_.toLocal8Bit();
        row_.resize(0);
    }

    OutputBuffer out_;
    const TelemetryPages& pages_;
    const EventText& eventText_;
    std::string userTypes_;
    std::vector<CsvColumn> columns_;
    QString row_;
};

} // namespace

bool writeTelemetryCsv(QIODevice& device, const TelemetryPages& pages, const TelemetryTitles& titles,
                       const EventText& eventText)
{
    return CsvWriter(device, pages, titles, eventText).write();
}

} // namespace vlk
