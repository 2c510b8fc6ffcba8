#include "PassPhrase.h"

#include "Files.h"

#include <cerrno>
#include <charconv>
#include <cstdlib>
#include <fcntl.h>
#include <openssl/evp.h>

namespace {

constexpr std::string_view variable = "env:";
constexpr std::string_view file = "file:";
constexpr std::string_view descriptor = "fd:";
constexpr std::string_view standardInput = "stdin";

std::optional<int> numberIn(std::string_view text)
{
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number < 0) return std::nullopt;
    return number;
}

/// Takes the first line. Nothing behind it is read: a message may follow.
bool readLine(int from, Secret &passPhrase)
{
    const base::WipedBytes line(Secret::maximumSize);
    char *const text = reinterpret_cast<char *>(line.data());
    std::size_t size = 0;
    ssize_t count = 0;
    char letter = '\0';
    while ((count = read(from, &letter, 1)) == 1 && letter != '\n' && size < line.size())
        text[size++] = letter;
    if (count == 1 && letter != '\n') errno = EMSGSIZE;
    const bool isRead = count == 0 || letter == '\n';
    return count >= 0 && isRead && passPhrase.assign({text, size});
}

} // namespace

bool isPassPhraseSource(std::string_view source)
{
    if (source.starts_with(descriptor)) return numberIn(source.substr(descriptor.size())).has_value();
    return source == standardInput || source.starts_with(variable) || source.starts_with(file);
}

bool isRepeatable(std::string_view source)
{
    return source.starts_with(variable) || source.starts_with(file);
}

bool hasTerminal() { return static_cast<bool>(base::FileDescriptor(open("/dev/tty", O_RDWR | O_CLOEXEC))); }

bool askPassPhrase(const std::string &cipher, Secret &passPhrase)
{
    const base::WipedBytes line(Secret::maximumSize + 1);
    char *const text = reinterpret_cast<char *>(line.data());
    const std::string prompt = "enter " + cipher + " decryption password:";
    const bool isAnswered = EVP_read_pw_string(text, static_cast<int>(line.size()), prompt.c_str(), 0) == 0;
    return isAnswered && passPhrase.assign(text);
}

bool fetchPassPhrase(const std::string &source, Secret &passPhrase, std::string &problem)
{
    bool isTaken = false;
    errno = ENOENT;
    if (source.starts_with(variable)) {
        const char *const value = std::getenv(source.c_str() + variable.size());
        isTaken = value && passPhrase.assign(value);
    } else if (source.starts_with(file)) {
        const base::FileDescriptor opened(open(source.c_str() + file.size(), O_RDONLY | O_CLOEXEC));
        isTaken = opened && readLine(opened.get(), passPhrase);
    } else {
        const bool isNumbered = source.starts_with(descriptor);
        const auto number = numberIn(std::string_view(source).substr(isNumbered ? descriptor.size() : 0));
        isTaken = readLine(number.value_or(STDIN_FILENO), passPhrase);
    }
    if (!isTaken) problem = "cannot take the pass phrase from " + source + ": " + systemReason(errno);
    return isTaken;
}
