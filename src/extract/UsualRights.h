#pragma once

#include <sys/types.h>

/// As long as it lives, folders and files that a tool of this thread makes get the rights that the user's own
/// settings give, and not those of the user alone. For what comes back from an archive: the stock archiver
/// takes the rights of empty folders from there. All other threads keep theirs.
class UsualRights {
public:
    UsualRights();
    ~UsualRights();
    UsualRights(const UsualRights &) = delete;
    UsualRights &operator=(const UsualRights &) = delete;

private:
    bool m_isOwn; ///< the thread's mask is no other's
    mode_t m_before = 0;
};
