// SPDX-License-Identifier: MIT
//
// What all items have in common, and boxes and lines, which have little else.
#include <climits>

#include "support/window_test.hpp"

namespace {

using namespace kultest;

using Call = int (*)(int nChain, int nRef);

template <auto Config>
int configured(int nChain, int nRef)
{
    return ask(Config, nChain, nRef);
}

// A kind with what the framework promises of each.
struct Kind {
    int nType, nTaken;
    Call create, config;
    int nConfigured; // nUpdate after that
    Call show, hide, update;
    bool (*refused)(int, int);
};

// clang-format off
const Kind kKinds[] = {
    {STATBAR, -10012, kulstatbar_create, configured<kulstatbar_config>, 1, kulstatbar_show, kulstatbar_hide, nullptr,
     refuse<kulstatbar_config, kulstatbar_addElement, kulstatbar_setElement, kulstatbar_getElement,
            kulstatbar_remElement>},
    {SCROLLBAR, -10016, kulscrollbar_create, configured<kulscrollbar_config>, 0, kulscrollbar_show, kulscrollbar_hide,
     nullptr, refuse<kulscrollbar_config, kulscrollbar_setPosition, kulscrollbar_setByPercent>},
    {PROGBAR, -10017, kulprogbar_create, configured<kulprogbar_config>, 0, kulprogbar_show, kulprogbar_hide, nullptr,
     refuse<kulprogbar_config, kulprogbar_setPosition, kulprogbar_setByPercent>},
    {DESCRFIELD, -10012, kuldescrfield_create, configured<kuldescrfield_config>, 1, nullptr, nullptr,
     kuldescrfield_update,
     refuse<kuldescrfield_config, kuldescrfield_addElement, kuldescrfield_setElement, kuldescrfield_selElement,
            kuldescrfield_remElement>},
    {BOX, -10013, kulbox_create, configured<kulbox_config>, 0, kulbox_show, kulbox_hide, kulbox_update,
     refuse<kulbox_config>},
    {LINE, -10014, kulline_create, configured<kulline_config>, 0, kulline_show, kulline_hide, kulline_update,
     refuse<kulline_config>},
    {LABEL, -10015, kullabel_create, configured<kullabel_config>, 0, kullabel_show, kullabel_hide, kullabel_update,
     refuse<kullabel_config, kullabel_setText>},
};
// clang-format on

class ItemTest : public Canvas<12, 6> {
protected:
    // One of each kind, its number one more than the kind's.
    static void makeAll()
    {
        for (const Kind& kind : kKinds) {
            ASSERT_EQ(kind.create(1, kind.nType + 1), 0) << kind.nType;
            ASSERT_EQ(kind.config(1, kind.nType + 1), 0) << kind.nType;
        }
    }
};

const std::string kNothing = "............|............|............|"
                             "............|............|............|";

TEST_F(ItemTest, EveryKindIsMadeSetShownAndHidden)
{
    makeAll();
    int nRef = 0;
    for (const Kind& kind : kKinds) {
        SCOPED_TRACE(kind.nType);
        DI* di = GetDIComponentByRef(1, ++nRef);
        ASSERT_TRUE(di && di->Pointer);
        EXPECT_EQ(di->nType, kind.nType);
        EXPECT_EQ(di->nUpdate, kind.nConfigured);
        EXPECT_EQ(kind.create(1, nRef), kind.nTaken);
        EXPECT_EQ(kind.create(9, nRef), -10009);
        for (const Call call : {kind.show, kind.hide}) {
            di->nUpdate = 1;
            EXPECT_EQ(call ? call(1, nRef) : -1, -1) << "as documented";
            EXPECT_EQ(di->nUpdate, call ? 0 : 1);
            EXPECT_EQ(call ? call(1, 99) : -1, -1);
        }
        di->nUpdate = -1;
        EXPECT_EQ((kind.update ? kind.update : UpdateDIComponent)(1, nRef), 0);
        EXPECT_EQ(di->nUpdate, 1);
        EXPECT_EQ((kind.update ? kind.update : UpdateDIComponent)(1, 99), -1);
    }
}

// Another kind's record must not be written to, and nothing may change.
TEST_F(ItemTest, EveryKindRefusesUnknownItemsAndOtherKinds)
{
    const auto isGauge = [](int nType) { return nType == SCROLLBAR || nType == PROGBAR; };
    makeAll();
    for (const Kind& kind : kKinds)
        GetDIComponentByRef(1, kind.nType + 1)->nUpdate = -1;
    for (const Kind& kind : kKinds) {
        for (int nType = -1; nType <= LABEL + 1; ++nType) {
            if (nType != kind.nType && !(isGauge(kind.nType) && isGauge(nType))) {
                EXPECT_TRUE(kind.refused(1, nType + 1)) << kind.nType << ", " << nType;
            }
        }
        EXPECT_TRUE(kind.refused(9, kind.nType + 1));
        EXPECT_EQ(GetDIComponentByRef(1, kind.nType + 1)->nUpdate, -1);
    }
    EXPECT_EQ(ConfigDIComponent(1, 99), -1);
    EXPECT_EQ(SetDIVisibility(1, 99, T), -1);
}

TEST_F(ItemTest, WithoutMemoryIsNotMadeOrHasNoRecord)
{
    for (const Kind& kind : kKinds) {
        SCOPED_TRACE(kind.nType);
        for (const int nGood : {0, 1}) {
            const FailingMemory failing(nGood);
            EXPECT_EQ(kind.create(1, kind.nType + 1), nGood == 0 ? -10011 : -1);
        }
        EXPECT_EQ(kind.config(1, kind.nType + 1), -1) << "it stays in the list";
        EXPECT_EQ(UpdateDIComponent(1, kind.nType + 1), -1);
    }
    EXPECT_EQ(drawn(), kNothing);
}

TEST_F(ItemTest, IsWipedUpToTheFirstWithoutRecord)
{
    DI list[3] = {{LABEL, 1, &list[1], nullptr, 0}, {BOX, 2, &list[2], nullptr, 0}, {LINE, 3, nullptr, nullptr, 0}};
    EXPECT_EQ(AttachLabelComponentToDI(&list[0]) + AttachLineComponentToDI(&list[2]), 0);
    EXPECT_EQ(WipeAllDIComponents(list), -1);
    EXPECT_EQ(list[0].Pointer, nullptr);
    EXPECT_NE(list[2].Pointer, nullptr);
    EXPECT_EQ(WipeAllDIComponents(&list[2]), 0);
    for (const int nType : {-1, LABEL + 1, INT_MIN, INT_MAX}) {
        list[2].nType = nType;
        EXPECT_EQ(AttachComponentToDI(&list[2], nType), -1);
        EXPECT_EQ(WipeAllDIComponents(&list[2]), -1);
    }
    EXPECT_EQ(WipeStatbarComponent(nullptr) + WipeDescrfieldComponent(nullptr), 0);
    EXPECT_EQ(WipeLabelComponent(nullptr) & WipeStatbarElements(nullptr) & WipeDescrfieldElements(nullptr), -1);
}

TEST_F(ItemTest, UpdatesOnlyWhatChanged)
{
    makeAll();
    kulbox_config(1, BOX + 1, RED_CYAN, 1, 1, 5, 3, BORDER);
    UpdateDisplayComponents(gui_);
    for (const Kind& kind : kKinds)
        EXPECT_EQ(GetDIComponentByRef(1, kind.nType + 1)->nUpdate, kind.nConfigured == 1 ? 1 : -1);
    clear();
    UpdateDisplayComponents(gui_);
    EXPECT_EQ(shades(0, 0, 6, 1), "-|-|-|-|-|-|");
    EXPECT_EQ(shades(1, 1, 1, 11), "-----------|");
    kulbox_show(1, BOX + 1);
    UpdateDisplayComponents(gui_);
    EXPECT_EQ(shades(1, 0, 3, 7), "-ccccc-|-ccccc-|-ccccc-|");
    ShowDisplayComponents(nullptr);
    UpdateDisplayComponents(nullptr);
}

TEST_F(ItemTest, DrawsBoxesAndLines)
{
    const std::tuple<int, int, int, const char*> rows[] = {
        // the style is the border or the ends
        {BOX, BORDER, 0, ".┌──┐..|.│  │..|.└──┘..|.......|"},
        {BOX, NOBORDER, 0, ".    ..|.    ..|.    ..|.......|"},
        {LINE, NOENDS, LATERAL, ".─────.|.......|.......|.......|"},
        {LINE, ENDS, 5, ".├──┤..|.......|.......|.......|"},
        {LINE, 7, VERTICAL, ".│.....|.│.....|.│.....|.│.....|"},
        {LINE, ENDS, VERTICAL, ".┬.....|.│.....|.│.....|.┴.....|"},
    };
    for (const auto& [nType, nStyle, nOrient, cells] : rows) {
        const Kind& kind = kKinds[nType];
        kind.create(1, kind.nType);
        EXPECT_EQ(nType == BOX ? kulbox_config(1, BOX, RED_CYAN, 1, 1, 4, 3, nStyle)
                               : kulline_config(1, LINE, RED_CYAN, 1, 1, 4, nStyle, nOrient),
                  0);
        clear();
        EXPECT_EQ(drawn(1, 0, 4, 7), cells);
        EXPECT_EQ(shades(1, 1, 1, 1), "c|");
        kind.hide(1, kind.nType);
        clear();
        EXPECT_EQ(drawn(), kNothing);
    }
    kulbox_config(1, BOX, KUL_KEEP, -5, -5, INT_MAX, INT_MAX, KUL_KEEP);
    kulline_config(1, LINE, KUL_KEEP, INT_MIN, INT_MAX, INT_MAX, KUL_KEEP, KUL_KEEP);
    EXPECT_EQ(drawn(5, 8, 1, 4), "    |");
    const auto& box = *static_cast<KULBOX*>(GetDIComponentByRef(1, BOX)->Pointer);
    const auto& line = *static_cast<KULLINE*>(GetDIComponentByRef(1, LINE)->Pointer);
    EXPECT_EQ((std::vector<int>{box.nColorSet, box.nBorder, line.nColorSet, line.nEnds, line.nOrient}),
              (std::vector<int>{RED_BLUE, BORDER, RED_BLUE, NOENDS, LATERAL}));
}

} // namespace
