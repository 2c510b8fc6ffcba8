#include "LineFilter.h"

#include <algorithm>

std::string LineFilter::pass(std::string_view piece)
{
    if (m_dropped.empty()) return std::string(piece);
    m_begun += piece;
    std::string passed;
    std::size_t start = 0;
    for (std::size_t end = 0; (end = m_begun.find('\n', start)) != std::string::npos; start = end + 1) {
        const std::string_view line = std::string_view(m_begun).substr(start, end - start);
        if (std::ranges::find(m_dropped, line) == m_dropped.end()) passed.append(line).append(1, '\n');
    }
    m_begun.erase(0, start);
    return passed;
}
