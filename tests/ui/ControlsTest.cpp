// What the controls of a profile keep in its record when they are pressed, and what they show of it.

#include "TestWindow.h"

#include "keychain/Secret.h"
#include "ui/lists/OutletTableView.h"
#include "ui/widgets/SizeEdit.h"

#include <QCheckBox>
#include <QComboBox>
#include <array>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <unistd.h>

namespace {

struct Control {
    QString key;    ///< of the record, or "table/key" of the settings
    QString name;   ///< of the widget
    QString button; ///< that chooses what it shows; "-": another test brings that about; none: it is pressed
    QStringList values;             ///< states of it, as the texts that are kept; a chooser's in its order
    std::optional<QString> without; ///< shown where the record lacks the key; none: what was shown before
};

QList<Control> controls()
{
    const QStringList paths{u"/one"_s, u"/two"_s};
    const QStringList lists{u"/a /b"_s, u"/c"_s};
    const QStringList truths{u"1"_s, u"0"_s};
    return {
        {u"folders"_s, u"listTableView"_s, u"folderButton01"_s, lists, u""_s},
        {u"sync"_s, u"syncTableView"_s, u"syncButton01"_s, lists, u""_s},
        {u"split"_s, u"checkBox04"_s, {}, {u"0"_s, u"1"_s}, u"0"_s}, // enables the next one
        {u"part"_s, u"prefText01"_s, {}, {u"2500"_s, u"10"_s}, {}},
        {u"keepdate"_s, u"checkBox05"_s, {}, truths, u"0"_s},
        {u"emptydir"_s, u"prefCheck02"_s, {}, truths, u"1"_s},
        {u"compress"_s, u"checkBox06"_s, {}, truths, u"0"_s},
        {u"compress"_s, u"prefCheck03"_s, {}, truths, u"0"_s},
        {u"rsyncdelete1"_s, u"checkBoxSync1"_s, {}, truths, u"0"_s},
        {u"rsyncdelete2"_s, u"checkBoxSync2"_s, {}, truths, u"0"_s},
        {u"isremotesync"_s, u"syncCheck01"_s, {}, {u"0"_s, u"1"_s}, u"0"_s},
        {u"symencryption"_s,
         u"prefSelector01"_s,
         {},
         {u"OpenSSL-AES"_s, u"OpenSSL-BF"_s, u"OpenSSL-3D"_s},
         {}},
        {u"rsyncmode"_s, u"syncSelector01"_s, {}, {u"0"_s, u"1"_s}, u"1"_s},
        {u"passtype"_s, u"passCombo01"_s, {}, {u"0"_s, u"1"_s, u"2"_s}, {}},
        {u"path"_s, u"fileText01"_s, u"fileButton01"_s, paths, {}},
        {u"extractpath"_s, u"extractPath"_s, u"extractPathButton"_s, paths, {}},
        {u"rsyncsrc"_s, u"syncTextSourcePath"_s, u"syncButtoSrc"_s, paths, u""_s},
        {u"rsyncdst"_s, u"syncTextDestPath"_s, u"syncButtoDest"_s, paths, u""_s},
        {u"rsyncdst"_s, u"syncTextDestPath"_s, {}, paths, u""_s},
        {u"remotesyncuser"_s, u"syncUser"_s, {}, paths, u""_s},
        {u"remotesyncserver"_s, u"syncServer"_s, {}, paths, u""_s},
        {u"remotesyncport"_s, u"syncPort"_s, {}, paths, u""_s},
        {u"lastkeychainuser"_s, u"keychainUser"_s, u"-"_s, paths, u""_s},
        {u"lastcertfile"_s, u"certFile01"_s, u"-"_s, paths, u""_s},
        {u"lastpkfile"_s, u"pkFile01"_s, u"-"_s, paths, u""_s},
        {u"resources/autosave"_s, u"autosaveCheck01"_s, {}, {u"0"_s, u"1"_s}, {}},
        {u"updates/automatic"_s, u"updatesCheck01"_s, {}, {u"1"_s, u"0"_s}, {}},
    };
}

std::string textsOf(const plist::Dictionary &record)
{
    QString text;
    for (const QString &key : record.keys())
        text += key + u'=' + record.string(key).value_or(record.array(key).strings().join(u' ')) + u'\n';
    return text.toStdString();
}

class ControlsTest : public WindowTest {
protected:
    void put(const plist::Dictionary &record, const Control &control, const QString &text)
    {
        const QStringList names = control.key.split(u'/');
        const bool isList = control.key == u"folders" || control.key == u"sync";
        if (names.size() == 2)
            delegate.configPlist().dictionary(names[0]).setValue(names[1], text);
        else
            record.setValue(names[0],
                            isList ? plist::Value(plist::Array::make(text.split(u' '))) : plist::Value(text));
    }

