#include "updates/Appcast.h"

#include <QCoreApplication>
#include <QHostAddress>
#include <QRegularExpression>
#include <QVersionNumber>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(updates)
};

// In characters. Who makes the feed, or can change it, is not to decide how long the window works on it.
constexpr qsizetype longestMarkup = 8192;
constexpr qsizetype longestNotes = 4096;
constexpr qsizetype longestWord = 1024; // a title, a version, an address

QString cut(QString text, qsizetype longest)
{
    if (text.size() <= longest) return text;
    text.truncate(longest);
    if (text.back().isHighSurrogate()) text.chop(1);
    return text + u'…';
}

/// What of an item's markup is text, a line for each of its paragraphs and list items.
QString plainText(QString html)
{
    html = cut(html, longestMarkup);
    static const QRegularExpression lineBreaks(u"<\\s*(br|p|li|h[1-6]|div|tr)\\b[^>]*>"_s,
                                               QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression tags(u"<[^<>]*>"_s);
    static const QRegularExpression emptyLines(u"\\s*\\n\\s*"_s);
    html.replace(lineBreaks, u"\n"_s).remove(tags);
    html.replace(u"&nbsp;"_s, u" "_s).replace(u"&lt;"_s, u"<"_s).replace(u"&gt;"_s, u">"_s);
    html.replace(u"&quot;"_s, u"\""_s).replace(u"&#39;"_s, u"'"_s).replace(u"&amp;"_s, u"&"_s);
    return cut(html.replace(emptyLines, u"\n"_s).trimmed(), longestNotes);
}

/// Reads one item, and leaves the reader at its end.
class ItemReader {
public:
    Release read(QXmlStreamReader &xml)
    {
        while (xml.readNextStartElement())
            readElement(xml);
        static const QRegularExpression atEnd(u"\\d[\\w.-]*$"_s);
        m_release.version = firstFilled({m_versionForPeople, m_version, atEnd.match(m_title).captured()});
        for (const QString &address : {m_download, m_link})
            // Whatever else a feed might name, such as a file, is nothing to be opened.
            if (const QUrl page(address, QUrl::StrictMode); isTrustworthy(page)) m_release.page = page;
        return m_release;
    }

private:
    static QString firstFilled(const QStringList &texts)
    {
        for (const QString &text : texts)
            if (!text.isEmpty()) return text;
        return {};
    }

    void readElement(QXmlStreamReader &xml)
    {
        const QString name = xml.name().toString();
        if (name == u"enclosure") {
            readEnclosure(xml.attributes());
            xml.skipCurrentElement();
            return;
        }
        const QString all = xml.readElementText(QXmlStreamReader::SkipChildElements).trimmed();
        if (name == u"description") m_release.notes = plainText(all);
        const QString text = cut(all, longestWord);
        if (name == u"title") m_title = text;
        if (name == u"link") m_link = text;
        if (name == u"version") m_version = text;
        if (name == u"shortVersionString") m_versionForPeople = text;
    }

    void readEnclosure(const QXmlStreamAttributes &attributes)
    {
        for (const QXmlStreamAttribute &attribute : attributes) {
            const QString text = cut(attribute.value().toString(), longestWord);
            if (attribute.name() == u"version") m_version = text;
            if (attribute.name() == u"shortVersionString") m_versionForPeople = text;
            if (attribute.name() == u"url") m_download = text;
        }
    }

    Release m_release;
    QString m_title;
    QString m_link;
    QString m_download;
    QString m_version;
    QString m_versionForPeople;
};

bool isRss(QXmlStreamReader &xml)
{
    return xml.readNextStartElement() && xml.name() == u"rss" && xml.readNextStartElement() &&
           xml.name() == u"channel";
}

} // namespace

bool isTrustworthy(const QUrl &address)
{
    return address.scheme() == u"https" ||
           (address.scheme() == u"http" && QHostAddress(address.host()).isLoopback());
}

AppcastContent readAppcast(const QByteArray &feed)
{
    QXmlStreamReader xml(feed);
    if (!isRss(xml)) return {std::nullopt, Words::tr("it is no RSS feed")};
    AppcastContent content;
    while (xml.readNextStartElement()) {
        if (xml.name() != u"item") {
            xml.skipCurrentElement();
            continue;
        }
        const Release release = ItemReader().read(xml);
        if (release.version.isEmpty() || release.page.isEmpty()) continue;
        if (!content.newest || std::is_gt(compareVersions(release.version, content.newest->version)))
            content.newest = release;
    }
    if (xml.hasError())
        return {std::nullopt, u"line %1: %2"_s.arg(QString::number(xml.lineNumber()), xml.errorString())};
    return content;
}

std::strong_ordering compareVersions(const QString &left, const QString &right)
{
    const auto parse = [](const QString &text) {
        qsizetype end = 0;
        const auto numbers = QVersionNumber::fromString(text, &end).normalized();
        return std::pair(numbers, text.mid(end));
    };
    const auto [leftNumbers, leftRest] = parse(left);
    const auto [rightNumbers, rightRest] = parse(right);
    const int byNumbers = QVersionNumber::compare(leftNumbers, rightNumbers);
    if (byNumbers != 0) return byNumbers <=> 0;
    if (leftRest.isEmpty() || rightRest.isEmpty()) return leftRest.isEmpty() <=> rightRest.isEmpty();
    return QString::compare(leftRest, rightRest) <=> 0;
}
