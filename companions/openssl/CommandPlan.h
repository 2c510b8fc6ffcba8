#pragma once

#include "SystemTool.h"

#include <algorithm>
#include <cstring>
#include <initializer_list>
#include <variant>

/// One option as the tool reads it: `-name value`, `--name value`, `-name=value` and `--name=value` are the
/// same.
struct Option {
    std::string_view name;  ///< without dashes and value
    char *value = nullptr;  ///< in the memory of the argument list; null: a switch, or the value is missing
    std::size_t first = 0;  ///< index of the option's first argument
    std::size_t length = 1; ///< how many arguments it takes up
};

/// The arguments of one of the tool's commands. They stay the caller's; names and values point into them.
class CommandLine {
public:
    /// Reads `arguments` (from the command's own name on) up to the first one that is no option.
    /// `withValue` names the options that take a value; every other option is a switch.
    CommandLine(std::span<char *const> arguments, std::span<const std::string_view> withValue)
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
            } else if (std::ranges::find(withValue, option.name) != withValue.end() &&
                       next < arguments.size()) {
                option.value = arguments[next++];
                option.length = 2;
            }
            m_options.push_back(option);
        }
    }

    [[nodiscard]] std::string_view command() const { return m_arguments.front(); }
    [[nodiscard]] const std::vector<Option> &options() const { return m_options; }
    [[nodiscard]] bool has(std::initializer_list<std::string_view> names) const
    {
        return last(names) != nullptr;
    }

    /// What follows the options.
    [[nodiscard]] std::span<char *const> operands() const { return m_arguments.subspan(m_operands); }

    /// The option that counts where several of these were given: the last one. None: null.
    [[nodiscard]] const Option *last(std::initializer_list<std::string_view> names) const
    {
        const auto isNamed = [names](const Option &option) {
            return std::ranges::find(names, option.name) != names.end();
        };
        const auto found = std::find_if(m_options.rbegin(), m_options.rend(), isNamed);
        return found == m_options.rend() ? nullptr : &*found;
    }

    /// The value of the last option of this name, null where there is none.
    [[nodiscard]] const char *value(std::string_view name) const
    {
        const Option *const option = last({name});
        return option ? option->value : nullptr;
    }

    /// The file that the last option of this name gives; nothing: a standard stream.
    [[nodiscard]] std::optional<std::string> file(std::string_view name) const
    {
        const std::string_view file = value(name) ? value(name) : "-";
        return file == "-" ? std::nullopt : std::optional<std::string>(file);
    }

    /// Whether it has no options but these, and reads and writes files whose names it gives: no standard
    /// stream or device.
    [[nodiscard]] bool worksOnFiles(std::initializer_list<std::string_view> options) const
    {
        return isFileName(value("in")) && isFileName(value("out")) &&
               std::ranges::all_of(m_options, [options](const Option &option) {
                   return std::ranges::find(options, option.name) != options.end();
               });
    }

    /// Appends to `arguments` what follows the command's name, but for the options for which `drop` is true.
    void appendTo(std::vector<std::string> &arguments, const std::function<bool(const Option &)> &drop) const
    {
        std::vector<bool> dropped(m_arguments.size(), false);
        for (const Option &option : m_options)
            for (std::size_t i = 0; i < option.length; ++i)
                dropped[option.first + i] = drop(option);
        for (std::size_t i = 1; i < m_arguments.size(); ++i)
            if (!dropped[i]) arguments.emplace_back(m_arguments[i]);
    }

private:
    static bool isFileName(const char *value)
    {
        const std::string_view name = value ? value : "-";
        const bool isOfSystem = name.starts_with("/proc/") || name.starts_with("/dev/");
        return name != "-" && (!isOfSystem || name.starts_with("/dev/shm/"));
    }

    std::span<char *const> m_arguments;
    std::vector<Option> m_options;
    std::size_t m_operands; ///< index of the first argument behind the options
};

/// The command is the tool's own affair: it gets the arguments as they are.
struct PassThrough {};

/// The command is not run at all, for this reason.
struct Refusal {
    std::string message;
};

/// The front does it itself; gives the exit status for the program. It uses the secret that goes with the
/// plan.
using OwnRun = std::function<int()>;

using CommandPlan = std::variant<PassThrough, Refusal, ToolRun, OwnRun>;

/// What to do for a command line (without the program's name) of a symmetric cipher: `aes-256-cbc …` or `enc
/// -aes-256-cbc …`. Nothing: it is none. What the program itself asks for, and whatever else is as regular,
/// the front does itself. Elsewhere it adds what the caller left open: the key derivation, the legacy
/// provider for a cipher that needs it, and a buffer that suits large files. The password comes from the
/// arguments or from where they say that it is; it is refused where the tool would cut it off on the way.
[[nodiscard]] std::optional<CommandPlan> planCipherCommand(std::span<char *const> arguments,
                                                           Secret &password);

/// The same for commands that encrypt or decrypt with a certificate: `smime -encrypt …`, `smime -decrypt …`.
/// The front does it itself unless the command line asks for something unusual. The tool encrypts without
/// holding the whole file in memory.
[[nodiscard]] std::optional<CommandPlan> planSmimeCommand(std::span<char *const> arguments,
                                                          Secret &passPhrase);
