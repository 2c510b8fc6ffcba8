// Certificates and private keys: which are taken, what is said of the others, and what is told of those
// taken.

#include "keys/Certificates.h"

#include "Credentials.h"
#include "ProgramTest.h"
#include "keys/CertificateSummary.h"

using namespace quillorentLibrary;
namespace fs = std::filesystem;

namespace {

using Action = std::function<void(QuillorentAppDelegate &)>;

/// Files of every kind that people take for a certificate or a key.
class Certificates : public ProgramTest {
protected:
    static void SetUpTestSuite()
    {
        s_folder = std::make_unique<TemporaryFolder>();
        makeCredentials(path(), "anna");
        makeCredentials(path(), "bert");
        makeCredentials(path(), "old", -1);
        makeCredentials(path(), "soon", 5);
        for (const char *words :
             {"rsa -in anna-key.pem -aes128 -passout pass:x -out encrypted-key.pem",
              "rsa -in anna-key.pem -aes128 -passout pass:x -traditional -out old-encrypted-key.pem",
              "req -x509 -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes -keyout ec-key.pem -out "
              "ec.pem -subj /CN=ec",
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
    static QString file(const QString &name) { return toQString(path()) + u'/' + name; }

    /// Chooses a file ("-": none), and gives what the sheet says that the choice brings up; empty where none
    /// comes.
    QString choose(const QString &name, const Action &action)
    {
        delegate.openPanel = [&](const outlets::OpenPanel &panel) {
            EXPECT_EQ(panel.allowedFileTypes.join(u' '),
                      u"cer p12 p15 crt der pem pfx cert txt rtf pk12 pk15 pkcs12"_s);
            return name == u"-" ? QStringList() : QStringList{file(name)};
        };
        action(delegate);
        QString shown;
        EXPECT_TRUE(TestProgram::waitUntil([&] {
            if (delegate.certPanel01.place() == outlets::Panel::Place::Sheet) {
                shown = delegate.certPanelText01.text();
                delegate.certButton01ActionEnd();
            }
            if (delegate.pkPanel01.place() == outlets::Panel::Place::Sheet) {
                shown = delegate.pkPanelText01.text();
                delegate.pkButton01ActionEnd();
            }
            return waitForThreads(1ms);
        }));
        return shown;
    }
    QString chooseCertificate(const QString &name)
    {
        return choose(name, &QuillorentAppDelegate::certButton01Action);
    }
    QString chooseKey(const QString &name) { return choose(name, &QuillorentAppDelegate::pkButton01Action); }

    /// Whether a refusal says these words; where there are none, that there is no refusal.
    static testing::AssertionResult isJudged(const QString &refusal, const char *words)
    {
        const bool isRight = *words ? refusal.contains(QLatin1String(words)) : refusal.isEmpty();
        return (isRight ? testing::AssertionSuccess() : testing::AssertionFailure()) << qPrintable(refusal);
    }

    static std::unique_ptr<TemporaryFolder> s_folder;
};

std::unique_ptr<TemporaryFolder> Certificates::s_folder;

} // namespace

TEST_F(Certificates, AreKeptWhereTheyAreOfUseAndRefusedWithTheReason)
{
    QString last;
    using Case = std::pair<const char *, const char *>;
    for (const auto &[name, words] :
         {Case{"anna.pem", ""}, Case{"ec.pem", ""}, Case{"chain.pem", ""}, Case{"both.pem", ""},
          Case{"old.pem", ""}, Case{"-", "No file"}, Case{"", "folder"},
          Case{"missing.pem", "can't be read: No such file"}, Case{"empty.pem", "empty"},
          Case{"anna.der", "-inform DER"}, Case{"anna.p12", "openssl pkcs12"},
          Case{"anna-key.pem", "holds a private key"}, Case{"public.pem", "no PEM certificate"},
          Case{"damaged.pem", "damaged"}, Case{"notes.txt", "no PEM certificate"}}) {
        EXPECT_TRUE(isJudged(chooseCertificate(QLatin1String(name)), words)) << name;
        if (!*words) last = file(QLatin1String(name));
        EXPECT_EQ(kept(u"lastcertfile"_s), last);
        EXPECT_EQ(delegate.certFile01.text(), last);
    }
}

TEST_F(Certificates, TakeTheKeyThatBelongsToThem)
{
    EXPECT_TRUE(chooseKey(u"anna-key.pem"_s).contains(u"No certificate is chosen yet"));
    QString last;
    using Case = std::tuple<const char *, const char *, const char *>;
    for (const auto &[certificate, key, words] :
         {Case{"anna.pem", "anna-key.pem", ""}, Case{"same-key.pem", "anna-key.pem", ""},
          Case{"chain.pem", "anna-key.pem", ""}, Case{"both.pem", "both.pem", ""},
          Case{"chain.pem", "bert-key.pem", "does not belong"},
          Case{"anna.pem", "bert-key.pem", "does not belong"}, Case{"ec.pem", "ec-key.pem", "not an RSA key"},
          Case{"anna.pem", "encrypted-key.pem", "pass phrase"},
          Case{"anna.pem", "old-encrypted-key.pem", "pass phrase"},
          Case{"anna.pem", "bert.pem", "holds a certificate"}, Case{"anna.pem", "anna.p12", "-nocerts"},
          Case{"anna.pem", "notes.txt", "no private key"}, Case{"anna.pem", "missing.pem", "can't be read"},
          Case{"ec.pem", "both.pem", "does not belong"}, Case{"anna.pem", "-", "No file"},
          Case{"missing.pem", "anna-key.pem", "certificate itself"},
          Case{"notes.txt", "notes.txt", "certificate itself"}}) {
        delegate.certFile01.setText(file(QLatin1String(certificate)));
        EXPECT_TRUE(isJudged(chooseKey(QLatin1String(key)), words)) << certificate << ' ' << key;
        if (!*words) last = file(QLatin1String(key));
        EXPECT_EQ(kept(u"lastpkfile"_s), last);
        EXPECT_EQ(delegate.pkFile01.text(), last);
    }

    program.useStub(u"OpenSSL"_s, "bad-bytes");
    EXPECT_FALSE(showKey(file(u"anna-key.pem"_s)));
    EXPECT_EQ(showCert(file(u"anna.pem"_s)), QString());
    EXPECT_FALSE(testKey(file(u"anna.pem"_s), file(u"anna-key.pem"_s)));
}

TEST_F(Certificates, AnAnswerThatComesLateStaysWithItsProfile)
{
    const QString first = delegate.currentProfile();
    delegate.listPlist().setValue(u"other"_s, plist::Dictionary::make());
    program.choose(file(u"anna.pem"_s));
    // The file is looked at while the other profile is opened.
    const fs::path tool = program.folder() / "openssl";
    writeFile(tool, "#!/bin/sh\ncase \"$*\" in *anna*) until [ -e \"$0.go-on\" ]; do sleep 0.01; done;; "
                    "esac\nexec openssl \"$@\"\n");
    fs::permissions(tool, fs::perms::owner_all);
    program.useTool(u"OpenSSL"_s, tool);
    delegate.certButton01Action();
    delegate.setterCurrentProfile(u"other"_s);
    writeFile(tool.string() + ".go-on", "");
    ASSERT_TRUE(waitForThreads(60s));
    EXPECT_EQ(delegate.certFile01.text(), QString());
    EXPECT_EQ(delegate.listPlist().dictionary(first).string(u"lastcertfile"_s), file(u"anna.pem"_s));

    // Nor does a choice come back that another one has followed.
    using Choice = std::tuple<Action, QString, outlets::TextField *>;
    for (const auto &[action, extension, field] :
         {Choice{&QuillorentAppDelegate::certButton01Action, u".pem"_s, &delegate.certFile01},
          {&QuillorentAppDelegate::pkButton01Action, u"-key.pem"_s, &delegate.pkFile01}}) {
        fs::remove(tool.string() + ".go-on");
        for (const QString &name : {u"anna"_s, u"bert"_s}) {
            program.choose(file(name + extension));
            action(delegate);
        }
        const QString last = file(u"bert"_s + extension);
        EXPECT_TRUE(TestProgram::waitUntil([&, shown = field] { return shown->text() == last; }));
        writeFile(tool.string() + ".go-on", "");
        ASSERT_TRUE(waitForThreads(60s));
        EXPECT_EQ(field->text(), last);
    }
}

TEST_F(Certificates, TellWhomTheyAreForAndHowLong)
{
    const auto summary = [](const char *name) { return *readCertificateSummary(file(QLatin1String(name))); };
    const auto warning = [&](const char *name) {
        return validityWarning(summary(name), QDateTime::currentDateTimeUtc());
    };
    EXPECT_EQ(summary("same-key.pem").subject, u"CN=Grüße,O=Other"_s);
    EXPECT_TRUE(warning("old.pem").contains(u"has expired"));
    EXPECT_EQ(warning("anna.pem"), QString());
    EXPECT_TRUE(warning("soon.pem").contains(u"in 4 days") || warning("soon.pem").contains(u"in 5 days"));
    auto anna = summary("anna.pem");
    EXPECT_TRUE(validityWarning(anna, anna.notBefore.addSecs(-1)).contains(u"not valid before"));
    EXPECT_TRUE(validityWarning(anna, anna.notAfter.addSecs(-1)).contains(u"today"));
    anna.notAfter = QDateTime(QDate(2021, 1, 1), {}, Qt::UTC);
    EXPECT_TRUE(describeCertificate(anna).contains(u"1 Jan 2021"));
    // A name that makes the tool's complaint look like a certificate's text.
    for (const QString &none : {u"anna.der"_s, u"Validity.txt"_s})
        EXPECT_FALSE(readCertificateSummary(file(none))) << qPrintable(none);

    chooseCertificate(u"anna.pem"_s);
    EXPECT_TRUE(delegate.certWarning01.isHidden());
    EXPECT_TRUE(delegate.pkWarning01.text().contains(u"No private key"));
    chooseKey(u"anna-key.pem"_s);
    EXPECT_TRUE(delegate.pkWarning01.isHidden());
    chooseCertificate(u"bert.pem"_s);
    EXPECT_TRUE(delegate.pkWarning01.text().contains(u"does not belong"));
    EXPECT_TRUE(delegate.certSummary01.text().contains(u"RSA, 2048 bits"));
    chooseCertificate(u"ec.pem"_s);
    EXPECT_TRUE(delegate.certSummary01.text().contains(u"EC, 256 bits"));
    EXPECT_TRUE(delegate.certWarning01.text().contains(u"another kind than RSA"));
    delegate.pkFile01.setText(file(u"missing.pem"_s));
    delegate.describeKeys();
    ASSERT_TRUE(waitForThreads(60s));
    EXPECT_TRUE(delegate.pkWarning01.text().contains(u"not where it was"));
}

TEST_F(Certificates, AreShownInTheConsole)
{
    delegate.consoleTextView01.setText(u"before"_s);
    delegate.certInfo01();
    delegate.certInfo02();
    EXPECT_EQ(delegate.consoleTextView01.text(), u"before"_s);
    delegate.certFile01.setText(file(u"anna.pem"_s));
    delegate.pkFile01.setText(file(u"anna-key.pem"_s));
    using Show = std::pair<Action, QString>;
    for (const auto &[action, words] : {Show{&QuillorentAppDelegate::certInfo01, u"Certificate:"_s},
                                        {&QuillorentAppDelegate::certInfo02, u"PRIVATE KEY-----"_s}}) {
        action(delegate);
        ASSERT_TRUE(waitForThreads(60s));
        EXPECT_TRUE(delegate.consoleTextView01.text().contains(words));
        EXPECT_FALSE(delegate.consoleTextView01.text().contains(u"before"));
    }
}