    using WindowTest::open;
    /// Opens a profile in which those of the key have this value, and all others their first.
    void open(const QString &key, const QString &value)
    {
        const plist::Dictionary record = plist::Dictionary::make();
        for (const Control &control : controls())
            put(record, control, control.key == key ? value : control.values.first());
        open(record);
    }

    QString shown(const Control &control)
    {
        QWidget &shownBy = widget(control.name);
        if (const auto *box = qobject_cast<QCheckBox *>(&shownBy)) return box->isChecked() ? u"1"_s : u"0"_s;
        if (const auto *chooser = qobject_cast<QComboBox *>(&shownBy))
            return control.values.value(chooser->currentIndex());
        if (const auto *size = qobject_cast<ui::SizeEdit *>(&shownBy)) return size->thousands();
        if (const auto *field = qobject_cast<QLineEdit *>(&shownBy)) return field->text();
        const ui::OutletTableModel &model = widget<ui::OutletTableView>(control.name).outletModel();
        QStringList rows;
        for (int row = 0; row < model.rowCount(); ++row)
            rows.append(model.cell(row, u"c10"_s).toString());
        return rows.join(u' ');
    }

    /// As a person does.
    void set(const Control &control, const QString &value)
    {
        QWidget &pressed = widget(control.name);
        if (auto *table = qobject_cast<QAbstractItemView *>(&pressed)) {
            table->selectAll();
            settle();
            QTest::keyClick(table, Qt::Key_Delete);
        }
        if (!control.button.isEmpty()) {
            // One that is cancelled, or gives nothing, changes nothing.
            const std::string before = textsOf(delegate.currentRecord());
            for (const auto &chosen : {std::optional<QStringList>(), {QStringList()}, {value.split(u' ')}}) {
                EXPECT_EQ(textsOf(delegate.currentRecord()), before);
                delegate.openPanel = [&](const outlets::OpenPanel &) { return chosen; };
                QTest::keyClick(&widget(control.button), Qt::Key_Space);
            }
        } else if (qobject_cast<QLineEdit *>(&pressed)) {
            fill(control.name, qobject_cast<ui::SizeEdit *>(&pressed) ? value + u" kB"_s : value);
        } else if (qobject_cast<QComboBox *>(&pressed)) {
            QTest::keyClick(&pressed, Qt::Key_Home);
            for (qsizetype row = control.values.indexOf(value); row > 0; --row)
                QTest::keyClick(&pressed, Qt::Key_Down);
        } else if (shown(control) != value) {
            QTest::keyClick(&pressed, Qt::Key_Space);
        }
        settle();
    }
};

/// Whether a text of which each character is changed by its lowest bit, as Qt keeps it or as bytes, is
/// anywhere in what this process has written.
bool isInMemory(const QByteArray &scrambled)
{
    std::array<char, 1 << 16> piece{};
    const int memory = ::open("/proc/self/mem", O_RDONLY);
    const auto isAt = [&](const char *place, qsizetype width) {
        for (qsizetype i = 0; i < scrambled.size(); ++i)
            if (place[i * width] != (scrambled[i] ^ 1)) return false;
        return true;
    };
    const auto isIn = [&](off_t begin, off_t end) {
        const auto longest = scrambled.size() * 2;
        for (off_t at = begin; at < end; at += ssize_t(piece.size()) - longest) {
            const ssize_t count = pread(memory, piece.data(), piece.size(), at);
            const char *const behind = piece.data() + std::max<ssize_t>(count - longest + 1, 0);
            // A sanitizer slows a loop over all bytes to minutes.
            for (const char *next = piece.data();; ++next) {
                next = static_cast<const char *>(memchr(next, scrambled[0] ^ 1, size_t(behind - next)));
                if (!next) break;
                if (isAt(next, 1) || isAt(next, 2)) return true;
            }
        }
        return false;
    };
    bool isFound = false;
    std::ifstream maps("/proc/self/maps");
    for (std::string line; !isFound && std::getline(maps, line);) {
        constexpr off_t most = 256 << 20; // a sanitizer's own are larger
        const off_t begin = off_t(std::stoull(line, nullptr, 16));
        const off_t end = off_t(std::stoull(line.substr(line.find('-') + 1), nullptr, 16));
        if (line[line.find(' ') + 2] == 'w' && end - begin < most) isFound = isIn(begin, end);
    }
    explicit_bzero(piece.data(), piece.size());
    close(memory);
    return isFound;
}

} // namespace

