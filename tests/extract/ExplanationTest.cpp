#include "extract/Explanation.h"

#include <gtest/gtest.h>
#include <set>

using namespace Qt::StringLiterals;

using Kind = FailedStage::Kind;
using Place = FailedStage::Place;

// What can't be brought about in every place where the tests run, and that no two causes read alike.
TEST(Explanation, TellsTheCausesApart)
{
    struct Case {
        Kind kind;
        QString said;
        QString part; ///< of the explanation
        void (*change)(FailedStage &) = [](FailedStage &) {};
    };
    const auto isMessage = [](FailedStage &s) { s.decoderCommand = u"smime"_s; };
    std::set<QString> sentences;
    for (const auto &[kind, said, part, change] : std::vector<Case>{
             {Kind::UnpackOuter, u"\nCannot write a: No space left on device\n"_s, u"is full"_s},
             {Kind::UnpackInner, u"Error"_s, u"is full"_s,
              [](auto &s) { s.bytesFree = 0, s.folder = u"/b"_s; }},
             {Kind::UnpackOuter, u"Permission denied"_s, u"Nothing may be written"_s,
              [](auto &s) { s.folderIsWritable = false; }},
             {Kind::Decrypt, u"openssl: x is damaged\n"_s, u"not encrypted by a password"_s},
             {Kind::Decrypt, u"x"_s, u"Choose the decryption"_s, [](auto &s) { s.decoderCommand.clear(); }},
             {Kind::Decrypt, u"x"_s, u"its name promises"_s, [](auto &s) { s.atEncrypted = Place::Nothing; }},
             {Kind::Decrypt, u"x"_s, u"The certificate can't be read"_s,
              [](auto &s) { s.decoderCommand = u"smime"_s, s.certificateIsReadable = false; }},
             {Kind::Decrypt, u"openssl: x ends too early"_s, u"Fetch another copy"_s, isMessage},
             {Kind::Decrypt, u"Could not read private key"_s, u"pass phrase"_s, isMessage},
             {Kind::Decrypt, {}, u"not readable text"_s, [](auto &s) { s.tool = {std::nullopt}; }},
             {Kind::UnpackInner, u"error"_s, u"private key is wrong"_s, isMessage},
             {Kind::UnpackInner, u"Skipping the symbolic link a -> /b"_s, u"Quillorent's own archiver"_s,
              [](auto &s) { s.innerIsArchive = true; }},
             {Kind::Test, u"/x belongs to another set of volumes"_s, u"do not belong together"_s},
             {Kind::Test, u"\"/rar\" was ended by signal 9 (Killed).\n"_s, u"short of memory"_s,
              [](auto &s) { s.tool.wasKilled = true; }},
         }) {
        FailedStage stage{.kind = kind,
                          .tool = {said},
                          .archive = u"/from/docs.rar.aes.rar"_s,
                          .folder = u"/to"_s,
                          .encrypted = u"/to/docs.rar.aes"_s,
                          .inner = u"/to/docs.rar"_s,
                          .decoderCommand = u"aes-256-cbc"_s,
                          .commandByName = u"aes-256-cbc"_s};
        change(stage);
        const QString text = explain(stage);
        EXPECT_TRUE(text.contains(part)) << qPrintable(text) << "\n lacks: " << qPrintable(part);
        EXPECT_TRUE(sentences.insert(text).second) << "said twice: " << qPrintable(text);
        EXPECT_FALSE(text.contains(u'\n'));
    }
}
