#pragma once

#include "Command.h"
#include "Stub.h"
#include "TestProgram.h"

#include <QDir>

#include <gtest/gtest.h>

/// The program with a profile that backs up into "archives" and extracts into "out".
class ExtractionTest : public testing::Test {
protected:
    ExtractionTest()
    {
        program.start();
        extractInto(out);
        delegate.secureText01a.setText(u"correct horse"_qs);
        delegate.concernsPanel01.observe([this] {
            if (delegate.concernsPanel01.place() == outlets::Panel::Place::Hidden) return;
            concerns = delegate.concernsText01.text();
            overrules ? delegate.buttonLaunch02c() : delegate.concernsPanel01Stop();
        });
        delegate.extractPanel01.observe([this] {
            if (delegate.extractPanel01.place() == outlets::Panel::Place::Hidden) return;
            damaged = delegate.extractPanelText01.text();
            delegate.stopProcess02b();
        });
    }

    void extractInto(const std::filesystem::path &folder)
    {
        std::filesystem::create_directories(folder);
        delegate.extractPath.setText(toQString(folder));
        delegate.currentRecord().setValue(u"extractpath"_qs, toQString(folder));
    }

    /// Backs up `sources` with the method, split into volumes of so many thousand bytes, or whole for 0.
    void backUp(const QStringList &sources, const QString &method = u"OpenSSL-AES"_qs, int volume = 0)
    {
        delegate.currentRecord().array(u"folders"_qs).clear();
        program.setUpBackup(sources);
        const bool byCertificate = method == u"OpenSSL-SMIME";
        delegate.passCombo01.selectIndex(byCertificate ? PasswordTab::Certificate
                                                       : PasswordTab::TypedPassword);
        if (!byCertificate) delegate.currentRecord().setValue(u"symencryption"_qs, method);
        delegate.checkBox04.setOn(volume > 0);
        delegate.prefStepper01Action(QString::number(volume));
        program.backUp();
        ASSERT_EQ(delegate.consoleTextView01.text(), QString());
    }

    /// One archive of a small folder.
    QString backUpSmallFolder(const std::string &name = "docs")
    {
        writeFile(program.folder() / name / "file", "content of " + name);
        backUp({program.path(name)});
        return program.path("archives/" + name + ".rar.aes.rar");
    }

    void makeKeyPair(const std::string &name = "key")
    {
        const std::string key = (program.folder() / (name + ".pem")).string();
        const std::string certificate = (program.folder() / (name + "-certificate.pem")).string();
        ASSERT_EQ(runCommand({"openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-subj", "/CN=test",
                              "-keyout", key, "-out", certificate})
                      .status,
                  0);
        delegate.pkFile01.setText(QString::fromStdString(key));
        delegate.certFile01.setText(QString::fromStdString(certificate));
    }

    /// Adds the archives to an empty list, starts, answers what is asked, and waits for the end.
    void extract(const QStringList &archives)
    {
        concerns.clear();
        damaged.clear();
        delegate.extractButton03Action();
        delegate.addArchives(archives);
        delegate.buttonLaunch02b();
        program.waitForEnd();
    }

    /// The volumes of an archive, by number.
    QStringList volumesOf(const QString &name) const
    {
        QStringList paths;
        for (const QString &file :
             QDir(program.path("archives")).entryList({name + u".part*.rar"_qs}, QDir::Files))
            paths.append(program.path("archives/") + file);
        return paths;
    }

    /// Where a source comes to be.
    std::filesystem::path extracted(const std::filesystem::path &source) const
    {
        return out / source.relative_path();
    }

    QString console() const { return delegate.consoleTextView01.text(); }

    TestProgram program;
    QuillorentAppDelegate &delegate = program.delegate();
    const std::filesystem::path out = program.folder() / "out";
    const std::string libexec = QUILLORENT_LIBEXEC;
    bool overrules = true;
    QString concerns; ///< what the last start was warned of
    QString damaged;  ///< the archive that failed its test
};
