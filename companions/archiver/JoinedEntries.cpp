#include "JoinedEntries.h"

#include <utility>

namespace archiver {

JoinedEntries::JoinedEntries(const std::string &path, Diagnostics &diagnostics)
    : m_scout(path, diagnostics), m_feeder(path, diagnostics)
{
}

bool JoinedEntries::begin(std::size_t first)
{
    if (!m_isOpen && !(m_scout.reader.open() && m_feeder.reader.open())) m_failed = true;
    m_isOpen = true;
    m_consumed = 0;
    m_given.clear();
    m_first = first;
    m_state = State::Start;
    return !m_failed;
}

Bytes JoinedEntries::read()
{
    if (m_failed) return {};
    if (m_consumed > 0) m_feeder.reader.consume(std::exchange(m_consumed, 0));
    switch (m_state) {
    case State::Start:
        return putStart();
    case State::Data:
        if (const Bytes bytes = m_feeder.reader.packed(); !bytes.empty()) {
            m_consumed = bytes.size();
            return bytes;
        }
        if (m_feeder.reader.failed()) return fail();
        [[fallthrough]];
    case State::Entry:
        return putEntry();
    case State::End:
        break;
    }
    return {};
}

Bytes JoinedEntries::fail()
{
    m_failed = true;
    return {};
}

Bytes JoinedEntries::putStart()
{
    const HeaderFormat &format = m_scout.reader.format();
    m_header.assign(format.signature.begin(), format.signature.end());
    // libarchive refuses what says that it is solid in the older format, even a single file.
    format.putMain(m_header, {.solid = &format == &presentFormat});
    m_state = State::Entry;
    return m_header;
}

ArchiveReader::Step JoinedEntries::step(Walk &walk)
{
    ++walk.next;
    return walk.reader.next();
}

bool JoinedEntries::goTo(Walk &walk, std::size_t index)
{
    while (walk.next <= index)
        if (step(walk) != ArchiveReader::Step::Entry) return false;
    return true;
}

/// The next packed entry, where it belongs to the row; else the end.
Bytes JoinedEntries::putEntry()
{
    if (!goTo(m_scout, m_first)) return fail();
    for (bool isFirst = m_given.empty() && m_scout.next == m_first + 1;; isFirst = false) {
        if (!isFirst) {
            const ArchiveReader::Step step = this->step(m_scout);
            if (step == ArchiveReader::Step::Failed) return fail();
            if (step == ArchiveReader::Step::End) return putEnd();
        }
        FileHeader header = m_scout.reader.entry();
        if (header.folder || header.link || header.stored()) continue;
        if (!isFirst && !header.solid) return putEnd();
        const std::optional<std::uint64_t> size = m_scout.reader.skipEntry();
        if (!size) return fail();
        if (*size == 0) continue;
        const std::size_t index = m_scout.next - 1;
        if (!goTo(m_feeder, index)) return fail();
        header.packedSize = *size;
        header.crc = m_scout.reader.entry().crc;
        header.continuesAfter = false;
        m_given.emplace_back(index, header);
        header.name = std::to_string(index);
        header.mode = 0100644;
        header.unixHost = true;
        header.modified.reset();
        m_header.clear();
        m_scout.reader.format().putFile(m_header, header);
        m_state = State::Data;
        return m_header;
    }
}

Bytes JoinedEntries::putEnd()
{
    m_header.clear();
    m_scout.reader.format().putEnd(m_header, false);
    m_state = State::End;
    return m_header;
}

std::optional<FileHeader> JoinedEntries::header(std::size_t index)
{
    while (!m_given.empty() && m_given.front().first < index)
        m_given.pop_front();
    if (m_given.empty() || m_given.front().first != index) return std::nullopt;
    return m_given.front().second;
}

} // namespace archiver
