#include "extract/Explanation.h"

#include <gtest/gtest.h>
#include <set>

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
    const auto isMessage = [](FailedStage &s) { s.decoderCommand = u"smime"_qs; };
    const auto isArchive = [](FailedStage &s) { s.innerIsArchive = true; };
    std::set<QString> sentences;
    for (const auto &[kind, said, part, change] : std::vector<Case>{
             {Kind::UnpackOuter, u"\nCannot write a: No space left on device\n"_qs, u"is full"_qs},
             {Kind::UnpackInner, u"Error"_qs, u"is full"_qs,
              [](auto &s) { s.bytesFree = 0, s.folder = u"/b"_qs; }},
             {Kind::UnpackOuter, u"Permission denied"_qs, u"Nothing may be written"_qs,
              [](auto &s) { s.folderIsWritable = false; }},
             {Kind::Decrypt, u"openssl: x is damaged\n"_qs, u"not encrypted by a password"_qs},
             {Kind::Decrypt, u"x"_qs, u"Choose the decryption"_qs, [](auto &s) { s.decoderCommand.clear(); }},
             {Kind::Decrypt, u"x"_qs, u"its name promises"_qs,
              [](auto &s) { s.atEncrypted = Place::Nothing; }},
             {Kind::Decrypt, u"x"_qs, u"The certificate can't be read"_qs,
              [](auto &s) { s.decoderCommand = u"smime"_qs, s.certificateIsReadable = false; }},
             {Kind::Decrypt, u"openssl: x ends too early"_qs, u"Fetch another copy"_qs, isMessage},
             {Kind::Decrypt, u"Could not read private key"_qs, u"pass phrase"_qs, isMessage},
             {Kind::Decrypt, {}, u"not readable text"_qs, [](auto &s) { s.tool = {std::nullopt}; }},
             {Kind::UnpackInner, u"error"_qs, u"private key is wrong"_qs, isMessage},
             {Kind::UnpackInner, u"Skipping the symbolic link a -> /b"_qs, u"Quillorent's own archiver"_qs,
              isArchive},
             {Kind::Test, u"/x belongs to another set of volumes"_qs, u"do not belong together"_qs},
             {Kind::Test, u"\"/rar\" was ended by signal 9 (Killed).\n"_qs, u"short of memory"_qs,
              [](auto &s) { s.tool.wasKilled = true; }},
         }) {
        FailedStage stage{.kind = kind,
                          .tool = {said},
                          .archive = u"/from/docs.rar.aes.rar"_qs,
                          .folder = u"/to"_qs,
                          .encrypted = u"/to/docs.rar.aes"_qs,
                          .inner = u"/to/docs.rar"_qs,
                          .decoderCommand = u"aes-256-cbc"_qs,
                          .commandByName = u"aes-256-cbc"_qs};
        change(stage);
        const QString text = explain(stage);
        EXPECT_TRUE(text.contains(part)) << qPrintable(text) << "\n lacks: " << qPrintable(part);
        EXPECT_TRUE(sentences.insert(text).second) << "said twice: " << qPrintable(text);
        EXPECT_FALSE(text.contains(u'\n'));
    }
}
