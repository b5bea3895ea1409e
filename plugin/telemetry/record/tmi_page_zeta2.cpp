#include "telemetry/record/tmi_page_zeta2.h"

#include "base/clock.h"
#include "telemetry/record/record_head.h"

using namespace vlk;

TmiPage_Zeta2::TmiPage_Zeta2(const void* record, qsizetype size)
    : utcOffset_(vlk::now().offsetFromUtc()),
      record_(static_cast<const char*>(record), static_cast<int>(std::max<qsizetype>(size, 0)))
{
    const auto bytes = bytesAt(record, size);
    const RecordHead head = readHead(bytes);
    type_ = head.type;
    ver_ = head.ver;
    isExtra_ = type_ == kExtraPacket;
    if (isExtra_)
        extra_ = ExtraPacket::fromRecord(bytes);
    else
        unpack(head.mask, type_ == kTelemetryRecord ? behind(bytes, RecordHead::kBytes) : bytes.first(0));
}

quint32 TmiPage_Zeta2::number() const
{
    constexpr ElementIndex numPage = element("NumPage");
    return isExtra_ ? extra_.value<numPage>() : value<numPage>();
}

QByteArray TmiPage_Zeta2::payload() const
{
    return record_.mid(RecordHead::kBytes);
}
