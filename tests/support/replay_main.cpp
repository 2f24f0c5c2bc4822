// Runs a fuzz target over the files of its corpus, so that inputs that once broke it stay mended.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

void Run(const std::string& text) {
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
}

std::vector<std::filesystem::path> Files(const char* folder) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
        if (entry.is_regular_file()) files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

} // namespace

int main(int argc, char** argv) {
    std::size_t count = 0;
    for (int i = 1; i < argc; ++i) {
        for (const auto& path : Files(argv[i])) {
            // Named before it runs: what stops the program is the last one named.
            std::printf("%s\n", path.c_str());
            std::fflush(stdout);
            std::ifstream stream(path, std::ios::binary);
            const std::string text(std::istreambuf_iterator<char>(stream), {});
            Run(text);
            Run(text.substr(0, text.size() / 2));
            ++count;
        }
    }
    std::printf("%zu files replayed\n", count);
    return count > 0 ? 0 : 1;
}
