// Tests of the replacements for private values.
#include "savemachine/replacements.h"

#include <gtest/gtest.h>

#include <set>

#include "tests/support/pattern.h"

namespace {

// Returns `text` with new replacements for its values.
std::string Replaced(std::string text) {
    Replacements().ReplaceTexts(text, {0, text.size() + 1});
    return text;
}

TEST(Replacements, HaveTheFormOfTheirTexts) {
    const std::string other_letter = "(?=.*[g-zG-Z])[^]*";
    const std::pair<std::string, std::string> cases[] = {
        {" 0z-9!\x7F\x80 a\tA\r~ ", " \\d[a-z]-\\d!\\?\\? [a-z]\t[A-Z]\r~ "},
        {"secret\t, secret,\vsecret", "([a-z]{6})\t, \\1,\v\\1"},
        // A text with 12 hexadecimal digits and no other letters may be a MAC address.
        {"09:09:AF:AF:af:af", "\\d\\d:\\d\\d:[A-F]{2}:[A-F]{2}:[a-f]{2}:[a-f]{2}"},
        {"aaaaaaaaaaa", other_letter},
        {"aaaaaaaaaaaaaG", other_letter},
        {"aaaaaaaaaaaaaZ", other_letter},
        {"aaaaaaaaaaaaag", other_letter},
        {"aaaaaaaaaaaaaz", other_letter},
    };
    for (const auto& [text, form] : cases) {
        const std::string replaced = Replaced(text);
        EXPECT_FALSE(MatchWhole(replaced, form).empty()) << text << " became " << replaced;
    }
}

TEST(Replacements, DifferFromTheirValuesAndFromEachOther) {
    const std::string values = "A,B,C,D,E,F,G,H,I,J,K,L,M,N,O,P,Q,R,S,T";
    for (int i = 0; i < 20; ++i) {
        const std::string replaced = Replaced(values);
        EXPECT_EQ(std::set<char>(replaced.begin(), replaced.end()).size(), 21U) << replaced;
        for (size_t at = 0; at < values.size(); at += 2) EXPECT_NE(replaced[at], values[at]) << replaced;
    }
}

// MAC addresses are locally administered and unicast, UUIDs have version 4.
TEST(Replacements, OfNumbersAreMarked) {
    Replacements replacements;
    for (char byte = 1; byte < 40; ++byte) {
        const std::string value(kUuidSize, byte);
        std::string mac = value, uuid = value;
        replacements.ReplaceMac(mac, 3);
        EXPECT_EQ(mac[3] & 3, 2);
        EXPECT_EQ(mac.substr(0, 3) + mac.substr(3 + kMacSize), value.substr(kMacSize));
        replacements.ReplaceUuid(uuid, 0);
        EXPECT_EQ(uuid[7] & 0xF0, 0x40);
        EXPECT_EQ(uuid[8] & 0xC0, 0x80);
    }
    for (const char unset : {'\0', '\xFF'}) {
        const std::string value(kUuidSize, unset);
        std::string kept = value;
        replacements.ReplaceMac(kept, 0);
        replacements.ReplaceUuid(kept, 0);
        EXPECT_EQ(kept, value);
    }
    std::string incomplete = "short";
    for (const size_t offset : {0, 6}) replacements.ReplaceMac(incomplete, offset);
    EXPECT_EQ(incomplete, "short");
}

}  // namespace
