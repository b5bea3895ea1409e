#pragma once

// The texts of items as the bytes of an export. A value of one byte is made into its text once, and any other
// again only when it is another one than before.

#include "telemetry/files/encoded_words.h"
#include "telemetry/text/item_text.h"

#include <memory>
#include <string>
#include <vector>

namespace vlk {

class ItemTexts
{
public:
    // `before` and `behind` stand round every text.
    ItemTexts(const std::vector<ItemIndex>& items, std::string userTypes, std::optional<qint32> utcOffset,
              TextEncoder encode, std::string before = {}, std::string behind = {});

    // The text of the n-th item. Stays until the next text of that item is asked for.
    std::string_view of(std::size_t n, std::uint64_t raw)
    {
        Column& column = columns_[n];
        if (column.byByte) {
            std::string& text = (*column.byByte)[raw & 0xFF];
            if (text.empty())
                text = made(column.item, raw);
            return text;
        }
        if (!column.isMade || column.raw != raw) {
            column.text = made(column.item, raw);
            column.raw = raw;
            column.isMade = true;
        }
        return column.text;
    }

private:
    struct Column
    {
        ItemIndex item{};
        std::unique_ptr<std::array<std::string, 256>> byByte{};
        bool isMade = false;
        std::uint64_t raw = 0;
        std::string text{};
    };

    std::string made(ItemIndex item, std::uint64_t raw);

    std::string userTypes_;
    std::optional<qint32> utcOffset_;
    EncodedWords words_;
    LocalZone zone_;
    std::string before_;
    std::string behind_;
    std::vector<Column> columns_;
};

} // namespace vlk
