#include "keys/Certificates.h"

#include "Credentials.h"
#include "ProgramTest.h"
#include "Stub.h"
#include "keys/CertificateSummary.h"
#include "keys/Refusals.h"

using namespace quillorentLibrary;
namespace fs = std::filesystem;

namespace {

/// Files of every kind that people take for a certificate or a key.
class Certificates : public ProgramTest {
protected:
    static void SetUpTestSuite()
    {
        s_folder = std::make_unique<TemporaryFolder>();
        makeCredentials(path(), "anna");
        makeCredentials(path(), "bert");
        makeCredentials(path(), "old", Validity::EndedIn2021);
        makeCredentials(path(), "soon", Validity::FiveDays);
        for (const char *words :
             {"rsa -in anna-key.pem -aes128 -passout pass:x -out encrypted-key.pem",
              "rsa -in anna-key.pem -aes128 -passout pass:x -traditional -out old-encrypted-key.pem",
              "req -x509 -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes -keyout ec-key.pem -out "
              "ec.pem "
              "-subj /CN=ec",
              "x509 -in anna.pem -outform DER -out anna.der",
              "pkcs12 -export -in anna.pem -inkey anna-key.pem -passout pass:x -out anna.p12",
              "rsa -in anna-key.pem -pubout -out public.pem",
              "req -x509 -key anna-key.pem -days 9 -subj /O=Other/CN=Grüße -utf8 -out same-key.pem"})
            runOpenSsl(path(), words);
        const std::string anna = readFile(path() / "anna.pem");
        writeFile(path() / "chain.pem", anna + readFile(path() / "bert.pem"));
        writeFile(path() / "both.pem", readFile(path() / "anna-key.pem") + anna);
        writeFile(path() / "damaged.pem", anna.substr(0, 200) + "\n-----END CERTIFICATE-----\n");
        writeFile(path() / "Validity.txt", "Validity\n    Not Before: never\n");
        writeFile(path() / "notes.txt", "no certificate");
        writeFile(path() / "empty.pem", "");
    }
    static void TearDownTestSuite() { s_folder.reset(); }

    static const fs::path &path() { return s_folder->path(); }
    static QString file(const char *name) { return toQString(path() / name); }

    static std::unique_ptr<TemporaryFolder> s_folder;
};

std::unique_ptr<TemporaryFolder> Certificates::s_folder;

} // namespace

TEST_F(Certificates, AreReadAsPemOnly)
{
    for (const char *good : {"anna.pem", "ec.pem", "old.pem", "chain.pem", "both.pem"})
        EXPECT_TRUE(testCert(file(good), u"Validity"_qs)) << good;
    for (const char *bad : {"anna.der", "anna.p12", "anna-key.pem", "public.pem", "damaged.pem", "notes.txt",
                            "empty.pem", "missing.pem", ""})
        EXPECT_FALSE(testCert(file(bad), u"Validity"_qs)) << bad;
    EXPECT_TRUE(showCert(file("anna.pem")).contains(u"CN = anna"));
    EXPECT_FALSE(showCert(file("notes.txt")).isEmpty());
}

TEST_F(Certificates, TakeTheKeyThatBelongsToThem)
{
    struct Case {
        const char *certificate;
        const char *key;
        bool belongs;
    };
    for (const auto &[certificate, key, belongs] :
         {Case{"anna.pem", "anna-key.pem", true}, Case{"same-key.pem", "anna-key.pem", true},
          Case{"chain.pem", "anna-key.pem", true}, Case{"both.pem", "both.pem", true},
          Case{"chain.pem", "bert-key.pem", false}, Case{"anna.pem", "bert-key.pem", false},
          Case{"ec.pem", "ec-key.pem", false}, Case{"anna.pem", "encrypted-key.pem", false},
          Case{"anna.pem", "old-encrypted-key.pem", false}, Case{"anna.pem", "anna.pem", false},
          Case{"anna.pem", "missing.pem", false}, Case{"notes.txt", "notes.txt", false},
          Case{"", "anna-key.pem", false}})
        EXPECT_EQ(testKey(file(certificate), file(key)), belongs) << certificate << ' ' << key;
    EXPECT_TRUE(showKey(file("anna-key.pem"))->contains(u"PRIVATE KEY-----"));

    const Stub stub(program.folder(), "openssl", "bad-bytes");
    program.useTool(u"OpenSSL"_qs, stub.path());
    EXPECT_FALSE(showKey(file("anna-key.pem")));
    EXPECT_EQ(showCert(file("anna.pem")), QString());
    EXPECT_FALSE(testKey(file("anna.pem"), file("anna-key.pem")));
}

