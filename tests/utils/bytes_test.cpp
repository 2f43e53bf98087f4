// Tests that reads stay within the bounds of a buffer.

#include "src/utils/bytes.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace {

constexpr uint8_t kBytes[] = {0x34, 0x12, 0xFF, 0x80, 0x01};

struct FieldCase {
    const char* catches;
    size_t size, offset;
    uint32_t whole, padded;  // expected results of ReadField and ReadPaddedField
};

TEST(Bytes, ReadsFieldsWithinTheirBounds) {
    const FieldCase cases[] = {
        {"the field is read as big-endian", 5, 0, 0x80FF1234, 0x80FF1234},
        {"the last whole field is rejected", 5, 1, 0x0180FF12, 0x0180FF12},
        {"a byte after the end is read", 5, 2, 0xEEEEEEEE, 0x000180FF},
        {"a field with one byte is read as whole", 5, 4, 0xEEEEEEEE, 0x00000001},
        {"a field at the end is read", 5, 5, 0xEEEEEEEE, 0},
        {"a field after the end is read", 5, 6, 0xEEEEEEEE, 0},
        {"a field of no bytes is read", 0, 0, 0xEEEEEEEE, 0},
        {"offset + 4 wraps to 0", 5, SIZE_MAX - 3, 0xEEEEEEEE, 0},
    };
    for (const FieldCase& c : cases) {
        EXPECT_EQ(ReadField<uint32_t>({kBytes, c.size}, c.offset, 0xEEEEEEEE), c.whole) << c.catches;
        EXPECT_EQ(ReadPaddedField<uint32_t>({kBytes, c.size}, c.offset), c.padded) << c.catches;
    }
    EXPECT_EQ(ReadPaddedField<uint16_t>({kBytes, 5}, 2), 0x80FF);
    EXPECT_EQ(ReadPaddedField<uint8_t>({kBytes, 5}, 3), 0x80);
    EXPECT_EQ(ReadText({kBytes, 5}, SIZE_MAX), "") << "a string after the end is read";
}

}  // namespace
