#include "CommandPlan.h"

#include <algorithm>
#include <cstring>

namespace {

bool isFileName(const char *value)
{
    const std::string_view name = value ? value : "-";
    const bool isOfSystem = name.starts_with("/proc/") || name.starts_with("/dev/");
    return name != "-" && (!isOfSystem || name.starts_with("/dev/shm/"));
}

} // namespace

CommandLine::CommandLine(std::span<char *const> arguments, std::span<const std::string_view> withValue)
    : m_arguments(arguments), m_operands(arguments.size())
{
    std::size_t next = 1;
    while (next < arguments.size()) {
        char *const argument = arguments[next];
        const bool isSeparator = std::strcmp(argument, "--") == 0;
        if (*argument != '-' || isSeparator) {
            m_operands = next + (isSeparator ? 1 : 0);
            return;
        }

        Option option;
        option.first = next++;
        option.name = argument + (argument[1] == '-' ? 2 : 1);
        const std::size_t equals = option.name.find('=');
        if (equals != std::string_view::npos) {
            option.value = argument + (option.name.data() - argument) + equals + 1;
            option.name = option.name.substr(0, equals);
        } else if (std::ranges::find(withValue, option.name) != withValue.end() && next < arguments.size()) {
            option.value = arguments[next++];
            option.length = 2;
        }
        m_options.push_back(option);
    }
}

const Option *CommandLine::last(std::initializer_list<std::string_view> names) const
{
    const auto isNamed = [names](const Option &option) {
        return std::ranges::find(names, option.name) != names.end();
    };
    const auto found = std::find_if(m_options.rbegin(), m_options.rend(), isNamed);
    return found == m_options.rend() ? nullptr : &*found;
}

const char *CommandLine::value(std::string_view name) const
{
    const Option *const option = last({name});
    return option ? option->value : nullptr;
}

std::optional<std::string> CommandLine::file(std::string_view name) const
{
    const std::string_view file = value(name) ? value(name) : "-";
    return file == "-" ? std::nullopt : std::optional<std::string>(file);
}

bool CommandLine::worksOnFiles(std::initializer_list<std::string_view> options) const
{
    return isFileName(value("in")) && isFileName(value("out")) &&
           std::ranges::all_of(m_options, [options](const Option &option) {
               return std::ranges::find(options, option.name) != options.end();
           });
}

void CommandLine::appendTo(std::vector<std::string> &arguments,
                           const std::function<bool(const Option &)> &drop) const
{
    std::vector<bool> dropped(m_arguments.size(), false);
    for (const Option &option : m_options)
        for (std::size_t i = 0; i < option.length; ++i)
            dropped[option.first + i] = drop(option);
    for (std::size_t i = 1; i < m_arguments.size(); ++i)
        if (!dropped[i]) arguments.emplace_back(m_arguments[i]);
}

CommandPlan planCommand(std::span<char *const> arguments, Secret &password)
{
    if (arguments.empty()) return PassThrough{};
    if (auto plan = planCipherCommand(arguments, password)) return std::move(*plan);
    if (auto plan = planSmimeCommand(arguments, password)) return std::move(*plan);
    return PassThrough{};
}
