#pragma once

#include <initializer_list>
#include <map>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tern7 {

/// The tool was called in a way that it does not know; the message says what is wrong.
class EWrongUsage : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// An option as it is written: "--limit", "-o".
struct TOption {
    std::string_view name;
    bool takesValue = true;
};

/// The words behind a verb, cut into arguments and options: `--name value`, `--name=value`,
/// `-n value`; "--" ends the options; "-" is an argument. Every option may stand anywhere.
class TCommandLine {
public:
    /// EWrongUsage for an unknown option, a value that is missing, one that nothing takes, or too
    /// few or too many arguments (`most` below 0: any number).
    TCommandLine(std::span<const std::string> words, std::span<const TOption> options, int least,
                 int most);

    const std::vector<std::string>& Arguments() const { return arguments; }
    const std::string& Argument(size_t i) const { return arguments.at(i); }
    bool Has(std::string_view option) const { return values.contains(option); }
    /// The value given last.
    std::optional<std::string> Value(std::string_view option) const;
    /// All of its values, in order.
    std::vector<std::string> Values(std::string_view option) const;
    /// The position among the words that a value may be; EWrongUsage naming them for any other.
    std::optional<size_t> Choice(std::string_view option,
                                 std::initializer_list<std::string_view> words) const;

private:
    std::vector<std::string> arguments;
    std::map<std::string_view, std::vector<std::string>> values; // keys are those of the options
};

} // namespace tern7
