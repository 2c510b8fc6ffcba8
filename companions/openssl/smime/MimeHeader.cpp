#include "MimeHeader.h"

#include "ByteReader.h"
#include "Fault.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace {

// In bytes. Mail servers take no longer headers either.
constexpr std::size_t maximumSize = 65536;

bool isBlank(char letter) { return letter == ' ' || letter == '\t'; }

/// Without blanks around it, in lower case (US-ASCII).
std::string plain(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    std::string result(text);
    std::ranges::transform(result, result.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    return result;
}

/// The value of a field without its parameters.
std::string mainValue(std::string_view value) { return plain(value.substr(0, value.find(';'))); }

class HeaderReader {
public:
    HeaderReader(ByteReader &text, Fault &fault) : m_text(text), m_fault(fault) {}

    bool read()
    {
        std::string field;
        std::string line;
        while (readLine(line)) {
            // A line that begins with a blank goes on with the field before it.
            if (!line.empty() && isBlank(line.front()) && !field.empty()) {
                field += line;
                continue;
            }
            if (!field.empty() && !take(field)) return false;
            if (line.empty()) return m_isEnveloped || isNoMessage();
            field.swap(line);
        }
        return false;
    }

private:
    /// The next line without its end.
    bool readLine(std::string &line)
    {
        line.clear();
        while (const auto byte = m_text.get()) {
            if (m_text.position() > maximumSize) return isNoMessage();
            if (*byte == '\n') {
                if (line.ends_with('\r')) line.pop_back();
                return true;
            }
            line += static_cast<char>(*byte);
        }
        return m_text.position() == 0 ? m_fault.report("is empty") : m_fault.reportCutShort();
    }

    bool take(std::string_view field)
    {
        const std::size_t colon = field.find(':');
        if (colon == std::string_view::npos) return isNoMessage();
        const std::string name = plain(field.substr(0, colon));
        const std::string value = mainValue(field.substr(colon + 1));
        if (name == "content-type")
            m_isEnveloped = value == "application/x-pkcs7-mime" || value == "application/pkcs7-mime";
        if (name == "content-transfer-encoding" && value != "base64")
            return m_fault.report("is encoded as \"" + value + "\", not as base64");
        return true;
    }

    bool isNoMessage() { return m_fault.report("is no S/MIME message"); }

    ByteReader &m_text;
    Fault &m_fault;
    bool m_isEnveloped = false;
};

} // namespace

bool readMimeHeader(ByteReader &text, Fault &fault) { return HeaderReader(text, fault).read(); }
