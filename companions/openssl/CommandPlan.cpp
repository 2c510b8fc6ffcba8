#include "CommandPlan.h"

CommandPlan planCommand(std::span<char *const> arguments, Secret &password)
{
    if (arguments.empty()) return PassThrough{};
    if (auto plan = planCipherCommand(arguments, password)) return std::move(*plan);
    if (auto plan = planSmimeCommand(arguments, password)) return std::move(*plan);
    return PassThrough{};
}
