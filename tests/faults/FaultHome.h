#pragma once

#include "ProgramHome.h"
#include "Tree.h"

#include <optional>

/// Where a run can be hit: a tool that runs for a stage, or the program itself.
struct Stage {
    std::string name;
    std::string program; ///< "rar", "openssl-inner"; empty: the program itself
    std::string word;    ///< among its arguments in this stage and in no other
    std::string product; ///< what it makes in the folder that the run writes to; empty: the folder's tree
};

enum class Ends {
    Killed,    ///< by the signal
    Fails,     ///< and says so
    Cancelled, ///< the same, but what was hit may be done
    Any,       ///< well or by a failure, as it says
};

struct Fault {
    std::string name;
    std::string moment;
    std::string deed; ///< @PRODUCT, @FOLDER and @VICTIM stand for the stage's product and the like
    Ends ends;
};

/// A home with a folder of which an earlier backup exists and which has changed since, and the questions that
/// must find the same answers whatever hit the run.
class FaultHome {
public:
    enum class Kind { Backup, Extraction, Part }; ///< Part: an extraction of what is chosen

    /// `splits`: into volumes, and what goes into them is compressed.
    FaultHome(Kind kind, bool splits);

    /// The whole story: the run is hit, the questions are asked, and the next run has to repair everything.
    /// False where the run ended well.
    bool survives(const Stage &stage, const Fault &fault);

    /// The order in which a good run makes files durable, names them and removes them: "safe INODE", "named
    /// INODE PATH", "gone INODE PATH", with paths relative to the folder that it writes to.
    std::vector<std::string> orderOfChanges();

    /// The run writes to a small file system of its own from now on; false where that isn't allowed here.
    [[nodiscard]] bool mountSmallDisk();
    ~FaultHome();
    FaultHome(const FaultHome &) = delete;
    FaultHome &operator=(const FaultHome &) = delete;

    /// From now on a home's programs are hit as the plan says.
    static void layTripwire(ProgramHome &home, const std::string &plan);

    /// The runs are an ordinary user's from now on; root's rights would hide what is forbidden.
    void becomeOrdinaryUser() { m_isOrdinaryUser = true; }

private:
    using Path = std::filesystem::path;

    void write(const std::string &version, std::uint32_t seed) const;
    void reset();
    [[nodiscard]] Path productOf(const Stage &stage) const;
    [[nodiscard]] CommandResult launch(const std::vector<std::string> &more = {}) const;
    [[nodiscard]] Path target() const { return m_home / (m_kind == Kind::Backup ? "archives" : "out"); }
    [[nodiscard]] Path sources() const { return m_home / (m_kind == Kind::Backup ? "docs" : "archives"); }
    [[nodiscard]] std::optional<TreeSnapshot> opened(const std::string &prefix) const;
    [[nodiscard]] std::vector<std::string> inClear() const;
    [[nodiscard]] std::vector<std::string> foreignNames() const;

    void expectSourcesUntouched() const;
    void expectFormerOrNew(bool mayBeAside) const;
    void expectClearFilesNamed(const CommandResult &hit) const;
    [[nodiscard]] bool isNew() const;
    void expectTruth(const CommandResult &hit, Ends ends) const;
    void expectNoTools(bool mayFinish) const;
    void expectNextRunRepairs(const Stage &stage) const;

    ProgramHome m_home;
    Kind m_kind;
    bool m_isMounted = false;
    bool m_isOrdinaryUser = false;
    TreeSnapshot m_former, m_new;     ///< of the folder
    TreeSnapshot m_sources;           ///< of all that the run may only read
    std::vector<std::string> m_names; ///< of the archives that a good run leaves
};
