// SPDX-License-Identifier: MIT
#include "file/file_text.hpp"

#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

#include "file/file_rows.hpp"
#include "support/temporary_file.hpp"
#include "support/window_test.hpp"

namespace {

using kul::FilePlace;
using kul::FileRows;
using kul::FileText;
using kultest::InColumns;
using kultest::Rows;
using kultest::TemporaryFile;

static_assert(sizeof(FileText) + sizeof(FileRows) < 512 * 1024);

struct Close {
    void operator()(FileText* text) const { FileText::close(text); }
};
using Text = std::unique_ptr<FileText, Close>;

Text open(const TemporaryFile& file)
{
    Text text(FileText::open(file.path().c_str()));
    EXPECT_NE(text, nullptr);
    return text;
}

std::string shown(FileRows& rows, const FileRows::Row& row)
{
    std::string result;
    int nColumn = 0;
    for (FilePlace place = row.start; place < row.end;) {
        const kul::Letter now = rows.letter(place, row.end, nColumn);
        const wchar_t first = now.shown[0];
        result.append(first == L' ' ? static_cast<std::size_t>(now.nColumns) : first != 0,
                      first < 0x80 ? static_cast<char>(first) : '#');
        nColumn += now.nColumns;
        place += static_cast<FilePlace>(now.nBytes);
    }
    return result;
}

TEST(FileRowsTest, LaysOutAwkwardText)
{
    struct {
        const char* szName;
        std::string text;
        int nColumns;
        Rows rows;
        Rows rowsOfEdition2 = rows;
    } const cases[] = {
        // clang-format off
        {"empty", "", 10, {}},
        {"only newlines", "\n\n\n", 10, {"", "", ""}},
        {"carriage returns", "a\r\nb\rc\r\n\r\n\r", 10, {"a", "b?c", "", "?"}},
        {"control bytes", std::string("a\0b\x1b[1m\x7f", 8), 10, {"a?b?[1m?"}},
        {"invalid bytes", "\xff\xc3(\xe2\x82", 10, {"?\?(??"}},
        {"characters of many bytes", "gr\xc3\xbc\xc3\x9f \xe2\x82\xac", 10, {"gr## #"}},
        {"control and joining characters", "a\xc2\x85" "b\xcc\x81", 10, {"a?b?"}, {"a?b"}},
        {"marks go with their letter", "abe\xcc\x81\xcc\xa3\xe4\xb8\xad\xcc\x81", 3, {"abe", "??", "#?"}, {"abe", "#"}},
        {"marks without a letter", "\xcc\x81 \xcc\x81\t\xcc\x81", 20, {"? ?     ?"}},
        {"what has no picture", "\xef\xbb\xbf" "a\xe2\x80\x8b" "bc\xc2\xad\n\xe2\x80\x8d", 3,
            {"?a?", "bc#", "?"}, {"abc", ""}},
        {"what turns the direction", "a\xe2\x80\xae" "b\xd8\x9c", 10, {"a?b?"}},
        {"as wide as the row", "abc defgh\nx", 9, {"abc defgh", "x"}},
        {"inside of a word", "abc defghi", 9, {"abc ", "defghi"}},
        {"runs of blanks", "abc    d  ", 5, {"abc", "d  "}},
        {"runs of blanks longer than a row", "abc      d", 5, {"abc", "     ", "d"}},
        {"blanks that do not fit at the end", "ab         c\n\xc3\xa4" "bcd   \nx", 4, {"ab", "    ", "    ", "c", "#bcd", "x"}},
        {"indentation stays", "    ab cd", 7, {"    ab ", "cd"}},
        {"more blanks than fit", "       ab", 4, {"    ", "ab"}},
        {"a word too long", "abcdefghij klm", 4, {"abcd", "efgh", "ij ", "klm"}},
        {"one column", "ab c", 1, {"a", "b", " ", "c"}},
        {"no column counts as one", "ab", 0, {"a", "b"}},
        {"tabs", "\ta\tb\n1234567\tc", 20, {"        a       b", "1234567 c"}},
        {"a tab wider than the row", "\tab", 4, {"        ", "ab"}},
        {"wide characters", "\xe4\xb8\xad\xe4\xb8\xad\xe4\xb8\xad", 5, {"##", "#"}},
        {"too wide a character", "\xe4\xb8\xad" "a", 1, {"?", "a"}},
        // clang-format on
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.szName);
        const TemporaryFile file(test.text);
        const Text text = open(file);
        for (const int nEdition : {1, 2}) {
            const InColumns locale(nEdition);
            FileRows rows(*text, test.nColumns);
            Rows got;
            for (FilePlace place = 0; place < text->size() && got.size() < 20;) {
                const FileRows::Row row = rows.row(place);
                got.push_back(shown(rows, row));
                place = row.next;
            }
            EXPECT_EQ(got, nEdition == 1 ? test.rows : test.rowsOfEdition2);
        }
    }
}

