#include "transcript.h"

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include <sys/wait.h>

namespace tern7::tests {

namespace fs = std::filesystem;

namespace {

std::string ReadAll(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

void AppendOutput(std::string& out, const std::string& text, const std::string& mark) {
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        out += "  " + mark;
        for (char c : line)
            out += c == '\r' ? std::string("\\r") : std::string(1, c);
        out += '\n';
    }
    if (!text.empty() && text.back() != '\n') out += "  (no line end)\n";
}

class TRunner {
public:
    explicit TRunner(fs::path where) : folder(std::move(where)) {}

    std::string Run(const std::string& command) {
        const fs::path script = folder / ".script", out = folder / ".out", err = folder / ".err";
        std::ofstream(script) << command;
        const int status = std::system(("cd '" + folder.string() + "' && sh .script </dev/null >'" +
                                        out.string() + "' 2>'" + err.string() + "'")
                                           .c_str());
        std::string result;
        AppendOutput(result, ReadAll(out), "");
        AppendOutput(result, ReadAll(err), "! ");
        if (!WIFEXITED(status)) throw std::runtime_error("killed: " + command);
        if (WEXITSTATUS(status) != 0) result += "  [" + std::to_string(WEXITSTATUS(status)) + "]\n";
        return result;
    }

private:
    fs::path folder;
};

} // namespace

std::string RunTranscript(const std::string& transcript, const fs::path& folder) {
    TRunner runner(folder);
    std::string result, command;
    const auto run = [&] {
        if (!command.empty()) result += runner.Run(command);
        command.clear();
    };
    std::istringstream lines(transcript);
    for (std::string line; std::getline(lines, line);) {
        const bool continues = !command.empty() && line.starts_with("  > ");
        if (continues) {
            command += line.substr(4) + "\n";
        } else {
            run();
            if (line.starts_with("  $ ")) command = line.substr(4) + "\n";
            if (line.starts_with("  ") && command.empty()) continue; // what was written before
        }
        result += line + "\n";
    }
    run();
    return result;
}

} // namespace tern7::tests
