#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <compare>
#include <optional>

/// A version that a feed offers.
struct Release {
    QString version{};
    QString notes{}; ///< plain text of some kilobytes at most; may be empty
    QUrl page{};     ///< where a person downloads it: isTrustworthy()
};

struct AppcastContent {
    std::optional<Release> newest{}; ///< none where the feed offers nothing usable
    QString reason{};                ///< why it can't be read; empty where it can
};

/// Whether the address may be asked, or opened: one with https, for who can change what comes on its way can
/// offer what they like; or one of this very machine, where nobody stands in between.
[[nodiscard]] bool isTrustworthy(const QUrl &address);

/// Reads an RSS 2.0 feed (https://www.rssboard.org/rss-specification) whose items each stand for a version.
/// The version is the `version` (or `shortVersionString`, the one for people, which is preferred) of an item
/// or an attribute of its enclosure, in whatever namespace, else what the title ends with. Items without
/// version or an address of that kind are passed over. Texts are cut to what a person would read.
[[nodiscard]] AppcastContent readAppcast(const QByteArray &feed);

/// Compares number by number ("1.10" is newer than "1.9", "1.0" equals "1"); a version with letters behind
/// its numbers, such as "2.0b1" or "2.0-rc2", comes before the same without.
[[nodiscard]] std::strong_ordering compareVersions(const QString &left, const QString &right);
