// What the controls of a profile keep in its record, and what they show of it.

#include "ProgramTest.h"

namespace {

using C = QuillorentAppDelegate;
using Action = void (C::*)();

/// A control that keeps its state under a key of its own.
struct Control {
    QString key;
    QStringList values;             ///< states of it, as the record's texts
    std::optional<QString> without; ///< shown where the record lacks the key; none: what was shown before
    std::function<void(C &, const QString &)> set; ///< as a person does
    std::function<QString(C &)> shown;
};

Control checkBox(const QString &key, outlets::CheckBox C::*box, Action action, const QString &without)
{
    return {key,
            {u"1"_qs, u"0"_qs},
            without,
            [=](C &all, const QString &text) {
                (all.*box).setOn(text == u"1");
                (all.*action)();
            },
            [=](C &all) { return (all.*box).isOn() ? u"1"_qs : u"0"_qs; }};
}

/// A field whose content another test brings about.
Control shownText(const QString &key, outlets::TextField C::*field)
{
    return {key, {u"/one"_qs, u"/two"_qs}, u""_qs, nullptr, [=](C &all) { return (all.*field).text(); }};
}

Control textField(const QString &key, outlets::TextField C::*field, Action action)
{
    Control control = shownText(key, field);
    control.set = [=](C &all, const QString &text) {
        (all.*field).setText(text);
        (all.*action)();
    };
    return control;
}

Control chosenFolder(const QString &key, outlets::TextField C::*field, Action action,
                     const std::optional<QString> &without)
{
    Control control = shownText(key, field);
    control.without = without;
    control.set = [=](C &all, const QString &text) {
        all.openPanel = [text](const outlets::OpenPanel &panel) {
            EXPECT_TRUE(panel.canChooseDirectories && !panel.canChooseFiles);
            return QStringList{text};
        };
        (all.*action)();
    };
    return control;
}

Control choice(const QString &key, outlets::Selector C::*selector, Action action, const QStringList &values,
               const std::optional<QString> &without)
{
    return {key, values, without,
            [=](C &all, const QString &text) {
                (all.*selector).selectIndex(int(values.indexOf(text)));
                (all.*action)();
            },
            [=](C &all) { return values.value((all.*selector).selectedIndex()); }};
}

Control list(const QString &key, outlets::TableView C::*table, void (C::*add)(const QStringList &),
             Action remove)
{
    return {key,
            {u"/a /b"_qs, u"/c"_qs},
            u""_qs,
            [=](C &all, const QString &text) {
                const int reloads = (all.*table).reloads();
                (all.*table).setSelectedRows({0, 1});
                (all.*remove)();
                (all.*add)(text.split(u' '));
                EXPECT_EQ((all.*table).reloads(), reloads + 2);
            },
            [=](C &all) {
                const outlets::TableDataSource &source = *(all.*table).dataSource();
                QStringList rows;
                for (int row = 0; row < source.numberOfRows(); ++row)
                    rows.append(source.objectValue(u"c10"_qs, row).toString());
                return rows.join(u' ');
            }};
}

QList<Control> controls()
{
    return {
        list(u"folders"_qs, &C::listTableView, &C::addFolders, &C::folderButton02Action),
        list(u"sync"_qs, &C::syncTableView, &C::addSyncEntries, &C::syncButton02Action),
        checkBox(u"split"_qs, &C::checkBox04, &C::prefCheck01Action, u"0"_qs),
        checkBox(u"keepdate"_qs, &C::checkBox05, &C::checkBox05Action, u"0"_qs),
        checkBox(u"emptydir"_qs, &C::prefCheck02, &C::prefCheck02Action, u"1"_qs),
        checkBox(u"rsyncdelete1"_qs, &C::checkBoxSync1, &C::checkBoxSync1Action, u"0"_qs),
        checkBox(u"rsyncdelete2"_qs, &C::checkBoxSync2, &C::checkBoxSync2Action, u"0"_qs),
        checkBox(u"isremotesync"_qs, &C::syncCheck01, &C::syncCheck01Action, u"0"_qs),
        choice(u"symencryption"_qs, &C::prefSelector01, &C::prefSelector01Action,
               {u"OpenSSL-AES"_qs, u"OpenSSL-BF"_qs, u"OpenSSL-3D"_qs}, {}),
        choice(u"rsyncmode"_qs, &C::syncSelector01, &C::syncSelector01Action, {u"0"_qs, u"1"_qs}, u"1"_qs),
        choice(u"passtype"_qs, &C::passCombo01, &C::passCombo01Action, {u"0"_qs, u"1"_qs, u"2"_qs}, {}),
        chosenFolder(u"path"_qs, &C::fileText01, &C::fileButton01Action, {}),
        chosenFolder(u"extractpath"_qs, &C::extractPath, &C::extractPathButtonAction, {}),
        chosenFolder(u"rsyncsrc"_qs, &C::syncTextSourcePath, &C::syncButtoSrcAction, u""_qs),
        chosenFolder(u"rsyncdst"_qs, &C::syncTextDestPath, &C::syncButtoDestAction, u""_qs),
        textField(u"rsyncdst"_qs, &C::syncTextDestPath, &C::syncTextDestPathAction),
        textField(u"remotesyncuser"_qs, &C::syncUser, &C::syncCheck02Action),
        textField(u"remotesyncserver"_qs, &C::syncServer, &C::syncCheck02Action),
        textField(u"remotesyncport"_qs, &C::syncPort, &C::syncCheck02Action),
        textField(u"lastkeychainuser"_qs, &C::keychainUser, &C::passButton01Action),
        textField(u"lastkeychainuser"_qs, &C::keychainUser, &C::passButton02Action),
        shownText(u"lastcertfile"_qs, &C::certFile01),
        shownText(u"lastpkfile"_qs, &C::pkFile01),
        {u"part"_qs,
         {u"10m"_qs, u"2500"_qs},
         {},
         &C::prefStepper01Action,
         [](C &delegate) { return delegate.prefText01.text(); }},
    };
}

std::string textsOf(const plist::Dictionary &record)
{
    QString text;
    for (const QString &key : record.keys())
        text += key + u'=' + record.string(key).value_or(record.array(key).strings().join(u' ')) + u'\n';
    return text.toStdString();
}

/// How many rounds it takes until every two keys had values that differ.
constexpr int rounds = 5;

/// The value of a control in a round.
QString valueOf(const Control &control, int round)
{
    const QList<Control> all = controls();
    const auto first =
        std::find_if(all.begin(), all.end(), [&](const Control &each) { return each.key == control.key; });
    return control.values[((first - all.begin()) >> round) % control.values.size()];
}

void put(const plist::Dictionary &record, const QString &key, const QString &text)
{
    const bool isList = key == u"folders" || key == u"sync";
    record.setValue(key, isList ? plist::Value(plist::Array::make(text.split(u' '))) : plist::Value(text));
}

class Controls : public ProgramTest {
protected:
    /// Opens a profile with this record.
    void open(const plist::Dictionary &record)
    {
        delegate.listPlist().setValue(u"opened"_qs, record);
        delegate.setterCurrentProfile(u"opened"_qs);
    }
    /// Opens a profile in which each control has the value of that round.
    void open(int round)
    {
        const plist::Dictionary record = plist::Dictionary::make();
        for (const Control &control : controls())
            put(record, control.key, valueOf(control, round));
        open(record);
    }
};

} // namespace

