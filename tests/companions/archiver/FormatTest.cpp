#include "EntryName.h"
#include "Headers.h"
#include "VolumeNames.h"

#include <gtest/gtest.h>

using namespace archiver;

TEST(EntryName, anyBytesComeBack)
{
    const std::vector<std::string> names = {"plain",
                                            "gr\xC3\xBC\xC3\x9F",
                                            "caf\xE9",
                                            "\xFF\xFE",
                                            "\xC3",
                                            "a\xE2\x82",
                                            "\xEF\xBF\xBE",
                                            "\xEF\xBF\xBE\xEE\x83\xA9",
                                            "\xEE\x83\xA9",
                                            "\xEE\x83\xA9\xE9",
                                            "\xE9\xEE\x83\xA9",
                                            "\xE9 and \xEF\xBF\xBE",
                                            "\xED\xA0\x80",
                                            "\xF0\x9F\x98\x80\x80",
                                            "\xF4\x90\x80\x80",
                                            "\xC0\xAF"};
    for (const std::string &name : names)
        EXPECT_EQ(decodeName(encodeName(name)), name);
}

TEST(EntryName, isStoredAsOthersStoreIt)
{
    EXPECT_EQ(encodeName("plain"), "plain");
    EXPECT_EQ(encodeName("caf\xE9"), "caf\xEF\xBF\xBE\xEE\x83\xA9");
    EXPECT_EQ(encodeName("\xFF\xFEz"), "\xEF\xBF\xBE\xEE\x83\xBF\xEE\x83\xBEz");
    EXPECT_EQ(decodeName("private \xEE\x83\xA9 alone"), "private \xEE\x83\xA9 alone");
}

TEST(Vint, readsPaddingAndRefusesWhatIsTooLong)
{
    struct Case {
        std::vector<std::uint8_t> bytes;
        bool ok;
        std::uint64_t value;
    };
    const std::vector<Case> cases = {
        {{0x05}, true, 5},
        {{0x85, 0x80, 0x00}, true, 5},
        {{0x80, 0x01}, true, 128},
        {{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x01}, true, 0xFFFFFFFFFFFFFFFFu},
        {{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x02}, false, 0},
        {{0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x00}, false, 0},
        {{0x80}, false, 0},
        {{}, false, 0}};
    for (const Case &test : cases) {
        ByteReader reader(test.bytes);
        EXPECT_EQ(reader.vint(), test.value);
        EXPECT_EQ(reader.ok(), test.ok);
    }
}

TEST(FileHeader, sizesBeyond4GiBKeepTheHeadersLength)
{
    FileHeader header;
    header.name = "large.iso";
    header.mode = 0100640;
    header.modified = Timestamp{1'700'000'000, 999'999'999};
    ByteBuffer small;
    putFileHeader(small, header);
    header.unpackedSize = 5'000'000'000;
    header.packedSize = 4'999'999'999;
    header.crc = 0xDEADBEEF;
    header.method = 5;
    header.dictionary = 3;
    header.continuesAfter = true;
    ByteBuffer large;
    putFileHeader(large, header);
    EXPECT_EQ(large.size(), small.size());

    EXPECT_EQ(headerLength(large), large.size());
    const std::optional<HeaderFrame> frame = parseFrame(large);
    ASSERT_TRUE(frame);
    const std::optional<FileHeader> parsed = parseFileHeader(*frame);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->name, header.name);
    EXPECT_EQ(parsed->unpackedSize, header.unpackedSize);
    EXPECT_EQ(parsed->packedSize, header.packedSize);
    EXPECT_EQ(parsed->crc, header.crc);
    EXPECT_EQ(parsed->modified, header.modified);
    EXPECT_EQ(parsed->mode, header.mode);
    EXPECT_TRUE(parsed->continuesAfter);
    EXPECT_FALSE(parsed->continuesBefore);
}

TEST(VolumeNames, theNextOneFollowsFromTheName)
{
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"/x/a.part1.rar", "/x/a.part2.rar"},
        {"a.part09.rar", "a.part10.rar"},
        {"a.part9.rar", "a.part10.rar"},
        {"A.PART01.RAR", "A.PART02.RAR"},
        {"a.part1.rar.aes.part1.rar", "a.part1.rar.aes.part2.rar"},
        {"a.rar", "a.r00"},
        {"a.r00", "a.r01"},
        {"a.r99", "a.s00"},
        {"apart1.rar", "apart1.r00"}};
    for (const auto &[name, next] : cases)
        EXPECT_EQ(nextVolumePath(name), next);
}
