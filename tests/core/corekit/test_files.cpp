#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

#include <tern7/core/corekit/errors.h>
#include <tern7/core/corekit/files.h>

using namespace tern7;
namespace fs = std::filesystem;

namespace {

class Files : public testing::Test {
protected:
    fs::path folder;

    void SetUp() override {
        std::string name = (fs::temp_directory_path() / "tern7-files-XXXXXX").string();
        ASSERT_NE(::mkdtemp(name.data()), nullptr);
        folder = name;
    }
    void TearDown() override { fs::remove_all(folder); }

    std::string Path(const char* name) const { return (folder / name).string(); }
    size_t CountInFolder() const {
        return static_cast<size_t>(std::distance(fs::directory_iterator(folder), {}));
    }
};

} // namespace

TEST_F(Files, WritesAndReplaces) {
    const std::string big(300000, 'x');
    WriteWholeFile(Path("a"), "one");
    WriteWholeFile(Path("a"), big);
    EXPECT_EQ(ReadWholeFile(Path("a")), big);
    WriteWholeFile(Path("a"), "");
    EXPECT_EQ(ReadWholeFile(Path("a")), "");
    EXPECT_EQ(CountInFolder(), 1u) << "a temporary file was left over";
}

TEST_F(Files, KeepsPermissionsAndLinks) {
    WriteWholeFile(Path("a"), "one");
    ::chmod(Path("a").c_str(), 0640);
    fs::create_symlink("a", Path("link"));
    WriteWholeFile(Path("link"), "two");
    EXPECT_TRUE(fs::is_symlink(Path("link")));
    EXPECT_EQ(ReadWholeFile(Path("a")), "two");
    EXPECT_EQ(fs::status(Path("a")).permissions(), fs::perms(0640));

    fs::create_symlink("new", Path("dangling"));
    WriteWholeFile(Path("dangling"), "three");
    EXPECT_EQ(ReadWholeFile(Path("new")), "three");
}

TEST_F(Files, RefusesWhatIsNoRegularFile) {
    fs::create_symlink("circle", Path("circle"));
    ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0600), 0);
    for (const std::string& name : {folder.string(), Path("circle"), Path("pipe"), Path("none/a"),
                                    std::string(), Path("x") + std::string(1, '\0')}) {
        EXPECT_THROW(WriteWholeFile(name, "x"), EKTernError) << name;
    }
    EXPECT_TRUE(fs::is_fifo(Path("pipe")));
    EXPECT_THROW(ReadWholeFile(folder.string()), EKTernError);
    EXPECT_THAT([&] { ReadWholeFile("/none/file"); },
                testing::ThrowsMessage<EKTernError>("Can not open file /none/file"));
}

TEST_F(Files, AFailedWriteLeavesTheOldFileWhole) {
    WriteWholeFile(Path("a"), "one");
    rlimit old{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &old), 0);
    const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{4096, old.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    EXPECT_THROW(WriteWholeFile(Path("a"), std::string(10000, 'x')), EKTernError);
    ::setrlimit(RLIMIT_FSIZE, &old);
    std::signal(SIGXFSZ, oldHandler);
    EXPECT_EQ(ReadWholeFile(Path("a")), "one");
    EXPECT_EQ(CountInFolder(), 1u);
}