TEST_F(Controls, KeepTheirStateUnderTheirOwnKeyAtOnce)
{
    const plist::Dictionary other = delegate.currentRecord().deepCopy();
    const std::string untouched = textsOf(other);
    delegate.listPlist().setValue(u"other"_qs, other);
    const plist::Dictionary expected = delegate.currentRecord().deepCopy();
    for (const Control &control : controls())
        for (const QString &value : control.values) {
            if (!control.set) continue;
            control.set(delegate, value);
            put(expected, control.key, value);
            EXPECT_EQ(textsOf(delegate.currentRecord()), textsOf(expected));
            EXPECT_EQ(control.shown(delegate), value) << qPrintable(control.key);
        }
    // Rows that no chooser has.
    delegate.prefSelector01.selectIndex(3);
    delegate.prefSelector01Action();
    delegate.syncSelector01.selectIndex(2);
    delegate.syncSelector01Action();
    EXPECT_EQ(textsOf(delegate.currentRecord()), textsOf(expected));
    EXPECT_EQ(textsOf(other), untouched);
}

TEST_F(Controls, ShowTheirKeyOrItsAbsence)
{
    for (int round = 0; round < rounds; ++round) {
        open(round);
        for (const Control &control : controls())
            EXPECT_EQ(control.shown(delegate), valueOf(control, round)) << qPrintable(control.key);
        EXPECT_EQ(delegate.syncView.isHidden(), !delegate.syncCheck01.isOn());
        EXPECT_EQ(delegate.partSize(), delegate.prefText01.text());
        EXPECT_EQ(delegate.passTabs.selectedIndex(), delegate.passCombo01.selectedIndex());
        EXPECT_EQ(delegate.pkView.isHidden(), delegate.passCombo01.selectedIndex() != 2);

        const int reloads[] = {delegate.listTableView.reloads(), delegate.extractTableView.reloads(),
                               delegate.syncTableView.reloads()};
        open(plist::Dictionary::make());
        for (const Control &control : controls())
            EXPECT_EQ(control.shown(delegate), control.without.value_or(valueOf(control, round)))
                << qPrintable(control.key);
        EXPECT_EQ(delegate.currentProfileTextView.text(), u"opened"_qs);
        EXPECT_TRUE(delegate.syncView.isHidden());
        EXPECT_GT(delegate.listTableView.reloads(), reloads[0]);
        EXPECT_GT(delegate.extractTableView.reloads(), reloads[1]);
        EXPECT_GT(delegate.syncTableView.reloads(), reloads[2]);
    }
    delegate.currentRecord().setValue(u"path"_qs, u"");
    delegate.setterCurrentProfile(u"opened"_qs);
    EXPECT_EQ(delegate.fileText01.text(), QString()) << "an empty destination is a destination";
}

