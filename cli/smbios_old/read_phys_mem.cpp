// How the tables are read: through a mapping of physical memory that lasts as long as the copying.
#include <cstdio>
#include <cstring>

#include "cli/smbios_old/smbios.h"
#include "src/utils/map_physical.h"

BOOL ReadPhysMem(unsigned int offset, unsigned int size, unsigned char* buffer) {
    auto* mapping = static_cast<unsigned char*>(zetMapPhys32UnCache(offset, size));
    if (mapping == nullptr) {
        std::fprintf(stderr, "smbios: ReadPhysMem: mmap FAILED\n");
        return FALSE;
    }
    std::memcpy(buffer, mapping, size);
    zetUnMapPhys32UnCache(mapping, size);
    return TRUE;
}