TEST(FileRowsTest, LettersLieAcrossTheBuffersThatAreRead)
{
    const InColumns locale;
    std::string bytes;
    while (bytes.size() < 2 * FileText::kChunk)
        bytes += "\u20ac\u20ac\u20ac\n";
    const TemporaryFile file(bytes);
    const Text text = open(file);
    FileRows rows(*text, 9);
    for (FilePlace place = 0; place < text->size(); place += 10)
        ASSERT_EQ(shown(rows, rows.row(place)), "###") << place;
}

TEST(FileTextTest, CutsOnlyLinesThatAreTooLong)
{
    constexpr FilePlace kEdge = FileText::kPiece;
    for (const char* szEnd : {"\n", "\nmore", ""}) {
        for (const bool tooLong : {false, true}) {
            const std::string line(static_cast<std::size_t>(kEdge) + tooLong, 'x');
            const TemporaryFile file("first\n" + line + szEnd);
            EXPECT_EQ(open(file)->pieceStart(kEdge + 1), tooLong ? kEdge : 6) << szEnd;
        }
    }
}

TEST(FileTextTest, FindsTextAcrossTheBuffersItReads)
{
    constexpr std::size_t kBuffer = FileText::kChunk;
    for (const std::size_t nSize : {1U, 2U, 4096U, 9000U}) {
        for (const std::size_t nBefore : {std::size_t{0}, std::size_t{1}, nSize - 1, nSize}) {
            std::string bytes(2 * kBuffer + 100, '\n');
            const std::string wanted = std::string(nSize - 1, 'a') + 'b';
            bytes.replace(kBuffer - nBefore, nSize, wanted);
            const TemporaryFile file(bytes);
            const Text text = open(file);
            for (const char* szFirst : {"first", "again"})
                EXPECT_EQ(text->find(wanted, 0).nLine, static_cast<int>(kBuffer - nBefore)) << nSize << szFirst;
            EXPECT_EQ(text->find(wanted + 'c', 0).nLine, -1);
        }
    }
}

// So large that the counts of lines are thinned out, and places do not fit into 32 bits. The file
// has holes and takes no room.
TEST(FileTextTest, IsNotConfusedByLargeFiles)
{
    constexpr FilePlace kStep = 13 * 1024 * 1024;
    constexpr FilePlace kLarge = 6LL << 30;
    const TemporaryFile file;
    const int nFile = ::open(file.path().c_str(), O_WRONLY);
    ASSERT_GE(nFile, 0);
    for (FilePlace line = 1; line <= 82; ++line)
        ASSERT_EQ(pwrite(nFile, "\n", 1, line * kStep - 1), 1);
    ASSERT_EQ(pwrite(nFile, "\nend", 4, kLarge), 4);
    ::close(nFile);
    const Text text = open(file);
    EXPECT_EQ(text->lineOf(81 * kStep), 81);
    for (const FilePlace line : {1, 45, 82}) {
        EXPECT_EQ(text->lineStart(line), line * kStep);
        EXPECT_EQ(text->lineOf(line * kStep - 1), line - 1);
    }
    FileRows rows(*text, 40);
    EXPECT_EQ(text->size(), kLarge + 4);
    EXPECT_EQ(rows.up(text->size(), 1), kLarge + 1);
    EXPECT_EQ(shown(rows, rows.row(kLarge + 1)), "end");
    EXPECT_EQ(rows.down(rows.up(text->size(), 50), 50), text->size());
}

