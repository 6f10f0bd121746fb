// SPDX-License-Identifier: MIT
//
// Text that grows. One that found no memory stays as it is and says so.
#ifndef KULDIALOG_BUFFER_HPP
#define KULDIALOG_BUFFER_HPP

#include <cstddef>

namespace kuldialog {

class Buffer {
public:
    Buffer() = default;
    Buffer(const Buffer&) = delete;
    Buffer& operator=(const Buffer&) = delete;
    ~Buffer();

    Buffer& add(const char* szText, std::size_t size);
    Buffer& add(const char* szText);
    Buffer& add(char character);
    Buffer& addNumber(int nNumber);

    // Adds what a descriptor gives, all of it. False where it cannot be read.
    bool addFrom(int nFd);
    // Writes all of it. False where that fails.
    bool writeTo(int nFd) const;

    void cutFront(std::size_t size);
    void clear() { size_ = 0; }

    const char* text() const { return size_ ? text_ : ""; }
    char* data() { return text_; }
    std::size_t size() const { return size_; }
    bool failed() const { return failed_; }

private:
    char* text_ = nullptr;
    std::size_t size_ = 0;
    std::size_t room_ = 0;
    bool failed_ = false;
};

// A copy of the first bytes of a text, to be freed; null without memory.
char* copyOf(const char* szText, std::size_t size);

} // namespace kuldialog

#endif
