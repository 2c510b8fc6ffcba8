#include "FileConversion.h"

#include "Complaint.h"
#include "FileSource.h"
#include "ResultFile.h"
#include "StopSignals.h"
#include "smime/Fault.h"

#include <unistd.h>

namespace {

class FileConversion {
public:
    explicit FileConversion(const FilePair &files)
        : m_files(files)
        , m_output(files.output, files.isOurs ? ResultFile::Target::Name : ResultFile::Target::Opened)
    {
        m_signals.emplace(base::StopSignals::BrokenPipe::IsAnError);
        m_signals->watch(0); // no child: a signal makes the reading end
    }

    bool execute(const Conversion &conversion)
    {
        if (openInput() && openOutput() && run(conversion)) return true;
        if (const int signal = base::StopSignals::received())
            m_problem = "stopped by " + base::signalName(signal);
        else
            m_output.tellWhereFull();
        complain(m_problem);
        return false;
    }

private:
    bool openInput()
    {
        if (!m_files.input) return true;
        m_input = ::openInput(*m_files.input, m_files.isOurs, m_problem);
        return static_cast<bool>(m_input);
    }

    bool openOutput()
    {
        const bool isOpen = m_output.open() && m_output.openTarget();
        m_problem = m_output.problem();
        // Where nothing has to be removed nobody waits for a reader who reads no more.
        if (!m_output.isStaged()) m_signals.reset();
        return isOpen;
    }

    bool run(const Conversion &conversion)
    {
        Fault fault;
        FileSource source(m_files.input ? m_input.get() : STDIN_FILENO, fault);
        const bool isWhole = conversion(source, m_output, fault);
        // Whoever asked to stop in the last moment expects no result.
        if (isWhole && base::StopSignals::received() == 0 && m_output.commit()) return true;
        m_problem = m_output.problem();
        if (m_problem.empty())
            m_problem = m_files.input.value_or("the standard input") + " " + fault.predicate();
        return false;
    }

    const FilePair &m_files;
    // First of all: from here on no signal ends the program while a staged file is there.
    std::optional<base::StopSignals> m_signals;
    ResultFile m_output;
    base::FileDescriptor m_input;
    std::string m_problem;
};

} // namespace

int convert(const FilePair &files, const Conversion &conversion)
{
    const bool isDone = FileConversion(files).execute(conversion);
    if (const int signal = base::StopSignals::received()) base::endBySignal(signal);
    return isDone ? 0 : 1;
}
