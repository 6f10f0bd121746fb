// SPDX-License-Identifier: MIT
//
// Texts that are no ASCII: how they wrap, and what each kind makes of them in edition 2.
#include <climits>
#include <clocale>
#include <cstdlib>
#include <cwchar>

#include "gui/columns.hpp"
#include "gui/print.hpp"
#include "gui/text.hpp"
#include "support/window_test.hpp"

namespace {

using namespace kultest;

std::string wrapped(const char* szText, int nWidth)
{
    std::string rows;
    kul::RowWalk walk(szText, nWidth);
    while (const auto row = walk.next())
        rows += std::string(*row) + '|';
    return rows;
}

TEST(Columns, AreWhatTextsWrapBy)
{
    // clang-format off
    const struct {
        const char* szText;
        const char* rows[13]; // of each width
    } table[] = {
        {"Ώρα και δίκτυο", {
            "", "Ώ|ρ|α|κ|α|ι|δ|ί|κ|τ|υ|ο|", "Ώρ|α |κα|ι |δί|κτ|υο|", "Ώρα|και|δίκ|τυο|", "Ώρα |και |δίκτ|υο|",
            "Ώρα|και|δίκτυ|ο|", "Ώρα|και|δίκτυο|", "Ώρα|και|δίκτυο|", "Ώρα και |δίκτυο|", "Ώρα και|δίκτυο|",
            "Ώρα και|δίκτυο|", "Ώρα και|δίκτυο|", "Ώρα και|δίκτυο|"}},
        {"Gro\u0308ße u\u0308ben", {
            "", "G|r|o\u0308|ß|e|u\u0308|b|e|n|", "Gr|o\u0308ß|e |u\u0308b|en|", "Gro\u0308|ße |u\u0308be|n|",
            "Gro\u0308ß|e|u\u0308ben|", "Gro\u0308ße|u\u0308ben|", "Gro\u0308ße |u\u0308ben|", "Gro\u0308ße|u\u0308ben|",
            "Gro\u0308ße|u\u0308ben|", "Gro\u0308ße|u\u0308ben|", "Gro\u0308ße|u\u0308ben|", "Gro\u0308ße u\u0308ben|",
            "Gro\u0308ße u\u0308ben|"}},
        {"网络 设置中", {
            "", "网|络|设|置|中|", "网|络|设|置|中|", "网|络 |设|置|中|", "网络|设置|中|", "网络 |设置|中|",
            "网络 |设置中|", "网络|设置中|", "网络|设置中|", "网络|设置中|", "网络|设置中|", "网络|设置中|",
            "网络 设置中|"}},
        {"ตั้งค่า wifi", { // a word of ASCII alone is taken off from its front
            "", "ตั้|ง|ค่|า||||||", "ตั้ง|ค่า||||i|", "ตั้งค่|า|||fi|", "ตั้งค่า||ifi|", "ตั้งค่า |wifi|", "ตั้งค่า|wifi|",
            "ตั้งค่า|wifi|", "ตั้งค่า|wifi|", "ตั้งค่า|wifi|", "ตั้งค่า wifi|", "ตั้งค่า wifi|", "ตั้งค่า wifi|"}},
        {"😀 ok 👍🏽!", {
            "", "😀||| |👍|🏽|!|", "😀||k |👍|🏽|!|", "😀 |ok |👍|🏽!|", "😀|ok |👍🏽|!|", "😀|ok|👍🏽!|", "😀 ok |👍🏽!|",
            "😀 ok |👍🏽!|", "😀 ok|👍🏽!|", "😀 ok|👍🏽!|", "😀 ok|👍🏽!|", "😀 ok|👍🏽!|", "😀 ok 👍🏽!|"}},
        {"é\tb\x01\nü中c Donau\xff", {
            "", "é|\t|b|\x01|ü|中|c|D|o|n|a|u|\xff|", "é\t|b\x01|ü|中|c |Do|na|u\xff|", "é\tb|\x01|ü中|c|Don|au\xff|",
            "é\tb\x01|ü中c|Dona|u\xff|", "é\tb\x01|ü中c |Donau|\xff|", "é\tb\x01|ü中c|Donau\xff|",
            "é\tb\x01|ü中c|Donau\xff|", "é\tb\x01|ü中c|Donau\xff|", "é\tb\x01|ü中c|Donau\xff|", "é\tb\x01|ü中c|Donau\xff|",
            "é\tb\x01|ü中c|Donau\xff|", "é\tb\x01|ü中c Donau\xff|"}},
    };
    // clang-format on
    const InColumns inColumns;
    for (const auto& row : table) {
        for (int nWidth = 0; nWidth <= 12; ++nWidth)
            EXPECT_EQ(wrapped(row.szText, nWidth), row.rows[nWidth]) << nWidth;
    }
    kulgui_setEdition(1);
    EXPECT_EQ(wrapped("Gr\u00f6\u00dfe", 5), "|||\xb6\u00dfe|") << "by bytes";
    kulgui_setEdition(2);
    std::setlocale(LC_ALL, "C");
    EXPECT_EQ(wrapped("Gr\u00f6\u00dfe", 5), "|||\xb6\u00dfe|") << "by bytes";
}

// The columns of a text, counted another way: character by character.
int countColumns(const std::string& text)
{
    int nColumns = 0;
    bool letter = false;
    std::mbstate_t state{};
    for (std::size_t at = 0; at < text.size();) {
        wchar_t wide = 0;
        const std::size_t n = std::mbrtowc(&wide, &text[at], text.size() - at, &state);
        const bool valid = n <= text.size();
        const int nWidth = valid ? wcwidth(wide) : -1;
        if (valid && wide != 0x200B) {
            nColumns += nWidth > 0 ? nWidth : nWidth == 0 && letter ? 0 : 1;
            letter = nWidth > 0 && wide != L' ' ? true : letter && nWidth == 0;
        } else if (!valid) {
            ++nColumns;
            letter = false;
            state = {};
        }
        at += valid ? n : 1;
    }
    return nColumns;
}

TEST(Columns, OfRowsAreThoseOfTheTextAndNothingIsLost)
{
    const InColumns inColumns;
    const char* const parts[] = {"ä", "b", " ", "\u0301", "\u200b", "中", "😀", "\xe4", "\n", "\t", "é\u0301", "\u0085"};
    std::srand(3);
    for (int round = 0; round < 3000; ++round) {
        std::string text;
        for (int left = std::rand() % 24; left > 0; --left) {
            const char* const end = std::rand() % 2 ? "ö" : ""; // no long words of ASCII
            text += std::string(parts[std::rand() % 12]) + end;
        }
        const int nWidth = 2 + std::rand() % 9;
        EXPECT_EQ(kul::columnsOf(text), countColumns(text)) << text;
        const char* at = text.c_str();
        kul::RowWalk walk(text.c_str(), nWidth);
        while (const auto row = walk.next()) {
            EXPECT_LE(countColumns(std::string(*row)), nWidth) << text;
            if (row->data() != at) { // what ends a row is all that is not shown
                EXPECT_EQ(row->data(), at + 1) << text;
                EXPECT_TRUE(*at == ' ' || *at == '\n') << text;
            }
            at = row->data() + row->size();
        }
        EXPECT_EQ(at + (*at == ' ' || *at == '\n' ? 1 : 0), text.c_str() + text.size()) << text << nWidth;
    }
}

TEST(Columns, AreTheSpansOfLines)
{
    const InColumns inColumns;
    const struct {
        const char* szText;
        int nStart, nLength, nLast;
    } rows[] = {
        {"Größe ändern", 0, 8, 7},                           // behind the space
        {"Größe ändern", 0, 4, 5},                           // a word with a letter beyond ASCII breaks
        {"Größe ändern", 8, 6, 14},                          // or fills the line
        {"u\u0308ben", 0, 1, 2},                             // a letter keeps its mark
        {"网络 设置", 0, 3, 2},                              // half a letter is none
        {"网络 设置", 0, 0, -1},    {"Abcdefgh ä", 0, 4, 0}, // ASCII alone is as it was
        {"ä\nbcdefgh", 0, 4, 2},    {"äöü", 0, 9, 5},
    };
    for (const auto& row : rows)
        EXPECT_EQ(ReturnLineEnd(row.szText, row.nStart, row.nLength), row.nLast) << row.szText << row.nLength;
}

class KindsTest : public WindowTest {
    const InColumns inColumns_;
};

void addBoxes()
{
    kullabel_create(1, 21);
    kullabel_config(1, 21, KUL_KEEP, KUL_KEEP, 1, 1, 12, 4, CENTER, BORDER, "Größe über 中文字");
    kuldescrfield_create(1, 22);
    kuldescrfield_config(1, 22, KUL_KEEP, KUL_KEEP, 14, 1, 22, 22, 3);
    kuldescrfield_addElement(1, 22, "Ώρα", "Ώρα και ημερομηνία");
    kuldescrfield_addElement(1, 22, "设置", "");
    kulstatbar_create(1, 23);
    kulstatbar_config(1, 23, KUL_KEEP, nullptr);
    kulstatbar_addElement(1, 23, 0, 5, "网络设置", LEFT, nullptr); // half a letter is not shown
    kulstatbar_addElement(1, 23, 7, 10, "Größe", RIGHT, nullptr);
    kulstatbar_addElement(1, 23, 19, 9, "u\u0308ben", CENTER, nullptr);
    kulstatbar_addElement(1, 23, 30, 30, "a网络设置 too long", LEFT, nullptr); // beyond the edge
}

void addComponents()
{
    kulmenu_create(1, 1);
    kulmenu_config(1, 1, KUL_KEEP, KUL_KEEP, KUL_KEEP, nullptr, nullptr, nullptr, nullptr);
    static_cast<KULMENU*>(GetUIComponentByRef(1, 1)->Pointer)->nY = 6;
    for (const char* szText : {"中文", "Hilfe\u009b", "Ende für immer und ewig"})
        kulmenu_addElement(1, 1, szText, 1, nullptr, nullptr);
    kuldynmenu_create(1, 2);
    kuldynmenu_config(1, 2, KUL_KEEP, KUL_KEEP, KUL_KEEP, 1, 7, 7, 2, nullptr, nullptr, nullptr, nullptr);
    for (const char* szText : {"äöü中文字", "\u202e中\u0301文abc"})
        kuldynmenu_addElement(1, 2, szText, nullptr, nullptr, 1);
    kulbutton_create(1, 3);
    kulbutton_config(1, 3, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, 11, 7, 11, 1, "Größe", nullptr, nullptr, nullptr,
                     nullptr);
    kultoolbar_create(1, 4);
    kultoolbar_config(1, 4, KUL_KEEP, KUL_KEEP, KUL_KEEP, 23, 7, LATERAL, nullptr, nullptr, nullptr, nullptr);
    for (const char* szText : {"确定", "ü"})
        kultoolbar_addButton(1, 4, szText, 0, 1, nullptr, nullptr);
    kulcheckbox_create(1, 5);
    kulcheckbox_config(1, 5, KUL_KEEP, KUL_KEEP, KUL_KEEP, 1, 11, 12, 4, BORDER, nullptr, nullptr, nullptr, nullptr);
    kulcheckbox_addElement(1, 5, "网络设置中", 1, 1, nullptr, nullptr);
    kuloptions_create(1, 6);
    kuloptions_config(1, 6, KUL_KEEP, KUL_KEEP, KUL_KEEP, 14, 11, 12, 4, BORDER, 0, 0, nullptr, nullptr, nullptr,
                      nullptr);
    kuloptions_addElement(1, 6, "ä\xc2Ü\x01ß ü", 1, nullptr, nullptr);
    kuldescrmenu_create(1, 7);
    kuldescrmenu_config(1, 7, KUL_KEEP, KUL_KEEP, KUL_KEEP, 0, 0, 9, 9, 4, nullptr, nullptr, nullptr, nullptr);
    kuldescrmenu_addElement(1, 7, 1, "é", "网络设置", nullptr, nullptr);
    auto& menu = *static_cast<KULDESCRMENU*>(GetUIComponentByRef(1, 7)->Pointer);
    menu.nX = 27;
    menu.nY = 11;
}

TEST_F(KindsTest, LayTextsOutByColumns)
{
    makeDialog(1, 38, 18);
    GetChain(1)->Pointer->szTitle = " Größe 中 ";
    addBoxes();
    addComponents();
    kulgui_show(1);
    kulgui_update();
    // clang-format off
    const Rows expected = {
        "┌──────────── Größe 中 ──────────────┐",
        "│┌──────────┐ Ώρα   设置             │",
        "││  Größe   │ ┌────────────────────┐ │",
        "││  über    │ │Ώρα και ημερομηνία  │ │",
        "│└──────────┘ │                    │ │",
        "│             └────────────────────┘ │",
        "│ 中文   Hilfe?   Ende für immer und e",
        "│┌───────┐ ┌─────────┐ ┌────┐ ┌────┐ │",
        "││äöü中文│ │  Größe  │ │确定│ │ ü  │ │",
        "││?中́文ab│ └─────────┘ └────┘ └────┘ │",
        "│└───────┘                           │",
        "│┌──────────┐ ┌──────────┐ é         │",
        "││[X] 网络设│ │(o) ä?Ü^ß │ ┌───────┐ │",
        "││    置中  │ │    ü     │ │网络设 │ │",
        "│└──────────┘ └──────────┘ │置     │ │",
        "│                          │       │ │",
        "│                          └───────┘ │",
        "网络        Größe    üben     a网络设 ",
    };
    // clang-format on
    EXPECT_EQ(letters(window(1), 0, 0, 18, 38), expected);
}

TEST_F(KindsTest, CutWhatTheWindowCannotShow)
{
    const struct {
        int nX;
        const char* szText;
        const char* row; // of ten columns
    } rows[] = {
        {6, "Größe", "......Größ"},   {7, "中文字", ".......中."}, {-2, "Größe", "öße......."},
        {-3, "中文字", ".字......."}, {8, "a\x01", "........a^"},  {2, "a\nb", "..a.b....."},
        {9, "\tb", "......... "},
    };
    makeDialog(1, 10, 3);
    kulgui_show(1);
    for (const auto& row : rows) {
        for (const int y : {0, 1})
            mvwaddstr(window(1), y, 0, "..........");
        kul::print(window(1), 0, row.nX, row.szText);
        EXPECT_EQ(letters(window(1), 0, 0, 2, 10), (Rows{row.row, ".........."})) << row.szText;
    }
    GetChain(1)->Pointer->szTitle = "Größe über alles";
    DlgBox(GetChain(1)->Pointer);
    EXPECT_EQ(letters(window(1), 0, 0, 1, 10), Rows{"┌Größe üb┐"});
}

TEST_F(KindsTest, HoldColumnsNotBytes)
{
    makeDialog(1, 30, 9);
    kullabel_create(1, 1);
    kullabel_config(1, 1, KUL_KEEP, KUL_KEEP, 1, 1, 4, 1, LEFT, NOBORDER, "");
    const auto& label = *static_cast<KULLABEL*>(GetDIComponentByRef(1, 1)->Pointer);
    EXPECT_EQ(kullabel_setText(1, 1, "äöü中"), -1);
    EXPECT_EQ(kullabel_setText(1, 1, "äöüß") + kullabel_setText(1, 1, label.szText + 2), 0);
    EXPECT_STREQ(label.szText, "öüß");
    kulstatbar_create(1, 2);
    kulstatbar_config(1, 2, KUL_KEEP, nullptr);
    EXPECT_EQ(kulstatbar_addElement(1, 2, 0, 3, "äöüß", LEFT, nullptr), 0);
    EXPECT_STREQ(kulstatbar_getElement(1, 2, 0), "äöü");
    EXPECT_EQ(kulstatbar_setElement(1, 2, 0, "a中文"), 0);
    EXPECT_STREQ(kulstatbar_getElement(1, 2, 0), "a中");
    {
        const FailingMemory failing(0);
        EXPECT_EQ(kulstatbar_setElement(1, 2, 0, "äöü"), -1);
    }
    EXPECT_STREQ(kulstatbar_getElement(1, 2, 0), "a中");
    kuldescrfield_create(1, 3);
    kuldescrfield_config(1, 3, KUL_KEEP, KUL_KEEP, 1, 1, 9, 6, 3);
    EXPECT_EQ(kuldescrfield_addElement(1, 3, "ä", "中文字") + kuldescrfield_setElement(1, 3, 0, "öö", "äöü中"), -1);
    EXPECT_EQ(kuldescrfield_setElement(1, 3, 0, "öö", "中文"), 0);
    const auto& element = *static_cast<KULDESCRFIELD*>(GetDIComponentByRef(1, 3)->Pointer)->Element;
    EXPECT_EQ(std::string(element.szText) + element.szBoxText, "öö中文");
}

} // namespace
