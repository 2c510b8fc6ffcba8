#include "TestProgram.h"

#include <gtest/gtest.h>

namespace {

void addProfile(TestProgram &program, const QString &name, const QHash<QString, QString> &values)
{
    const auto record = plist::Dictionary::make();
    for (const QString &key : values.keys())
        record.setValue(key, values.value(key));
    program.delegate().listPlist().setValue(name, record);
}

} // namespace

TEST(ApplyProfile, TakesWhatAnEmptyRecordMeans)
{
    TestProgram program;
    program.start();
    QuillorentAppDelegate &delegate = program.delegate();
    addProfile(program, u"full"_qs,
               {{u"path"_qs, u"/archives"_qs},
                {u"extractpath"_qs, u"/out"_qs},
                {u"part"_qs, u"777"_qs},
                {u"symencryption"_qs, u"OpenSSL-3D"_qs},
                {u"split"_qs, u"1"_qs},
                {u"keepdate"_qs, u"1"_qs},
                {u"rsyncmode"_qs, u"0"_qs},
                {u"emptydir"_qs, u"0"_qs},
                {u"isremotesync"_qs, u"1"_qs},
                {u"remotesyncport"_qs, u"22"_qs},
                {u"rsyncdst"_qs, u"/mirror"_qs},
                {u"passtype"_qs, u"2"_qs},
                {u"lastcertfile"_qs, u"/me.pem"_qs}});
    addProfile(program, u"empty"_qs, {{u"symencryption"_qs, u"unheard of"_qs}});

    delegate.setterCurrentProfile(u"full"_qs);
    EXPECT_EQ(delegate.prefSelector01.selectedIndex(), 2);
    EXPECT_EQ(delegate.syncSelector01.selectedIndex(), 0);
    EXPECT_FALSE(delegate.prefCheck02.isOn());
    EXPECT_TRUE(delegate.checkBox04.isOn());
    EXPECT_TRUE(delegate.checkBox05.isOn());
    EXPECT_FALSE(delegate.syncView.isHidden());
    EXPECT_EQ(delegate.syncPort.text(), u"22"_qs);
    EXPECT_EQ(delegate.passCombo01.selectedIndex(), 2) << "a number stored as text still selects";
    EXPECT_FALSE(delegate.pkView.isHidden());
    EXPECT_EQ(delegate.prefStepper01.value(), 777);

    delegate.setterCurrentProfile(u"empty"_qs);
    EXPECT_EQ(delegate.currentProfileTextView.text(), u"empty"_qs);
    EXPECT_EQ(delegate.syncSelector01.selectedIndex(), 1) << "no mode reads as not 0";
    EXPECT_TRUE(delegate.prefCheck02.isOn()) << "no switch reads as not 0";
    EXPECT_FALSE(delegate.checkBox04.isOn());
    EXPECT_FALSE(delegate.checkBox05.isOn());
    EXPECT_TRUE(delegate.syncView.isHidden());
    for (const outlets::TextField *emptied :
         {&delegate.syncPort, &delegate.syncTextDestPath, &delegate.certFile01})
        EXPECT_EQ(emptied->text(), QString()) << qPrintable(emptied->name());

    // These stay what they were for the profile before.
    EXPECT_EQ(delegate.fileText01.text(), u"/archives"_qs);
    EXPECT_EQ(delegate.extractPath.text(), u"/out"_qs);
    EXPECT_EQ(delegate.partSize(), u"777"_qs);
    EXPECT_EQ(delegate.prefSelector01.selectedIndex(), 2);
}

TEST(ApplyProfile, ForgetsTypedPasswords)
{
    TestProgram program;
    program.start();
    program.delegate().secureText01a.setText(u"secret"_qs);
    program.delegate().checkBox01.setOn(false);
    program.delegate().checkBox01Action();
    ASSERT_EQ(program.delegate().secureText01b.text(), u"secret"_qs);
    program.delegate().profileButton02Action();
    EXPECT_EQ(program.delegate().secureText01a.text(), QString());
    EXPECT_EQ(program.delegate().secureText01b.text(), QString());
}

TEST(LoadProfiles, OpensTheSelectedOneOrTheLast)
{
    TestProgram program;
    program.start();
    addProfile(program, u"b"_qs, {});
    addProfile(program, u"a"_qs, {});
    program.delegate().setterCurrentProfile(u"b"_qs);
    program.delegate().setterDefaultProfile();
    ASSERT_TRUE(TestProgram::waitUntil([&] { return !program.delegate().indicator02.isAnimating(); }));
    EXPECT_EQ(program.delegate().loadProfiles(), u"b"_qs) << "both files were written";

    program.delegate().configPlist().dictionary(u"resources"_qs).setValue(u"selectedprofile"_qs, u"gone"_qs);
    EXPECT_EQ(program.delegate().loadProfiles(), u"a"_qs) << "the last one in the file's order";
    EXPECT_EQ(program.delegate().profileCombo01.selectedTitle(), u"a"_qs);
    EXPECT_EQ(program.delegate().profileCombo01.titles(),
              (QStringList{u"Default profile"_qs, u"b"_qs, u"a"_qs}));
}

TEST(Options, WriteTheirKeysAtOnce)
{
    TestProgram program;
    program.start();
    QuillorentAppDelegate &delegate = program.delegate();
    const auto stored = [&](const QString &key) { return delegate.currentRecord().string(key); };

    delegate.prefStepper01Action(u"2500"_qs);
    EXPECT_EQ(stored(u"part"_qs), u"2500"_qs);
    EXPECT_EQ(delegate.prefText01.text(), u"2500"_qs);
    EXPECT_EQ(delegate.prefStepper01.value(), 2500);
    delegate.prefStepper01Action(u"10m"_qs);
    EXPECT_EQ(stored(u"part"_qs), u"10m"_qs) << "stored as typed";
    EXPECT_EQ(delegate.prefStepper01.value(), 10);
    delegate.prefStepper01Action(u"much"_qs);
    EXPECT_EQ(delegate.prefStepper01.value(), 0);

    delegate.autosaveCheck01.setOn(false);
    delegate.autosaveCheck01Action();
    EXPECT_EQ(delegate.setting(u"resources"_qs, u"autosave"_qs), u"0"_qs);
}
