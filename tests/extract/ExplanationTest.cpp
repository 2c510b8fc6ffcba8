#include "extract/Explanation.h"

#include <gtest/gtest.h>
#include <set>

using Kind = FailedStage::Kind;
using Place = FailedStage::Place;

namespace {

FailedStage stage(Kind kind, const QString &output)
{
    return {.kind = kind,
            .tool = {output},
            .archive = u"/from/docs.rar.aes.rar"_qs,
            .folder = u"/to"_qs,
            .encrypted = u"/to/docs.rar.aes"_qs,
            .inner = u"/to/docs.rar"_qs,
            .decoderCommand = u"aes-256-cbc"_qs,
            .commandByName = u"aes-256-cbc"_qs};
}

template <class Change>
FailedStage changed(FailedStage stage, Change change)
{
    change(stage);
    return stage;
}

} // namespace

// What can't be brought about in every place where the tests run, and that no two causes read alike.
TEST(Explanation, TellsTheCausesApart)
{
    struct Case {
        FailedStage stage;
        QString part;
    };
    std::set<QString> sentences;
    const FailedStage decrypt = stage(Kind::Decrypt, u"error"_qs);
    const std::vector<Case> cases{
        {stage(Kind::UnpackOuter, u"\nCannot write a: No space left on device\n"_qs), u"is full"_qs},
        {changed(stage(Kind::UnpackInner, u"Error"_qs),
                 [](auto &s) { s.bytesFree = 0, s.folder = u"/b"_qs; }),
         u"is full"_qs},
        {changed(stage(Kind::UnpackOuter, u"Permission denied"_qs),
                 [](auto &s) { s.folderIsWritable = false; }),
         u"Nothing may be written"_qs},
        {stage(Kind::UnpackOuter, u"\nCannot open /from/docs.rar.aes.rar: Permission denied\n"_qs),
         u"Cannot open /from"_qs},
        {stage(Kind::Decrypt, u"bad magic number\n"_qs), u"not encrypted by a password"_qs},
        {stage(Kind::Decrypt, u"unheard of\n"_qs), u"unheard of"_qs},
        {changed(decrypt, [](auto &s) { s.decoderCommand.clear(); }), u"Choose the decryption method"_qs},
        {changed(decrypt, [](auto &s) { s.atEncrypted = Place::Nothing; }), u"its name promises"_qs},
        {changed(decrypt, [](auto &s) { s.decoderCommand = u"smime"_qs, s.certificateIsReadable = false; }),
         u"The certificate can't be read"_qs},
        {changed(stage(Kind::Decrypt, u"openssl: /to/x ends too early: the message was cut short"_qs),
                 [](auto &s) { s.decoderCommand = u"smime"_qs; }),
         u"Fetch another copy"_qs},
        {changed(stage(Kind::Decrypt, u"Could not read private key"_qs),
                 [](auto &s) { s.decoderCommand = u"smime"_qs; }),
         u"pass phrase"_qs},
        {changed(stage(Kind::UnpackInner, u"error"_qs), [](auto &s) { s.decoderCommand = u"smime"_qs; }),
         u"private key is wrong"_qs},
        {changed(stage(Kind::UnpackInner, u"file: checksum error"_qs),
                 [](auto &s) { s.innerIsArchive = true; }),
         u"is damaged"_qs},
        {stage(Kind::Test, u"/x is not the first volume: start with the first one"_qs),
         u"Add the first one"_qs},
        {stage(Kind::Test, u"/x does not continue file: it belongs to another set of volumes"_qs),
         u"do not belong together"_qs},
        {stage(Kind::Test, u"\"/rar\" was ended by signal 9 (Killed).\n"_qs), u"short of memory"_qs},
        {changed(decrypt, [](auto &s) { s.tool = {std::nullopt}; }), u"not readable text"_qs},
    };
    for (const Case &c : cases) {
        const QString text = explain(c.stage);
        EXPECT_TRUE(text.contains(c.part)) << qPrintable(text) << "\n lacks: " << qPrintable(c.part);
        EXPECT_TRUE(sentences.insert(text).second) << "said twice: " << qPrintable(text);
        EXPECT_FALSE(text.contains(u'\n'));
    }
}
