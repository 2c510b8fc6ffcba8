// The direction of includes is the program's structure; this holds it.

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <regex>

namespace fs = std::filesystem;

namespace {

struct Include {
    fs::path file;      ///< relative to the sources
    std::string target; ///< as written, without its delimiters
    bool isOurs = false;
};

/// The folder that a file counts to: the window has rooms of its own.
std::string folderOf(const fs::path &file)
{
    const std::string folder = file.begin()->string();
    const fs::path room = file.parent_path();
    return folder == "ui" ? room.string() : folder;
}

std::vector<Include> allIncludes()
{
    static const std::regex pattern(R"re(^\s*#\s*include\s*(["<])([^">]+)[">])re");
    const fs::path sources = QUILLORENT_SOURCES;
    std::vector<Include> includes;
    for (const auto &entry : fs::recursive_directory_iterator(sources)) {
        if (entry.path().extension() != ".h" && entry.path().extension() != ".cpp") continue;
        const fs::path file = fs::relative(entry.path(), sources);
        std::ifstream text(entry.path());
        for (std::string line; std::getline(text, line);) {
            std::smatch match;
            if (!std::regex_search(line, match, pattern)) continue;
            includes.push_back({file, match[2], fs::exists(sources / match[2].str())});
        }
    }
    return includes;
}

/// The floors, from the ground up. A folder may include from floors below its own, and from its own floor
/// only what `neighbours` names.
const std::map<std::string, int> floors{
    {"plist", 1},       {"outlets", 1},    {"keychain", 1}, {"files", 1},    {"settings", 2},
    {"keys", 2},        {"updates", 2},    {"tools", 2},    {"runs", 3},     {"backup", 4},
    {"extract", 4},     {"sync", 4},       {"app", 5},      {"headless", 6}, {"ui/look", 6},
    {"ui/watching", 6}, {"ui/widgets", 7}, {"ui/facts", 8}, {"ui/lists", 9}, {"ui/pages", 10},
    {"ui/sheets", 10},  {"ui", 11}};
const std::map<std::string, std::string> neighbours{{"keys", "tools"}, {"outlets", "keychain"}};

bool pointsDown(const std::string &from, const std::string &to)
{
    if (!floors.contains(from) || !floors.contains(to)) return false;
    const auto neighbour = neighbours.find(from);
    return to == from || floors.at(to) < floors.at(from) ||
           (neighbour != neighbours.end() && neighbour->second == to);
}

} // namespace

TEST(IncludeDirection, PointsDownAndNeverOutOfTheSources)
{
    const std::vector<Include> includes = allIncludes();
    ASSERT_GT(includes.size(), 100U) << "the sources were not found";
    for (const auto &[file, target, isOurs] : includes) {
        EXPECT_TRUE(!isOurs || pointsDown(folderOf(file), folderOf(target)))
            << file << " includes " << target;
        EXPECT_EQ(target.find(".."), std::string::npos) << file << " includes " << target;
    }
}

TEST(IncludeDirection, OnlyTheWindowKnowsWidgets)
{
    static const std::regex widgets("^(QtWidgets|QtGui)(/|$)|^QApplication$|Widget");
    bool windowHasWidgets = false;
    for (const Include &include : allIncludes()) {
        if (include.isOurs || !std::regex_search(include.target, widgets)) continue;
        EXPECT_EQ(*include.file.begin(), "ui") << include.file << " includes " << include.target;
        windowHasWidgets = true;
    }
    EXPECT_TRUE(windowHasWidgets) << "the pattern of widgets finds none even in the window";
}
