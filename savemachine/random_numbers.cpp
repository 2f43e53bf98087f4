#include "savemachine/random_numbers.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "src/utils/descriptor.h"

unsigned RandomNumbers::Next() {
    constexpr char kSource[] = "/dev/urandom";
    if (next_ == numbers_.size()) {
        const Descriptor source(open(kSource, O_RDONLY | O_CLOEXEC));
        const size_t size = numbers_.size() * sizeof numbers_[0];
        if (!source || read(source.Get(), numbers_.data(), size) != static_cast<ssize_t>(size)) {
            throw std::system_error(errno, std::generic_category(), kSource);
        }
        next_ = 0;
    }
    return numbers_[next_++];
}