TEST_F(Certificates, PublicKeyStandsBetweenItsMarkers)
{
    const QString begin = u"-----BEGIN PUBLIC KEY-----"_qs;
    const QString end = u"-----END PUBLIC KEY-----"_qs;
    EXPECT_FALSE(trimPubKey(std::nullopt));
    EXPECT_FALSE(trimPubKey(u"writing RSA key\n"_qs));
    EXPECT_EQ(trimPubKey(u"writing RSA key\n"_qs + begin + u"\nA\nB\n"_qs + end + u"\nmore"_qs),
              u"\nA\nB\n"_qs);
    EXPECT_EQ(trimPubKey(begin + u"rest"_qs), u"rest"_qs);
    EXPECT_EQ(trimPubKey(begin + u"a"_qs + end + begin + u"b"_qs + end), u"a"_qs);
}

TEST_F(Certificates, EachRefusalSaysWhy)
{
    struct Case {
        QString why;
        const char *words;
    };
    const QString anna = file("anna.pem");
    for (const auto &[why, words] :
         {Case{whyNoCertificate({}), "No file"},
          Case{whyNoCertificate(file("missing.pem")), "can't be read: No such file"},
          Case{whyNoCertificate(file("")), "folder"}, Case{whyNoCertificate(file("empty.pem")), "empty"},
          Case{whyNoCertificate(file("anna.der")), "-inform DER"},
          Case{whyNoCertificate(file("anna.p12")), "openssl pkcs12"},
          Case{whyNoCertificate(file("anna-key.pem")), "holds a private key"},
          Case{whyNoCertificate(file("damaged.pem")), "damaged"},
          Case{whyNoCertificate(file("notes.txt")), "no PEM certificate"},
          // A name that makes the tool's complaint look like a certificate's text.
          Case{whyNoCertificate(file("Validity.txt")), "no PEM certificate"},
          Case{whyNoKey({}, file("anna-key.pem")), "No certificate is chosen yet"},
          Case{whyNoKey(file("missing.pem"), file("anna-key.pem")), "certificate itself"},
          Case{whyNoKey(anna, {}), "No file"}, Case{whyNoKey(anna, file("encrypted-key.pem")), "pass phrase"},
          Case{whyNoKey(anna, file("old-encrypted-key.pem")), "pass phrase"},
          Case{whyNoKey(file("ec.pem"), file("ec-key.pem")), "not an RSA key"},
          Case{whyNoKey(anna, file("bert.pem")), "holds a certificate"},
          Case{whyNoKey(anna, file("anna.p12")), "-nocerts"},
          Case{whyNoKey(anna, file("notes.txt")), "no private key"},
          Case{whyNoKey(anna, file("bert-key.pem")), "does not belong"}})
        EXPECT_TRUE(why.contains(QString::fromLatin1(words))) << words << ": " << qPrintable(why);
}

TEST_F(Certificates, TellWhomTheyAreForAndHowLong)
{
    const auto now = QDateTime::currentDateTimeUtc();
    const auto warning = [&](const char *name) {
        return validityWarning(*readCertificateSummary(file(name)), now);
    };
    EXPECT_EQ(readCertificateSummary(file("same-key.pem"))->subject, u"CN=Grüße,O=Other"_qs);
    EXPECT_TRUE(describeCertificate(*readCertificateSummary(file("old.pem"))).contains(u"2021-01-01"));
    EXPECT_EQ(warning("anna.pem"), QString());
    EXPECT_TRUE(warning("old.pem").contains(u"has expired"));
    EXPECT_TRUE(warning("soon.pem").contains(u"in 4 days") || warning("soon.pem").contains(u"in 5 days"));
    const auto anna = *readCertificateSummary(file("anna.pem"));
    EXPECT_TRUE(validityWarning(anna, anna.notBefore.addSecs(-1)).contains(u"not valid before"));
    EXPECT_TRUE(validityWarning(anna, anna.notAfter.addSecs(-1)).contains(u"today"));
    for (const char *none : {"anna.der", "Validity.txt"})
        EXPECT_FALSE(readCertificateSummary(file(none))) << none;
}
