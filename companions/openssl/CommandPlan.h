#pragma once

#include "PasswordFile.h"
#include "SmimeRun.h"
#include "ToolRun.h"

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
