#include "FaultHome.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <chrono>
#include <csignal>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/mount.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

const std::string marker = "These words must not be read by anyone. ";

bool isFilePlain(const fs::path &path) { return fs::is_regular_file(fs::symlink_status(path)); }

} // namespace

FaultHome::FaultHome(Kind kind, bool splits) : m_home(QUILLORENT_RUN), m_kind(kind)
{
    m_home.encryptForCertificate();
    m_home.record["split"] = splits ? "1" : "0";
    m_home.record["part"] = "10";
    m_home.record["compress"] = splits ? "1" : "0";
    for (const char *name : {"former", "kept"})
        fs::create_directory(m_home / name);
    writeFile(m_home / "victim", "a file of the user's");
    write("former", 1);
    m_former = snapshotTree(m_home / "docs");
    const CommandResult first = m_home.backUp();
    EXPECT_EQ(first.status, 0) << first.errors;
    fs::copy(m_home / "archives", m_home / "kept");
    m_names = namesIn(m_home / "kept");
    EXPECT_EQ(m_names.size() > 1, splits);
    if (kind == Kind::Backup) write("new", 2);
    m_new = snapshotTree(m_home / "docs");
    m_sources = snapshotTree(sources());
}

void FaultHome::layTripwire(ProgramHome &home, const std::string &plan)
{
    home.environment["LD_PRELOAD"] = QUILLORENT_TRIPWIRE_LIBRARY;
    home.environment["ASAN_OPTIONS"] = "verify_asan_link_order=0";
    home.environment["QUILLORENT_TRIPWIRE"] = plan;
}

FaultHome::~FaultHome()
{
    if (m_isMounted) umount2(target().c_str(), MNT_DETACH);
}

void FaultHome::write(const std::string &version, std::uint32_t seed) const
{
    fs::remove_all(m_home / "docs");
    writeFile(m_home / "docs/letter", version + ": " + marker + marker);
    writeFile(m_home / "docs/sub/photo", randomBytes(40000, seed));
    writeFile(m_home / "docs/sub/empty", "");
    fs::create_symlink("sub/photo", m_home / "docs/link");
    fs::permissions(m_home / "docs/sub/photo", fs::perms(0640));
}

bool FaultHome::mountSmallDisk()
{
    m_isMounted = mount("none", target().c_str(), "tmpfs", MS_NOSUID | MS_NODEV, "size=2m") == 0;
    return m_isMounted;
}

fs::path FaultHome::productOf(const Stage &stage) const
{
    return target() /
           (stage.product.empty() ? *m_home.path().relative_path().begin() : fs::path(stage.product));
}

/// The folder that the run writes to as it was before any run of this test, beside a file of the user's.
void FaultHome::reset()
{
    for (const auto &entry : fs::directory_iterator(target()))
        fs::remove_all(entry.path());
    writeFile(target() / "notes.txt", "the user's own");
    writeFile(m_home / "victim", "a file of the user's");
    if (m_kind == Kind::Backup) fs::copy(m_home / "kept", target());
    if (m_isOrdinaryUser) m_home.becomeOrdinaryUser();
}

CommandResult FaultHome::launch(const std::vector<std::string> &more) const
{
    if (m_kind == Kind::Backup) return m_home.backUp(more);
    std::vector<std::string> options = more;
    if (m_kind == Kind::Part) options.insert(options.end(), {"--only", (m_home / "docs").relative_path()});
    return m_home.extract({m_home.text("archives/" + m_names.front())}, options);
}

