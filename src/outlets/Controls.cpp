#include "outlets/Controls.h"

namespace outlets {

void Chooser::setTitles(const QStringList &titles)
{
    update([&] {
        if (m_titles == titles) return false;
        m_titles = titles;
        if (!m_titles.contains(m_selected)) m_selected.clear();
        return true;
    });
}

void Chooser::selectTitle(const QString &title)
{
    update([&] {
        const QString known = m_titles.contains(title) ? title : QString();
        if (m_selected == known) return false;
        m_selected = known;
        return true;
    });
}

} // namespace outlets
