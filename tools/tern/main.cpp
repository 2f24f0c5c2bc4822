// tern: structures, queries and databases from the command line.

#include <csignal>
#include <exception>
#include <string>
#include <vector>

#ifndef _WIN32
#include <fcntl.h>
#endif

#include <tern7/core/corekit/errors.h>

#include "streams.h"
#include "verbs.h"

using namespace tern7;

namespace {

constexpr std::string_view usageHint = "\"tern --help\" lists the verbs";

void PrintVerbs() {
    Print("usage: tern VERB ...\n\n");
    for (const TVerb& verb : Verbs())
        PrintLine("  tern " + std::string(verb.name) + " " + std::string(verb.usage));
    Print(
        "\n  tern VERB --help      says more about a verb\n"
        "  tern --version\n\n"
        "FILE, STRUCTURE and QUERY may be \"-\", the standard input. Results go to the standard\n"
        "output, messages to the standard error. Exit status: 0 done, 1 refused, 2 wrong usage.\n");
}

constexpr TOption formatOptions[] = {{"--date"}, {"--time"}, {"--datetime"}, {"--quotes"}};
constexpr std::string_view formatHelp =
    R"(  --date F --time F --datetime F   formats such as yyyy-mm-dd, hh:nn:ss, instead of those
                                   of the structure; empty: values stand as entered
  --quotes []                      opening and closing sign of quoted names
)";

std::string Usage(const TVerb& verb) {
    return "usage: tern " + std::string(verb.name) + " " + std::string(verb.usage);
}

void PrintHelp(const TVerb& verb) {
    PrintLine(Usage(verb));
    Print(verb.help);
    if (verb.takesFormats) Print(formatHelp);
}

const TVerb* FindVerb(std::string_view name) {
    for (const TVerb& verb : Verbs())
        if (verb.name == name) return &verb;
    return nullptr;
}

bool AsksForHelp(std::string_view word) {
    return word == "--help" || word == "-h";
}

int RunVerb(const TVerb& verb, std::span<const std::string> words) {
    for (const std::string& word : words) {
        if (word == "--") break;
        if (!AsksForHelp(word)) continue;
        PrintHelp(verb);
        return esDone;
    }
    try {
        std::vector<TOption> options(verb.options.begin(), verb.options.end());
        if (verb.takesFormats)
            options.insert(options.end(), std::begin(formatOptions), std::end(formatOptions));
        return verb.run(TCommandLine(words, options, verb.leastArguments, verb.mostArguments));
    } catch (const EWrongUsage& error) {
        Complain(std::string(verb.name) + ": " + error.what() + "\n" + Usage(verb));
        return esWrongUsage;
    }
}

int Dispatch(std::span<const std::string> words) {
    if (words.empty()) {
        Complain("a verb is missing; " + std::string(usageHint));
        return esWrongUsage;
    }
    if (AsksForHelp(words[0])) {
        PrintVerbs();
        return esDone;
    }
    if (words[0] == "--version") {
        PrintLine("tern " TERN7_VERSION);
        return esDone;
    }
    const TVerb* verb = FindVerb(words[0]);
    if (!verb) {
        Complain("unknown verb \"" + words[0] + "\"; " + std::string(usageHint));
        return esWrongUsage;
    }
    return RunVerb(*verb, words.subspan(1));
}

/// A closed standard stream stays closed: without this the next file that is opened would take its
/// place and get what is meant for the stream.
void ReserveStandardStreams() {
#ifndef _WIN32
    for (int stream = 0; stream <= 2; ++stream)
        if (::fcntl(stream, F_GETFD) == -1) ::open("/dev/null", stream == 0 ? O_WRONLY : O_RDONLY);
#endif
}

} // namespace

int main(int argc, char** argv) {
    ReserveStandardStreams();
#ifdef SIGPIPE
    std::signal(SIGPIPE, SIG_IGN);
#endif
    const std::vector<std::string> words(argv + (argc > 0 ? 1 : 0), argv + argc);
    try {
        const int status = Dispatch(words);
        FinishPrinting();
        return status;
    } catch (const TReaderGone&) {
        return esDone;
    } catch (const std::exception& error) {
        Complain(error.what());
        return esRefused;
    }
}