TEST(FileTextTest, OpensRegularFilesOnly)
{
    const TemporaryFile file("text");
    const std::string fifo = file.directory() + "/fifo";
    ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
    for (const char* szName :
         {file.directory().c_str(), fifo.c_str(), "/dev/tty", "/dev/null", "", "/no/such/file", "/proc/self/mem"})
        EXPECT_EQ(FileText::open(szName), nullptr) << szName;
    EXPECT_EQ(FileText::open(nullptr), nullptr);
    // Root may read what nobody may.
    ASSERT_EQ(chmod(file.path().c_str(), 0), 0);
    const Text text(FileText::open(file.path().c_str()));
    EXPECT_EQ(text != nullptr, access(file.path().c_str(), R_OK) == 0);
    // A file of the system has a text even if it says that it is empty.
    const Text status(FileText::open("/proc/self/status"));
    ASSERT_NE(status, nullptr);
    EXPECT_GT(status->size(), 0);
}

TEST(FileTextTest, NoticesWhatBecomesOfTheFile)
{
    const TemporaryFile file("one\ntwo\n");
    const Text text = open(file);
    EXPECT_EQ(text->lineOf(8), 2);
    EXPECT_EQ(text->refresh(), FileText::Change::None);
    file.append("three\n");
    EXPECT_EQ(text->at(8), "");
    EXPECT_EQ(text->refresh(), FileText::Change::Some);
    EXPECT_EQ(text->at(8), "three\n");
    EXPECT_EQ(text->lineOf(14), 3);
    file.write("four");
    EXPECT_EQ(text->at(0), "one\ntwo\nthree\n"); // still in memory
    EXPECT_EQ(text->refresh(), FileText::Change::Shorter);
    EXPECT_EQ(text->at(0), "four");
    EXPECT_EQ(text->lineOf(4), 0);
    EXPECT_FALSE(text->isReplacedAt(file.path().c_str()));
    file.replace("five");
    EXPECT_TRUE(text->isReplacedAt(file.path().c_str()));
    EXPECT_EQ(text->at(0), "four");
}

// What was cut off before it was read, and before anybody looked, does not exist.
TEST(FileRowsTest, EndsWhereTheFileWasCutOff)
{
    const TemporaryFile file(std::string(1000000, 'x') + "\nend\n");
    const Text text = open(file);
    FileRows rows(*text, 40);
    const FilePlace end = rows.up(text->size(), 1);
    file.write("short\nfile\n");
    rows.up(end, 100);
    rows.row(end);
    rows.row(700000);
    EXPECT_EQ(text->size(), 11);
    EXPECT_EQ(rows.up(end, 1), 6);
    EXPECT_EQ(text->lineOf(end), 2);
    // However much it was: the end is not looked for piece by piece.
    constexpr std::uintmax_t kLarge = 64ULL << 30;
    std::filesystem::resize_file(file.path(), kLarge);
    text->refresh();
    file.write("");
    EXPECT_EQ(rows.rowOf(kLarge / 2), 0);
}

// A file that was cut off and then written anew is not one that has been added to, whether or not
// anybody read it in between.
TEST(FileTextTest, ForgetsTheLinesOfAFileThatWasCutOff)
{
    for (const auto& [head, isRead] : {std::pair(std::string(), false), {"", true}, {std::string(100, '#'), false}}) {
        const std::string before = head + std::string(400000, '\n');
        const TemporaryFile file(before);
        const Text text = open(file);
        EXPECT_EQ(text->lineOf(text->size()), 400000);
        file.write("");
        if (isRead) {
            EXPECT_EQ(text->at(390000), "");
        }
        file.write((isRead ? before.substr(0, 100) : head) + std::string(500000, 'x'));
        EXPECT_EQ(text->refresh(), FileText::Change::Shorter);
        EXPECT_EQ(text->lineOf(400000), isRead ? 100 : 0);
    }
}

} // namespace
