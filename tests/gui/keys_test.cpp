// SPDX-License-Identifier: MIT
#include "gui/keys.hpp"

#include <gtest/gtest.h>

#include <string>

#include "kulgui.h"

namespace {

TEST(Keys, DecodesWhatOneReadGives)
{
    const struct {
        std::string_view bytes;
        int nKey;
    } rows[] = {
        {"a", 97},
        {"\xc8", -56},
        {"\r", KS_ENTER},
        {"\x7f", KS_BACKSPACE},
        {"\033", KS_ESC},
        {"ab", 0},
        {"", 0},
        {std::string_view("\0", 1), 0},
        {std::string_view("a\0b", 3), 97},
        {"\033[A", KS_UP},
        {"\033[[A", KS_UP},
        {"\033[[B", KS_F2},
        {"\033[24~", KS_F12},
        {"\033[2~", KS_INSERT},
        {"\033[OP", KS_F1},
        {"\033OP", 0},
        {"\033[1;5A", 0},
        {"\033[?1;2", 0},
        {"\033[A\033[B", KS_UP},
        {"\033\033[D", KS_LEFT},
        {"\033x", 0},
    };
    for (const auto& row : rows)
        EXPECT_EQ(kul::decodeKey(row.bytes), row.nKey) << testing::PrintToString(row.bytes);
    for (int i = 0; i < KUL_KEYSTROKES; ++i)
        EXPECT_EQ(kul::decodeKey("\033" + std::string(szKeystrokes[i])), KS_F1 + i);
}

TEST(Keys, KnowsWhenASequenceIsOver)
{
    // The last byte of each, and no byte before it, ends the sequence.
    for (const std::string_view bytes :
         {"a", "\033[A", "\033[[A", "\033[OP", "\033OP", "\033[24~", "\033[?1;2c", "\033x",
          "\033\033[A", "\033]0;title\a", "\033P1$r\033\\", "\033[1;5A", "\033O\033[A", "\033O5P",
          "\033Np"}) {
        kul::SequenceReader reader;
        for (const char byte : bytes) {
            EXPECT_TRUE(reader.isOpen()) << testing::PrintToString(bytes);
            reader.feed(static_cast<unsigned char>(byte));
        }
        EXPECT_FALSE(reader.isOpen()) << testing::PrintToString(bytes);
    }
}

} // namespace
