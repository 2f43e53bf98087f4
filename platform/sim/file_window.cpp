#include "platform/sim/file_window.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

bool FileWindow::Read(const Descriptor& file, off_t offset, void* piece, size_t size) {
    constexpr size_t kSize = size_t{1} << 16;
    const auto holds = [&] {
        const auto before = static_cast<size_t>(offset - begin_);
        return offset >= begin_ && before <= filled_ && size <= filled_ - before;
    };
    if (!holds()) {
        bytes_.resize(kSize);
        const ssize_t count = ReadAt(file.Get(), bytes_.data(), bytes_.size(), offset);
        begin_ = offset;
        filled_ = static_cast<size_t>(std::max<ssize_t>(count, 0));
        if (count >= 0 && !holds()) errno = EIO;
        if (!holds()) return false;
    }
    std::memcpy(piece, bytes_.data() + (offset - begin_), size);
    return true;
}
