#include "streams.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <tern7/core/corekit/errors.h>
#include <tern7/core/corekit/files.h>
#include <tern7/core/corekit/ini_text.h>
#include <tern7/core/corekit/strings.h>
#include <tern7/core/global/messages.h>

namespace tern7 {

namespace {

[[noreturn]] void RaisePrintError() {
    if (errno == EPIPE) throw TReaderGone();
    throw EKTernError(std::string("Can not write to the standard output: ") + std::strerror(errno));
}

std::string ReadStandardInput() {
    std::string bytes;
    char buffer[65536];
    while (const size_t count = std::fread(buffer, 1, sizeof buffer, stdin))
        bytes.append(buffer, count);
    if (std::ferror(stdin)) throw EKTernError("Can not read the standard input");
    return bytes;
}

} // namespace

void Print(std::string_view text) {
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size()) RaisePrintError();
}

void PrintLine(std::string_view line) {
    Print(line);
    Print("\n");
}

void FinishPrinting() {
    if (std::fflush(stdout) != 0) RaisePrintError();
}

void Complain(std::string_view message) {
    std::string line = "tern: " + std::string(TrimRight(message));
    std::erase(line, '\r');
    line += '\n';
    std::fwrite(line.data(), 1, line.size(), stderr);
}

std::string ReadBytes(const std::string& file) {
    return file == "-" ? ReadStandardInput() : ReadWholeFile(file);
}

std::string ReadText(const std::string& file) {
    TKDecodedText decoded = DecodeTextFile(ReadBytes(file));
    if (decoded.wasWindows1252) Complain(FileTitle(file) + ": " + std::string(messages::NoUTF8));
    return std::move(decoded.text);
}

std::string FileTitle(const std::string& file) {
    return file == "-" ? "standard input" : file;
}

} // namespace tern7
