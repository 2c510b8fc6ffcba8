#include "Secret.h"

#include "WipedBytes.h"

#include <algorithm>

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
    base::wipe(m_bytes.data(), m_bytes.size());
    m_size = 0;
}
