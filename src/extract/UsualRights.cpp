#include "extract/UsualRights.h"

#include <sched.h>
#include <sys/stat.h>

namespace {

mode_t presentMask()
{
    const mode_t mask = umask(0);
    umask(mask);
    return mask;
}

// Taken before main() begins, where the program makes its own stricter.
const mode_t usualMask = presentMask();

} // namespace

// A mask belongs to the whole process, unless a thread asks for one of its own. Where that is refused, the
// strict one stays: another thread may be about to make what nobody else is to read.
UsualRights::UsualRights() : m_isOwn(unshare(CLONE_FS) == 0)
{
    if (m_isOwn) m_before = umask(usualMask);
}

UsualRights::~UsualRights()
{
    if (m_isOwn) umask(m_before);
}
