#include "telemetry/files/telemetry_csv_writer.h"

#include "telemetry/files/encoded_words.h"
#include "telemetry/files/output_buffer.h"
#include "telemetry/files/table_columns.h"
#include "telemetry/files/title_lines.h"

namespace vlk {

namespace {

class CsvWriter
{
public:
    CsvWriter(QIODevice& device, const RecordStore& records, const TelemetryTitles& titles,
              const EventText& eventText)
        : out_(device), records_(records), eventText_(eventText),
          userTypes_(typeLetters(titles).toLatin1().toStdString()), columns_(columnsOf(records))
    {
    }

    bool write()
    {
        addHeadings();
        records_.forEach([this](const TmiPage_Zeta3& page) {
            if (page.isExtra())
                addPacket(page);
            else
                addRecord(page);
        });
        return out_.finish();
    }

private:
    void addHeadings()
    {
        for (const CsvColumn& column : columns_)
            out_ << headingText(column).toLocal8Bit() << ";";
        if (records_.hasPackets()) {
            addWord("tmizta_359");
            out_ << ";";
        }
        out_ << kLineEnd;
    }

    void addRecord(const TmiPage_Zeta3& page)
    {
        for (const CsvColumn& column : columns_)
            addCell(page, column);
        out_ << kLineEnd;
    }

    // Cells that no packet can have are bare; the entries follow the last cell without a separator.
    void addPacket(const TmiPage_Zeta3& page)
    {
        for (const CsvColumn& column : columns_) {
            if (isInPackets(column))
                addCell(page, column);
            else
                out_ << ";";
        }
        page.extra().forEachEntry([this](const ExtraEntry& entry) { addEntry(entry); });
        out_ << kLineEnd;
    }

    void addCell(const TmiPage_Zeta3& page, const CsvColumn& column)
    {
        out_ << "=\"";
        if (column.element() != element("Code") || !addEvent(page)) {
            const TextParts parts = cellParts(page, column, {userTypes_, &zone_});
            if (parts.word != nullptr)
                addWord(*parts.word);
            out_ << parts.characters.view();
            if (parts.unit != nullptr) {
                out_ << " ";
                addWord(*parts.unit);
            }
        }
        out_ << "\";";
    }

    // False if the event has no name.
    bool addEvent(const TmiPage_Zeta3& page)
    {
        if (!eventText_ || !(page.isExtra() || page.has(element("Code"))))
            return false;
        const QString name = eventText_(codeOf(page));
        out_ << name.toLocal8Bit();
        return !name.isEmpty();
    }

    void addEntry(const ExtraEntry& entry)
    {
        if (const Word* const word = entryWord(entry)) {
            addWord(*word);
            out_ << entryValue(entry).toLocal8Bit();
        }
    }

    void addWord(const Word& word) { out_ << words_.of(word) << word.suffix(); }

    static constexpr std::string_view kLineEnd = "\r\n";

    OutputBuffer out_;
    const RecordStore& records_;
    const EventText& eventText_;
    std::string userTypes_;
    std::vector<CsvColumn> columns_;
    EncodedWords words_;
    LocalZone zone_;
};

} // namespace

bool writeTelemetryCsv(QIODevice& device, const RecordStore& records, const TelemetryTitles& titles,
                       const EventText& eventText)
{
    return CsvWriter(device, records, titles, eventText).write();
}

} // namespace vlk
