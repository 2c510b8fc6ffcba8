#include "TestProgram.h"

#include <gtest/gtest.h>

namespace {

using Controller = QuillorentAppDelegate;

/// A control of a profile: the key that it keeps its state under, a state as the key's text, how a person
/// brings it about, and how the control shows it.
struct Control {
    QString key;
    QString value;
    void (*set)(Controller &, const QString &);
    QString (*shown)(Controller &);
};

template <auto box, auto action>
Control checkBox(const QString &key, const QString &value = u"1"_qs)
{
    return {key, value,
            [](Controller &all, const QString &text) {
                (all.*box).setOn(text == u"1");
                (all.*action)();
            },
            [](Controller &all) { return (all.*box).isOn() ? u"1"_qs : u"0"_qs; }};
}

template <auto field, auto action>
Control textField(const QString &key)
{
    return {key, u"typed"_qs,
            [](Controller &all, const QString &text) {
                (all.*field).setText(text);
                (all.*action)();
            },
            [](Controller &all) { return (all.*field).text(); }};
}

/// A field that a chooser of files or folders fills.
template <auto field, auto action>
Control chosenPath(const QString &key)
{
    return {key, u"/chosen"_qs,
            [](Controller &all, const QString &text) {
                all.openPanel = [text](const outlets::OpenPanel &) { return QStringList{text}; };
                (all.*action)();
            },
            [](Controller &all) { return (all.*field).text(); }};
}

template <auto selector, auto action>
Control choice(const QString &key, const QString &value, const QStringList &values)
{
    static QStringList texts;
    texts = values;
    return {key, value,
            [](Controller &all, const QString &text) {
                (all.*selector).selectIndex(int(texts.indexOf(text)));
                (all.*action)();
            },
            [](Controller &all) { return texts.value((all.*selector).selectedIndex()); }};
}

QList<Control> controls()
{
    using C = Controller;
    return {
        checkBox<&C::checkBox04, &C::prefCheck01Action>(u"split"_qs, u"0"_qs),
        checkBox<&C::checkBox05, &C::checkBox05Action>(u"keepdate"_qs, u"0"_qs),
        checkBox<&C::prefCheck02, &C::prefCheck02Action>(u"emptydir"_qs),
        checkBox<&C::checkBoxSync1, &C::checkBoxSync1Action>(u"rsyncdelete1"_qs),
        checkBox<&C::checkBoxSync2, &C::checkBoxSync2Action>(u"rsyncdelete2"_qs),
        checkBox<&C::syncCheck01, &C::syncCheck01Action>(u"isremotesync"_qs),
        choice<&C::prefSelector01, &C::prefSelector01Action>(
            u"symencryption"_qs, u"OpenSSL-BF"_qs, {u"OpenSSL-AES"_qs, u"OpenSSL-BF"_qs, u"OpenSSL-3D"_qs}),
        choice<&C::syncSelector01, &C::syncSelector01Action>(u"rsyncmode"_qs, u"1"_qs, {u"0"_qs, u"1"_qs}),
        choice<&C::passCombo01, &C::passCombo01Action>(u"passtype"_qs, u"2"_qs, {u"0"_qs, u"1"_qs, u"2"_qs}),
        chosenPath<&C::fileText01, &C::fileButton01Action>(u"path"_qs),
        chosenPath<&C::extractPath, &C::extractPathButtonAction>(u"extractpath"_qs),
        chosenPath<&C::syncTextSourcePath, &C::syncButtoSrcAction>(u"rsyncsrc"_qs),
        chosenPath<&C::syncTextDestPath, &C::syncButtoDestAction>(u"rsyncdst"_qs),
        textField<&C::syncUser, &C::syncCheck02Action>(u"remotesyncuser"_qs),
        textField<&C::syncServer, &C::syncCheck02Action>(u"remotesyncserver"_qs),
        textField<&C::syncPort, &C::syncCheck02Action>(u"remotesyncport"_qs),
        textField<&C::keychainUser, &C::passButton01Action>(u"lastkeychainuser"_qs),
        {u"part"_qs, u"2500"_qs, [](C &all, const QString &text) { all.prefStepper01Action(text); },
         [](C &all) { return all.prefText01.text(); }},
    };
}

} // namespace

TEST(Controls, EachWritesItsKeyAndIsSetByIt)
{
    TestProgram program;
    program.start();
    QuillorentAppDelegate &delegate = program.delegate();
    const QString first = delegate.currentProfile();
    delegate.listPlist().setValue(u"other"_qs, delegate.currentRecord().deepCopy());
    for (const Control &control : controls()) {
        control.set(delegate, control.value);
        EXPECT_EQ(delegate.currentRecord().string(control.key), control.value) << qPrintable(control.key);
    }
    delegate.setterCurrentProfile(u"other"_qs);
    delegate.currentRecord().setValue(u"path"_qs, u"/other"_qs);
    delegate.setterCurrentProfile(first);
    for (const Control &control : controls())
        EXPECT_EQ(control.shown(delegate), control.value) << qPrintable(control.key);
    delegate.setterCurrentProfile(u"other"_qs);
    EXPECT_EQ(delegate.fileText01.text(), u"/other"_qs);
    EXPECT_FALSE(delegate.checkBoxSync1.isOn()) << "a control of the other profile";
}
