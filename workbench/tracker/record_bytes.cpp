#include "tracker/record_bytes.h"

#include "tracker/bytes.h"
#include "tracker/driver.h"
#include "tracker/field_values.h"

namespace tracker {

namespace {

constexpr quint8 kRecordType = 176;
constexpr quint8 kPacketType = 177;

// A backup battery and an input Ain3 outside of their limits, mV; a receiver that is on and has no fix.
constexpr std::pair<vlk::ElementIndex, std::uint64_t> kBadBoard[] = {
    {vlk::element("Reserv"), 3650},
    {vlk::element("StateU_Ain3"), 5450},
    {vlk::element("StateNGauge"), 1},
};

enum Entry : quint8 { KeyEntry = 1, CardEntry = 2, TagEntry = 3 };
constexpr int kCardWidth = 16;

class Block
{
public:
    explicit Block(const Vehicle& vehicle) : values_(valueBlock(vehicle)) {}

    void set(vlk::ElementIndex index, std::uint64_t value)
    {
        const vlk::Element& element = vlk::kElements[index];
        for (int byte = 0; byte < element.width; ++byte, value >>= 8)
            values_[element.offset + byte] = static_cast<std::uint8_t>(value);
    }

    void appendField(QByteArray& bytes, int field) const
    {
        const vlk::Field& place = vlk::kFields[field];
        bytes.append(reinterpret_cast<const char*>(values_.data()) + place.offset, place.width);
    }

private:
    ValueBlock values_;
};

// A head is its version, the number of bytes behind these two, and fields.
template <std::size_t count>
void appendHead(QByteArray& packet, const Block& block, const int (&fields)[count])
{
    constexpr char version = 1;
    QByteArray head;
    for (const int field : fields)
        block.appendField(head, field);
    packet.append(version).append(static_cast<char>(head.size())).append(head);
}

void appendEntry(QByteArray& packet, Entry type, const QByteArray& value)
{
    packet.append(static_cast<char>(type)).append(static_cast<char>(value.size())).append(value);
}

} // namespace

int DataSet::fieldCount() const
{
    constexpr int firstVersion = 69;
    return version == 10 ? firstVersion : version == 20 ? vlk::kEarlierFieldCount : vlk::kFieldCount;
}

QByteArray recordBytes(const Vehicle& vehicle, const DataSet& dataSet)
{
    Block block(vehicle);
    if (dataSet.ofBadBoard) {
        for (const auto& [element, value] : kBadBoard)
            block.set(element, value);
    }
    vlk::FieldMask mask;
    QByteArray payload;
    for (int field = 0; field < dataSet.fieldCount(); ++field) {
        if (!dataSet.mask.test(field))
            continue;
        mask.set(field);
        block.appendField(payload, field);
    }
    QByteArray record;
    append(record, kRecordType);
    append(record, static_cast<quint8>(dataSet.version));
    record.append(reinterpret_cast<const char*>(mask.bytes().data()), vlk::FieldMask::kBytes);
    return record.append(payload);
}

QByteArray packetBytes(const Vehicle& vehicle, PacketRoad road)
{
    using vlk::field;
    constexpr int standardHead[] = {field("NumPage"),     field("Code"),     field("Time"),
                                    field("StateNGauge"), field("LastTime"), field("Latitude"),
                                    field("Longitude"),   field("Altitude"), field("Speed"),
                                    field("Course"),      field("Run")};
    constexpr int secondHead[] = {field("State"), field("StateOut1"), field("StateIn_Imp1"),
                                  field("StateIn_Imp2"), field("Motochas")};
    const Block block(vehicle);
    QByteArray content;
    appendHead(content, block, standardHead);
    if (road == PacketRoad::Archive)
        appendHead(content, block, secondHead);

    QByteArray number;
    if (vehicle.m.kind == RecordKind::Tag) {
        append(number, tagNumber(vehicle.m));
        appendEntry(content, TagEntry, number);
    } else {
        append(number, driverOf(vehicle.m).key);
        appendEntry(content, KeyEntry, number);
        QByteArray card;
        appendText(card, driverOf(vehicle.m).surname, kCardWidth);
        appendEntry(content, CardEntry, card);
    }

    QByteArray packet;
    append(packet, kPacketType);
    append(packet, static_cast<quint16>(content.size()));
    return packet.append(content);
}

} // namespace tracker
