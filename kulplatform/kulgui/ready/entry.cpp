// SPDX-License-Identifier: MIT
//
// Lines to fill in: a form of them, of which a single line is the simplest.
//
//     Host name  router________
//     Address    192.168.1.1___
//
// A form that is higher than its room shows the lines around the one that has the focus.
#include <algorithm>
#include <cstdio>
#include <cstring>

#include "frame.hpp"

namespace {

using kulready::BODY;
using kulready::Frame;
using kulready::ITEM;

constexpr int kGap = 2;
constexpr int kLineColumns = 24; // that a line would like to have
constexpr int kMostCharacters = 65535;

struct Form {
    KULFIELD* fields;
    int nFields;
    int nLabels; // columns of the labels and the gap behind them
    int nTop;    // first line in view
};

Form& formOf(const Frame& frame)
{
    return *static_cast<Form*>(frame.body);
}

const char* lineText(const Frame& frame, int nLine)
{
    const char* szText = kultextbox_getText(frame.chain(), BODY + nLine);
    return szText ? szText : "";
}

// Puts the lines in view where they belong and hides the others.
void arrange(const Frame& frame)
{
    const Form& form = formOf(frame);
    for (int i = 0; i < form.nFields; ++i) {
        const UI* ui = GetUIComponentByRef(frame.chain(), BODY + i);
        const DI* di = GetDIComponentByRef(frame.chain(), ITEM + i);
        if (!ui || !di || !ui->Pointer || !di->Pointer)
            continue;
        const int nRow = i - form.nTop;
        auto& line = *static_cast<KULTEXTBOX*>(ui->Pointer);
        auto& label = *static_cast<KULLABEL*>(di->Pointer);
        line.nY = label.nY = frame.bodyY() + nRow;
        line.nVisible = label.nVisible = nRow >= 0 && nRow < frame.bodyHeight() ? T : F;
    }
}

// Scrolls as little as it takes to have a line in view, beside the one that the user comes from.
void reveal(const Frame& frame, int nLine)
{
    Form& form = formOf(frame);
    const int nHeight = std::max(frame.bodyHeight(), 1);
    form.nTop = std::clamp(form.nTop, std::max(nLine - nHeight + 1, 0), nLine);
    arrange(frame);
}

// Arrows go from line to line; the line that the next key leads to comes into view.
int moveInForm(Frame& frame, int nKey)
{
    const Form& form = formOf(frame);
    const int nAt = Frame::focused() - BODY;
    const bool inLine = nAt >= 0 && nAt < form.nFields;
    if (inLine && (nKey == KS_UP || nKey == KS_DOWN))
        nKey = nKey == KS_UP ? KS_BACKTAB : KS_TAB;
    if (nKey == KS_TAB)
        reveal(frame, inLine ? std::min(nAt + 1, form.nFields - 1) : 0);
    else if (nKey == KS_BACKTAB)
        reveal(frame, inLine ? std::max(nAt - 1, 0) : form.nFields - 1);
    return nKey;
}

bool isGood(const KULFIELD& field, const char* szText)
{
    const bool fits = std::strlen(szText) < static_cast<std::size_t>(std::max(field.nSize, 1));
    return fits && (!field.onCheck || field.onCheck(szText) == 0);
}

// The first line that is not good keeps the user.
bool mayEnd(Frame& frame, int nButton)
{
    const Form& form = formOf(frame);
    for (int i = 0; nButton == 0 && i < form.nFields; ++i) {
        if (isGood(form.fields[i], lineText(frame, i)))
            continue;
        reveal(frame, i);
        kulgui_setFocus(frame.chain(), BODY + i);
        return false;
    }
    return true;
}

// False without memory.
bool addLine(const Frame& frame, int nLine)
{
    const Form& form = formOf(frame);
    const KULFIELD& field = form.fields[nLine];
    const int nChain = frame.chain();
    const int nRef = BODY + nLine;
    const char* szLabel = field.szLabel ? field.szLabel : "";
    kullabel_create(nChain, ITEM + nLine);
    const int nLabel = kullabel_config(nChain, ITEM + nLine, KUL_KEEP, KUL_KEEP, frame.bodyX(),
                                       frame.bodyY(), form.nLabels + 1, 1, LEFT, NOBORDER, szLabel);
    kultextbox_create(nChain, nRef);
    kultextbox_config(nChain, nRef, KUL_KEEP, KUL_KEEP, KUL_KEEP, frame.bodyX() + form.nLabels,
                      frame.bodyY(), std::max(frame.bodyWidth() - form.nLabels, 1), 1, NOBORDER,
                      field.nMask == MASK ? MASK : NOMASK, field.szCharSet, nullptr, nullptr,
                      nullptr);
    const int nLimit =
        kultextbox_setLimit(nChain, nRef, std::clamp(field.nSize, 1, kMostCharacters + 1) - 1);
    kultextbox_setText(nChain, nRef, field.szText ? field.szText : "");
    kultextbox_setCheck(nChain, nRef, field.onCheck);
    return nLabel == 0 && nLimit == 0;
}

int runForm(Frame& frame, Form& form)
{
    frame.body = &form;
    frame.want(form.nFields, std::min(form.nFields, 2), form.nLabels + kLineColumns);
    frame.addButtons(kulready::word(KULWORD_OK), kulready::word(KULWORD_CANCEL));
    if (!frame.open())
        return kulready::kUnusable;
    form.nLabels = std::min(form.nLabels, frame.bodyWidth() / 2);
    for (int i = 0; i < form.nFields; ++i) {
        if (!addLine(frame, i))
            return kulready::kUnusable;
    }
    reveal(frame, 0);
    frame.onKey = moveInForm;
    frame.mayEnd = mayEnd;
    const int nResult = frame.run();
    for (int i = 0; nResult == 0 && i < form.nFields; ++i) {
        const KULFIELD& field = form.fields[i];
        if (field.szText && field.nSize > 0)
            std::snprintf(field.szText, static_cast<std::size_t>(field.nSize), "%s",
                          lineText(frame, i));
    }
    return nResult == 1 ? kulready::kCancelled : nResult;
}

} // namespace

int kuldialog_form(const char* szTitle, const char* szText, KULFIELD* Fields, int nFields)
{
    Form form = {Fields,
                 Fields ? std::clamp(nFields, 0, static_cast<int>(kulready::BUTTONS) - BODY) : 0, 0,
                 0};
    for (int i = 0; i < form.nFields; ++i) {
        if (Fields[i].szLabel && *Fields[i].szLabel != '\0')
            form.nLabels = std::max(form.nLabels, kulready::columns(Fields[i].szLabel) + kGap);
    }
    return kulready::runReady(szTitle, szText, [&](Frame& frame) { return runForm(frame, form); });
}

int kuldialog_enter(const char* szTitle, const char* szText, char* szBuffer, int nSize, int nMask)
{
    KULFIELD line = {nullptr, szBuffer, nSize, nMask, nullptr, nullptr};
    return kuldialog_form(szTitle, szText, &line, 1);
}
