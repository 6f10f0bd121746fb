// SPDX-License-Identifier: MIT
#include "text.hpp"

#include <cstdlib>
#include <cstring>

namespace kuldialog {

namespace {

// How one of the programs reads a text; the other one knows "\n" alone.
struct Reading {
    bool expanding;      // "\n" is a newline
    bool tabsAreBlanks;  // one each
    bool linesAreBlanks; // newlines are
    bool single;         // blanks in a row are one
};

Reading reading(const Settings& settings, const char* szText)
{
    if (name == kWhiptail)
        return {true, false, false, false};
    if (!settings.is(kNoNlExpand) && std::strstr(szText, "\\n"))
        return {true, !settings.is(kNoCollapse), !settings.is(kCrWrap), false};
    if (settings.is(kTrim))
        return {false, true, !settings.is(kCrWrap), true};
    return {false, !settings.is(kNoCollapse), false, !settings.is(kNoCollapse)};
}

} // namespace

char* prepareText(const Settings& settings, const char* szText)
{
    const Reading how = reading(settings, szText);
    char* text = static_cast<char*>(std::malloc(std::strlen(szText) + 1));
    if (!text)
        return nullptr;
    char* to = text;
    for (const char* at = szText; *at; ++at) {
        char character = *at;
        if (how.expanding && character == '\\' && at[1] == 'n') {
            character = '\n';
            ++at;
            at += name != kWhiptail && at[1] == '\n'; // both together are one
        } else if (settings.is(kColors) && character == '\\' && at[1] == 'Z' && at[2]) {
            at += 2; // no colours inside of a text
            continue;
        } else if ((character == '\t' && how.tabsAreBlanks) ||
                   (character == '\n' && how.linesAreBlanks)) {
            character = ' ';
        }
        const bool again = how.single && character == ' ' && to > text && to[-1] == ' ';
        if (!again)
            *to++ = character;
    }
    *to = '\0';
    return text;
}

const char* textAt(const char* szTexts, int nPlace)
{
    for (; nPlace > 0; --nPlace)
        szTexts += std::strlen(szTexts) + 1;
    return szTexts;
}

const char* skip(const char* szText, const char* szCharacters)
{
    while (*szText && std::strchr(szCharacters, *szText))
        ++szText;
    return szText;
}

const char* lineEnd(const char* szText, const char* end)
{
    while (szText < end && *szText != '\n')
        ++szText;
    return szText;
}

bool begins(const char* szText, const char* szStart)
{
    while (*szStart && *szStart == *szText) {
        ++szStart;
        ++szText;
    }
    return !*szStart;
}

int letters(const char* szText, std::size_t size)
{
    int nLetters = 0;
    for (const char* at = szText; at && *at && at < szText + size; ++nLetters)
        at += kulgui_nextLetter(at, nullptr);
    return nLetters;
}

std::size_t bytesWithin(const char* szText, int nColumns)
{
    const char* at = szText;
    for (int nWide; *at;) {
        const int nBytes = kulgui_nextLetter(at, &nWide);
        if ((nColumns -= nWide) < 0)
            break;
        at += nBytes;
    }
    return static_cast<std::size_t>(at - szText);
}

} // namespace kuldialog
