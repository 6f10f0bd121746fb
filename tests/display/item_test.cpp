// SPDX-License-Identifier: MIT
//
// What all items have in common, and boxes and lines, which have little else.
#include <climits>
#include <cstdlib>

#include "support/window_test.hpp"

namespace {

using kultest::Rows;

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
     [](int c, int r) { return kulstatbar_config(c, r, RED_CYAN, nullptr); }, 1, kulstatbar_show,
     kulstatbar_hide, nullptr},
    {"scroll bar", SCROLLBAR, -10016, kulscrollbar_create,
     [](int c, int r) { return kulscrollbar_config(c, r, 1, 2, 3, 4, 5, 6, 7, LATERAL); }, 0,
     kulscrollbar_show, kulscrollbar_hide, nullptr},
    {"progress bar", PROGBAR, -10017, kulprogbar_create,
     [](int c, int r) { return kulprogbar_config(c, r, 1, 2, 3, 4, 5, 6, 7, LATERAL); }, 0,
     kulprogbar_show, kulprogbar_hide, nullptr},
    {"description field", DESCRFIELD, -10012, kuldescrfield_create,
     [](int c, int r) { return kuldescrfield_config(c, r, 1, 2, 3, 4, 5, 6, 7); }, 1, nullptr,
     nullptr, kuldescrfield_update},
    {"box", BOX, -10013, kulbox_create,
     [](int c, int r) { return kulbox_config(c, r, RED_CYAN, 1, 1, 5, 3, BORDER); }, 0, kulbox_show,
     kulbox_hide, kulbox_update},
    {"line", LINE, -10014, kulline_create,
     [](int c, int r) { return kulline_config(c, r, RED_CYAN, 1, 1, 5, ENDS, LATERAL); }, 0,
     kulline_show, kulline_hide, kulline_update},
    {"label", LABEL, -10015, kullabel_create,
     [](int c, int r) { return kullabel_config(c, r, 1, 2, 1, 1, 8, 3, LEFT, BORDER, "a"); }, 0,
     kullabel_show, kullabel_hide, kullabel_update},
};

class ItemTest : public kultest::WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        gui_ = makeDialog(1, 12, 6);
        kulgui_show(1);
    }

    void clear()
    {
        for (int row = 0; row < 6; ++row)
            mvwaddstr(gui_->winMain, row, 0, "............");
    }
    Rows drawn() { return kultest::picture(gui_->winMain, 0, 0, 6, 12); }

    GUI* gui_ = nullptr;
};

TEST_F(ItemTest, EveryKindIsMadeSetShownAndHidden)
{
    int nRef = 0;
    for (const Kind& kind : kKinds) {
        SCOPED_TRACE(kind.name);
        ++nRef;
        ASSERT_EQ(kind.create(1, nRef), 0);
        DI* di = GetDIComponentByRef(1, nRef);
        ASSERT_TRUE(di && di->Pointer);
        EXPECT_EQ(di->nType, kind.nType);
        EXPECT_EQ(kind.create(1, nRef), kind.nTaken);
        EXPECT_EQ(kind.create(9, nRef), -10009);
        EXPECT_EQ(kind.config(1, nRef), 0);
        EXPECT_EQ(di->nUpdate, kind.nConfigured);
        for (const Call call : {kind.show, kind.hide}) {
            if (!call)
                continue;
            di->nUpdate = 1;
            EXPECT_EQ(call(1, nRef), -1) << "as documented";
            EXPECT_EQ(di->nUpdate, 0);
            EXPECT_EQ(call(1, 99), -1);
        }
        EXPECT_EQ(UpdateDIComponent(1, nRef), 0);
        EXPECT_EQ(di->nUpdate, 1);
        if (kind.update) {
            di->nUpdate = -1;
            EXPECT_EQ(kind.update(1, nRef), 0);
            EXPECT_EQ(di->nUpdate, 1);
            EXPECT_EQ(kind.update(1, 99), -1);
        }
    }
}

