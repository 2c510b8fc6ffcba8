// What runs before the C library has begun, which takes half a millisecond. So nothing of it may be called
// here, not even what a compiler makes of a loop over bytes: hence `volatile`, and the options of this file.

#include "ArgumentHiding.h"

#include <array>

namespace {

// In bytes. The program's own command lines have three paths and a password.
constexpr std::size_t room = 65536;

char kept[room];
std::size_t keptSize = 0;
bool areKept = false;

/// Where `word` ends in the text, from its start on or, `anywhere`, first of all; null: nowhere.
volatile char *behind(volatile char *text, const char *word, bool anywhere)
{
    for (; *text; ++text) {
        std::size_t size = 0;
        while (word[size] && text[size] == word[size])
            ++size;
        if (!word[size]) return text + size;
        if (!anywhere) return nullptr;
    }
    return nullptr;
}

/// Whether it is `-k`, or `--k`, whose value comes next.
bool asksForPassword(volatile char *argument)
{
    for (const char *const option : {"-k", "--k"}) {
        const volatile char *const end = behind(argument, option, false);
        if (end && !*end) return true;
    }
    return false;
}

void wipe(volatile char *text)
{
    while (text && *text)
        *text++ = '\0';
}

/// One behind the other is how the system puts them. False: they don't fit.
bool keep(int argc, char **argv)
{
    for (int i = 1; i < argc; ++i) {
        const volatile char *next = argv[i];
        do {
            if (keptSize == room) return false;
            const_cast<volatile char &>(kept[keptSize++]) = *next;
        } while (*next++);
    }
    return true;
}

} // namespace

void wipePasswords(int argc, char **argv)
{
    bool isPassword = false;
    for (int i = 1; i < argc; ++i) {
        volatile char *const argument = argv[i];
        const bool isNextPassword = asksForPassword(argument);
        if (isPassword) wipe(argument);
        wipe(behind(argument, "pass:", true));
        wipe(behind(argument, "-k=", false));
        wipe(behind(argument, "--k=", false));
        isPassword = isNextPassword;
    }
}

KeptArguments keptArguments() { return {areKept, {kept, keptSize}}; }

/// `stack`: as the system hands it over, the number of arguments and then where they are.
extern "C" __attribute__((used)) void hideArguments(void **stack)
{
    const int argc = *reinterpret_cast<int *>(stack);
    char **const argv = reinterpret_cast<char **>(stack + 1);
    areKept = keep(argc, argv);
    if (areKept) wipePasswords(argc, argv);
}

// The program begins here, and goes on as the C library would have it.
#if defined(__x86_64__)
asm(R"(
    .globl hideAndStart
    hideAndStart:
        mov %rsp, %rdi
        call hideArguments
        xor %edx, %edx
        jmp _start
)");
#elif defined(__aarch64__)
asm(R"(
    .globl hideAndStart
    hideAndStart:
        mov x0, sp
        bl hideArguments
        mov x0, #0
        b _start
)");
#else
#error "another processor needs its own few lines here"
#endif
