#include "CommandPlan.h"

#include "CipherCommand.h"
#include "SmimeCommand.h"

CommandPlan planCommand(std::span<char *const> arguments, Secret &password)
{
    if (arguments.empty()) return PassThrough{};
    if (isCipherCommand(arguments)) return planCipherCommand(arguments, password);
    if (isSmimeCommand(arguments)) return planSmimeCommand(arguments, password);
    return PassThrough{};
}
