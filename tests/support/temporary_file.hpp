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

    void append(const std::string& text) const { write(text, std::ios::app); }
    void write(const std::string& text, std::ios::openmode how = std::ios::trunc) const
    {
        std::ofstream file(path(), std::ios::binary | how);
        file << text;
        ASSERT_TRUE(file.flush());
    }

    // Another file of the same name.
    void replace(const std::string& text) const
    {
        std::filesystem::rename(path(), path() + ".old");
        write(text);
    }

private:
    std::string directory_;
};

} // namespace kultest

#endif
