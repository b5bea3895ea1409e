#include "command/convert_source.h"

namespace workbench::command {

namespace {

constexpr int recordsOfBatch = 1024;

class FileSource : public RecordSource
{
public:
    FileSource(const std::vector<TelemetryInput>& inputs, TellDamage tellDamage,
               std::function<void(const File&, vlk::TelemetryOrigin&)> complete)
        : inputs_(inputs), tellDamage_(std::move(tellDamage)), complete_(std::move(complete))
    {
    }

    void rewind() override
    {
        reader_.reset();
        at_ = 0;
        isSilent_ = true;
    }

    std::optional<RecordBatch> next() override
    {
        while (at_ < inputs_.size()) {
            if (std::optional<RecordBatch> batch = ofThisFile())
                return batch;
            reader_.reset();
            ++at_;
        }
        return std::nullopt;
    }

private:
    std::optional<RecordBatch> ofThisFile()
    {
        const TelemetryInput& input = inputs_[at_];
        if (!reader_) {
            input.device->seek(0);
            reader_ =
                std::make_unique<vlk::TelemetryReader>(*input.device, input.file.name, vlk::Reading::salvage);
            origin_.reset();
        }
        vlk::TelemetryContents& contents = reader_->contents();
        bool isMore = true;
        while (isMore && contents.records.size() < recordsOfBatch) {
            isMore = reader_->step();
            tellDamages(input, contents);
        }
        if (!isMore) {
            reader_->finish();
            tellDamages(input, contents);
        }
        if (contents.records.empty())
            return std::nullopt;
        if (!origin_) {
            vlk::TelemetryOrigin origin = contents.origin;
            complete_(input.file, origin);
            origin_ = std::make_shared<const vlk::TelemetryOrigin>(std::move(origin));
        }
        RecordBatch batch{origin_, std::move(contents.records)};
        contents.records = vlk::RecordStore();
        contents.records.setUtcOffset(batch.records.utcOffset());
        return batch;
    }

    void tellDamages(const TelemetryInput& input, vlk::TelemetryContents& contents)
    {
        for (const vlk::FileDamage& damage : contents.damages) {
            if (!isSilent_)
                tellDamage_(input.file, damage, input.device->size());
        }
        contents.damages.clear();
    }

    const std::vector<TelemetryInput>& inputs_;
    TellDamage tellDamage_;
    std::function<void(const File&, vlk::TelemetryOrigin&)> complete_;
    std::size_t at_ = 0;
    bool isSilent_ = false;
    std::unique_ptr<vlk::TelemetryReader> reader_;
    std::shared_ptr<const vlk::TelemetryOrigin> origin_; // of the present file
};

} // namespace

std::unique_ptr<RecordSource>
recordsOf(const std::vector<TelemetryInput>& inputs, RecordSource::TellDamage tellDamage,
          std::function<void(const File& file, vlk::TelemetryOrigin& origin)> complete)
{
    return std::make_unique<FileSource>(inputs, std::move(tellDamage), std::move(complete));
}

} // namespace workbench::command
