#include "streams.h"

#include <algorithm>
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

constexpr std::string_view hidden = "***";

/// The passwords of the addresses in a line: between the first ":" behind "://" and the last "@"
/// before the next address.
void MaskAddresses(std::string& line) {
    for (size_t start = line.find("://"); start != std::string::npos;
         start = line.find("://", start + 3)) {
        const size_t at = line.rfind('@', line.find("://", start + 3));
        const size_t colon = line.find(':', start + 3);
        if (at == std::string::npos || at < start || colon > at) continue;
        line.replace(colon + 1, at - colon - 1, hidden);
    }
}

/// The same in a connection string: what stands behind the key, up to ";".
void MaskKey(std::string& line, std::string_view key) {
    const size_t start = LowerCase(line).find(key);
    if (start == std::string::npos) return;
    const size_t value = start + key.size();
    line.replace(value, std::min(line.find(';', value), line.size()) - value, hidden);
}

/// Whatever went wrong, an address that was given in the wrong place included.
std::string WithoutPasswords(std::string_view message) {
    TStrings lines = SplitLines(message);
    for (std::string& line : lines) {
        MaskAddresses(line);
        for (std::string_view key : {"pwd=", "password="})
            MaskKey(line, key);
    }
    return JoinStrings(lines, "\n");
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
    const std::string line = "tern: " + WithoutPasswords(TrimRight(message)) + "\n";
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
