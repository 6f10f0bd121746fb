// SPDX-License-Identifier: MIT
#include "gui/decoder.hpp"

#include <gtest/gtest.h>

#include <clocale>
#include <initializer_list>
#include <string>
#include <vector>

namespace {

using Keys = std::vector<int>;

// What a decoder gives for the reads, and for the time after them.
Keys decode(kul::KeyDecoder& decoder, std::initializer_list<std::string_view> reads)
{
    Keys keys;
    const auto take = [&] {
        while (const int nKey = decoder.next())
            keys.push_back(nKey);
    };
    for (std::string_view bytes : reads) {
        for (std::size_t taken = 0; !bytes.empty(); bytes.remove_prefix(taken)) {
            taken = decoder.feed(bytes);
            EXPECT_GT(taken, 0U);
            take();
        }
    }
    while (decoder.patience() > 0) {
        decoder.timePassed();
        take();
    }
    return keys;
}

constexpr int kLetter = KUL_CHARACTER + 0xE4;
constexpr int kEuro = KUL_CHARACTER + 0x20AC;
constexpr int kSmile = KUL_CHARACTER + 0x1F600;

struct Row {
    std::string bytes;
    Keys keys;
};

// What follows each row is a letter, or what the time makes of it.
const Row kRows[] = {
    // clang-format off
    {"", {}}, {"ab", {'a', 'b'}}, {"\r\n\t \b\177\003", {13, 13, 9, 32, 127, 127, 3}}, {std::string("a\0b", 3), {'a', 'b'}},
    {"\033[A\033[B\033[C\033[D\033[H\033[F", {KS_UP, KS_DOWN, KS_RIGHT, KS_LEFT, KS_HOME, KS_END}},
    {"\033OA\033OB\033OC\033OD\033OH\033OF", {KS_UP, KS_DOWN, KS_RIGHT, KS_LEFT, KS_HOME, KS_END}},
    {"\033[1~\033[2~\033[3~\033[4~\033[5~\033[6~\033[7~\033[8~",
     {KS_HOME, KS_INSERT, KS_DELETE, KS_END, KS_PAGEUP, KS_PAGEDOWN, KS_HOME, KS_END}},
    {"\033[[A\033[[B\033[[C\033[[D\033[[E", {KS_F1, KS_F2, KS_F3, KS_F4, KS_F5}},
    {"\033OP\033OQ\033OR\033OS\033[11~\033[14~\033[15~", {KS_F1, KS_F2, KS_F3, KS_F4, KS_F1, KS_F4, KS_F5}},
    {"\033[17~\033[18~\033[19~\033[20~\033[21~\033[23~\033[24~",
     {KS_F6, KS_F7, KS_F8, KS_F9, KS_F10, KS_F11, KS_F12}},
    {"\033[Z\033[1;2Z", {KS_BACKTAB, KS_BACKTAB}},
    {"\033OM\033Op\033Ok", {KS_ENTER, '0', '+'}},
    // with modifiers
    {"\033[1;5C\033[1;2P\033[15;5~\033[3;3~\033O5P\033O1;2S", {KS_RIGHT, KS_F1, KS_F5, KS_DELETE, KS_F1, KS_F4}},
    {"\033[a\033Od\033[3$\033[7^\033[8@", {KS_UP, KS_LEFT, KS_DELETE, KS_HOME, KS_END}},
    // Alt
    {"\033a\033Z\0337\033.\033\r\033\177", {KS_ALT + 'a', KS_ALT + 'Z', KS_ALT + '7', '.', 13, 127}},
    {"\033\033[A\033\033OA\033\t", {KS_UP, KS_UP, 9}},
    {"\033O\r\033P\r\033[\r", {KS_ALT + 'O', 13, KS_ALT + 'P', 13, '[', 13}},
    // no keys, whole
    {"\033[?1;2c\033[24;80R\033[1;5R\033[0n\033[8;24;80t\033[?1;2$y\033[4;2$y\033[>41;354;0c\033[?1;2S", {}},
    {"\033[I\033[O\033[M !!\033[<0;3;4M\033[<0;3;4m\033[32;12;12M\033[M\033[A", {}},
    {"\033]0;A\033[A", {KS_UP}}, {"\033]11;rgb:0/0/0\a\033]52;c;QQ==\033\\\033P1$r0m\033\\\033_Ga\033\\\033^x\033\\", {}},
    {"\033]0;" + std::string(3000, 'A') + "\a\033P" + std::string(3000, 'A') + "\033\\", {}},
    {"\033[25~\033[99~\033[97;5u\033[27;5;9~\033[0 q\033[1;1;1;1H\033[y\033[[Z", {KS_HOME}},
    {"\033[" + std::string(3000, '1') + "A\033O" + std::string(3000, '1') + "A", {}},
    // broken off
    {"\033[1;\r\033[2\033[B\033]0;t\030a", {13, KS_DOWN, 'a'}},
    // a paste
    {"\033[200~a\rb\nc\033[201~\r", {'a', kul::kPastedNewline, 'b', kul::kPastedNewline, 'c', 13}},
    {"\033[200~a\r\n\nb\033[201~\r\n", {'a', kul::kPastedNewline, kul::kPastedNewline, 'b', 13, 13}},
    // clang-format on
};

const Row kUtf8Rows[] = {
    {"\303\244\342\202\254\360\237\230\200", {kLetter, kEuro, kSmile}},
    {"\033\303\244", {kLetter}},
    {"K\344se\303\033[A\200\377\300\257\355\240\200\302\233A", {'K', 's', 'e', KS_UP, 'A'}},
    {"\033[M \303\244\302\240", {}},
};

const Row kBytesRows[] = {
    {"\233A\2335~\2171;2P\217B\2331;5C\233Z", {KS_UP, KS_PAGEUP, KS_F1, KS_DOWN, KS_RIGHT, KS_BACKTAB}},
    {"\220x\234\235A\a\237x\033\\\233?1c\204\377", {}},
};

void expectKeys(const Row& row)
{
    SCOPED_TRACE(testing::PrintToString(row.bytes).substr(0, 200));
    Keys keys = row.keys;
    keys.push_back('z');
    const std::string bytes = row.bytes + 'z';
    for (std::size_t cut = 0; cut <= bytes.size(); cut += bytes.size() > 1000 ? 97 : 1) {
        kul::KeyDecoder decoder;
        ASSERT_EQ(decode(decoder, {{bytes.data(), cut}, std::string_view(bytes).substr(cut)}), keys) << cut;
    }
}

TEST(Decoder, GivesTheSameKeysWhereverTheirBytesAreCut)
{
    for (const Row& row : kRows)
        expectKeys(row);
    for (const Row& row : kBytesRows)
        expectKeys(row);
    ASSERT_NE(std::setlocale(LC_CTYPE, "C.UTF-8"), nullptr);
    for (const Row& row : kRows)
        expectKeys(row);
    for (const Row& row : kUtf8Rows)
        expectKeys(row);
    std::setlocale(LC_CTYPE, "C");
}

TEST(Decoder, TakesWhatHasComeWhenNoMoreComes)
{
    const struct {
        const char* bytes;
        int nPatience;
        Keys keys;
    } rows[] = {
        {"\033", 25, {27}},
        {"\033\033", 25, {27, 27}},
        {"\033O", 25, {KS_ALT + 'O'}},
        {"\033P", 25, {KS_ALT + 'P'}},
        {"\033[", 25, {'['}},
        {"\033[1;5", 1000, {}},
        {"\033[[", 1000, {}},
        {"\033]0;title", 1000, {}},
        {"\033P1\033", 1000, {27}},
        {"\033[200~", 1000, {}},
        {"\033[200~\033", 25, {27}},
        {"\303", 0, {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.bytes));
        kul::KeyDecoder decoder;
        decoder.feed(row.bytes);
        EXPECT_EQ(decoder.next(), 0);
        EXPECT_EQ(decoder.patience(), row.nPatience);
        EXPECT_EQ(decode(decoder, {}), row.keys);
        EXPECT_EQ(decode(decoder, {"\r"}), Keys{13}) << "and begins anew";
    }
    kul::KeyDecoder decoder;
    decoder.feed("ab\033[1\033]0;");
    EXPECT_EQ(decoder.next(), 'a');
    decoder.clear();
    EXPECT_EQ(decode(decoder, {"x"}), Keys{'x'});
}

TEST(Decoder, KnowsTheKeysOfADescription)
{
    kul::KeyDecoder decoder;
    decoder.learn("\033\t", KS_BACKTAB);
    decoder.learn("\033[M", KS_F1); // elsewhere a report of the mouse
    decoder.learn("\013", KS_UP);
    decoder.learn("\001@\r", KS_F1);
    decoder.learn("\001@\rx", KS_F2);
    decoder.learn("\033[3~", KS_END);
    for (const char* szFixed : {"", "\b", "\177", "\r", "\033", "x"})
        decoder.learn(szFixed, KS_F12);
    decoder.learn(nullptr, KS_F12);
    EXPECT_EQ(decode(decoder, {"\033", "\t\033[MA\013\001", "@\r", "x\001@\rz\033[3", "~\b\177\r\033x"}),
              (Keys{KS_BACKTAB, KS_F1, 'A', KS_UP, KS_F2, KS_F1, 'z', KS_END, 127, 127, 13, KS_ALT + 'x'}));
    EXPECT_EQ(decode(decoder, {"\001"}), Keys{1});
    EXPECT_EQ(decode(decoder, {"\001@\r"}), Keys{KS_F1});
    decoder.forget();
    for (int i = 0; i < 100; ++i)
        decoder.learn("\001", KS_F1); // no more than there is room for
    EXPECT_EQ(decode(decoder, {"\001"}), Keys{KS_F1});
}

} // namespace
