#include "telemetry/files/item_texts.h"

namespace vlk {

ItemTexts::ItemTexts(const std::vector<ItemIndex>& items, std::string userTypes,
                     std::optional<qint32> utcOffset, TextEncoder encode, std::string before,
                     std::string behind)
    : userTypes_(std::move(userTypes)), utcOffset_(utcOffset), words_(encode), before_(std::move(before)),
      behind_(std::move(behind))
{
    for (const ItemIndex item : items) {
        Column column{.item = item};
        if (kElements[kItems[item].element].width == 1)
            column.byByte = std::make_unique<std::array<std::string, 256>>();
        columns_.push_back(std::move(column));
    }
}

std::string ItemTexts::made(ItemIndex item, std::uint64_t raw)
{
    const TextParts parts = textParts(raw, item, {userTypes_, &zone_, utcOffset_});
    std::string text = before_;
    const auto add = [&](const Word& word) { text.append(words_.of(word)).append(word.suffix()); };
    if (parts.word)
        add(*parts.word);
    text += parts.characters.view();
    if (parts.unit) {
        text += ' ';
        add(*parts.unit);
    }
    return text += behind_;
}

} // namespace vlk
