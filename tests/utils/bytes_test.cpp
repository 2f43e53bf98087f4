// Tests of reading and writing within the bounds of a buffer.

#include "src/utils/bytes.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "src/utils/text.h"

namespace {

constexpr uint8_t kBytes[] = {0x34, 0x12, 0xFF, 0x80, 0x01};

struct FieldCase {
    const char* catches;
    size_t size, offset;
    uint32_t whole, padded;  // results of ReadField and ReadPaddedField
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
}

struct TextCase {
    const char* catches;
    std::string bytes;
    size_t offset;
    const char* text;
};

TEST(Bytes, ReadsStringsUpToTheirNulOrTheEnd) {
    const TextCase cases[] = {
        {"the string doesn't end at its NUL", std::string("ab\0cd", 5), 0, "ab"},
        {"the offset is ignored", std::string("ab\0cd\0", 6), 3, "cd"},
        {"a string without a NUL extends beyond the end", std::string("ab\0cd", 5), 3, "cd"},
        {"an empty string extends beyond its NUL", std::string("ab\0cd", 5), 2, ""},
        {"reads at the end", "ab", 2, ""},
        {"reads far after the end", "ab", SIZE_MAX, ""},
        {"reads where there are no bytes", "", 0, ""},
    };
    for (const TextCase& c : cases) {
        const Bytes bytes = {reinterpret_cast<const uint8_t*>(c.bytes.data()), c.bytes.size()};
        EXPECT_EQ(ReadText(bytes, c.offset), c.text) << c.catches;
    }
}

TEST(TextWriter, KeepsTheBeginningIfTheBufferIsFull) {
    char buffer[] = "#######";
    TextWriter out(buffer, 6);
    EXPECT_TRUE(out.Empty());
    out.Text({});
    out.Text("ab");
    EXPECT_STREQ(buffer, "ab");
    out.Number(712);
    EXPECT_FALSE(out.Truncated()) << "a string that fits exactly";
    out.Number(3);
    EXPECT_TRUE(out.Truncated());
    out.Letter('x');
    EXPECT_EQ(std::string(buffer, sizeof buffer), std::string("ab712\0#\0", 8));

    TextWriter none(buffer, 1);
    none.Letter('a');
    EXPECT_TRUE(none.Truncated() && none.Empty());
}

}  // namespace
