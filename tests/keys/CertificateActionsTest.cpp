#include "Credentials.h"
#include "ProgramTest.h"
#include "tools/Threads.h"

using namespace std::chrono_literals;

namespace {

class CertificateActions : public ProgramTest {
protected:
    /// Chooses files, and gives what the sheet says that the choice brings up; empty where none comes.
    QString choose(const QStringList &paths, void (QuillorentAppDelegate::*action)(), outlets::Panel &sheet,
                   const outlets::TextField &text)
    {
        delegate.openPanel = [&](const outlets::OpenPanel &panel) {
            types = panel.allowedFileTypes;
            return paths;
        };
        (delegate.*action)();
        QString shown;
        EXPECT_TRUE(TestProgram::waitUntil([&] {
            if (sheet.place() == outlets::Panel::Place::Sheet) {
                shown = text.text();
                &sheet == &delegate.pkPanel01 ? delegate.pkButton01ActionEnd()
                                              : delegate.certButton01ActionEnd();
            }
            return waitForThreads(1ms);
        }));
        return shown;
    }
    QString chooseCertificate(const QStringList &paths)
    {
        return choose(paths, &QuillorentAppDelegate::certButton01Action, delegate.certPanel01,
                      delegate.certPanelText01);
    }
    QString chooseKey(const QStringList &paths)
    {
        return choose(paths, &QuillorentAppDelegate::pkButton01Action, delegate.pkPanel01,
                      delegate.pkPanelText01);
    }

    Credentials keys = makeCredentials(program.folder(), "anna");
    QStringList types;
};

} // namespace

TEST_F(CertificateActions, KeepWhatIsAcceptedAndRefuseTheRest)
{
    const QString certificate = toQString(keys.certificate);
    const QString key = toQString(keys.key);

    EXPECT_TRUE(chooseKey({key}).contains(u"No certificate is chosen yet"));
    EXPECT_TRUE(chooseCertificate({key}).contains(u"holds a private key"));
    EXPECT_TRUE(chooseCertificate({}).contains(u"No file"));
    EXPECT_EQ(delegate.certFile01.text() + delegate.pkFile01.text(), QString());

    EXPECT_EQ(chooseCertificate({certificate}), QString());
    EXPECT_EQ(types.join(u' '), u"cer p12 p15 crt der pem pfx cert txt rtf pk12 pk15 pkcs12"_qs);
    EXPECT_EQ(kept(u"lastcertfile"_qs), certificate);
    EXPECT_EQ(delegate.certFile01.text(), certificate);
    EXPECT_TRUE(delegate.certSummary01.text().startsWith(u"CN=anna"));
    EXPECT_TRUE(delegate.certWarning01.isHidden());
    EXPECT_TRUE(delegate.pkWarning01.text().contains(u"No private key"));

    EXPECT_EQ(chooseKey({key}), QString());
    EXPECT_EQ(kept(u"lastpkfile"_qs), key);
    EXPECT_TRUE(delegate.pkWarning01.isHidden());

    EXPECT_TRUE(chooseCertificate({program.path("missing")}).contains(u"can't be read"));
    EXPECT_EQ(delegate.certFile01.text(), certificate);
    EXPECT_EQ(kept(u"lastcertfile"_qs), certificate);
}

TEST_F(CertificateActions, ShowFilesInTheConsole)
{
    delegate.consoleTextView01.setText(u"before"_qs);
    delegate.certInfo01();
    delegate.certInfo02();
    EXPECT_EQ(delegate.consoleTextView01.text(), u"before"_qs);
    EXPECT_EQ(delegate.consolePanel01.place(), outlets::Panel::Place::Hidden);

    delegate.certFile01.setText(toQString(keys.certificate));
    delegate.pkFile01.setText(toQString(keys.key));
    delegate.certInfo01();
    EXPECT_EQ(delegate.consolePanel01.place(), outlets::Panel::Place::Window);
    ASSERT_TRUE(waitForThreads(60s));
    EXPECT_TRUE(delegate.consoleTextView01.text().startsWith(u"Certificate:"));
    delegate.certInfo02();
    ASSERT_TRUE(waitForThreads(60s));
    EXPECT_TRUE(delegate.consoleTextView01.text().contains(u"PRIVATE KEY-----"));
    EXPECT_FALSE(delegate.consoleTextView01.text().contains(u"before"));
}
