#include "EntryLister.h"

#include "FileDescriptor.h"

#include <unistd.h>

namespace archiver {

ContentSink *EntryLister::beginFile(const FileHeader &header)
{
    add(header);
    return nullptr;
}

void EntryLister::add(const FileHeader &header)
{
    constexpr std::size_t enough = 64 << 10; // for one call of the system
    putText(m_lines, header.name);
    m_lines.push_back('\n');
    if (m_lines.size() >= enough) finish();
}

void EntryLister::finish()
{
    if (!m_failed && !base::writeFully(STDOUT_FILENO, m_lines)) {
        m_failed = true; // one message is enough
        m_diagnostics.reportSystem("Cannot write the list");
    }
    m_lines.clear();
}

} // namespace archiver
