#include "plist/Markup.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace plist {

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(plist)
};

// Far above what any tag of a property list needs: the longest is the document type.
constexpr qsizetype maximumTagLength = 1024;

qsizetype pastNext(QStringView document, QStringView mark, qsizetype from)
{
    const qsizetype index = document.indexOf(mark, from);
    return index < 0 ? document.size() : index + mark.size();
}

// Quoted values may hold what would otherwise end the tag.
qsizetype pastTag(QStringView document, qsizetype from)
{
    QChar quote;
    for (qsizetype index = from; index < document.size(); ++index) {
        const QChar unit = document[index];
        if (unit == quote)
            quote = QChar();
        else if (!quote.isNull())
            continue;
        else if (unit == u'"' || unit == u'\'')
            quote = unit;
        else if (unit == u'>')
            return index + 1;
    }
    return document.size();
}

qsizetype pastMarkup(QStringView document, qsizetype from)
{
    const QStringView rest = document.sliced(from);
    if (rest.startsWith(u"<!--")) return pastNext(document, u"-->", from + 4);
    if (rest.startsWith(u"<![CDATA[")) return pastNext(document, u"]]>", from);
    if (rest.startsWith(u"<?")) return pastNext(document, u"?>", from);
    return pastTag(document, from);
}

bool isTag(QStringView markup)
{
    return !markup.startsWith(u"<!--") && !markup.startsWith(u"<![CDATA[") && !markup.startsWith(u"<?");
}

// The document type may be named, but not added to.
bool isDeclaration(QStringView tag)
{
    return tag.startsWith(u"<!DOCTYPE") ? tag.contains(u'[') : tag.startsWith(u"<!");
}

QString hexadecimal(QChar unit)
{
    return QString::number(uint{unit.unicode()}, 16).toUpper().rightJustified(4, u'0');
}

} // namespace

std::optional<Refusal> forbiddenCharacter(QStringView text)
{
    for (qsizetype index = 0; index < text.size(); ++index) {
        const QChar unit = text[index];
        const bool isPair =
            unit.isHighSurrogate() && index + 1 < text.size() && text[index + 1].isLowSurrogate();
        const bool isControl = unit < u' ' && unit != u'\t' && unit != u'\n' && unit != u'\r';
        if (isPair)
            ++index;
        else if (isControl || unit.isSurrogate() || unit >= QChar(0xFFFE))
            return Refusal{index, u"U+"_s + hexadecimal(unit)};
    }
    return std::nullopt;
}

std::optional<Refusal> refusedMarkup(QStringView document)
{
    if (const auto forbidden = forbiddenCharacter(document))
        return Refusal{
            forbidden->index,
            Words::tr("it has a character that such a file can't hold (%1)").arg(forbidden->reason)};

    qsizetype index = document.indexOf(u'<');
    while (index >= 0) {
        const qsizetype end = pastMarkup(document, index);
        const QStringView markup = document.sliced(index, end - index);
        if (isTag(markup) && isDeclaration(markup))
            return Refusal{index, Words::tr("declarations within the document are not supported")};
        if (isTag(markup) && markup.size() > maximumTagLength)
            return Refusal{index,
                           Words::tr("it holds a tag of more than %1 characters").arg(maximumTagLength)};
        index = document.indexOf(u'<', end);
    }
    return std::nullopt;
}

} // namespace plist
