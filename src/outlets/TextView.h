#pragma once

#include "outlets/Outlet.h"

namespace outlets {

/// A text of many lines, such as a log.
class TextView : public Outlet {
public:
    using Outlet::Outlet;

    [[nodiscard]] QString text() const { return read(m_text); }
    void setText(const QString &text) { write(m_text, text); }

    /// In one step, so that blocks of several threads never mix.
    void append(const QString &text)
    {
        update([&] {
            m_text = m_text + text; // a copy: another thread may still read the old text
            return !text.isEmpty();
        });
    }

private:
    QString m_text;
};

} // namespace outlets
