#include "EntryName.h"
#include "Headers.h"
#include "VolumeSource.h"

#include <gtest/gtest.h>

using namespace archiver;

TEST(EntryName, anyBytesComeBack)
{
    for (const std::string name :
         {"plain", "gr\xC3\xBC\xC3\x9F", "caf\xE9", "\xFF\xFE", "\xC3", "a\xE2\x82", "\xEF\xBF\xBE",
          "\xC0\xAF", "\xEF\xBF\xBE\xEE\x83\xA9", "private \xEE\x83\xA9 alone", "\xEE\x83\xA9\xE9",
          "\xE9\xEE\x83\xA9", "\xED\xA0\x80", "\xE9 and \xEF\xBF\xBE", "\xF0\x9F\x98\x80\x80",
          "\xF4\x90\x80\x80", "dir-\xFE/f-\xE9", "\xFE/\xEE\x83\xA9", "\xFE/\xEF\xBF\xBE"})
        EXPECT_EQ(decodeName(encodeName(name)), name);
}

TEST(EntryName, isStoredAsOthersStoreIt)
{
    EXPECT_EQ(encodeName("caf\xE9"), "caf\xEF\xBF\xBE\xEE\x83\xA9");
    EXPECT_EQ(encodeName("\xFF\xFEz"), "\xEF\xBF\xBE\xEE\x83\xBF\xEE\x83\xBEz");
    EXPECT_EQ(encodeName("\xFE/f\xE9"), "\xEF\xBF\xBE\xEE\x83\xBE/f\xEF\xBF\xBE\xEE\x83\xA9");
    // As it once was: one marker for all components.
    EXPECT_EQ(decodeName("\xEF\xBF\xBE\xEE\x83\xBE/f\xEE\x83\xA9"), "\xFE/f\xE9");
}

TEST(FileHeader, sizesBeyond4GiBKeepTheHeadersLength)
{
    FileHeader header;
    ByteBuffer small;
    presentFormat.putFile(small, header);
    header.unpackedSize = header.packedSize = 5'000'000'000;
    ByteBuffer large;
    presentFormat.putFile(large, header);
    EXPECT_EQ(large.size(), small.size());
    EXPECT_EQ(presentFormat.fileHeader(*presentFormat.frame(large))->unpackedSize, header.unpackedSize);
}

TEST(VolumeNames, theNextOneFollowsFromTheName)
{
    for (const auto &[name, next] : std::vector<std::pair<std::string, std::string>>{
             {"a.part09.rar", "a.part10.rar"},
             {"a.part9.rar", "a.part10.rar"},
             {"A.PART01.RAR", "A.PART02.RAR"},
             {"a.part1.rar.aes.part1.rar", "a.part1.rar.aes.part2.rar"},
             {"a.rar", "a.r00"},
             {"a.r99", "a.s00"},
             {"apart1.rar", "apart1.r00"}})
        EXPECT_EQ(nextVolumePath(name), next);
}
