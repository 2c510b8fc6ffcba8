#include "Secret.h"

#include <algorithm>

void wipeMemory(char *memory, std::size_t size)
{
    volatile char *bytes = memory;
    for (std::size_t i = 0; i < size; ++i)
        bytes[i] = '\0';
}

bool Secret::assign(std::string_view text)
{
    wipe();
    if (text.size() > maximumSize) return false;
    std::ranges::copy(text, m_bytes.begin());
    m_size = text.size();
    return true;
}

void Secret::wipe()
{
    wipeMemory(m_bytes.data(), m_bytes.size());
    m_size = 0;
}
