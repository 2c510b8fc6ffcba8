#include "plist/File.h"
#include "plist/Markup.h"
#include "plist/Value.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringDecoder>
#include <QXmlStreamReader>
#include <limits>

using namespace Qt::StringLiterals;

namespace plist {

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(plist)
};

/// One pass over one document. After the first refusal nothing more is read, and all that was read is
/// dropped.
class Reader {
public:
    explicit Reader(const QString &document) : m_xml(document) { m_xml.setNamespaceProcessing(false); }

    Dictionary readDocument();
    QString error() const { return m_xml.errorString(); }
    qint64 line() const { return m_xml.lineNumber(); }

private:
    Dictionary readDictionary(int depth);
    Array readArray(int depth);
    QString readKey();
    Value readValue(int depth);
    Value readScalar();
    Value readInteger(const QString &text);
    Value readReal(const QString &text);
    Value readData(const QString &text);
    Value readDate(const QString &text);
    Value readTruth(const QString &text, bool truth);

    bool toNextTag();
    void checkDocumentType();
    void checkEncoding();
    void checkAttributes();
    Value refuse(const QString &reason);

    QXmlStreamReader m_xml;
};

Value Reader::refuse(const QString &reason)
{
    // The first reason is the one that explains the others.
    if (!m_xml.hasError()) m_xml.raiseError(reason);
    return {};
}

Dictionary Reader::readDocument()
{
    if (!toNextTag()) return {};
    if (m_xml.qualifiedName() != u"plist")
        return refuse(Words::tr("the root element is <%1>, not <plist>").arg(m_xml.qualifiedName()))
            .dictionary();
    checkAttributes();

    if (!toNextTag()) return {};
    if (m_xml.isEndElement()) return refuse(Words::tr("the list is empty")).dictionary();
    if (m_xml.qualifiedName() != u"dict")
        return refuse(Words::tr("the root is <%1>, not a dictionary").arg(m_xml.qualifiedName()))
            .dictionary();
    const Dictionary root = readValue(1).dictionary();

    if (toNextTag() && m_xml.isStartElement()) refuse(Words::tr("something follows the root dictionary"));
    while (toNextTag())
        ;
    return m_xml.hasError() ? Dictionary{} : root;
}

/// To the next beginning or end of an element; false at the end of the document and after a refusal.
bool Reader::toNextTag()
{
    while (!m_xml.atEnd()) {
        switch (m_xml.readNext()) {
        case QXmlStreamReader::StartElement:
        case QXmlStreamReader::EndElement:
            return true;
        case QXmlStreamReader::StartDocument:
            checkEncoding();
            break;
        case QXmlStreamReader::DTD:
            checkDocumentType();
            break;
        case QXmlStreamReader::Characters:
            if (!m_xml.isWhitespace()) refuse(Words::tr("there is text between the elements"));
            break;
        case QXmlStreamReader::EntityReference:
            refuse(Words::tr("entities are not supported"));
            break;
        default:
            break; // comments and processing instructions say nothing about the values
        }
    }
    return false;
}

void Reader::checkEncoding()
{
    const QString encoding = m_xml.documentEncoding().toString();
    const QStringList readable{u""_s, u"UTF-8"_s, u"US-ASCII"_s};
    if (!readable.contains(encoding, Qt::CaseInsensitive))
        refuse(Words::tr("its encoding is %1, not UTF-8").arg(encoding));
}

void Reader::checkDocumentType()
{
    if (m_xml.dtdName() != u"plist") refuse(Words::tr("the document type is not that of a property list"));
}

void Reader::checkAttributes()
{
    const bool isRoot = m_xml.qualifiedName() == u"plist";
    const QXmlStreamAttributes attributes = m_xml.attributes();
    for (const QXmlStreamAttribute &attribute : attributes) {
        if (!isRoot || attribute.qualifiedName() != u"version")
            refuse(Words::tr("the attribute %1 is unknown").arg(attribute.qualifiedName()));
        else if (attribute.value() != u"1.0")
            refuse(Words::tr("version %1 of the format is unknown").arg(attribute.value()));
    }
}

Dictionary Reader::readDictionary(int depth)
{
    const Dictionary dictionary = Dictionary::make();
    while (toNextTag() && m_xml.isStartElement()) {
        const QString key = readKey();
        if (dictionary.contains(key)) refuse(Words::tr("the key %1 is there twice").arg(key));
        if (!toNextTag()) break;
        if (m_xml.isEndElement() || m_xml.qualifiedName() == u"key")
            refuse(Words::tr("the key %1 has no value").arg(key));
        else
            dictionary.setValue(key, readValue(depth));
    }
    return dictionary;
}

Array Reader::readArray(int depth)
{
    const Array array = Array::make();
    while (toNextTag() && m_xml.isStartElement())
        array.append(readValue(depth));
    return array;
}

QString Reader::readKey()
{
    if (m_xml.qualifiedName() != u"key")
        refuse(Words::tr("<%1> stands where a key is expected").arg(m_xml.qualifiedName()));
    checkAttributes();
    return m_xml.hasError() ? QString{} : m_xml.readElementText();
}

