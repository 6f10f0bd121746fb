// SPDX-License-Identifier: MIT
#include "output.hpp"

#include <cstring>
#include <new>

namespace kuldialog {

alignas(Buffer) static char outputRoom[sizeof(Buffer)];
Buffer& output = *new (outputRoom) Buffer;

namespace {

// What a shell would take for something else, outside of quotes.
constexpr char kSpecial[] = "#$&()*;<>?[\\]^`{|}~";

bool needsQuotes(const char* szText, char mark)
{
    return !*szText || szText[std::strcspn(szText, kSpecial)] ||
           szText[std::strcspn(szText, " \t\n\v\f\r")] || std::strchr(szText, mark);
}

bool needsBackslash(char character, char mark)
{
    if (character == mark || character == '\\' || character == '\n')
        return true;
    return mark == '"' && std::strchr(kSpecial, character);
}

void addQuoted(const char* szText, char mark)
{
    output.add(mark);
    for (; *szText; ++szText) {
        if (needsBackslash(*szText, mark))
            output.add('\\');
        output.add(*szText);
    }
    output.add(mark);
}

void addAsNeeded(const Settings& settings, const char* szText)
{
    const char mark = settings.is(kSingleQuoted) ? '\'' : '"';
    if (needsQuotes(szText, mark))
        addQuoted(szText, mark);
    else
        output.add(szText);
}

} // namespace

void beginAnswer(const Settings& settings)
{
    if (begun && !settings.is(kSeparateOutput))
        output.add(settings.text(kSeparateWidget, "\t"));
}

void addAnswer(const Settings& settings, const char* szText)
{
    if (settings.is(kQuoted))
        addAsNeeded(settings, szText);
    else
        output.add(szText);
}

void addToList(const Settings& settings, const char* szText, bool first, bool last)
{
    const char* szSeparator = settings.texts[kOutputSeparator];
    if (settings.is(kSeparateOutput)) {
        addAnswer(settings, szText);
        output.add(last ? "" : szSeparator ? szSeparator : "\n");
        return;
    }
    // A separator that was asked for stands before the first one, too.
    if (szSeparator || !first)
        output.add(szSeparator ? szSeparator : " ");
    if (name == kWhiptail) {
        output.add('"').add(szText).add('"');
    } else {
        addAsNeeded(settings, szText);
    }
}

void addHelp(const Settings& settings, const char* szText)
{
    output.add("HELP ");
    if (settings.is(kHelpStatus))
        addAsNeeded(settings, szText);
    else
        addAnswer(settings, szText);
}

void addLine(const Settings& settings, const char* szText)
{
    addAnswer(settings, szText);
    output.add(settings.text(kOutputSeparator, "\n"));
}

} // namespace kuldialog
