#pragma once

// One decoded record of protocol 2.0: the fields up to CameraState, in the same layout as later ones. What is
// told of TmiPage_Zeta3 about bytes and errors holds here too.

#include "telemetry/record/extra_packet.h"
#include "telemetry/record/record_values.h"

#include <QByteArray>
#include <QObject>

class TmiPage_Zeta2 : public QObject, public vlk::RecordValues<vlk::kEarlierFieldCount>
{
    Q_OBJECT

public:
    using RecordValues::number;

    // From the bytes of a record, from its type byte on.
    TmiPage_Zeta2(const void* record, qsizetype size);

    quint8 type() const { return type_; }
    quint8 ver() const { return ver_; }
    quint32 number() const; // the record's number; of an extra packet that of its head

    // The record as it came; its payload stands behind the 34 bytes of the head.
    QByteArray record() const { return record_; }
    QByteArray payload() const;

    bool isExtra() const { return isExtra_; }
    const vlk::ExtraPacket& extra() const { return extra_; }
    qint32 utcOffset() const { return utcOffset_; }

private:
    quint8 type_;
    quint8 ver_;
    bool isExtra_;
    qint32 utcOffset_;
    QByteArray record_;
    vlk::ExtraPacket extra_;
};