Value Reader::readValue(int depth)
{
    const bool isDictionary = m_xml.qualifiedName() == u"dict";
    if (!isDictionary && m_xml.qualifiedName() != u"array") return readScalar();

    if (depth > maximumDepth)
        return refuse(Words::tr("it is nested deeper than %1 levels").arg(maximumDepth));
    checkAttributes();
    return isDictionary ? Value(readDictionary(depth + 1)) : Value(readArray(depth + 1));
}

Value Reader::readScalar()
{
    const QString element = m_xml.qualifiedName().toString();
    const QStringList known{u"string"_s, u"integer"_s, u"real"_s, u"true"_s,
                            u"false"_s,  u"data"_s,    u"date"_s};
    if (!known.contains(element)) return refuse(Words::tr("the element <%1> is unknown").arg(element));
    checkAttributes();
    if (m_xml.hasError()) return {};

    const QString text = m_xml.readElementText();
    if (element == u"integer") return readInteger(text);
    if (element == u"real") return readReal(text);
    if (element == u"data") return readData(text);
    if (element == u"date") return readDate(text);
    if (element == u"string") return text;
    return readTruth(text, element == u"true");
}

Value Reader::readInteger(const QString &text)
{
    static const QRegularExpression form(uR"(\A[+-]?[0-9]+\z)"_s);
    if (!form.match(text).hasMatch()) return refuse(Words::tr("“%1” is not an integer").arg(text.left(40)));
    bool fits = false;
    const qint64 number = text.toLongLong(&fits);
    if (!fits) return refuse(Words::tr("the integer %1 does not fit into 64 bits").arg(text.left(40)));
    return number;
}

Value Reader::readReal(const QString &text)
{
    if (text == u"nan") return std::numeric_limits<double>::quiet_NaN();
    if (text == u"+infinity") return std::numeric_limits<double>::infinity();
    if (text == u"-infinity") return -std::numeric_limits<double>::infinity();

    static const QRegularExpression form(uR"(\A[+-]?([0-9]+\.?[0-9]*|\.[0-9]+)([eE][+-]?[0-9]+)?\z)"_s);
    bool fits = form.match(text).hasMatch();
    const double number = fits ? text.toDouble(&fits) : 0;
    if (!fits) return refuse(Words::tr("“%1” is not a real number").arg(text.left(40)));
    return number;
}

Value Reader::readData(const QString &text)
{
    static const QRegularExpression space(u"[ \t\r\n]+"_s);
    const QByteArray encoded = QString(text).remove(space).toUtf8();
    auto decoded = QByteArray::fromBase64Encoding(encoded, QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded) return refuse(Words::tr("the data is not Base64"));
    return std::move(decoded.decoded);
}

Value Reader::readDate(const QString &text)
{
    static const QRegularExpression form(uR"(\A[0-9]{4}-[0-9]{2}-[0-9]{2}T[0-9]{2}:[0-9]{2}:[0-9]{2}Z\z)"_s);
    const QDateTime date = QDateTime::fromString(text, Qt::ISODate);
    if (!form.match(text).hasMatch() || !date.isValid())
        return refuse(Words::tr("“%1” is not a date like 2001-12-31T23:59:59Z").arg(text.left(40)));
    return date;
}

Value Reader::readTruth(const QString &text, bool truth)
{
    if (!text.isEmpty()) return refuse(Words::tr("there is text in <true> or <false>"));
    return truth;
}

/// The file's bytes, or the reason why there are none.
struct Bytes {
    QByteArray bytes;
    QString reason;
};

Bytes readBytes(const QString &path)
{
    // Looked at before it is opened: opening a pipe would wait for its other end.
    const QFileInfo info(path);
    if (!info.exists()) return {{}, Words::tr("there is no such file")};
    if (!info.isFile()) return {{}, Words::tr("it is not a regular file")};

    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {{}, file.errorString()};
    QByteArray bytes = file.read(maximumFileSize + 1);
    if (file.error() != QFile::NoError) return {{}, file.errorString()};
    if (bytes.size() > maximumFileSize)
        return {{}, Words::tr("it is larger than %1 MiB").arg(maximumFileSize >> 20)};
    if (bytes.isEmpty()) return {{}, Words::tr("it is empty")};
    if (bytes.startsWith("bplist"))
        return {{}, Words::tr("it is a binary property list; only XML ones can be read")};
    return {std::move(bytes), {}};
}

} // namespace

FileContent readFile(const QString &path)
{
    const Bytes content = readBytes(path);
    if (!content.reason.isEmpty()) return {{}, u"%1: %2"_s.arg(path, content.reason)};

    // Decoded here, as the XML reader puts replacement characters for some of the bytes that are not UTF-8.
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString document = decoder(content.bytes);
    if (decoder.hasError()) return {{}, Words::tr("%1: it is not UTF-8").arg(path)};

    if (const auto refusal = refusedMarkup(document)) {
        const qsizetype line = QStringView(document).first(refusal->index).count(u'\n') + 1;
        return {{}, u"%1:%2: %3"_s.arg(path, QString::number(line), refusal->reason)};
    }

    Reader reader(document);
    Dictionary dictionary = reader.readDocument();
    if (!dictionary) return {{}, u"%1:%2: %3"_s.arg(path, QString::number(reader.line()), reader.error())};
    return {std::move(dictionary), {}};
}

} // namespace plist