bool FaultHome::survives(const Stage &stage, const Fault &fault)
{
    reset();
    const std::string deed =
        replaced(replaced(replaced(fault.deed, "@PRODUCT", productOf(stage)), "@FOLDER", target()), "@VICTIM",
                 m_home.text("victim"));
    const fs::path program =
        stage.program.empty() ? fs::path(QUILLORENT_RUN) : fs::path(QUILLORENT_LIBEXEC) / stage.program;
    layTripwire(m_home, program.string() + "\n" + stage.word + "\n" + fault.moment + "\n" + deed);
    const CommandResult hit = launch({"--yes"});
    m_home.environment["LD_PRELOAD"] = "";

    const bool wasKilled = hit.status > 128;
    expectNoTools(wasKilled);
    fs::permissions(target(), fs::perms::owner_all);
    expectSourcesUntouched();
    expectFormerOrNew(wasKilled || contains(hit.errors, "former-docs"));
    expectClearFilesNamed(hit);
    if (hit.status != 0 || fault.ends != Ends::Killed) expectTruth(hit, fault.ends);
    expectNextRunRepairs(stage);
    return hit.status != 0;
}

std::vector<std::string> FaultHome::orderOfChanges()
{
    reset();
    layTripwire(m_home, {});
    m_home.environment["QUILLORENT_TRIPWIRE_LOG"] = m_home.text("log");
    EXPECT_EQ(launch({"--yes"}).status, 0);
    std::istringstream log(replaced(readFile(m_home / "log"), target().string() + "/", ""));
    std::vector<std::string> lines;
    for (std::string line; std::getline(log, line);)
        lines.push_back(line);
    return lines;
}

/// What comes out of an archive set by the archiver and the system's own OpenSSL; none where it does not
/// open.
std::optional<TreeSnapshot> FaultHome::opened(const std::string &prefix) const
{
    const fs::path folder = m_home / "opened";
    fs::remove_all(folder);
    fs::create_directory(folder);
    const std::string rar = std::string(QUILLORENT_LIBEXEC) + "/rar";
    const std::string archive = m_home.text("archives/" + prefix + m_names.front());
    const fs::path keys = m_home / "keys";
    for (const std::vector<std::string> &command :
         {std::vector<std::string>{rar, "e", "-o+", "-idq", archive, folder},
          {"openssl", "smime", "-decrypt", "-binary", "-in", "docs.rar.smime", "-out", "docs.rar", "-inkey",
           keys / "anna-key.pem", "-recip", keys / "anna.pem"},
          {rar, "x", "-o+", "-idq", "docs.rar", "."}})
        if (const CommandResult result = runCommand(command, {.folder = folder});
            result.status != 0 || !result.errors.empty())
            return std::nullopt;
    return snapshotTree(folder / (m_home / "docs").relative_path());
}

void FaultHome::expectSourcesUntouched() const
{
    EXPECT_EQ(treeDifference(m_sources, snapshotTree(sources())), "");
    EXPECT_TRUE(readFile(m_home / "victim") == "a file of the user's")
        << "a file was overwritten through a link";
    EXPECT_EQ(readFile(target() / "notes.txt"), "the user's own");
}

/// `mayBeAside`: the run could not put it back, or has said where it is.
void FaultHome::expectFormerOrNew(bool mayBeAside) const
{
    if (m_kind != Kind::Backup) return; // the archives are the sources
    for (const std::string prefix : {"", "former-"}) {
        if (!mayBeAside && !prefix.empty()) continue;
        const std::optional<TreeSnapshot> tree = opened(prefix);
        if (tree && (treeDifference(m_former, *tree).empty() || treeDifference(m_new, *tree).empty())) return;
    }
    ADD_FAILURE() << "neither the former archive nor the new one opens";
}

/// The archives that show what they hold, wherever a tool may write: its names, which are never compressed.
/// And folders of a run's own.
std::vector<std::string> FaultHome::inClear() const
{
    std::vector<std::string> found;
    for (const fs::path &folder : {m_home / "archives", m_home / "out", m_home / "tmp"})
        for (const auto &entry : fs::directory_iterator(folder))
            if (entry.path().filename().string().starts_with(".quillorent-")) {
                found.push_back(entry.path());
            } else if (isFilePlain(entry.path())) {
                const std::string bytes = readFile(entry.path());
                if (bytes.starts_with("Rar!") && contains(bytes, "docs/")) found.push_back(entry.path());
            }
    return found;
}

