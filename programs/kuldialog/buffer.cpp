// SPDX-License-Identifier: MIT
#include "buffer.hpp"

#include <cstdlib>
#include <cstring>

#include <unistd.h>

namespace kuldialog {

Buffer::~Buffer()
{
    std::free(text_);
}

Buffer& Buffer::add(const char* szText, std::size_t size)
{
    if (size_ + size >= room_) {
        const std::size_t room = 2 * (size_ + size) + 64;
        char* grown = static_cast<char*>(std::realloc(text_, room));
        if (!grown) {
            failed_ = true;
            return *this;
        }
        text_ = grown;
        room_ = room;
    }
    std::memcpy(text_ + size_, szText, size);
    size_ += size;
    text_[size_] = '\0';
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
    ssize_t size;
    while ((size = read(nFd, part, sizeof part)) > 0)
        add(part, static_cast<std::size_t>(size));
    return size == 0;
}

bool Buffer::writeTo(int nFd) const
{
    for (std::size_t done = 0; done < size_;) {
        const ssize_t written = write(nFd, text_ + done, size_ - done);
        if (written <= 0)
            return false;
        done += static_cast<std::size_t>(written);
    }
    return true;
}

void Buffer::cutFront(std::size_t size)
{
    size_ -= size;
    std::memmove(text_, text_ + size, size_ + 1);
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
