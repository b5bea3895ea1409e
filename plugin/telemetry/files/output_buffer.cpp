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
    // A full disk takes a part first, and says why only when it is given the rest.
    for (auto left = static_cast<qint64>(size); !failed_ && left > 0;) {
        const qint64 written = device_.write(bytes, left);
        failed_ = written <= 0;
        bytes += written;
        left -= written;
    }
}

} // namespace vlk
