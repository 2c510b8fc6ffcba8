// Feeds both coders of base64 with anything, in pieces of odd sizes, and holds what they make of it against
// libcrypto's own. The first byte of an input chooses the rules of the reader.

#include "Pieces.h"
#include "smime/Base64.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <openssl/evp.h>

namespace {

using Coder = std::unique_ptr<EVP_ENCODE_CTX, decltype(&EVP_ENCODE_CTX_free)>;

Coder makeCoder() { return {EVP_ENCODE_CTX_new(), EVP_ENCODE_CTX_free}; }

/// What libcrypto makes of a text; false: it takes it for none.
bool decodeWithLibrary(Bytes text, Input &content)
{
    const Coder coder = makeCoder();
    EVP_DecodeInit(coder.get());
    content.resize(text.size() + 64);
    int size = 0;
    int last = 0;
    if (EVP_DecodeUpdate(coder.get(), content.data(), &size, text.data(), static_cast<int>(text.size())) < 0)
        return false;
    const bool isWhole = EVP_DecodeFinal(coder.get(), content.data() + size, &last) >= 0;
    content.resize(static_cast<std::size_t>(size + last));
    return isWhole;
}

Input encodeWithLibrary(Bytes bytes)
{
    const Coder coder = makeCoder();
    EVP_EncodeInit(coder.get());
    Input text(bytes.size() * 2 + 256);
    int size = 0;
    int last = 0;
    EVP_EncodeUpdate(coder.get(), text.data(), &size, bytes.data(), static_cast<int>(bytes.size()));
    EVP_EncodeFinal(coder.get(), text.data() + size, &last);
    text.resize(static_cast<std::size_t>(size + last));
    return text;
}

Input encode(Bytes bytes)
{
    Pieces pieces(bytes);
    Collected text;
    Base64Sink sink(text);
    for (Bytes piece; !(piece = pieces.read()).empty();)
        if (!sink.write(piece)) std::abort();
    if (!sink.finish()) std::abort();
    return text.all;
}

/// False: it is no base64 text.
bool decode(Bytes text, Base64Source::Rules rules, Input &content)
{
    Pieces pieces(text);
    ByteReader reader(pieces);
    Fault fault;
    Base64Source source(reader, fault, rules);
    for (Bytes piece; !(piece = source.read()).empty();)
        content.insert(content.end(), piece.begin(), piece.end());
    return !fault.isSet();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0) return 0;
    const auto rules = data[0] % 2 ? Base64Source::Rules::OfTool : Base64Source::Rules::Strict;
    const Bytes input(data + 1, size - 1);
    const Input text = encode(input);
    Input content;
    if (text != encodeWithLibrary(input) || !decode(text, rules, content) ||
        !std::ranges::equal(content, input))
        std::abort();

    content.clear();
    Input expected;
    const bool isTaken = decode(input, rules, content);
    // Here the library takes more for the end than the reader does.
    if (std::ranges::count(input, '-') > 0) return 0;
    if (isTaken && (!decodeWithLibrary(input, expected) || content != expected)) std::abort();
    return 0;
}
