// A tool that does what the file beside it says, for what a real tool rarely does. "<program>.behaviour"
// holds a word, and what the word needs after it:
//   print TEXT     the text on standard output
//   complain TEXT  the text on standard error
//   bad-bytes      bytes that are no UTF-8
//   hang TEXT      its process id goes into "<program>.pid", then it waits for ever; asked for help with
//   "-h", it prints
//                  the text instead
//   crash          ends by a signal, silently
//   arguments      prints its arguments, each between "[" and "]"
//   terminal       says whether it could open a controlling terminal
//   helper         leaves a process behind that writes "late" to its output a moment later
//   hang-at WORD PROGRAM  hangs where the word is among its arguments, and becomes the program otherwise
//   mute-at WORD PROGRAM  the same, but does nothing instead of hanging
//   write TEXT     the text goes into the file that is named after "-out"
//   relay PROGRAM  its arguments, each followed by a zero byte, go at the end of "<program>.record", then it
//   becomes the
//                  program

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <string>
#include <unistd.h>

namespace {

void record(const std::string &path, int argc, char **argv)
{
    std::string bytes;
    for (int i = 1; i < argc; ++i)
        bytes.append(argv[i]).push_back('\0');
    bytes.append("--\n");
    std::ofstream(path, std::ios::app | std::ios::binary) << bytes;
}

[[noreturn]] void hang(const std::string &pidFile)
{
    std::ofstream(pidFile + ".new") << getpid() << std::flush;
    std::rename((pidFile + ".new").c_str(), pidFile.c_str());
    for (;;)
        pause();
}

void leaveHelper()
{
    if (fork() != 0) return;
    usleep(200'000);
    std::fputs("late", stdout);
}

[[noreturn]] void become(const std::string &program, const std::string &recordFile, int argc, char **argv)
{
    record(recordFile, argc, argv);
    argv[0] = const_cast<char *>(program.c_str());
    execv(program.c_str(), argv);
    _exit(127);
}

void writeTo(char **argument, char **end, const std::string &text)
{
    argument = std::find(argument, end, std::string("-out"));
    if (end - argument > 1) std::ofstream(argument[1], std::ios::binary) << text;
}

bool hasArgument(const std::string &word, int argc, char **argv)
{
    return std::find(argv + 1, argv + argc, word) != argv + argc;
}

} // namespace

int main(int argc, char **argv)
{
    const std::string self = argv[0];
    std::ifstream file(self + ".behaviour", std::ios::binary);
    const auto nextWord = [&file] {
        std::string word;
        file >> word;
        file.ignore(1);
        return word;
    };
    const std::string behaviour = nextWord();
    const std::string stopWord = behaviour.ends_with("-at") ? nextWord() : "";
    const std::string rest{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};

    if (behaviour == "print")
        std::fputs(rest.c_str(), stdout);
    else if (behaviour == "complain")
        std::fputs(rest.c_str(), stderr);
    else if (behaviour == "bad-bytes")
        std::fputs("caf\xe9 \xff\xfe", stdout);
    else if (behaviour == "hang" && argc == 2 && hasArgument("-h", argc, argv))
        std::fputs(rest.c_str(), stdout);
    else if (behaviour == "hang" || (behaviour == "hang-at" && hasArgument(stopWord, argc, argv)))
        hang(self + ".pid");
    else if (behaviour == "crash")
        raise(SIGKILL);
    else if (behaviour == "arguments")
        for (int i = 1; i < argc; ++i)
            std::printf("[%s]", argv[i]);
    else if (behaviour == "terminal")
        std::fputs(open("/dev/tty", O_RDWR) < 0 ? "none" : "open", stdout);
    else if (behaviour == "helper")
        leaveHelper();
    else if (behaviour == "write")
        writeTo(argv + 1, argv + argc, rest);
    else if (behaviour == "mute-at" && hasArgument(stopWord, argc, argv))
        return 0;
    else if (behaviour == "relay" || behaviour.ends_with("-at"))
        become(rest, self + ".record", argc, argv);
    return 0;
}
