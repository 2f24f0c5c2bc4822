#include <tern7/core/corekit/files.h>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <tern7/core/corekit/errors.h>
#include <tern7/core/corekit/messages.h>
#include <tern7/core/corekit/strings.h>

namespace tern7 {

namespace {

/// An open file, closed with its owner.
class TFile {
public:
    explicit TFile(int opened) : descriptor(opened) {}
    TFile(const TFile&) = delete;
    TFile& operator=(const TFile&) = delete;
    ~TFile() { Close(); }

    bool IsOpen() const { return descriptor >= 0; }
    int Get() const { return descriptor; }
    /// Some file systems tell of a failed write only here.
    bool Close() {
        const bool done = descriptor < 0 || ::close(descriptor) == 0;
        descriptor = -1;
        return done;
    }

private:
    int descriptor;
};

/// The system would read a name only up to a NUL and so mean another file.
bool IsFileName(const std::string& name) {
    return !name.empty() && name.find('\0') == std::string::npos;
}

bool ReadAll(int descriptor, std::string& bytes) {
    struct stat info;
    if (::fstat(descriptor, &info) != 0) return false;
    // One byte more than the size, so that the end is seen without growing the buffer.
    constexpr size_t piece = 1 << 16;
    bytes.resize(S_ISREG(info.st_mode) ? static_cast<size_t>(info.st_size) + 1 : piece);
    size_t count = 0;
    for (;;) {
        if (count == bytes.size()) bytes.resize(bytes.size() + bytes.size() / 2 + piece);
        const ssize_t got = ::read(descriptor, bytes.data() + count, bytes.size() - count);
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) return false;
        if (got == 0) break;
        count += static_cast<size_t>(got);
    }
    bytes.resize(count);
    return true;
}

bool WriteAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t put = ::write(descriptor, bytes.data(), bytes.size());
        if (put < 0 && errno == EINTR) continue;
        if (put <= 0) return false;
        bytes.remove_prefix(static_cast<size_t>(put));
    }
    return true;
}

std::string FolderOf(const std::string& name) {
    const size_t slash = name.rfind('/');
    return slash == std::string::npos ? std::string() : name.substr(0, slash + 1);
}

/// Follows symbolic links, also to a file that does not exist yet; empty when they run in a circle.
std::string LinkTarget(std::string name) {
    constexpr int maxLinks = 40;
    for (int i = 0; i < maxLinks; ++i) {
        struct stat info;
        if (::lstat(name.c_str(), &info) != 0 || !S_ISLNK(info.st_mode)) return name;
        std::string target(4096, '\0');
        const ssize_t length = ::readlink(name.c_str(), target.data(), target.size());
        if (length <= 0 || static_cast<size_t>(length) == target.size()) break;
        target.resize(static_cast<size_t>(length));
        if (target.front() != '/') target.insert(0, FolderOf(name));
        name = std::move(target);
    }
    return {};
}

/// The system's number of what has just failed.
int Failure() {
    return errno != 0 ? errno : EIO;
}

/// Opens a new file in the folder that nobody else has.
int OpenTemporary(const std::string& folder, mode_t mode, std::string& name) {
    constexpr int maxTries = 100;
    for (int i = 0; i < maxTries; ++i) {
        name = folder + ".tern7-" + std::to_string(::getpid()) + "-" + std::to_string(i);
        const int descriptor = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        if (descriptor >= 0 || errno != EEXIST) return descriptor;
    }
    return -1;
}

/// Owner where that is allowed, and permissions.
bool TakeOver(int descriptor, const struct stat& old) {
    struct stat info;
    if (::fstat(descriptor, &info) != 0) return false;
    if ((info.st_uid != old.st_uid || info.st_gid != old.st_gid) &&
        ::fchown(descriptor, old.st_uid, old.st_gid) != 0 && errno != EPERM)
        return false;
    return ::fchmod(descriptor, old.st_mode & 07777) == 0;
}

bool HasSize(int descriptor, size_t size) {
    struct stat info;
    return ::fstat(descriptor, &info) == 0 && static_cast<size_t>(info.st_size) == size;
}

void FlushFolder(const std::string& folder) {
    const TFile opened(
        ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    // The new file is in place by now; a folder that can not be flushed is no failure.
    if (opened.IsOpen()) ::fsync(opened.Get());
}

/// 0, or the system's number of what failed.
int Replace(const std::string& target, std::string_view bytes) {
    struct stat old;
    const bool exists = ::lstat(target.c_str(), &old) == 0;
    if (!exists && errno != ENOENT) return Failure();
    if (exists && !S_ISREG(old.st_mode)) return S_ISDIR(old.st_mode) ? EISDIR : EINVAL;
    // A file that may not be written is not replaced either, though its folder would allow it.
    if (exists && ::access(target.c_str(), W_OK) != 0) return Failure();

    const std::string folder = FolderOf(target);
    std::string temporary;
    TFile file(OpenTemporary(folder, exists ? old.st_mode & 0777 : 0666, temporary));
    if (!file.IsOpen()) return Failure();
    errno = 0;
    const bool written = WriteAll(file.Get(), bytes) && (!exists || TakeOver(file.Get(), old)) &&
                         HasSize(file.Get(), bytes.size()) && ::fsync(file.Get()) == 0 &&
                         file.Close() && std::rename(temporary.c_str(), target.c_str()) == 0;
    if (!written) {
        const int reason = Failure();
        ::unlink(temporary.c_str());
        return reason;
    }
    FlushFolder(folder);
    return 0;
}

} // namespace

std::string ReadWholeFile(const std::string& fileName) {
    std::string bytes;
    const TFile file(IsFileName(fileName) ? ::open(fileName.c_str(), O_RDONLY | O_CLOEXEC) : -1);
    if (!file.IsOpen() || !ReadAll(file.Get(), bytes))
        throw EKFileError(FormatMessage(messages::CanNotOpenFile, {fileName}),
                          IsFileName(fileName) ? Failure() : ENOENT);
    return bytes;
}

void WriteWholeFile(const std::string& fileName, std::string_view bytes) {
    int reason = ENOENT;
    if (IsFileName(fileName)) {
        const std::string target = LinkTarget(fileName);
        reason = target.empty() ? ELOOP : Replace(target, bytes);
    }
    if (reason != 0)
        throw EKFileError(FormatMessage(messages::CanNotWriteFile, {fileName}), reason);
}

} // namespace tern7
