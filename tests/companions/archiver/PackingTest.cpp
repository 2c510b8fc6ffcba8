#include "HuffmanEncoder.h"
#include "Rar.h"
#include "Tree.h"

#include <map>

namespace fs = std::filesystem;

namespace {

struct Content {
    std::string name;
    std::string bytes;
    double largestRatio; ///< packed to unpacked, headers included

    friend void PrintTo(const Content &content, std::ostream *out) { *out << content.name; }
};

std::string skewed(std::size_t size)
{
    // Frequencies like the Fibonacci numbers' need the longest codes.
    std::string bytes;
    std::size_t count = 1;
    std::size_t before = 1;
    for (unsigned char byte = 0; bytes.size() < size; ++byte) {
        bytes.append(count, static_cast<char>(byte));
        before = std::exchange(count, count + before);
    }
    return bytes;
}

constexpr std::size_t block = archiver::HuffmanEncoder::blockInput;

std::vector<Content> contents()
{
    return {{"base64", base64Text(3'000'000), 0.755},
            {"base64 of a block", base64Text(block), 0.755},
            {"base64 of a block and a byte", base64Text(block + 1), 0.755},
            {"short base64", base64Text(2000), 0.85},
            {"empty", "", 0},
            {"one byte", "x", 0},
            {"one byte repeated", std::string(1'500'000, 'x'), 0.126},
            {"two bytes", std::string(700'000, 'a') + std::string(700'000, 'b'), 0.26},
            {"skewed", skewed(1'000'000), 0.5},
            {"random, one block", randomBytes(100'000), 1.002},
            {"random, many blocks", randomBytes(2'000'000), 1.0001},
            {"text, then random", base64Text(1'000'000) + randomBytes(200'000), 0.82}};
}

/// Mostly one byte, with others strewn in: codes of one bit beside long ones.
std::string unevenText(std::size_t size)
{
    std::string bytes = randomBytes(size, static_cast<std::uint32_t>(size));
    for (std::size_t index = 0; index < size; ++index)
        if (bytes[index] % 32 != 0) bytes[index] = 'a';
    return bytes;
}

class PackedContent : public ArchiverTest, public testing::WithParamInterface<Content> {};
using Packing = ArchiverTest;

} // namespace

TEST_P(PackedContent, unpacksByEveryReaderToWhatItWas)
{
    const auto &[name, bytes, largestRatio] = GetParam();
    writeFile(temporary / "file", bytes);
    ASSERT_EQ(packFile(archive, temporary / "file").errors, "");
    const auto size = static_cast<double>(bytes.size());
    const double most = largestRatio > 0 ? largestRatio * size : size + 80; // stored
    EXPECT_LE(static_cast<double>(fs::file_size(archive)), most);
    expectContent({archive}, bytes);
}

INSTANTIATE_TEST_SUITE_P(Contents, PackedContent, testing::ValuesIn(contents()),
                         [](const auto &test) { return "number" + std::to_string(test.index); });

TEST_F(Packing, anyNumberOfBitsInTheLastByteIsReadable)
{
    // How far a reader looks ahead depends on the lengths of the codes, so there are even and uneven ones.
    std::map<std::string, std::string> files;
    for (std::size_t length = 3000; length < 3024; ++length) {
        const std::string number = std::to_string(length);
        files["even " + number] = base64Text(length);
        files["uneven " + number] = unevenText(length);
    }
    for (const auto &[name, content] : files)
        writeFile(source / name, content);
    ASSERT_EQ(rar({"a", "-m5", "-t", "-ep", archive, source}).errors, "");
    const CommandResult third = runCommand({"unar", "-q", "-D", "-o", out, archive});
    EXPECT_EQ(third.status, 0) << third.output;
    for (const auto &[name, content] : files)
        EXPECT_TRUE(readFile(out / name) == content) << name;
}
