// SPDX-License-Identifier: MIT
#include "gui/keys.hpp"

#include <gtest/gtest.h>

#include "kulgui.h"

namespace {

using namespace std::string_view_literals;

TEST(Keys, DecodesWhatOneReadGives)
{
    // clang-format off
    const struct {
        std::string_view bytes;
        int nKey;
    } rows[] = {
        {"\t", 9}, {"\r", 13}, {"\033", 27}, {" ", 32}, {"a", 97}, {"\177", 127}, {"\310", -56},
        {"\033[OP", 1000}, {"\033[[B", 1001}, {"\033[[C", 1002}, {"\033[[D", 1003},
        {"\033[[E", 1004}, {"\033[17~", 1005}, {"\033[18~", 1006}, {"\033[19~", 1007},
        {"\033[20~", 1008}, {"\033[21~", 1009}, {"\033[23~", 1010}, {"\033[24~", 1011},
        {"\033[2~", 1012}, {"\033[3~", 1013}, {"\033[H", 1014}, {"\033[5~", 1015},
        {"\033[6~", 1016}, {"\033[F", 1017}, {"\033[D", 1018}, {"\033[A", 1019},
        {"\033[B", 1020}, {"\033[C", 1021},
        // The first tail that occurs in it, anywhere behind an escape.
        {"\033[[A", 1019}, {"\033[A\033[B", 1019}, {"\033\033[D", 1018},
        {"\033OP", 0}, {"\033[1;5A", 0}, {"\033[?1;2", 0}, {"\033x", 0}, {"x[A", 0},
        {"", 0}, {"ab", 0}, {"\0"sv, 0}, {"a\0b"sv, 97},
    };
    // clang-format on
    for (const auto& row : rows)
        EXPECT_EQ(kul::decodeKey(row.bytes), row.nKey) << testing::PrintToString(row.bytes);
}

TEST(Keys, KnowsWhenASequenceIsOver)
{
    // The last byte of each, and no byte before it, ends the sequence.
    for (const std::string_view bytes :
         {"a", "\033[A", "\033[[A", "\033[OP", "\033OP", "\033[24~", "\033[?1;2c", "\033x", "\033\033[A",
          "\033]0;title\a", "\033P1$r\033\\", "\033[1;5A", "\033O\033[A", "\033O5P", "\033O1;5P", "\033Np"}) {
        kul::SequenceReader reader;
        for (const char byte : bytes) {
            EXPECT_TRUE(reader.isOpen()) << testing::PrintToString(bytes);
            reader.feed(static_cast<unsigned char>(byte));
        }
        EXPECT_FALSE(reader.isOpen()) << testing::PrintToString(bytes);
    }
}

} // namespace
