// SPDX-License-Identifier: MIT
//
// The steps of editing a text box, and the searches. They change the record and draw nothing.
#include "../clamp.hpp"
#include "../gui/text.hpp"
#include "textbox.hpp"

namespace {

bool isEditable(KULTEXTBOX* box)
{
    return kul::hasCursor(box) && box->szText;
}

void moveRows(KULTEXTBOX* box, int nRows)
{
    if (kul::hasCursor(box))
        box->nCursorPos = kul::textManners().moved(*box, nRows);
}

} // namespace

namespace kul {

bool hasCursor(KULTEXTBOX* box)
{
    if (!box || box->nLength < 0)
        return false;
    const TextState* state = stateOf(*box);
    if (state && state->szOwn == box->szText)
        box->nLength = std::min(box->nLength, state->nRoom);
    box->nCursorPos = kul::clamp(box->nCursorPos, 0, box->nLength);
    return true;
}

void replaceText(KULTEXTBOX& box, int nFrom, int nTo, std::string_view bytes)
{
    const int nEnd = nFrom + static_cast<int>(bytes.size());
    const int nRest = box.nLength - nTo;
    std::memmove(box.szText + nEnd, box.szText + nTo, static_cast<std::size_t>(nRest));
    std::copy(bytes.begin(), bytes.end(), box.szText + nFrom);
    // All behind the new end that was text.
    const int nOver = std::max(nTo - nEnd, 0);
    explicit_bzero(box.szText + nEnd + nRest, static_cast<std::size_t>(nOver) + 1);
    box.nLength = nEnd + nRest;
    box.nCursorPos = nEnd;
    if (TextState* state = stateOf(box))
        state->nLetters = -1;
}

} // namespace kul

void TextBoxGoHome(KULTEXTBOX* thisBox)
{
    if (kul::hasCursor(thisBox))
        thisBox->nCursorPos = 0;
}

void TextBoxGoEnd(KULTEXTBOX* thisBox)
{
    if (kul::hasCursor(thisBox))
        thisBox->nCursorPos = thisBox->nLength;
}

void TextBoxGoRight(KULTEXTBOX* thisBox)
{
    if (kul::hasCursor(thisBox) && thisBox->nCursorPos < thisBox->nLength)
        thisBox->nCursorPos = kul::textManners().after(*thisBox);
}

void TextBoxGoLeft(KULTEXTBOX* thisBox)
{
    if (kul::hasCursor(thisBox) && thisBox->nCursorPos > 0)
        thisBox->nCursorPos = kul::textManners().before(*thisBox);
}

void TextBoxGoUp(KULTEXTBOX* thisBox)
{
    moveRows(thisBox, -1);
}

void TextBoxGoDown(KULTEXTBOX* thisBox)
{
    moveRows(thisBox, 1);
}

void TextBoxBackspace(KULTEXTBOX* thisBox)
{
    if (!isEditable(thisBox))
        return;
    const int nTo = thisBox->nCursorPos;
    kul::replaceText(*thisBox, nTo > 0 ? kul::textManners().before(*thisBox) : 0, nTo, {});
}

void TextBoxDelete(KULTEXTBOX* thisBox)
{
    if (!isEditable(thisBox))
        return;
    const int nFrom = thisBox->nCursorPos;
    if (nFrom == thisBox->nLength)
        TextBoxBackspace(thisBox);
    else
        kul::replaceText(*thisBox, nFrom, kul::textManners().after(*thisBox), {});
}

void TextBoxCharacter(KULTEXTBOX* thisBox, int szKeystroke)
{
    if (isEditable(thisBox))
        kul::textManners().type(*thisBox, szKeystroke);
}

int FindChar(char cOneChar, const char* szWholeString)
{
    const std::string_view text = kul::viewOf(szWholeString);
    const std::size_t place = text.find(cOneChar);
    return place != text.npos ? static_cast<int>(place) : -1;
}

// A character that breaks a match is not tried as the start of another one.
int FindString(const char* szStr, const char* szIn)
{
    const std::string_view wanted = kul::viewOf(szStr);
    const std::string_view text = kul::viewOf(szIn);
    if (!szStr || !szIn || wanted.size() > text.size())
        return -1;
    std::size_t matched = 0;
    for (std::size_t i = 0; i < text.size() && matched < wanted.size(); ++i) {
        matched = text.data()[i] == wanted.data()[matched] ? matched + 1 : 0;
        if (matched == wanted.size())
            return static_cast<int>(i + 1 - matched);
    }
    return wanted.empty() ? 0 : -1;
}
