#include "plist/File.h"
#include "plist/Markup.h"
#include "plist/PrivateFile.h"
#include "plist/Value.h"

#include <QCoreApplication>
#include <QLocale>
#include <QXmlStreamWriter>
#include <cmath>

using namespace Qt::StringLiterals;

namespace plist {

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(plist)
};

QString realText(double number)
{
    if (std::isnan(number)) return u"nan"_s;
    if (std::isinf(number)) return number > 0 ? u"+infinity"_s : u"-infinity"_s;
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

/// One pass over one dictionary. The first thing that can't be written is remembered; what is written after
/// it is not used.
class Writer {
public:
    Writer() : m_xml(&m_bytes)
    {
        m_xml.setAutoFormatting(true);
        m_xml.setAutoFormattingIndent(-1); // one tab
    }

    void writeDocument(const Dictionary &root);
    const QString &reason() const { return m_reason; }
    const QByteArray &bytes() const { return m_bytes; }

private:
    void writeValue(const Value &value, int depth);
    void writeDictionary(const Dictionary &dictionary, int depth);
    void writeArray(const Array &array, int depth);
    void writeDate(const QDateTime &date);
    void writeText(const QString &element, const QString &text);
    void refuse(const QString &reason); // which has one place left, for the keys that lead there
    void refuseDepth();

    QByteArray m_bytes;
    QXmlStreamWriter m_xml;
    QString m_reason;
    QStringList m_keys; // from the root to what is being written
};

void Writer::refuse(const QString &reason)
{
    if (m_reason.isEmpty()) m_reason = reason.arg(m_keys.join(u"/"_s));
}

void Writer::refuseDepth()
{
    refuse(Words::tr("the value under “%2” is nested deeper than %1 levels").arg(maximumDepth));
}

void Writer::writeDocument(const Dictionary &root)
{
    m_xml.writeStartDocument();
    m_xml.writeDTD(u"<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                   "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">"_s);
    m_xml.writeStartElement(u"plist"_s);
    m_xml.writeAttribute(u"version"_s, u"1.0"_s);
    writeDictionary(root, 1);
    m_xml.writeEndDocument();
    if (m_xml.hasError() && m_reason.isEmpty()) m_reason = Words::tr("it can't be put into XML");
    if (m_bytes.size() > maximumFileSize && m_reason.isEmpty())
        m_reason = Words::tr("it would be larger than %1 MiB").arg(maximumFileSize >> 20);
}

void Writer::writeValue(const Value &value, int depth)
{
    const Value::Content &content = value.content();
    if (const auto *dictionary = std::get_if<Dictionary>(&content)) writeDictionary(*dictionary, depth);
    if (const auto *array = std::get_if<Array>(&content)) writeArray(*array, depth);
    if (const auto *text = std::get_if<QString>(&content)) writeText(u"string"_s, *text);
    if (const auto *number = std::get_if<qint64>(&content)) writeText(u"integer"_s, QString::number(*number));
    if (const auto *number = std::get_if<double>(&content)) writeText(u"real"_s, realText(*number));
    if (const auto *truth = std::get_if<bool>(&content))
        m_xml.writeEmptyElement(*truth ? u"true"_s : u"false"_s);
    if (const auto *data = std::get_if<QByteArray>(&content))
        writeText(u"data"_s, QString::fromLatin1(data->toBase64()));
    if (const auto *date = std::get_if<QDateTime>(&content)) writeDate(*date);
}

void Writer::writeDictionary(const Dictionary &dictionary, int depth)
{
    // Also what ends the writing of a container that came to lie in itself.
    if (depth > maximumDepth) return refuseDepth();
    m_xml.writeStartElement(u"dict"_s);
    const QList<Dictionary::Entry> entries = dictionary.entries();
    for (const Dictionary::Entry &entry : entries) {
        m_keys.append(entry.key);
        writeText(u"key"_s, entry.key);
        writeValue(entry.value, depth + 1);
        m_keys.removeLast();
    }
    m_xml.writeEndElement();
}

void Writer::writeArray(const Array &array, int depth)
{
    if (depth > maximumDepth) return refuseDepth();
    m_xml.writeStartElement(u"array"_s);
    const QList<Value> values = array.values();
    for (const Value &value : values)
        writeValue(value, depth + 1);
    m_xml.writeEndElement();
}

void Writer::writeDate(const QDateTime &date)
{
    const QDateTime utc = date.toUTC();
    if (!utc.isValid() || utc.date().year() < 1 || utc.date().year() > 9999)
        return refuse(Words::tr("the value under “%1” is a date that the file can't hold"));
    writeText(u"date"_s, utc.toString(u"yyyy-MM-ddTHH:mm:ssZ"_s));
}

void Writer::writeText(const QString &element, const QString &text)
{
    if (const auto forbidden = forbiddenCharacter(text))
        return refuse(Words::tr("the value under “%2” has a character that the file can't hold (%1)")
                          .arg(forbidden->reason));

    m_xml.writeStartElement(element);
    m_xml.writeCharacters({}); // so that even an empty element has both of its tags
    const QStringList parts = text.split(u'\r');
    for (qsizetype part = 0; part < parts.size(); ++part) {
        // A bare carriage return would be read back as a line feed.
        if (part > 0) m_xml.writeEntityReference(u"#13"_s);
        m_xml.writeCharacters(parts[part]);
    }
    m_xml.writeEndElement();
}

} // namespace

Document toDocument(const Dictionary &dictionary)
{
    if (!dictionary) return {{}, Words::tr("there is nothing to write")};
    Writer writer;
    writer.writeDocument(dictionary);
    return {writer.bytes(), writer.reason()};
}

QString writeFile(const QString &path, const Dictionary &dictionary)
{
    const Document document = toDocument(dictionary);
    if (!document.reason.isEmpty()) return u"%1: %2"_s.arg(path, document.reason);
    return replacePrivateFile(path, document.bytes);
}

} // namespace plist