// Another kind's record must not be written to, and nothing may change.
TEST_F(ItemTest, EveryKindRefusesUnknownItemsAndOtherKinds)
{
    const bool gauge[] = {false, true, true, false, false, false, false};
    for (const Kind& kind : kKinds)
        ASSERT_EQ(kind.create(1, kind.nType + 1), 0);
    for (const Kind& kind : kKinds) {
        EXPECT_EQ(kind.config(1, 99), -1) << kind.name;
        EXPECT_EQ(kind.config(9, 1), -1) << kind.name;
        for (const Kind& other : kKinds) {
            const bool related = gauge[kind.nType] && gauge[other.nType];
            DI* di = GetDIComponentByRef(1, other.nType + 1);
            di->nUpdate = -1;
            if (other.nType != kind.nType && !related) {
                EXPECT_EQ(kind.config(1, other.nType + 1), -1) << kind.name << ", " << other.name;
                EXPECT_EQ(di->nUpdate, -1);
            }
        }
    }
    for (int nRef = 0; nRef <= LABEL + 2; ++nRef) {
        if (nRef != STATBAR + 1) {
            EXPECT_EQ(kulstatbar_addElement(1, nRef, 0, 5, "text", LEFT, nullptr), -1);
            EXPECT_EQ(kulstatbar_setElement(1, nRef, 0, "text"), -1);
            EXPECT_EQ(kulstatbar_remElement(1, nRef), -1);
            EXPECT_EQ(kulstatbar_getElement(1, nRef, 0), nullptr);
        }
        if (nRef != DESCRFIELD + 1) {
            EXPECT_EQ(kuldescrfield_addElement(1, nRef, "text", "text"), -1);
            EXPECT_EQ(kuldescrfield_setElement(1, nRef, 0, "text", "text"), -1);
            EXPECT_EQ(kuldescrfield_remElement(1, nRef), -1);
            EXPECT_EQ(kuldescrfield_selElement(1, nRef, 0), -1);
        }
        if (nRef != SCROLLBAR + 1 && nRef != PROGBAR + 1) {
            EXPECT_EQ(kulscrollbar_setPosition(1, nRef, 1), -1);
            EXPECT_EQ(kulprogbar_setByPercent(1, nRef, 1), -1);
        }
        if (nRef != LABEL + 1) {
            EXPECT_EQ(kullabel_setText(1, nRef, "text"), -1);
        }
    }
    EXPECT_EQ(ConfigDIComponent(1, 99), -1);
    EXPECT_EQ(SetDIVisibility(1, 99, T), -1);
}

TEST_F(ItemTest, IsAttachedByKind)
{
    using Attach = int (*)(DI*);
    const Attach attach[] = {AttachStatbarComponentToDI, AttachScrollbarComponentToDI,
                             AttachProgbarComponentToDI, AttachDescrfieldComponentToDI,
                             AttachBoxComponentToDI,     AttachLineComponentToDI,
                             AttachLabelComponentToDI};
    for (int nType = 0; nType <= LABEL; ++nType) {
        DI di{nType, 1, nullptr, nullptr, 0};
        EXPECT_EQ(attach[nType](&di), 0);
        EXPECT_NE(di.Pointer, nullptr);
        EXPECT_EQ(WipeAllDIComponents(&di), 0) << nType << " without elements is freed as well";
        EXPECT_EQ(attach[nType](nullptr), -1);
        kultest::FailingMemory failing(0);
        EXPECT_EQ(attach[nType](&di), -1);
        EXPECT_EQ(kKinds[nType].create(1, 1), -10011);
    }
    for (const int nType : {-1, LABEL + 1, INT_MIN, INT_MAX}) {
        DI di{nType, 1, nullptr, nullptr, 0};
        EXPECT_EQ(AttachComponentToDI(&di, nType), -1);
        EXPECT_EQ(WipeAllDIComponents(&di), -1);
    }
    kultest::FailingMemory failing(1); // an item without record stays in the list
    EXPECT_EQ(kulbox_create(1, 1), -1);
    EXPECT_EQ(kulbox_config(1, 1, 1, 1, 1, 5, 3, BORDER), -1);
    EXPECT_EQ(UpdateDIComponent(1, 1), -1);
    ShowDisplayComponents(gui_);
}

