// SPDX-License-Identifier: MIT
//
// The steps of editing a text box, and the searches. They change the record and draw nothing.
#include <algorithm>

#include "../gui/text.hpp"
#include "textbox.hpp"

namespace {

// Whether the cursor can move. Brings one that the program moved back into the text.
bool hasCursor(KULTEXTBOX* box)
{
    if (!box || box->nLength < 0)
        return false;
    box->nCursorPos = std::clamp(box->nCursorPos, 0, box->nLength);
    return true;
}

bool isEditable(KULTEXTBOX* box)
{
    return hasCursor(box) && box->szText;
}

void moveRows(KULTEXTBOX* box, int nRows)
{
    if (!hasCursor(box) || box->nHeight <= 1)
        return;
    const long long width = std::max(kul::innerSize(box->nWidth, box->nBorder), 0);
    const long long place = box->nCursorPos + nRows * width;
    if (place >= 0 && place <= box->nLength)
        box->nCursorPos = static_cast<int>(place);
}

// Takes the character at a place out of the text.
void removeAt(KULTEXTBOX& box, int nPlace)
{
    std::memmove(box.szText + nPlace, box.szText + nPlace + 1,
                 static_cast<std::size_t>(box.nLength - nPlace - 1));
    box.szText[--box.nLength] = '\0';
}

} // namespace

void TextBoxGoHome(KULTEXTBOX* thisBox)
{
    if (hasCursor(thisBox))
        thisBox->nCursorPos = 0;
}

void TextBoxGoEnd(KULTEXTBOX* thisBox)
{
    if (hasCursor(thisBox))
        thisBox->nCursorPos = thisBox->nLength;
}

void TextBoxGoRight(KULTEXTBOX* thisBox)
{
    if (hasCursor(thisBox) && thisBox->nCursorPos < thisBox->nLength)
        ++thisBox->nCursorPos;
}

void TextBoxGoLeft(KULTEXTBOX* thisBox)
{
    if (hasCursor(thisBox) && thisBox->nCursorPos > 0)
        --thisBox->nCursorPos;
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
    if (thisBox->nCursorPos > 0)
        removeAt(*thisBox, --thisBox->nCursorPos);
    else
        thisBox->szText[thisBox->nLength] = '\0';
}

void TextBoxDelete(KULTEXTBOX* thisBox)
{
    if (!isEditable(thisBox))
        return;
    if (thisBox->nCursorPos == thisBox->nLength)
        TextBoxBackspace(thisBox);
    else
        removeAt(*thisBox, thisBox->nCursorPos);
}

void TextBoxCharacter(KULTEXTBOX* thisBox, int szKeystroke)
{
    if (!isEditable(thisBox) || thisBox->nCursorPos >= thisBox->nMaxLength)
        return;
    const char character = static_cast<char>(szKeystroke);
    const bool allowed = thisBox->szCharSet ? FindChar(character, thisBox->szCharSet) != -1
                                            : szKeystroke >= ' ' && szKeystroke <= 255;
    if (!allowed)
        return;
    thisBox->szText[thisBox->nCursorPos++] = character;
    if (thisBox->nCursorPos > thisBox->nLength)
        thisBox->szText[++thisBox->nLength] = '\0';
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