TEST_F(ControlsTest, KeepTheirStateUnderTheirOwnKeyAtOnce)
{
    const plist::Dictionary settings = delegate.configPlist();
    const auto kept = [&] {
        return textsOf(delegate.currentRecord()) + textsOf(settings.dictionary(u"resources"_s)) +
               textsOf(settings.dictionary(u"updates"_s));
    };
    const plist::Dictionary other = delegate.currentRecord().deepCopy();
    const std::string untouched = textsOf(other);
    delegate.listPlist().setValue(u"another"_s, other);
    open({}, {});
    for (const Control &control : controls())
        for (const QString &value : control.values) {
            if (control.button == u"-") continue;
            const std::string before = kept();
            const QString shownBefore = shown(control);
            set(control, value);
            const std::string after = kept();
            EXPECT_EQ(shown(control), value) << qPrintable(control.key);
            // With its own key as it was, all is as it was.
            const plist::Dictionary record = delegate.currentRecord();
            put(record, control, shownBefore);
            EXPECT_EQ(kept(), before);
            put(record, control, value);
            EXPECT_EQ(kept(), after) << "it keeps another value than it shows";
        }
    EXPECT_EQ(textsOf(other), untouched);
}

TEST_F(ControlsTest, ShowTheirKeyOrItsAbsence)
{
    for (const Control &control : controls())
        for (const QString &value : control.values) {
            SCOPED_TRACE(qPrintable(control.key + u'=' + value));
            const auto expected = [&](const Control &each) {
                return each.key == control.key ? value : each.values.first();
            };
            open(control.key, value);
            for (const Control &each : controls())
                EXPECT_EQ(shown(each), expected(each)) << qPrintable(each.key);
            EXPECT_FALSE(widget<QComboBox>(u"prefSelector02"_s).currentText().isEmpty());
            EXPECT_EQ(delegate.syncView.isHidden(), !delegate.syncCheck01.isOn());
            EXPECT_EQ(delegate.partSize(), delegate.prefText01.text());
            EXPECT_EQ(delegate.partSize(), QString::number(delegate.prefStepper01.value()));
            EXPECT_EQ(delegate.passTabs.selectedIndex(), delegate.passCombo01.selectedIndex());
            EXPECT_EQ(delegate.pkView.isHidden(), delegate.passCombo01.selectedIndex() != 2);
            open(plist::Dictionary::make());
            for (const Control &each : controls())
                EXPECT_EQ(shown(each), each.without.value_or(expected(each))) << qPrintable(each.key);
            EXPECT_TRUE(delegate.syncView.isHidden());
            EXPECT_FALSE(delegate.currentRecord().contains(u"compress"_s)) << "showing a profile changes it";
        }
    delegate.currentRecord().setValue(u"path"_s, u"");
    delegate.setterCurrentProfile(delegate.currentProfile());
    EXPECT_EQ(delegate.fileText01.text(), QString()) << "an empty destination is a destination";
}

TEST_F(ControlsTest, NoSecretIsSeenInTheNextProfile)
{
    outlets::TextField *const fields[] = {
        &delegate.secureText01a, &delegate.secureText01b,  &delegate.secureText02,   &delegate.keychainPass,
        &delegate.keychainClear, &delegate.keychainText01, &delegate.keychainOrigin, &delegate.keychainUser};
    for (outlets::TextField *field : fields)
        field->setText(u"secret"_s);
    delegate.keychainUnlock01.setHidden(false);
    open(plist::Dictionary::make());
    for (const outlets::TextField *field : fields)
        EXPECT_EQ(field->text(), QString()) << qPrintable(field->name());
    EXPECT_TRUE(delegate.keychainUnlock01.isHidden());
}

// In none of the program's memory: not in what was freed, nor in the room that a field has.
TEST_F(ControlsTest, NoSecretStaysInMemory)
{
    showTab(u"passwordsPage"_s);
    const QByteArray scrambled = "insrd6c`uudsx"; // the test must not find its own copy
    for (const char character : scrambled) {
        for (const QString &name : {u"secureText01a"_s, u"secureText02"_s, u"keychainPass"_s})
            QTest::keyClick(&widget(name), static_cast<char>(character ^ 1));
        settle();
    }
    ASSERT_TRUE(isInMemory(scrambled)) << "the search finds nothing";
    static_cast<void>(Secret::fromText(delegate.passwordSelector()));
    open(plist::Dictionary::make());
    settle();
    EXPECT_FALSE(isInMemory(scrambled));
}
