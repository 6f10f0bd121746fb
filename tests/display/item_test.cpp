// SPDX-License-Identifier: MIT
//
// What all items have in common, and boxes and lines, which have little else.
#include <climits>

#include "support/window_test.hpp"

namespace {

using Call = int (*)(int nChain, int nRef);

// A kind with what the framework promises of each.
struct Kind {
    const char* name;
    int nType;
    int nTaken;
    Call create;
    Call config;     // with some sensible arguments
    int nConfigured; // nUpdate after that
    Call show;
    Call hide;
    Call update;
};

const Kind kKinds[] = {
    {"status bar", STATBAR, -10012, kulstatbar_create,
     [](int c, int r) { return kulstatbar_config(c, r, RED_CYAN, nullptr); }, 1, kulstatbar_show, kulstatbar_hide,
     nullptr},
    {"scroll bar", SCROLLBAR, -10016, kulscrollbar_create,
     [](int c, int r) { return kulscrollbar_config(c, r, 1, 2, 3, 4, 5, 6, 7, LATERAL); }, 0, kulscrollbar_show,
     kulscrollbar_hide, nullptr},
    {"progress bar", PROGBAR, -10017, kulprogbar_create,
     [](int c, int r) { return kulprogbar_config(c, r, 1, 2, 3, 4, 5, 6, 7, LATERAL); }, 0, kulprogbar_show,
     kulprogbar_hide, nullptr},
    {"description field", DESCRFIELD, -10012, kuldescrfield_create,
     [](int c, int r) { return kuldescrfield_config(c, r, 1, 2, 3, 4, 5, 6, 7); }, 1, nullptr, nullptr,
     kuldescrfield_update},
    {"box", BOX, -10013, kulbox_create, [](int c, int r) { return kulbox_config(c, r, RED_CYAN, 1, 1, 5, 3, BORDER); },
     0, kulbox_show, kulbox_hide, kulbox_update},
    {"line", LINE, -10014, kulline_create,
     [](int c, int r) { return kulline_config(c, r, RED_CYAN, 1, 1, 5, ENDS, LATERAL); }, 0, kulline_show, kulline_hide,
     kulline_update},
    {"label", LABEL, -10015, kullabel_create,
     [](int c, int r) { return kullabel_config(c, r, 1, 2, 1, 1, 8, 3, LEFT, BORDER, "a"); }, 0, kullabel_show,
     kullabel_hide, kullabel_update},
};

class ItemTest : public kultest::CanvasTest {
protected:
    ItemTest() : CanvasTest(12, 6) {}

    // One of each kind, its number one more than the kind's.
    static void makeAll()
    {
        for (const Kind& kind : kKinds) {
            ASSERT_EQ(kind.create(1, kind.nType + 1), 0) << kind.name;
            ASSERT_EQ(kind.config(1, kind.nType + 1), 0) << kind.name;
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
        SCOPED_TRACE(kind.name);
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
    for (const Kind& kind : kKinds) {
        EXPECT_EQ(kind.config(1, 99), -1) << kind.name;
        EXPECT_EQ(kind.config(9, 1), -1) << kind.name;
        for (const Kind& other : kKinds) {
            if (other.nType == kind.nType || (isGauge(kind.nType) && isGauge(other.nType)))
                continue;
            DI* di = GetDIComponentByRef(1, other.nType + 1);
            di->nUpdate = -1;
            EXPECT_EQ(kind.config(1, other.nType + 1), -1) << kind.name << ", " << other.name;
            EXPECT_EQ(di->nUpdate, -1);
        }
    }
    const struct {
        Call call;
        int nType;
    } calls[] = {
        {[](int c, int r) { return kulstatbar_addElement(c, r, 0, 5, "t", LEFT, nullptr); }, STATBAR},
        {[](int c, int r) { return kulstatbar_setElement(c, r, 0, "text"); }, STATBAR},
        {kulstatbar_remElement, STATBAR},
        {[](int c, int r) { return kuldescrfield_addElement(c, r, "t", "t"); }, DESCRFIELD},
        {[](int c, int r) { return kuldescrfield_setElement(c, r, 0, "t", "t"); }, DESCRFIELD},
        {[](int c, int r) { return kuldescrfield_selElement(c, r, 0); }, DESCRFIELD},
        {kuldescrfield_remElement, DESCRFIELD},
        {[](int c, int r) { return kulscrollbar_setPosition(c, r, 1); }, SCROLLBAR},
        {[](int c, int r) { return kullabel_setText(c, r, "text"); }, LABEL},
    };
    for (const auto& row : calls) {
        for (int nType = -1; nType <= LABEL + 1; ++nType) {
            if (nType != row.nType && !(isGauge(row.nType) && isGauge(nType))) {
                EXPECT_EQ(row.call(1, nType + 1), -1) << &row - calls << ' ' << nType;
            }
        }
    }
    EXPECT_EQ(ConfigDIComponent(1, 99), -1);
    EXPECT_EQ(SetDIVisibility(1, 99, T), -1);
}

TEST_F(ItemTest, WithoutMemoryIsNotMadeOrHasNoRecord)
{
    for (const Kind& kind : kKinds) {
        SCOPED_TRACE(kind.name);
        for (const int nGood : {0, 1}) {
            const kultest::FailingMemory failing(nGood);
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
    EXPECT_EQ(WipeLabelComponent(nullptr), -1);
}

TEST_F(ItemTest, UpdatesOnlyWhatChanged)
{
    makeAll();
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
    const struct {
        int nType, nStyle, nOrient; // the style is the border or the ends
        const char* cells;
    } rows[] = {
        {BOX, BORDER, 0, ".┌──┐..|.│  │..|.└──┘..|.......|"},
        {BOX, NOBORDER, 0, ".    ..|.    ..|.    ..|.......|"},
        {LINE, NOENDS, LATERAL, ".─────.|.......|.......|.......|"},
        {LINE, ENDS, 5, ".├──┤..|.......|.......|.......|"},
        {LINE, 7, VERTICAL, ".│.....|.│.....|.│.....|.│.....|"},
        {LINE, ENDS, VERTICAL, ".┬.....|.│.....|.│.....|.┴.....|"},
    };
    for (const auto& row : rows) {
        const Kind& kind = kKinds[row.nType];
        kind.create(1, kind.nType);
        EXPECT_EQ(row.nType == BOX ? kulbox_config(1, BOX, RED_CYAN, 1, 1, 4, 3, row.nStyle)
                                   : kulline_config(1, LINE, RED_CYAN, 1, 1, 4, row.nStyle, row.nOrient),
                  0);
        clear();
        EXPECT_EQ(drawn(1, 0, 4, 7), row.cells);
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
