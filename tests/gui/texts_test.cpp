// SPDX-License-Identifier: MIT
//
// Texts that are no ASCII: how they wrap, and what each kind makes of them in edition 2.
#include <clocale>
#include <cstdlib>

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
    const struct {
        const char* szText;
        int nWidth;
        const char* rows;
    } table[] = {
        {"Ώρα και δίκτυο", 0, ""},
        {"Ώρα και δίκτυο", 4, "Ώρα |και |δίκτ|υο|"},
        {"Ώρα και δίκτυο", 5, "Ώρα|και|δίκτυ|ο|"},
        {"Ώρα και δίκτυο", 8, "Ώρα και |δίκτυο|"},
        {"Gro\u0308ße u\u0308ben", 1, "G|r|o\u0308|ß|e|u\u0308|b|e|n|"},
        {"Gro\u0308ße u\u0308ben", 6, "Gro\u0308ße |u\u0308ben|"},
        {"Gro\u0308ße u\u0308ben", 9, "Gro\u0308ße|u\u0308ben|"},
        {"网络 设置中", 1, "网|络|设|置|中|"},
        {"网络 设置中", 5, "网络 |设置|中|"},
        {"网络 设置中", 11, "网络|设置中|"},
        {"ตั้งค่า wifi", 3, "ตั้งค่|า|||fi|"}, // a word of ASCII alone is taken off from its front
        {"ตั้งค่า wifi", 5, "ตั้งค่า |wifi|"},
        {"😀 ok 👍🏽!", 2, "😀||k |👍|🏽|!|"},
        {"😀 ok 👍🏽!", 5, "😀|ok|👍🏽!|"},
        {"é\tb\x01\nü中c Donau\xff", 2, "é\t|b\x01|ü|中|c |Do|na|u\xff|"},
        {"é\tb\x01\nü中c Donau\xff", 6, "é\tb\x01|ü中c|Donau\xff|"},
    };
    const InColumns inColumns;
    for (const auto& row : table)
        EXPECT_EQ(wrapped(row.szText, row.nWidth), row.rows) << row.nWidth;
    kulgui_setEdition(1);
    EXPECT_EQ(wrapped("Gr\u00f6\u00dfe", 5), "|||\xb6\u00dfe|") << "by bytes";
    kulgui_setEdition(2);
    std::setlocale(LC_ALL, "C");
    EXPECT_EQ(wrapped("Gr\u00f6\u00dfe", 5), "|||\xb6\u00dfe|") << "by bytes";
}

TEST(Columns, OfRowsFitAndNothingIsLost)
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
        const char* at = text.c_str();
        kul::RowWalk walk(text.c_str(), nWidth);
        while (const auto row = walk.next()) {
            EXPECT_LE(kul::columnsOf(*row), nWidth) << text;
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
    kulstatbar_addElement(1, 23, 30, 30, "a网络设置 too long for this place", LEFT, nullptr); // beyond the edge
}

void addComponents()
{
    const struct {
        int nType, nX, nY;
        std::vector<const char*> texts;
    } rows[] = {
        {MENU, 0, 0, {"中文", "Hilfe\u009b", "Ende für immer und ewig, bis an den letzten Rand"}},
        {DYNMENU, 52, 10, {"äöü中文字", "\u202e中\u0301文abc"}},
        {TOOLBAR, 20, 7, {"确定", "ü"}},
        {BUTTON, 0, 0, {}},
        {CHECKBOX, 1, 10, {"网络设置中Ώρα και ημερομηνία"}},
        {OPTIONS, 20, 11, {"ä\xc2Ü\x01ß ü网络设置中"}},
        {DESCRMENU, 0, 0, {}},
    };
    for (int nRef = 1; nRef <= static_cast<int>(std::size(rows)); ++nRef) {
        const auto& row = rows[nRef - 1];
        addComponent(row.nType, nRef, row.nX, row.nY);
        for (const char* szText : row.texts)
            addElement(nRef, szText);
    }
    static_cast<KULMENU*>(GetUIComponentByRef(1, 1)->Pointer)->nY = 6;
    kulbutton_config(1, 4, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, 4, 7, 11, 1, "Größe", nullptr, nullptr, nullptr,
                     nullptr);
    auto& menu = *static_cast<KULDESCRMENU*>(GetUIComponentByRef(1, 7)->Pointer);
    menu.nX = 39;
    menu.nY = 7;
    kuldescrmenu_addElement(1, 7, 1, "é", "网络设置中Ώρα και", nullptr, nullptr);
}

TEST_F(KindsTest, LayTextsOutByColumns)
{
    makeDialog(1, 60, 18);
    GetChain(1)->Pointer->szTitle = " Größe 中 ";
    addBoxes();
    addComponents();
    kulgui_show(1);
    kulgui_update();
    // clang-format off
    const Rows expected = {
        "┌─────────────────────── Größe 中 ─────────────────────────┐",
        "│┌──────────┐ Ώρα   设置                                   │",
        "││  Größe   │ ┌────────────────────┐                       │",
        "││  über    │ │Ώρα και ημερομηνία  │                       │",
        "│└──────────┘ │                    │                       │",
        "│             └────────────────────┘                       │",
        "│ 中文   Hilfe?   Ende für immer und ewig, bis an den letzte",
        "│   ┌─────────┐     ┌────┐ ┌────┐      é                   │",
        "│   │  Größe  │     │确定│ │ ü  │      ┌──────────┐        │",
        "│   └─────────┘     └────┘ └────┘      │网络设置  │        │",
        "│┌────────────────┐                    │中Ώρα     │ ┌────┐ │",
        "││[ ] 网络设置中Ώρ│ (o) ä?Ü^ß          │και       │ │äöü │ │",
        "││    α και       │     ü网络设置中    │          │ │?中́ │ │",
        "││    ημερομηνία  │                    └──────────┘ │    │ │",
        "│└────────────────┘                                 │    │ │",
        "│                                                   └────┘ │",
        "│                                                          │",
        "网络        Größe    üben     a网络设置 too long for this pl",
    };
    // clang-format on
    EXPECT_EQ(picture(window(1), 0, 0, 18, 60), expected);
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
        EXPECT_EQ(picture(window(1), 0, 0, 2, 10), (Rows{row.row, ".........."})) << row.szText;
    }
    GetChain(1)->Pointer->szTitle = "Größe über alles";
    DlgBox(GetChain(1)->Pointer);
    EXPECT_EQ(picture(window(1), 0, 0, 1, 10), Rows{"┌Größe üb┐"});
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
