#pragma once

#include <QString>
#include <chrono>

/// Hours, minutes and seconds: "0:01:30".
[[nodiscard]] inline QString clockText(std::chrono::milliseconds time)
{
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(time).count();
    const QChar zero = u'0';
    return QStringLiteral("%1:%2:%3")
        .arg(seconds / 3600)
        .arg(seconds / 60 % 60, 2, 10, zero)
        .arg(seconds % 60, 2, 10, zero);
}
