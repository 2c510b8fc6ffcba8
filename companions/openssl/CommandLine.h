#pragma once

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

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
    CommandLine(std::span<char *const> arguments, std::span<const std::string_view> withValue);

    [[nodiscard]] std::string_view command() const { return m_arguments.front(); }
    [[nodiscard]] const std::vector<Option> &options() const { return m_options; }
    [[nodiscard]] bool has(std::initializer_list<std::string_view> names) const
    {
        return last(names) != nullptr;
    }

    /// What follows the options.
    [[nodiscard]] std::span<char *const> operands() const { return m_arguments.subspan(m_operands); }

    /// The option that counts where several of these were given: the last one. None: null.
    [[nodiscard]] const Option *last(std::initializer_list<std::string_view> names) const;

    /// The value of the last option of this name, null where there is none.
    [[nodiscard]] const char *value(std::string_view name) const;

    /// The file that the last option of this name gives; nothing: a standard stream.
    [[nodiscard]] std::optional<std::string> file(std::string_view name) const;

    /// Whether it has no options but these, and reads and writes files whose names it gives: no standard
    /// stream or device.
    [[nodiscard]] bool worksOnFiles(std::initializer_list<std::string_view> options) const;

    /// What follows the command's name, but for the options for which `drop` is true.
    template <typename Predicate>
    [[nodiscard]] std::vector<std::string> without(Predicate drop) const
    {
        std::vector<bool> dropped(m_arguments.size(), false);
        for (const Option &option : m_options)
            for (std::size_t i = 0; i < option.length; ++i)
                dropped[option.first + i] = drop(option);
        std::vector<std::string> kept;
        for (std::size_t i = 1; i < m_arguments.size(); ++i)
            if (!dropped[i]) kept.emplace_back(m_arguments[i]);
        return kept;
    }

private:
    std::span<char *const> m_arguments;
    std::vector<Option> m_options;
    std::size_t m_operands; ///< index of the first argument behind the options
};
