// SPDX-License-Identifier: MIT
//
// A file that a test writes, in a directory of its own; both are gone afterwards.
#ifndef KUL_TESTS_TEMPORARY_FILE_HPP
#define KUL_TESTS_TEMPORARY_FILE_HPP

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace kultest {

class TemporaryFile {
public:
    explicit TemporaryFile(const std::string& text = "")
    {
        std::string pattern = ::testing::TempDir() + "kulgui-XXXXXX";
        EXPECT_NE(mkdtemp(pattern.data()), nullptr);
        directory_ = pattern;
        write(text);
    }
    ~TemporaryFile() { std::filesystem::remove_all(directory_); }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    std::string path() const { return directory_ + "/file"; }
    const std::string& directory() const { return directory_; }

    void write(const std::string& text) const { put(text, std::ios::trunc); }
    void append(const std::string& text) const { put(text, std::ios::app); }

    // Another file of the same name.
    void replace(const std::string& text) const
    {
        std::filesystem::rename(path(), path() + ".old");
        write(text);
    }

private:
    void put(const std::string& text, std::ios::openmode how) const
    {
        std::ofstream file(path(), std::ios::binary | how);
        file << text;
        ASSERT_TRUE(file.flush());
    }

    std::string directory_;
};

} // namespace kultest

#endif
