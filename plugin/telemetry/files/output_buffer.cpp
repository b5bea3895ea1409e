#include "telemetry/files/output_buffer.h"

namespace vlk {

bool OutputBuffer::finish()
{
    write(bytes_.get(), used_);
    used_ = 0;
    return !failed_;
}

bool OutputBuffer::makeRoom(std::string_view text)
{
    finish();
    if (text.size() <= kCapacity)
        return true;
    write(text.data(), text.size());
    return false;
}

void OutputBuffer::write(const char* bytes, std::size_t size)
{
    const auto length = static_cast<qint64>(size);
    if (!failed_ && length > 0)
        failed_ = device_.write(bytes, length) != length;
}

} // namespace vlk
