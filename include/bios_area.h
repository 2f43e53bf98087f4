// The BIOS area of physical memory: the last 64 KiB below 1 MiB.
#pragma once

#include <cstddef>

constexpr unsigned int kBiosArea = 0xF0000;  // physical address
constexpr unsigned int kBiosAreaSize = 0x10000;

// The maker's signature, in the bytes before the reset vector; no terminator.
constexpr char kRomSignature[] = "ZETRIX";
constexpr size_t kRomSignatureSize = sizeof kRomSignature - 1;
constexpr unsigned int kRomSignatureOffset = 0xFFEA;  // into the area
static_assert(kRomSignatureOffset + kRomSignatureSize == 0xFFF0, "the reset vector");