TEST_F(ItemTest, IsWipedUpToTheFirstWithoutRecord)
{
    DI list[3] = {{LABEL, 1, &list[1], nullptr, 0},
                  {BOX, 2, &list[2], nullptr, 0},
                  {LINE, 3, nullptr, nullptr, 0}};
    AttachComponentToDI(&list[0], LABEL);
    AttachComponentToDI(&list[2], LINE);
    EXPECT_EQ(WipeAllDIComponents(list), -1);
    EXPECT_EQ(list[0].Pointer, nullptr);
    EXPECT_NE(list[2].Pointer, nullptr);
    EXPECT_EQ(WipeAllDIComponents(&list[2]), 0);
    EXPECT_EQ(WipeAllDIComponents(nullptr), -1);
    EXPECT_EQ(WipeStatbarComponent(nullptr), 0);
    EXPECT_EQ(WipeDescrfieldComponent(nullptr), 0);
    EXPECT_EQ(WipeScrollbarComponent(nullptr), -1);
    EXPECT_EQ(WipeProgbarComponent(nullptr), -1);
    EXPECT_EQ(WipeBoxComponent(nullptr), -1);
    EXPECT_EQ(WipeLineComponent(nullptr), -1);
    EXPECT_EQ(WipeLabelComponent(nullptr), -1);
    EXPECT_EQ(WipeStatbarElements(nullptr), -1);
    EXPECT_EQ(WipeDescrfieldElements(nullptr), -1);
}

TEST_F(ItemTest, UpdatesOnlyWhatChanged)
{
    for (const Kind& kind : kKinds)
        ASSERT_EQ(kind.create(1, kind.nType + 1) + kind.config(1, kind.nType + 1), 0);
    UpdateDisplayComponents(gui_);
    for (const Kind& kind : kKinds)
        EXPECT_EQ(GetDIComponentByRef(1, kind.nType + 1)->nUpdate, kind.nConfigured == 1 ? 1 : -1);
    clear();
    UpdateDisplayComponents(gui_);
    EXPECT_EQ(drawn(), Rows(6, "............"));
    kulbox_show(1, BOX + 1);
    UpdateDisplayComponents(gui_);
    EXPECT_EQ(drawn(), (Rows{"............", ".┌───┐......", ".│   │......", ".└───┘......",
                             "............", "............"}));
    ShowDisplayComponents(nullptr);
    UpdateDisplayComponents(nullptr);
}

TEST_F(ItemTest, DrawsBoxesAndLines)
{
    struct Row {
        int nType;
        int nStyle; // border or ends
        int nOrient;
        Rows rows; // from row 1 on
    };
    for (const Row& row : std::initializer_list<Row>{
             {BOX, BORDER, 0, {".┌──┐.......", ".│  │.......", ".└──┘......."}},
             {BOX, NOBORDER, 0, {".    .......", ".    .......", ".    ......."}},
             {LINE, NOENDS, LATERAL, {".─────......", "............", "............"}},
             {LINE, ENDS, 5, {".├──┤.......", "............", "............"}},
             {LINE, 7, VERTICAL, {".│..........", ".│..........", ".│.........."}},
             {LINE, ENDS, VERTICAL, {".┬..........", ".│..........", ".│.........."}},
         }) {
        const Kind& kind = kKinds[row.nType];
        kind.create(1, kind.nType);
        EXPECT_EQ(row.nType == BOX
                      ? kulbox_config(1, BOX, RED_CYAN, 1, 1, 4, 3, row.nStyle)
                      : kulline_config(1, LINE, RED_CYAN, 1, 1, 4, row.nStyle, row.nOrient),
                  0);
        clear();
        ShowDisplayComponents(gui_);
        EXPECT_EQ(kultest::picture(gui_->winMain, 1, 0, 3, 12), row.rows);
        EXPECT_EQ(kultest::cellOf(gui_->winMain, 1, 1).pair, RED_CYAN);
        kind.hide(1, kind.nType);
        clear();
        ShowDisplayComponents(gui_);
        EXPECT_EQ(drawn(), Rows(6, "............"));
    }
    kulbox_config(1, BOX, KUL_KEEP, -5, -5, INT_MAX, INT_MAX, KUL_KEEP);
    kulline_config(1, LINE, KUL_KEEP, INT_MIN, INT_MAX, INT_MAX, KUL_KEEP, KUL_KEEP);
    ShowDisplayComponents(gui_);
    EXPECT_EQ(drawn(), Rows(6, "            "));
    const auto& box = *static_cast<KULBOX*>(GetDIComponentByRef(1, BOX)->Pointer);
    const auto& line = *static_cast<KULLINE*>(GetDIComponentByRef(1, LINE)->Pointer);
    EXPECT_EQ(box.nColorSet, RED_BLUE);
    EXPECT_EQ(box.nBorder, BORDER);
    EXPECT_EQ(line.nColorSet, RED_BLUE);
    EXPECT_EQ(line.nEnds, NOENDS);
    EXPECT_EQ(line.nOrient, LATERAL);
}

} // namespace
