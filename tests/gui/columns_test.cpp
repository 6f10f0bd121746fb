// SPDX-License-Identifier: MIT
#include "gui/columns.hpp"

#include <gtest/gtest.h>

#include <clocale>
#include <string>

namespace {

// Each letter as its bytes, its columns and what is shown, in brackets.
std::wstring lettersOf(std::string_view text, int nWidth = 2)
{
    std::wstring letters;
    while (!text.empty()) {
        const kul::Letter letter = kul::nextLetter(text, nWidth);
        letters += std::to_wstring(letter.nBytes) + std::to_wstring(letter.nColumns) + letter.shown + L' ';
        text.remove_prefix(letter.nBytes);
    }
    return letters;
}

TEST(Columns, KnowLettersMarksAndWhatCannotBeShown)
{
    const struct {
        const char *locale, *text;
        std::wstring letters;
    } rows[] = {
        {"C.UTF-8", "aß中😀", L"11a 21ß 32中 42😀 "},
        {"C.UTF-8", "a\u0308u\u0308\u0301", L"31a\u0308 51u\u0308\u0301 "},
        {"C.UTF-8", "a\u0301\u0302\u0303\u0304\u0305b", L"111a\u0301\u0302\u0303\u0304 11b "},
        {"C.UTF-8", "\u0301a \u0301", L"21? 11a 11  21? "},
        {"C.UTF-8", "\n\u0301\x7f\u0301", L"11\n 21? 11\x7f 21? "},
        {"C.UTF-8", "\u200b\u0301", L"30 21? "},
        {"C.UTF-8", "\ufeffa\u00adb\u200d\u0301", L"30 31a 61b\u0301 "},
        {"C.UTF-8", "1\ufe0f\u20e3",
         L"71"
         "1\u20e3 "},
        {"C.UTF-8", "\u0085\u009b\u202e\u2066\u200f\u061c\u2028", L"21? 21? 31? 31? 31? 21? 31? "},
        {"C.UTF-8", "\xc2\xe4\xff\u0301\xed\xa0\x80\xe4\xb8", L"11? 11? 11? 21? 11? 11? 11? 11? 11? "},
        {"C", "a\xc3\x9f\x9b", L"11a 11? 11? 11? "},
    };
    for (const auto& row : rows) {
        ASSERT_NE(std::setlocale(LC_CTYPE, row.locale), nullptr);
        EXPECT_EQ(lettersOf(row.text), row.letters) << row.text;
    }
    ASSERT_NE(std::setlocale(LC_CTYPE, "C.UTF-8"), nullptr);
    EXPECT_EQ(lettersOf("中\u0301ß", 1), L"51? 21ß ") << "wider than the row";
    std::setlocale(LC_CTYPE, "C");
}

} // namespace