TEST_F(Controls, ACancelledChooserChangesNothing)
{
    open(0);
    const std::string before = textsOf(delegate.currentRecord());
    for (const auto &answer : {std::optional<QStringList>(), std::optional(QStringList())}) {
        delegate.openPanel = [&](const outlets::OpenPanel &) { return answer; };
        for (const Action action :
             {&C::fileButton01Action, &C::extractPathButtonAction, &C::syncButtoSrcAction,
              &C::syncButtoDestAction, &C::folderButton01Action, &C::syncButton01Action})
            (delegate.*action)();
        EXPECT_EQ(textsOf(delegate.currentRecord()), before);
        for (const Control &control : controls())
            EXPECT_EQ(control.shown(delegate), valueOf(control, 0)) << qPrintable(control.key);
    }
}

TEST_F(Controls, NoSecretIsSeenInTheNextProfile)
{
    outlets::TextField *const fields[] = {&delegate.secureText01a,  &delegate.secureText01b,
                                          &delegate.keychainPass,   &delegate.keychainClear,
                                          &delegate.keychainText01, &delegate.keychainUser};
    for (outlets::TextField *field : fields)
        field->setText(u"secret"_qs);
    delegate.keychainUnlock01.setHidden(false);
    open(plist::Dictionary::make());
    for (const outlets::TextField *field : fields)
        EXPECT_EQ(field->text(), QString()) << qPrintable(field->name());
    EXPECT_TRUE(delegate.keychainUnlock01.isHidden());
}

TEST_F(Controls, SettingsAreKeptAndShownByEveryProfile)
{
    struct Setting {
        outlets::CheckBox &box;
        Action action;
        QString table;
        QString key;
    };
    for (const Setting &setting :
         {Setting{delegate.autosaveCheck01, &C::autosaveCheck01Action, u"resources"_qs, u"autosave"_qs},
          Setting{delegate.updatesCheck01, &C::updatesCheck01Action, u"updates"_qs, u"automatic"_qs}})
        for (const bool on : {true, false}) {
            setting.box.setOn(on);
            (delegate.*setting.action)();
            EXPECT_EQ(delegate.setting(setting.table, setting.key), on ? u"1"_qs : u"0"_qs);
            setting.box.setOn(!on);
            delegate.setterCurrentProfile(delegate.currentProfile());
            EXPECT_EQ(setting.box.isOn(), on) << qPrintable(setting.key);
        }
}

TEST_F(Controls, VolumeSizesMoveTheStepper)
{
    for (const auto &[text, value] : {std::pair{u"2500"_qs, 2500}, {u"10m"_qs, 10}, {u"much"_qs, 0}}) {
        delegate.prefStepper01Action(text);
        EXPECT_EQ(delegate.prefStepper01.value(), value);
        EXPECT_EQ(delegate.partSize(), text);
    }
}

TEST_F(Controls, ClearEmptiesTheListOfArchivesAndTheConsole)
{
    writeFile(program.folder() / "a.rar", "x");
    delegate.addArchives({program.path("a.rar")});
    ASSERT_EQ(delegate.extractTableView.dataSource()->numberOfRows(), 1);
    delegate.extractButton03Action();
    EXPECT_EQ(delegate.extractTableView.dataSource()->numberOfRows(), 0);
    EXPECT_EQ(delegate.extractList.count(), 0);

    delegate.consoleTextView01.setText(u"old"_qs);
    delegate.consolePanel01Action();
    EXPECT_EQ(delegate.consoleTextView01.text(), QString());
}
