#include "HuffmanCode.h"
#include "HuffmanEncoder.h"
#include "Rar.h"
#include "TemporaryFolder.h"
#include "Tree.h"

#include <gtest/gtest.h>
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

std::string everyByteOnce()
{
    std::string bytes(256, '\0');
    for (std::size_t index = 0; index < bytes.size(); ++index)
        bytes[index] = static_cast<char>(index);
    return bytes;
}

constexpr std::size_t block = archiver::HuffmanEncoder::blockInput;

std::vector<Content> contents()
{
    return {{"base64", base64Text(3'000'000), 0.755},
            {"base64 of a block", base64Text(block), 0.755},
            {"base64 of a block and a byte", base64Text(block + 1), 0.755},
            {"base64 just below a block", base64Text(block - 1), 0.755},
            {"short base64", base64Text(2000), 0.85},
            {"empty", "", 0},
            {"one byte", "x", 0},
            {"one byte repeated", std::string(1'500'000, 'x'), 0.126},
            {"two bytes", std::string(700'000, 'a') + std::string(700'000, 'b'), 0.26},
            {"three bytes", "abc", 0},
            {"skewed", skewed(1'000'000), 0.5},
            {"every byte once", everyByteOnce(), 0},
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

class PackedContent : public testing::TestWithParam<Content> {};

} // namespace

TEST_P(PackedContent, unpacksByEveryReaderToWhatItWas)
{
    TemporaryFolder temporary;
    const fs::path archive = temporary / "a.rar";
    writeFile(temporary / "file", GetParam().bytes);
    const CommandResult packed = packFile(archive, temporary / "file");
    ASSERT_EQ(packed.errors, "");
    if (GetParam().largestRatio > 0)
        EXPECT_LE(static_cast<double>(fs::file_size(archive)),
                  GetParam().largestRatio * static_cast<double>(GetParam().bytes.size()));
    else
        EXPECT_LE(fs::file_size(archive), GetParam().bytes.size() + 80); // stored

    EXPECT_EQ(rar({"e", "-o+", "-idq", archive, temporary / "ours"}).errors, "");
    // Long texts are compared as a whole: googletest would take minutes over their difference.
    EXPECT_TRUE(readFile(temporary / "ours/file") == GetParam().bytes);
    fs::create_directory(temporary / "other");
    EXPECT_EQ(runCommand({"bsdtar", "-xf", archive, "-C", temporary / "other"}).errors, "");
    EXPECT_TRUE(readFile(temporary / "other/file") == GetParam().bytes);
    const CommandResult third = runCommand({"unar", "-q", "-D", "-o", temporary / "third", archive});
    EXPECT_EQ(third.status, 0) << third.output;
    EXPECT_TRUE(readFile(temporary / "third/file") == GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(Contents, PackedContent, testing::ValuesIn(contents()),
                         [](const auto &test) { return "number" + std::to_string(test.index); });

TEST(Packing, anyNumberOfBitsInTheLastByteIsReadable)
{
    // How far a reader looks ahead depends on the lengths of the codes, so there are even and uneven ones.
    TemporaryFolder temporary;
    std::map<std::string, std::string> files;
    for (std::size_t length = 3000; length < 3024; ++length) {
        const std::string number = std::to_string(length);
        files["even " + number] = base64Text(length);
        files["uneven " + number] = unevenText(length);
    }
    for (const auto &[name, content] : files)
        writeFile(temporary / "source" / name, content);
    const fs::path archive = temporary / "a.rar";
    ASSERT_EQ(rar({"a", "-m5", "-t", "-ep", archive, temporary / "source"}).errors, "");
    const CommandResult third = runCommand({"unar", "-q", "-D", "-o", temporary / "third", archive});
    EXPECT_EQ(third.status, 0) << third.output;
    for (const auto &[name, content] : files)
        EXPECT_TRUE(readFile(temporary / "third" / name) == content) << name;
}

TEST(HuffmanCode, lengthsAreACompleteCodeWithinTheLimit)
{
    for (const unsigned limit : {5u, 7u, 12u, 15u}) {
        std::vector<std::uint32_t> frequencies(32, 0);
        for (std::size_t symbol = 0; symbol < frequencies.size(); ++symbol)
            frequencies[symbol] = 1u << std::min<std::size_t>(symbol, 24);
        const std::vector<std::uint8_t> lengths = archiver::codeLengths(frequencies, limit);
        double share = 0;
        for (const std::uint8_t length : lengths) {
            EXPECT_GE(length, 1u);
            EXPECT_LE(length, limit);
            share += 1.0 / (1u << length);
        }
        EXPECT_EQ(share, 1.0) << limit;
    }
}
