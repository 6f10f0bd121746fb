#include "rows.hpp"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

#include "terminal.hpp"

namespace kuldialog_rows {

namespace {

using namespace kultools;

// A folder that goes when it is not needed any more.
struct Folder {
    std::filesystem::path path;

    Folder()
    {
        char name[] = "/tmp/kuldialogXXXXXX";
        path = mkdtemp(name) ? name : "/nowhere";
        std::filesystem::create_directory(path / "sub");
        std::ofstream(path / "file1") << "line one\nline two\nthree\n";
        std::ofstream(path / "options") << "--title \"a b\" \\\n --inputbox \"x y\"\n 8 40 \"i\\\"j\"\n";
        std::ofstream(path / "numbers") << "20\nXXX\n50\nnew text\nand more\nXXX\n100\n";
        std::ofstream(path / "cut") << "20\nXXX\n5";
    }
    ~Folder() { std::filesystem::remove_all(path); }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    std::string read(const char* name) const
    {
        std::ifstream file(path / name);
        return {std::istreambuf_iterator<char>(file), {}};
    }
};

// The console's keys, which the other programs know by its description alone.
std::string bytesOf(const std::string& key)
{
    if (key == "home" || key == "end")
        return key == "home" ? "\033[1~" : "\033[4~";
    if (key == "f1")
        return "\033[[A";
    if (const auto bytes = keyBytes(key))
        return std::string(*bytes);
    return key;
}

} // namespace

#define MENU(options) "$D " options " --menu x 15 40 4 a one b two 'c d' three"
#define CHECK(options) "$D " options " --checklist x 15 40 4 a one on b two off 'c d' three on"
#define RADIO(options) "$D " options " --radiolist x 15 40 4 a one on b two off 'c d' three off"
#define YESNO(options) "$D " options " --yesno x 8 40"
#define ENTRY(options) "$D " options " --inputbox x 8 40 init"
#define FORM(options) "$D " options " --form x 15 50 4 L1: 1 1 aa 1 10 10 20 L2: 2 1 bb 2 10 10 20"

const std::vector<Row> kRows = {
    // Answers and their status.
    {kAll, "$D --msgbox hello 8 40", "enter", 0, ""},
    {kAll, "$D --msgbox hello 8 40", "esc", 255, ""},
    {kAll, "$D --msgbox hello 0 0", "space", 0, ""},
    {kAll, "$D --msgbox hello 100 300", "enter", 0, ""},
    {kAll, "$D --infobox hello 8 40", "", 0, ""},
    {kAll, YESNO(""), "enter", 0, ""},
    {kAll, YESNO(""), "right enter", 1, ""},
    {kAll, YESNO(""), "tab tab tab enter", 1, ""},
    {kAll, YESNO("--defaultno"), "enter", 1, ""},
    {kAll, YESNO("--nocancel"), "right enter", 1, ""},
    {kAll, YESNO("--yes-button Y --no-button N"), "tab space", 1, ""},
    {kOthers, YESNO(""), "n", 1, ""},
    {kDialog, YESNO(""), "down enter", 0, ""},
    {kOthers, YESNO("--extra-button --help-button"), "right enter", 3, ""},
    {kOthers, YESNO("--extra-button --help-button"), "right right right enter", 2, ""},
    {kOthers, YESNO("--default-button extra --extra-button"), "enter", 3, ""},
    // One line.
    {kAll, ENTRY(""), "a b enter", 0, "initab"},
    {kAll, ENTRY(""), "home X enter", 0, "Xinit"},
    {kAll, ENTRY(""), "tab tab enter", 1, ""},
    {kAll, ENTRY(""), "esc", 255, ""},
    {kWhiptail | kDialog, ENTRY(""), "down down enter", 1, ""},
    {kOthers, ENTRY("--last-key"), "enter", 0, "init 10 "},
    {kOthers, ENTRY("--hfile file1"), "f1 enter enter", 0, "init"},
    {kWhiptail, ENTRY("--nocancel"), "esc", 1, ""},
    {kAll, "$D --inputbox x 8 40 'a b\"c'", "enter", 0, "a b\"c"},
    {kAll, "$D --passwordbox x 8 40", "a b enter", 0, "ab"},
    {kOthers, ENTRY("--max-input 2"), "a enter", 0, "init"},
    {kOthers, "$D --max-input 3 --inputbox x 8 40", "a b c d e enter", 0, "abc"},
    {kOthers, ENTRY("--extra-button"), "tab tab enter", 3, "init"},
    // Lists, and what is quoted.
    {kAll, MENU(""), "down enter", 0, "b"},
    {kAll, MENU(""), "c enter", 0, "c d"},
    {kAll, MENU(""), "end enter", 0, "c d"},
    {kAll, MENU("--default-item b"), "enter", 0, "b"},
    {kAll, MENU("--notags"), "t enter", 0, "b"},
    {kAll, "$D --menu x 0 0 0 a one b two", "enter", 0, "a"},
    {kWhiptail, MENU("--defaultno"), "enter", 0, "a"},
    {kWhiptail, MENU("--noitem"), "down enter", 0, "b"},
    {kWhiptail, MENU(""), "tab tab enter", 1, ""},
    {kWhiptail, MENU(""), "up right enter", 0, "a"},
    {kDialog, MENU(""), "tab enter", 1, ""},
    {kOthers, MENU(""), "3 enter", 0, "c d"},
    {kOthers, MENU(""), "right enter", 1, ""},
    {kOthers, MENU("--no-ok"), "tab enter", 0, "a"},
    {kOthers, MENU("--no-hot-list"), "b enter", 0, "a"},
    {kOthers, MENU("--quoted"), "end enter", 0, "\"c d\""},
    {kOthers, MENU("--help-button"), "down right right enter", 2, "HELP b"},
    {kOthers, MENU("--extra-button"), "down right enter", 3, "b"},
    {kOthers, "$D --no-items --menu x 15 40 4 a b c", "down enter", 0, "b"},
    {kOthers, "$D --help-button --item-help --menu x 15 40 4 a one h1 b two 'h 2'", "down right right enter", 2,
     "HELP h 2"},
    {kWhiptail, CHECK(""), "enter", 0, "\"a\" \"c d\""},
    {kOthers, CHECK(""), "enter", 0, "a \"c d\""},
    {kOthers, CHECK(""), "space down space enter", 0, "b \"c d\""},
    {kAll, CHECK("--separate-output"), "enter", 0, "a\nc d\n"},
    {kOthers, CHECK("--quoted --separate-output"), "enter", 0, "a\n\"c d\"\n"},
    {kOthers, CHECK("--single-quoted"), "enter", 0, "a 'c d'"},
    {kOthers, CHECK("--output-separator ,"), "enter", 0, ",a,\"c d\""},
    {kOthers, CHECK("--help-button --help-status"), "down right right enter", 2, "HELP b a \"c d\""},
    {kWhiptail, "$D --checklist x 15 40 4 'c\"d' x on '$g\\' y yes '' z 1", "enter", 0, "\"c\"d\" \"$g\\\" \"\""},
    {kOthers, "$D --checklist x 15 40 4 'c\"d' x on '$g\\' y on '' z on \"e'f\" w ON", "enter", 0,
     "\"c\\\"d\" \"\\$g\\\\\" \"\" e'f"},
    {kAll, RADIO(""), "down enter", 0, "a"},
    {kOthers, RADIO("--print-size --output-separator ,"), "enter", 0, "Size: 15, 40\n,a"},
    {kAll, RADIO(""), "down space enter", 0, "b"},
    {kAll, "$D --radiolist x 15 40 4 a one off b two off", "enter", 0, ""},
    {kOthers, "$D --inputmenu x 20 40 8 a one b two", "down right enter end X enter", 3, "RENAMED b twoX"},
    {kOthers, "$D --separate-output --buildlist x 20 60 8 a one off b two off c three on", "space enter", 0, "a\nc"},
    {kOthers, "$D --reorder --buildlist x 20 60 8 a one on b two off c three on", "space enter", 0, "a c b"},
    {kOthers, "$D --treeview x 15 40 6 a one off 0 b two on 1", "enter", 0, "b"},
    // Forms, files, bars.
    {kOthers, FORM(""), "end Z down end Y enter", 0, "aaZ\nbbY\n"},
    {kOthers, FORM(""), "tab tab enter", 1, ""},
    {kDialog, FORM("--extra-button"), "tab down enter", 3, "aa\nbb\n"},
    {kOthers, FORM(""), "down tab tab tab Z enter", 0, "aa\nZbb\n"},
    {kOthers, FORM("--default-item L2:"), "home X enter", 0, "aa\nXbb\n"},
    {kOthers, FORM("--help-button --help-status"), "tab right right enter", 2, "HELP L1:\naa\nbb\n"},
    {kOthers, "$D --form x 15 50 4 L1: 1 1 aa 1 10 0 20 L2: 2 1 bbbbb 2 10 3 0 L3: 3 1 cc 3 10 -5 0", "enter", 0,
     "bbb\n"},
    {kOthers, "$D --mixedform x 15 50 4 L1: 1 1 aa 1 10 9 9 0 L2: 2 1 bb 2 10 9 9 2", "enter", 0, "aa\nbb\n"},
    {kOthers, "$D --editbox file1 15 40", "X enter tab enter", 0, "X\nline one\nline two\nthree\n"},
    {kOthers, "$D --extra-button --editbox file1 15 40", "tab right enter", 3, ""},
    {kOthers, "$D --fselect ./fi 8 40", "space enter", 0, "./file1"},
    {kAll, "$D --textbox file1 15 40", "down enter", 0, ""},
    {kWhiptail, "$D --nocancel --textbox file1 15 40", "esc", 255, ""},
    {kAll, "$D --textbox nofile 15 40", "", 255, "?"},
    {kWhiptail | kOwn, "printf 'a\\nb' | $D --textbox /dev/stdin 15 40", "enter", 0, ""},
    {kAll, "$D --gauge x 8 40 0 <numbers", "", 0, ""},
    {kOwn, "$D --gauge x 8 40 0 <&-", "", 0, ""},
    {kAll, "$D --gauge x 8 40 0 <cut", "", 0, ""},
    {kOthers, "$D --pause x 10 40 1", "", 0, ""},
    {kOthers, "$D --pause x 10 40 9", "right enter", 1, ""},
    {kOthers, "$D --rangebox x 8 40 1 10 5", "down enter", 0, "6"},
    {kOthers, "$D --prgbox 'echo hi; exit 3' 15 40", "enter", 0, ""},
    {kOthers, "echo hi | $D --progressbox 15 40", "", 0, ""},
    // Where input and output are.
    {kAll, "A=$($D --inputbox x 8 40 i 2>&1 >/dev/tty); echo \"got $A $?\" >&3", "enter", 0, "", "got i 0\n"},
    {kAll, "$D --output-fd 3 --inputbox x 8 40 i", "enter", 0, "", "i"},
    {kAll, "$D --output-fd 7 --inputbox x 8 40 i", "enter", 255, "?"},
    {kOthers, "A=$($D --stdout --inputbox x 8 40 i); echo \"got $A $?\" >&3", "enter", 0, "", "got i 0\n"},
    {kOwn, "$D --stdout --inputbox x 8 40 i >&-", "enter", 255, ""},
    {kAll, "echo foo | $D --inputbox x 8 40 i", "enter", 0, "i"},
    // Several boxes.
    {kOthers, "$D --inputbox x 8 40 i --and-widget --inputbox y 8 40 q", "tab tab enter enter", 0, "\tq"},
    {kOthers, "$D --inputbox x 8 40 i --yesno y 8 40 --inputbox z 8 40 q", "enter tab enter", 1, "i"},
    {kOthers, "$D --inputbox x 8 40 i --and-widget --yesno y 8 40 --and-widget --inputbox z 8 40 q",
     "enter tab enter enter", 0, "i\tq"},
    {kOthers,
     "$D --separate-widget '|' --inputbox x 8 40 i --and-widget --separate-widget ! "
     "--inputbox y 8 40 q",
     "enter enter", 0, "i!q"},
    // The environment.
    {kOthers, "DIALOG_OK=10 " MENU(""), "enter", 10, "a"},
    {kOthers, "DIALOG_ESC=12 " MENU(""), "esc", 12, ""},
    {kOthers, "DIALOG_TIMEOUT=5 " MENU("--timeout 1"), "", 5, "", "", false},
    {kOthers, MENU("--timeout 1"), "", 255, ""},
    {kOthers, "DIALOG_ERROR=13 $D --menu x", "", 13, "?"},
    {kOthers, "DIALOGOPTS='--no-cancel' " MENU(""), "right enter", 0, "a"},
    {kOthers, "$D --file options", "enter", 0, "i\"j"},
    {kOthers, "$D --create-rc new && DIALOGRC=new " MENU(""), "enter", 0, "a"},
    {kWhiptail, "DIALOG_OK=10 " MENU(""), "enter", 0, "a"},
    // What is wrong.
    {kWhiptail, "$D --nosuch --msgbox x 8 40", "", 1, "?"},
    {kOthers, "$D --nosuch --msgbox x 8 40", "", 255, "?"},
    {kDialog, "$D --separate-output --inputbox x 8 40", "", 255, "?"},
    {kWhiptail, "$D --title", "", 1, "?"},
    {kOwn, "$D --title", "", 255, "?"},
    {kDialog, "$D --title", "", 0, ""},
    {kAll, "$D --msgbox x 8", "", 255, "?"},
    {kAll, "$D --msgbox x 0x8 40", "", 255, "?"},
    {kWhiptail, "$D --msgbox x -1 40", "", 1, "?"},
    {kOthers, "$D --msgbox x -1 40", "enter", 0, ""},
    {kWhiptail, "$D --msgbox x 8 40 extra", "enter", 0, ""},
    {kOthers, "$D --msgbox x 8 40 extra", "", 255, "?"},
    {kAll, "$D --menu x 15 40 4 a b c", "", 255, "?"},
    {kAll, "$D --menu x 15 40 4", "", 255, "?"},
    {kWhiptail, "$D --msgbox x 8 40 --yesno y 8 40", "", 255, "?"},
    {kWhiptail, "$D --output-fd x --msgbox x 8 40", "", 1, "?"},
    {kWhiptail, "$D --msgbox x 8 40 --title T", "enter", 0, ""},
    {kAll, "$D --msgbox -- -x 8 40", "enter", 0, ""},
    {kWhiptail, "$D --title=T --msgbox x 8 40", "enter", 0, ""},
    {kDialog, "$D --title=T --msgbox x 8 40", "", 255, "?"},
    {kWhiptail, "$D --gauge x 8 40 <numbers", "", 255, "?"},
    {kWhiptail, "ASAN_OPTIONS=detect_leaks=0 TERM=none $D --msgbox x 8 40", "", 1, "?"},
    {kDialog, "ASAN_OPTIONS=detect_leaks=0 TERM=none $D --msgbox x 8 40", "", 1, "?"},
    {kOwn, "ASAN_OPTIONS=detect_leaks=0 TERM=none $D --msgbox x 8 40", "", 255, "?"},
};

Outcome run(const Row& row, const std::string& program, bool patiently)
{
    const Folder folder;
    Launch launch;
    launch.term = "linux";
    launch.argv = {"/bin/sh", "-c", "cd " + folder.path.string() + " && exec 2>error 3>other\n" + row.shell};
    launch.environment = {"D=" + program, "LC_ALL=C.UTF-8", "DIALOGRC", "DIALOGOPTS", "NEWT_COLORS"};
    Terminal terminal(launch);
    const auto begun = [&] { return terminal.text().find_first_not_of("\n") != std::string::npos; };
    terminal.waitFor([&] { return begun() || !terminal.running(); });
    std::istringstream keys(row.keys);
    std::string all;
    for (std::string key; keys >> key;) {
        if (patiently)
            terminal.press(bytesOf(key));
        else
            all += bytesOf(key);
    }
    if (!all.empty())
        terminal.press(all);
    const auto status = terminal.wait();
    return {status && WIFEXITED(*status) ? WEXITSTATUS(*status) : -1, folder.read("error"), folder.read("other")};
}

bool agrees(const Row& row, const Outcome& outcome)
{
    const bool errorAgrees = std::string(row.error) == "?" ? !outcome.error.empty() : outcome.error == row.error;
    return outcome.status == row.status && errorAgrees && outcome.other == row.other;
}

} // namespace kuldialog_rows
