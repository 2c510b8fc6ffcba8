// The direction of includes is the program's structure; this holds it.

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <set>

namespace fs = std::filesystem;

namespace {

struct Include {
    fs::path file;      ///< relative to the sources
    std::string folder; ///< the file's
    std::string target; ///< as written, without its delimiters
    bool isOurs = false;
    std::string targetFolder;
};

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
            const std::string target = match[2];
            const std::string targetFolder = fs::path(target).begin()->string();
            includes.push_back(
                {file, file.begin()->string(), target, fs::exists(sources / target), targetFolder});
        }
    }
    return includes;
}

const std::set<std::string> lowest{"plist", "outlets"};
const std::set<std::string> shared{"tools", "files", "keychain"};
const std::set<std::string> frontEnds{"ui", "headless"};

/// A struct of outlets, or a table's data source: what the controller is put together from.
bool isPartOfController(const std::string &header)
{
    std::ifstream text(fs::path(QUILLORENT_SOURCES) / header);
    for (std::string line; std::getline(text, line);)
        if (line.starts_with("#include \"") && !line.starts_with("#include \"outlets/")) return false;
    return true;
}

bool isAllowed(const Include &include)
{
    const std::string &to = include.targetFolder;
    if (to == include.folder) return true;
    if (frontEnds.contains(include.folder)) return !frontEnds.contains(to);
    if (frontEnds.contains(to)) return false;
    if (lowest.contains(to)) return !lowest.contains(include.folder);
    if (lowest.contains(include.folder)) return false;
    if (include.folder == "app")
        return include.file.extension() == ".cpp" || isPartOfController(include.target);
    if (to == "app" || shared.contains(to)) return true;
    return include.folder == "extract" && include.target == "backup/Decisions.h";
}

} // namespace

TEST(IncludeDirection, PointsDown)
{
    const std::vector<Include> includes = allIncludes();
    ASSERT_GT(includes.size(), 100U) << "the sources were not found";
    for (const Include &include : includes)
        EXPECT_TRUE(!include.isOurs || isAllowed(include)) << include.file << " includes " << include.target;
}

TEST(IncludeDirection, OnlyTheWindowKnowsWidgets)
{
    static const std::regex widgets("^(QtWidgets|QtGui)(/|$)|^QApplication$|Widget");
    bool windowHasWidgets = false;
    for (const Include &include : allIncludes()) {
        if (include.isOurs || !std::regex_search(include.target, widgets)) continue;
        EXPECT_EQ(include.folder, "ui") << include.file << " includes " << include.target;
        windowHasWidgets = true;
    }
    EXPECT_TRUE(windowHasWidgets) << "the pattern of widgets finds none even in the window";
}

TEST(IncludeDirection, NothingLeavesTheSources)
{
    for (const Include &include : allIncludes())
        EXPECT_EQ(include.target.find(".."), std::string::npos)
            << include.file << " includes " << include.target;
}
