#include "MatchFinder.h"

#include <algorithm>
#include <new>

namespace archiver {

MatchFinder::MatchFinder(int level) : m_context(ZSTD_createCCtx(), ZSTD_freeCCtx)
{
    if (!m_context || ZSTD_isError(ZSTD_CCtx_setParameter(m_context.get(), ZSTD_c_compressionLevel, level)))
        throw std::bad_alloc();
}

std::span<const ZSTD_Sequence> MatchFinder::find(Bytes window, std::size_t history)
{
    const Bytes content = window.subspan(history);
    const std::size_t room = ZSTD_sequenceBound(content.size());
    if (room > m_room) {
        m_found.reset(new ZSTD_Sequence[room]);
        m_room = room;
    }
    ZSTD_CCtx_refPrefix(m_context.get(), window.data(), history); // for this time only
    const std::size_t count =
        ZSTD_generateSequences(m_context.get(), m_found.get(), m_room, content.data(), content.size());
    if (ZSTD_isError(count)) return {}; // then it is packed without
    return {m_found.get(), count};
}

MatchCursor::Step MatchCursor::next(std::size_t most)
{
    while (m_rest.literals == 0 && m_rest.length == 0) {
        if (m_left.empty()) return {most, 0, 0};
        m_rest = {m_left.front().litLength, m_left.front().matchLength, m_left.front().offset};
        m_left = m_left.subspan(1);
    }
    Step step{std::min(m_rest.literals, most), 0, m_rest.distance};
    m_rest.literals -= step.literals;
    if (m_rest.literals == 0) step.length = std::min(m_rest.length, most - step.literals);
    m_rest.length -= step.length;
    return step;
}

} // namespace archiver
