// SPDX-License-Identifier: MIT
//
// Keys draw no more than what they change. That it is enough is looked at after each drawing of any
// of these tests; here are keys for all kinds without callbacks, after which all would be drawn.
#include <functional>
#include <random>
#include <string>

#include "support/window_test.hpp"

namespace {

using kultest::typeKeys;

constexpr int kSame = KUL_KEEP;

struct Kind {
    const char* name;
    void (*add)(int nRef, int nX, int nY);
};

std::string element(int i)
{
    return std::string(1, static_cast<char>('a' + i % 26)) + " element " + std::to_string(i);
}

void addList(int nRef, int nX, int nY, int nElements)
{
    kulcheckbox_create(1, nRef);
    kulcheckbox_config(1, nRef, kSame, kSame, kSame, nX, nY, 20, 8, BORDER, nullptr, nullptr, nullptr, nullptr);
    for (int i = 0; i < nElements; ++i)
        kulcheckbox_addElement(1, nRef, (element(i) + (i % 3 ? "" : " of two rows")).c_str(), 0, 1, nullptr, nullptr);
}

const Kind kKinds[] = {
    {"buttons",
     [](int nRef, int nX, int nY) {
         kulbutton_create(1, nRef);
         kulbutton_config(1, nRef, kSame, kSame, kSame, kSame, nX, nY, 8, 1, "OK", nullptr, nullptr, nullptr, nullptr);
     }},
    {"checks", [](int nRef, int nX, int nY) { addList(nRef, nX, nY, 4); }},
    {"checks, scrolling", [](int nRef, int nX, int nY) { addList(nRef, nX, nY, 9); }},
    {"options",
     [](int nRef, int nX, int nY) {
         kuloptions_create(1, nRef);
         kuloptions_config(1, nRef, kSame, kSame, kSame, nX, nY, 20, 8, NOBORDER, 0, 0, nullptr, nullptr, nullptr,
                           nullptr);
         for (int i = 0; i < 5; ++i)
             kuloptions_addElement(1, nRef, element(i).c_str(), i != 2, nullptr, nullptr);
     }},
    {"menu",
     [](int nRef, int, int) {
         kulmenu_create(1, nRef);
         kulmenu_config(1, nRef, kSame, kSame, kSame, nullptr, nullptr, nullptr, nullptr);
         for (int i = 0; i < 3; ++i)
             kulmenu_addElement(1, nRef, element(i).c_str(), 1, nullptr, nullptr);
     }},
    {"dynamic menu",
     [](int nRef, int nX, int nY) {
         kuldynmenu_create(1, nRef);
         kuldynmenu_config(1, nRef, kSame, kSame, kSame, nX, nY, 12, 4, nullptr, nullptr, nullptr, nullptr);
         for (int i = 0; i < 3 + nRef % 2 * 3; ++i)
             kuldynmenu_addElement(1, nRef, element(i).c_str(), nullptr, nullptr, 1);
     }},
    {"description menu",
     [](int nRef, int, int) {
         kuldescrmenu_create(1, nRef);
         kuldescrmenu_config(1, nRef, kSame, kSame, kSame, kSame, kSame, 30, 20, 8, nullptr, nullptr, nullptr, nullptr);
         for (int i = 0; i < 3; ++i)
             kuldescrmenu_addElement(1, nRef, 1, element(i).c_str(), "what it means\nand more", nullptr, nullptr);
     }},
    {"toolbar",
     [](int nRef, int nX, int nY) {
         kultoolbar_create(1, nRef);
         kultoolbar_config(1, nRef, kSame, kSame, kSame, nX, nY, nRef % 2 ? LATERAL : VERTICAL, nullptr, nullptr,
                           nullptr, nullptr);
         for (int i = 0; i < 3; ++i)
             kultoolbar_addButton(1, nRef, "Go", 0, 1, nullptr, nullptr);
     }},
    {"text boxes",
     [](int nRef, int nX, int nY) {
         kultextbox_create(1, nRef);
         kultextbox_config(1, nRef, kSame, kSame, kSame, nX, nY, 12, 4, BORDER, NOMASK, nullptr, nullptr, nullptr,
                           nullptr);
     }},
};

class PartsTest : public kultest::WindowTest, public ::testing::WithParamInterface<int> {
protected:
    void SetUp() override
    {
        ASSERT_EQ(kulgui_setEdition(GetParam()), 0);
        WindowTest::SetUp();
    }
    void TearDown() override
    {
        WindowTest::TearDown();
        kulgui_setEdition(1);
    }
};

// Two of a kind, one over the other in part, a text that lies across both, and keys at random.
TEST_P(PartsTest, AreEnough)
{
    constexpr int kKeys[] = {KS_UP,   KS_DOWN, KS_LEFT,   KS_RIGHT, KS_DOWN, KS_RIGHT, KS_ENTER,    KS_SPACE,
                             KS_HOME, KS_END,  KS_PAGEUP, 'x',      'b',     KS_TAB,   KS_BACKSPACE};
    std::mt19937 numbers(1);
    for (const Kind& kind : kKinds) {
        for (const int nY : {1, 4}) {
            SCOPED_TRACE(std::string(kind.name) + ' ' + std::to_string(nY));
            makeDialog(1);
            kind.add(1, 2, 1);
            kind.add(2, 8, nY);
            kullabel_create(1, 9);
            kullabel_config(1, 9, kSame, kSame, 4, 3, 30, 2, LEFT, NOBORDER, "a text that lies\nacross both");
            kulgui_setTabbing(1, T);
            std::vector<int> keys(60);
            for (int& nKey : keys)
                nKey = kKeys[numbers() % std::size(kKeys)];
            typeKeys(keys);
            kulgui_exec(1);
            kulgui_destroy(1);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Editions, PartsTest, ::testing::Values(1, 2));

} // namespace