void FaultHome::expectClearFilesNamed(const CommandResult &hit) const
{
    const std::vector<std::string> clear = inClear();
    // What is chosen asks nothing: the next run goes on and removes it.
    if (clear.empty() || (m_kind == Kind::Part && hit.status > 128)) return;
    // One that was killed can't say anything; the next start does before it goes on.
    const CommandResult next = hit.status > 128 ? launch() : hit;
    EXPECT_TRUE(hit.status <= 128 || next.status == 2) << next.errors;
    for (const std::string &path : clear)
        EXPECT_TRUE(contains(next.errors, path)) << path << " is not named in: " << next.errors;
}

void FaultHome::expectTruth(const CommandResult &hit, Ends ends) const
{
    const QJsonObject record =
        QJsonDocument::fromJson(QByteArray::fromStdString(m_home.lastRecord())).object();
    const std::string outcome = record["outcome"].toString().toStdString();
    const std::string item = record["items"][0]["outcome"].toString().toStdString();
    if (hit.status > 128) {
        EXPECT_EQ(ends, Ends::Killed) << hit.errors;
        return;
    }
    const bool isDone = hit.status == 0;
    EXPECT_TRUE(hit.status == 1 || (isDone && ends == Ends::Any)) << hit.status << hit.errors;
    EXPECT_EQ(outcome == "succeeded", isDone) << outcome;
    EXPECT_TRUE(record.contains("ended"));
    const bool saysAll =
        item == "succeeded" ||
        contains(hit.errors, m_kind == Kind::Backup ? "Backed up 1 of 1" : "Extracted 1 of 1") ||
        contains(hit.errors, "Brought back what was chosen");
    EXPECT_TRUE(saysAll == isDone || ends == Ends::Cancelled) << item << hit.errors;
    EXPECT_TRUE(!saysAll || isNew()) << "untrue: " << hit.errors;
}

/// Whether all that the run was about is where it belongs.
bool FaultHome::isNew() const
{
    const fs::path restored = target() / (m_home / "docs").relative_path();
    if (m_kind != Kind::Backup)
        return fs::exists(restored) && treeDifference(m_new, snapshotTree(restored)).empty();
    const std::optional<TreeSnapshot> tree = opened("");
    return tree && treeDifference(m_new, *tree).empty();
}

/// A tool may outlive a killed program until its stage ends, no longer; and no other end at all.
void FaultHome::expectNoTools(bool mayFinish) const
{
    int quiet = 0; // looks in a row: one that is just being started has neither arguments nor environment
    for (int tries = mayFinish ? 2000 : 20; tries > 0 && quiet < 3; --tries) {
        quiet = m_home.processes().empty() ? quiet + 1 : 0;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    for (const int process : m_home.processes()) {
        ADD_FAILURE() << "a tool is left running";
        kill(process, SIGKILL);
    }
}

std::vector<std::string> FaultHome::foreignNames() const
{
    std::vector<std::string> names = namesIn(target());
    std::erase(names, "notes.txt");
    if (m_kind != Kind::Backup)
        std::erase(names, m_home.path().relative_path().begin()->string());
    else
        std::erase_if(names, [this](const std::string &name) {
            return std::find(m_names.begin(), m_names.end(), name) != m_names.end();
        });
    return names;
}

void FaultHome::expectNextRunRepairs(const Stage &stage) const
{
    // What the fault put there goes as it came.
    fs::remove(target() / "filler");
    std::error_code notEmpty;
    if (!isFilePlain(productOf(stage))) fs::remove(productOf(stage), notEmpty);

    const CommandResult next = launch({"--yes"});
    EXPECT_EQ(next.status, 0) << next.errors;
    // A file that came after the program's death can't be told from the user's own: it is kept, and named.
    std::vector<std::string> foreign = foreignNames();
    std::erase_if(foreign, [&](const std::string &name) {
        return (stage.product.empty() ? name.starts_with("kept-") : name == "kept-" + stage.product) &&
               contains(next.errors, name);
    });
    EXPECT_EQ(foreign, std::vector<std::string>());
    EXPECT_TRUE(isNew()) << next.errors;
    expectSourcesUntouched();
}
