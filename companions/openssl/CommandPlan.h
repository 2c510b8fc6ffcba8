#pragma once

#include "PasswordFile.h"
#include "RunTool.h"
#include "SmimeRun.h"

#include <optional>
#include <span>
#include <string>
#include <variant>

class Secret;

/// The command is the tool's own affair: it gets the arguments as they are.
struct PassThrough {};

/// The command is not run at all, for this reason.
struct Refusal {
    std::string message;
};

/// A file is to be encrypted or decrypted with the password, which the front does itself.
struct CipherRun {
    FilePair files;
    bool isDecryption;
    PasswordFile file;
};

using CommandPlan = std::variant<PassThrough, Refusal, ToolRun, CipherRun, SmimeDecryption, SmimeEncryption>;

/// What to do for this command line (without the program's name). A password in it moves to `password` and is
/// overwritten in the memory of the arguments, so that the system's list of processes shows it no longer.
[[nodiscard]] CommandPlan planCommand(std::span<char *const> arguments, Secret &password);

/// The same for commands of a symmetric cipher: `aes-256-cbc …` or `enc -aes-256-cbc …`. Nothing: it is none.
/// What the program itself asks for, and whatever else is as regular, the front does itself. Elsewhere it
/// adds what the caller left open: the key derivation, the legacy provider for a cipher that needs it, and a
/// buffer that suits large files. The password comes from the arguments or from where they say that it is; it
/// is refused where the tool would cut it off on the way.
[[nodiscard]] std::optional<CommandPlan> planCipherCommand(std::span<char *const> arguments,
                                                           Secret &password);

/// The same for commands that encrypt or decrypt with a certificate: `smime -encrypt …`, `smime -decrypt …`.
/// The front does it itself unless the command line asks for something unusual. The tool encrypts without
/// holding the whole file in memory.
[[nodiscard]] std::optional<CommandPlan> planSmimeCommand(std::span<char *const> arguments,
                                                          Secret &passPhrase);
