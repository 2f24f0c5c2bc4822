#include "command_line.h"

#include <algorithm>

#include <tern7/core/corekit/strings.h>

namespace tern7 {

namespace {

const TOption& FindOption(std::span<const TOption> options, std::string_view name) {
    for (const TOption& option : options)
        if (option.name == name) return option;
    throw EWrongUsage("unknown option " + std::string(name));
}

void CheckArguments(const std::vector<std::string>& arguments, int least, int most) {
    const int count = static_cast<int>(arguments.size());
    if (count < least) throw EWrongUsage("an argument is missing");
    if (most >= 0 && count > most)
        throw EWrongUsage("one argument too many: " +
                          QuotedString(arguments[static_cast<size_t>(most)], '\"'));
    if (std::count(arguments.begin(), arguments.end(), "-") > 1)
        throw EWrongUsage("the standard input can be read once only");
}

} // namespace

TCommandLine::TCommandLine(std::span<const std::string> words, std::span<const TOption> options,
                           int least, int most) {
    bool optionsEnded = false;
    for (size_t i = 0; i < words.size(); ++i) {
        const std::string_view word = words[i];
        if (optionsEnded || word.size() < 2 || word[0] != '-') {
            arguments.emplace_back(word);
            continue;
        }
        if (word == "--") {
            optionsEnded = true;
            continue;
        }
        const size_t equals = word.starts_with("--") ? word.find('=') : std::string_view::npos;
        const TOption& option = FindOption(options, word.substr(0, equals));
        std::vector<std::string>& given = values[option.name];
        if (!option.takesValue) {
            if (equals != std::string_view::npos)
                throw EWrongUsage(std::string(option.name) + " takes no value");
        } else if (equals != std::string_view::npos) {
            given.emplace_back(word.substr(equals + 1));
        } else if (i + 1 < words.size()) {
            given.push_back(words[++i]);
        } else {
            throw EWrongUsage("the value of " + std::string(option.name) + " is missing");
        }
    }
    CheckArguments(arguments, least, most);
}

std::optional<std::string> TCommandLine::Value(std::string_view option) const {
    const auto found = values.find(option);
    if (found == values.end() || found->second.empty()) return std::nullopt;
    return found->second.back();
}

std::vector<std::string> TCommandLine::Values(std::string_view option) const {
    const auto found = values.find(option);
    return found == values.end() ? std::vector<std::string>() : found->second;
}

std::optional<size_t> TCommandLine::Choice(std::string_view option,
                                           std::initializer_list<std::string_view> words) const {
    const std::optional<std::string> value = Value(option);
    if (!value) return std::nullopt;
    std::string known;
    size_t position = 0;
    for (std::string_view word : words) {
        if (word == *value) return position;
        known += (position++ ? ", " : "") + std::string(word);
    }
    throw EWrongUsage(std::string(option) + " is one of " + known + ", not " +
                      QuotedString(*value, '\"'));
}

} // namespace tern7
