#include "brantexport/output.h"

#include <cerrno>
#include <system_error>

#include "src/utils/standard_streams.h"

void WriteOutput(int output, std::string_view bytes) {
    if (!WriteAll(output, bytes)) throw std::system_error(errno, std::generic_category());
}
