#include "SmimeDecryption.h"

#include "FileSource.h"
#include "PassPhrase.h"
#include "ResultFile.h"
#include "RunTool.h"
#include "Secret.h"
#include "StopSignals.h"
#include "smime/Fault.h"
#include "smime/KeyFile.h"
#include "smime/KeyOpener.h"

#include <unistd.h>

namespace {

class Decryption {
public:
    explicit Decryption(const SmimeDecryption &plan)
        : m_plan(plan)
        , m_output(plan.output, plan.isOurs ? ResultFile::Target::Name : ResultFile::Target::Opened)
    {
        m_signals.watch(0); // no child: a signal makes the reading end
    }

    bool execute(Secret &passPhrase)
    {
        const bool isDone = readKey(passPhrase) && readRecipient() && openInput() && decrypt();
        if (isDone) return true;
        if (const int signal = base::StopSignals::received())
            m_problem = "stopped by " + base::signalName(signal);
        complain(m_problem);
        return false;
    }

private:
    bool readKey(Secret &passPhrase)
    {
        const auto &source = m_plan.passPhraseSource;
        if (source && !fetchPassPhrase(*source, passPhrase, m_problem)) return false;
        std::optional<std::string_view> text;
        if (source || m_plan.hasPassPhrase) text = passPhrase.text();
        m_key = readPrivateKey(m_plan.keyFile, text, m_problem);
        passPhrase.wipe();
        return m_key.handle != nullptr;
    }

    bool readRecipient()
    {
        if (m_plan.recipient) {
            m_certificate = readCertificate(*m_plan.recipient, m_problem);
            return m_certificate.handle != nullptr;
        }
        std::string ignored;
        if (m_plan.mentionedCertificate)
            m_certificate = readCertificate(*m_plan.mentionedCertificate, ignored);
        return true;
    }

    bool openInput()
    {
        if (!m_plan.input) return true;
        m_input = ::openInput(*m_plan.input, m_plan.isOurs, m_problem);
        return static_cast<bool>(m_input);
    }

    bool decrypt()
    {
        Fault fault;
        FileSource source(m_plan.input ? m_input.get() : STDIN_FILENO, fault);
        KeyOpener keys(m_key, m_certificate.handle ? &m_certificate : nullptr,
                       m_plan.recipient ? KeyOpener::Scope::Certificate : KeyOpener::Scope::All);
        const bool isWhole = m_output.open() && m_output.openTarget() &&
                             decryptMessage(source, m_plan.form, keys, m_output, fault);
        // Whoever asked to stop in the last moment expects no result.
        if (isWhole && base::StopSignals::received() == 0 && m_output.commit()) return true;
        m_problem = m_output.problem();
        if (m_problem.empty())
            m_problem = m_plan.input.value_or("the standard input") + " " + fault.predicate();
        return false;
    }

    const SmimeDecryption &m_plan;
    // First of all: from here on no signal ends the program while a staged file is there.
    base::StopSignals m_signals{base::StopSignals::BrokenPipe::IsAnError};
    ResultFile m_output;
    base::FileDescriptor m_input;
    PrivateKey m_key;
    Certificate m_certificate;
    std::string m_problem;
};

} // namespace

int decryptSmime(const SmimeDecryption &decryption, Secret &passPhrase)
{
    const bool isDone = Decryption(decryption).execute(passPhrase);
    if (const int signal = base::StopSignals::received()) base::endBySignal(signal);
    return isDone ? 0 : 1;
}
