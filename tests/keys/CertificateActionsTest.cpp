#include "Credentials.h"
#include "TestProgram.h"
#include "tools/Threads.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

class CertificateActions : public testing::Test {
protected:
    CertificateActions() : m_keys(makeCredentials(m_program.folder(), "anna")) { m_program.start(); }

    /// What the sheet says that the choice brings up; empty where none comes.
    QString choose(const std::function<void()> &action, const std::function<void()> &close,
                   const outlets::Panel &sheet, const outlets::TextField &text)
    {
        action();
        QString shown;
        const bool hasEnded = TestProgram::waitUntil([&] {
            if (sheet.place() == outlets::Panel::Place::Sheet) {
                shown = text.text();
                close();
            }
            return waitForThreads(1ms);
        });
        EXPECT_TRUE(hasEnded);
        return shown;
    }
    void answerChooserWith(const QStringList &paths)
    {
        delegate.openPanel = [this, paths](const outlets::OpenPanel &panel) {
            m_types = panel.allowedFileTypes;
            return paths;
        };
    }
    QString chooseCertificate(const QStringList &paths)
    {
        answerChooserWith(paths);
        return choose([this] { delegate.certButton01Action(); }, [this] { delegate.certButton01ActionEnd(); },
                      delegate.certPanel01, delegate.certPanelText01);
    }
    QString chooseKey(const QStringList &paths)
    {
        answerChooserWith(paths);
        return choose([this] { delegate.pkButton01Action(); }, [this] { delegate.pkButton01ActionEnd(); },
                      delegate.pkPanel01, delegate.pkPanelText01);
    }
    QString kept(const QString &key) const
    {
        return delegate.currentRecord().string(key).value_or(QString());
    }

    TestProgram m_program;
    QuillorentAppDelegate &delegate = m_program.delegate();
    Credentials m_keys;
    QStringList m_types;
};

} // namespace

TEST_F(CertificateActions, KeepWhatIsAcceptedAndRefuseTheRest)
{
    const QString certificate = toQString(m_keys.certificate);
    const QString key = toQString(m_keys.key);

    EXPECT_TRUE(chooseKey({key}).contains(u"No certificate is chosen yet"));
    EXPECT_TRUE(chooseCertificate({key}).contains(u"holds a private key"));
    EXPECT_TRUE(chooseCertificate({}).contains(u"No file"));
    EXPECT_EQ(delegate.certFile01.text() + delegate.pkFile01.text(), QString());

    EXPECT_EQ(chooseCertificate({certificate}), QString());
    EXPECT_EQ(m_types.join(u' '), u"cer p12 p15 crt der pem pfx cert txt rtf pk12 pk15 pkcs12"_qs);
    EXPECT_EQ(kept(u"lastcertfile"_qs), certificate);
    EXPECT_EQ(delegate.certFile01.text(), certificate);
    EXPECT_TRUE(delegate.certSummary01.text().startsWith(u"CN=anna"));
    EXPECT_TRUE(delegate.certWarning01.isHidden());
    EXPECT_TRUE(delegate.pkWarning01.text().contains(u"No private key"));

    EXPECT_EQ(chooseKey({key}), QString());
    EXPECT_EQ(kept(u"lastpkfile"_qs), key);
    EXPECT_TRUE(delegate.pkWarning01.isHidden());

    EXPECT_TRUE(chooseCertificate({m_program.path("missing")}).contains(u"can't be read"));
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

    delegate.certFile01.setText(toQString(m_keys.certificate));
    delegate.pkFile01.setText(toQString(m_keys.key));
    delegate.certInfo01();
    EXPECT_EQ(delegate.consolePanel01.place(), outlets::Panel::Place::Window);
    ASSERT_TRUE(waitForThreads(60s));
    EXPECT_TRUE(delegate.consoleTextView01.text().startsWith(u"Certificate:"));
    delegate.certInfo02();
    ASSERT_TRUE(waitForThreads(60s));
    EXPECT_TRUE(delegate.consoleTextView01.text().contains(u"PRIVATE KEY-----"));
    EXPECT_FALSE(delegate.consoleTextView01.text().contains(u"before"));
}
