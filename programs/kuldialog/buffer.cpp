// SPDX-License-Identifier: MIT
#include "buffer.hpp"

#include <cstdlib>
#include <cstring>

#include <unistd.h>

namespace kuldialog {

void made(int nResult)
{
    if (nResult < 0)
        isWhole = false;
}

Buffer& Buffer::add(const char* szText, std::size_t size)
{
    made(Text::add(szText, size) - 1);
    return *this;
}

Buffer& Buffer::add(const char* szText)
{
    return add(szText, std::strlen(szText));
}

Buffer& Buffer::add(char character)
{
    return add(&character, 1);
}

Buffer& Buffer::addNumber(int nNumber)
{
    if (nNumber < 0)
        add('-');
    if (nNumber / 10 != 0)
        addNumber(std::abs(nNumber / 10));
    return add(static_cast<char>('0' + std::abs(nNumber % 10)));
}

bool Buffer::addFrom(int nFd)
{
    char part[1024];
    ssize_t got;
    while ((got = read(nFd, part, sizeof part)) > 0)
        add(part, static_cast<std::size_t>(got));
    return got == 0;
}

bool Buffer::writeTo(int nFd) const
{
    for (std::size_t done = 0; done < size();) {
        const ssize_t written = write(nFd, text() + done, size() - done);
        if (written <= 0)
            return false;
        done += static_cast<std::size_t>(written);
    }
    return true;
}

char* copyOf(const char* szText, std::size_t size)
{
    char* copy = static_cast<char*>(std::malloc(size + 1));
    if (copy) {
        std::memcpy(copy, szText, size);
        copy[size] = '\0';
    }
    return copy;
}

} // namespace kuldialog
