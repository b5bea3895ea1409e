#pragma once

// Reads a telemetry file of either form, whichever it is, in portions as short as its user wants:
//
//     TelemetryReader reader(file);
//     while (!reader.readFor(50))
//         show(reader.share());
//     TelemetryContents contents = reader.take();

#include "telemetry/files/telemetry_binary_reader.h"
#include "telemetry/files/telemetry_xml_reader.h"

#include <variant>

namespace vlk {

class TelemetryReader
{
public:
    // The form is told by the first bytes; where they say nothing, by `name`. The device stays open as long
    // as it is read.
    TelemetryReader(QIODevice& device, const QString& name,
                    TelemetryReading reading = TelemetryReading::AsTold);

    // Some records, a damage or a line; false at the end.
    bool step();
    // True when all is read.
    bool readFor(int milliseconds);
    // How much of the device has been read, from 0 to 1; 0 where that cannot be known.
    double share() const;

    // What was read so far; its records may be taken out between steps. Damages that are known at the end
    // alone come with finish().
    TelemetryContents& contents();
    void finish();
    // What is whole, after the last step; the damages go to the log under the name.
    TelemetryContents take();

    bool isBinary() const { return reader_.index() == 1; }

private:
    using Reader = std::variant<TelemetryXmlReader, TelemetryBinaryReader>;

    static Reader readerOf(QIODevice& device, const QString& name, TelemetryReading reading);

    QString name_;
    qint64 size_;
    Reader reader_;
};

} // namespace vlk
