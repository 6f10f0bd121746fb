// SPDX-License-Identifier: MIT
//
// A text to read, and a question.
#include <cstring>

#include "frame.hpp"

using kulready::Frame;

int kuldialog_tell(const char* szTitle, const char* szText)
{
    return kulready::runReady(szTitle, szText, [](Frame& frame) {
        frame.addButtons(kulready::word(KULWORD_OK), nullptr);
        return frame.open() ? frame.run() : kulready::kUnusable;
    });
}

int kuldialog_ask(const char* szTitle, const char* szText, const char* szButtons, int nDefault)
{
    return kulready::runReady(szTitle, szText, [=](Frame& frame) {
        if (!szButtons)
            frame.addButtons(kulready::word(KULWORD_YES), kulready::word(KULWORD_NO));
        for (const char* button = szButtons; button && *button != '\0';) {
            const std::size_t size = std::strcspn(button, "\n");
            frame.addButton(button, size);
            button += size + (button[size] == '\n');
        }
        frame.select(nDefault);
        return frame.open() ? frame.run() : kulready::kUnusable;
    });
}
