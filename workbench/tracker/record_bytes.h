#pragma once

// Records and packets as the tracker sends them, all little-endian.
//
// A record is its type 176, the protocol version, the 32 bytes of its mask and the fields that the mask
// selects. A packet is its type 177, its length, a head with the navigation data, in the archive a second
// head, and entries: a key, a card with the driver's name, a tag.

#include "catalogue/field_mask.h"
#include "tracker/vehicle.h"

#include <QByteArray>

namespace tracker {

// Which fields a record holds, and how it calls itself.
struct DataSet
{
    int version = 30; // 10, 20 or 30
    vlk::FieldMask mask;
    bool ofBadBoard = false; // what a tracker that fails its final check would send
    Links links;

    // The earlier versions know the first fields only.
    int fieldCount() const;
};

QByteArray recordBytes(const Vehicle& vehicle, const DataSet& dataSet);

// Whether the packet lies in the archive or is the answer to a question about the last key or tag.
enum class PacketRoad { Archive, Question };
QByteArray packetBytes(const Vehicle& vehicle, PacketRoad road);

} // namespace tracker
