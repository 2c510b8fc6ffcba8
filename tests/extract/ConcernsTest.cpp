#include "extract/Concerns.h"

#include "ExtractionTest.h"

#include "files/Room.h"

#include <QDir>

namespace fs = std::filesystem;

namespace {

class Start : public ExtractionTest {};

} // namespace

TEST(Room, IsEstimatedForThoseThatAreWorkedOnTogether)
{
    // 300 bytes: 400 of base64 with 300 of the inner archive, then 300 and the contents' 300.
    EXPECT_EQ(roomNeeded({300}, 2), 700);
    EXPECT_EQ(roomNeeded({300, 300}, 2), 1400);
    EXPECT_EQ(roomNeeded({30, 300, 300}, 1), 630 + 400);
}

TEST_F(Start, SaysWhatIsMissing)
{
    const QString archive = backUpSmallFolder();
    struct Case {
        std::function<void()> spoil;
        QString text;
    };
    for (const Case &c : {
             Case{[&] { delegate.extractPath.setText({}); }, u"No extraction folder"_qs},
             Case{[&] { delegate.extractPath.setText(u"/no/such"_qs); }, u"does not exist"_qs},
             Case{[&] { delegate.currentRecord().remove(u"extractpath"_qs); }, u"not this profile's own"_qs},
             Case{[&] { delegate.extractButton03Action(); }, u"No archives"_qs},
             Case{[&] { delegate.secureText01a.setText({}); }, u"No password"_qs},
             Case{[&] { delegate.passCombo01.selectIndex(PasswordTab::Certificate); }, u"No certificate"_qs},
         }) {
        delegate.addArchives({archive});
        c.spoil();
        delegate.buttonLaunch02();
        EXPECT_TRUE(program.lastWarning().contains(c.text)) << qPrintable(program.lastWarning());
        EXPECT_FALSE(delegate.isRunActive());
        extractInto(out);
        delegate.secureText01a.setText(u"correct horse"_qs);
        delegate.passCombo01.selectIndex(PasswordTab::TypedPassword);
    }
}

TEST_F(Start, NamesWhatIsInTheWayAndMayBeOverruled)
{
    const QString archive = backUpSmallFolder();
    const QString unknown = program.path("archives/holiday.rar");
    fs::copy_file(archive.toStdString(), unknown.toStdString());
    const QString other = program.path("docs.rar.aes.rar");
    fs::copy_file(archive.toStdString(), other.toStdString());
    const QString certified = program.path("archives/docs.rar.smime.rar");
    writeFile(certified.toStdString(), "x");
    struct Case {
        QStringList archives;
        std::function<void()> spoil;
        QStringList concerns;
    };
    for (const Case &c : {
             Case{{archive}, [] {}, {}},
             Case{{archive},
                  [&] { writeFile(out / "docs.rar", "mine"); },
                  {u"docs.rar\" is there already"_qs}},
             Case{{archive}, [&] { fs::create_directory(out / "docs.rar.aes"); }, {u"is a folder"_qs}},
             Case{{archive},
                  [&] {
                      delegate.passCombo01.selectIndex(PasswordTab::Certificate);
                      delegate.certFile01.setText(archive);
                  },
                  {u"was encrypted by a password"_qs}},
             Case{{certified}, [] {}, {u"No private key"_qs, u"No certificate"_qs}},
             Case{{certified},
                  [&] {
                      delegate.pkFile01.setText(u"/no/key"_qs);
                      delegate.certFile01.setText(archive);
                  },
                  {u"\"/no/key\" can't be read"_qs}},
             Case{{unknown}, [] {}, {u"does not tell how"_qs}},
             Case{{archive, other}, [] {}, {u"Two archives are called"_qs}},
             Case{{program.path("gone.rar")}, [] {}, {u"is not there any more"_qs}},
         }) {
        c.spoil();
        const QStringList found = extractConcerns(c.archives, toQString(out));
        ASSERT_EQ(found.size(), c.concerns.size()) << qPrintable(found.join(u'\n'));
        for (int index = 0; index < found.size(); ++index)
            EXPECT_TRUE(found[index].contains(c.concerns[index])) << qPrintable(found[index]);
        fs::remove_all(out);
        fs::create_directories(out);
        delegate.passCombo01.selectIndex(PasswordTab::TypedPassword);
        delegate.certFile01.setText({});
        delegate.pkFile01.setText({});
    }

    overrules = false;
    extract({unknown});
    EXPECT_TRUE(concerns.contains(u"does not tell how"));
    EXPECT_TRUE(fs::is_empty(out));
    overrules = true;
    extract({unknown});
    EXPECT_EQ(console(), QString());
    EXPECT_TRUE(fs::exists(extracted(program.folder() / "docs/file")));
}

TEST_F(Start, AsksBeforeItWritesBesideOtherFiles)
{
    const QString archive = backUpSmallFolder();
    writeFile(out / "other", "x");
    int asked = 0;
    delegate.warningPanel02.observe([&] {
        if (delegate.warningPanel02.place() == outlets::Panel::Place::Hidden) return;
        EXPECT_EQ(delegate.folderNotEmptyText01.text(), toQString(out));
        ++asked == 1 ? delegate.buttonLaunch02Stop() : delegate.buttonLaunch02b();
    });
    delegate.addArchives({archive});
    delegate.buttonLaunch02();
    EXPECT_FALSE(delegate.isRunActive());
    delegate.buttonLaunch02();
    program.waitForEnd();
    EXPECT_EQ(asked, 2);
    EXPECT_TRUE(fs::exists(extracted(program.folder() / "docs/file")));
    EXPECT_TRUE(fs::exists(out / "other"));
}
