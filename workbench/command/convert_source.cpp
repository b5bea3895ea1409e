#include "command/convert_source.h"

#include "command/system_reason.h"
#include "telemetry/files/binary_layout.h"
#include "telemetry/files/identity_text.h"

#include <cerrno>
#include <fcntl.h>

namespace workbench::command {

namespace {

// Handing a batch over costs what writing some ten records does; large records are written as much longer
// texts, of which several wait.
constexpr int kRecordsOfBatch = 4096;
constexpr std::size_t kBytesOfBatch = 256 << 10;

class FileSource : public RecordSource
{
public:
    FileSource(const std::vector<TelemetryInput>& inputs, SourceListener listener)
        : inputs_(inputs), listener_(std::move(listener))
    {
    }

    void rewind() override
    {
        close();
        at_ = 0;
        isSilent_ = true;
    }

    std::optional<RecordBatch> next() override
    {
        while (at_ < inputs_.size()) {
            if (std::optional<RecordBatch> batch = ofThisFile())
                return batch;
            close();
            ++at_;
        }
        return std::nullopt;
    }

private:
    void close()
    {
        reader_.reset();
        opened_.reset();
        isRead_ = false;
    }

    // By the bytes of its name, whatever encoding texts have now.
    bool open(const TelemetryInput& input)
    {
        if (input.device)
            return input.device->seek(0);
        opened_ = std::make_unique<QFile>();
        const int file = ::open(input.file.name.toLatin1().constData(), O_RDONLY | O_CLOEXEC);
        if (file >= 0)
            return opened_->open(file, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
        fault(input, errno);
        return false;
    }

    void fault(const TelemetryInput& input, int error) const
    {
        if (!isSilent_)
            listener_.fault(input.file, systemReason(error));
    }

    QFile& device(const TelemetryInput& input) const { return input.device ? *input.device : *opened_; }

    std::optional<RecordBatch> ofThisFile()
    {
        const TelemetryInput& input = inputs_[at_];
        if (!reader_) {
            if (!open(input))
                return std::nullopt;
            const QByteArray header = device(input).peek(vlk::binary::kHeaderBytes);
            tracker_ =
                QString::fromLocal8Bit(vlk::identityIn(vlk::bytesAt(header.constData(), header.size())));
            reader_ = std::make_unique<vlk::TelemetryReader>(device(input), input.file.name,
                                                             vlk::TelemetryReading::Salvage);
            origin_.reset();
        }
        vlk::TelemetryContents& contents = reader_->contents();
        std::size_t bytes = 0;
        while (!isRead_ && contents.records.size() < kRecordsOfBatch && bytes < kBytesOfBatch) {
            const int before = contents.records.size();
            isRead_ = !reader_->step();
            for (int record = before; record < contents.records.size(); ++record)
                bytes += contents.records.bytes(record).size();
            if (isRead_)
                finish(input);
            tellDamages(input, contents);
        }
        if (contents.records.empty())
            return std::nullopt;
        if (!origin_) {
            vlk::TelemetryOrigin origin = contents.origin;
            if (!isSilent_)
                listener_.origin(input.file, origin, tracker_);
            listener_.complete(input.file, origin);
            origin_ = std::make_shared<const vlk::TelemetryOrigin>(std::move(origin));
        }
        RecordBatch batch{origin_, std::move(contents.records), tracker_};
        contents.records = vlk::RecordStore();
        contents.records.setUtcOffset(batch.records.utcOffset());
        return batch;
    }

    void finish(const TelemetryInput& input)
    {
        reader_->finish();
        if (device(input).error() != QFileDevice::NoError)
            fault(input, EIO);
    }

    void tellDamages(const TelemetryInput& input, vlk::TelemetryContents& contents)
    {
        for (const vlk::FileDamage& damage : contents.damages) {
            if (!isSilent_)
                listener_.damage(input.file, damage, device(input).size());
        }
        contents.damages.clear();
    }

    const std::vector<TelemetryInput>& inputs_;
    SourceListener listener_;
    std::size_t at_ = 0;
    bool isSilent_ = false;
    std::unique_ptr<QFile> opened_; // the present file
    std::unique_ptr<vlk::TelemetryReader> reader_;
    bool isRead_ = false;                                // the present file, to its end
    std::shared_ptr<const vlk::TelemetryOrigin> origin_; // of the present file
    QString tracker_;                                    // that it tells
};

} // namespace

std::unique_ptr<RecordSource> recordsOf(const std::vector<TelemetryInput>& inputs, SourceListener listener)
{
    return std::make_unique<FileSource>(inputs, std::move(listener));
}

} // namespace workbench::command
