#include "host/VeskFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace fs = std::filesystem;

namespace {

// A private directory per test, removed afterwards.
class VeskFileTest : public ::testing::Test {
protected:
    void SetUp() override {
        const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
        m_dir =
            fs::temp_directory_path() / (std::string("textzone_file_") + info->name() + "_" +
                                         std::to_string(reinterpret_cast<std::uintptr_t>(this)));
        fs::remove_all(m_dir);
        fs::create_directories(m_dir);
    }
    void TearDown() override { fs::remove_all(m_dir); }

    std::string Path(const char* name) const { return (m_dir / name).string(); }

    static HANDLE Open(const std::string& path, DWORD access, DWORD creation) {
        return VESK_CreateFile(path.c_str(), access, 0, nullptr, creation, FILE_ATTRIBUTE_NORMAL,
                               nullptr);
    }

    static std::string Contents(const std::string& path) {
        std::string s = "<unread>";
        EXPECT_TRUE(ReadWholeFile(path, s));
        return s;
    }

    fs::path m_dir;
};

// Line ends of every kind, bytes above 127 and a 0 byte.
const char kRaw[] = "key\tSELECT \xC9t\xE9\r\nx\ty\rz\n\0\xFF\x80";
const std::string kBytes(kRaw, sizeof kRaw - 1);

}  // namespace

TEST_F(VeskFileTest, WrittenBytesReadBackOneAtATimeUntilAZeroByteRead) {
    const std::string path = Path("ed_short.txt");
    HANDLE h = VESK_CreateFile(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                               FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(h, INVALID_HANDLE_VALUE);
    ASSERT_NE(h, nullptr);
    DWORD written = 0;
    EXPECT_TRUE(WriteFile(h, kBytes.data(), 20, &written, nullptr));
    EXPECT_EQ(written, 20u);
    const auto rest = static_cast<DWORD>(kBytes.size() - 20);
    EXPECT_TRUE(WriteFile(h, kBytes.data() + 20, rest, &written, nullptr));
    EXPECT_EQ(written, rest);
    // Visible to other readers before the handle is closed.
    EXPECT_EQ(Contents(path), kBytes);
    // A write-only handle cannot read.
    char c = 0;
    DWORD read = 99;
    EXPECT_FALSE(ReadFile(h, &c, 1, &read, nullptr));
    EXPECT_EQ(read, 0u);
    EXPECT_TRUE(CloseHandle(h));

    h = VESK_CreateFile(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0,
                        nullptr);
    ASSERT_NE(h, INVALID_HANDLE_VALUE);
    std::string got;
    int reads = 0;
    for (;;) {
        read = 99;
        ASSERT_TRUE(ReadFile(h, &c, 1, &read, nullptr));
        if (read == 0) break;
        ASSERT_EQ(read, 1u);
        got += c;
        ASSERT_LT(++reads, 100);
    }
    EXPECT_EQ(got, kBytes);
    // Reading past the end keeps succeeding with nothing read.
    EXPECT_TRUE(ReadFile(h, &c, 1, &read, nullptr));
    EXPECT_EQ(read, 0u);
    // A read-only handle cannot write.
    EXPECT_FALSE(WriteFile(h, "x", 1, &written, nullptr));
    EXPECT_TRUE(CloseHandle(h));

    // Closed and invalid handles are refused.
    EXPECT_FALSE(ReadFile(h, &c, 1, &read, nullptr));
    EXPECT_FALSE(CloseHandle(h));
    EXPECT_FALSE(CloseHandle(INVALID_HANDLE_VALUE));
}

TEST_F(VeskFileTest, CreationDispositionsKeepTheirMeanings) {
    const std::string path = Path("f.txt");
    const std::string missing = Path("missing.txt");

    // Missing files: only the creating dispositions succeed.
    EXPECT_EQ(Open(missing, GENERIC_READ, OPEN_EXISTING), INVALID_HANDLE_VALUE);
    EXPECT_EQ(Open(missing, GENERIC_WRITE, TRUNCATE_EXISTING), INVALID_HANDLE_VALUE);
    EXPECT_FALSE(fs::exists(missing));
    // Directories and unknown dispositions are refused.
    EXPECT_EQ(Open(m_dir.string(), GENERIC_READ, OPEN_EXISTING), INVALID_HANDLE_VALUE);
    EXPECT_EQ(Open(path, GENERIC_WRITE, 0), INVALID_HANDLE_VALUE);
    EXPECT_EQ(Open(path, GENERIC_WRITE, 6), INVALID_HANDLE_VALUE);

    HANDLE h = Open(path, GENERIC_WRITE, CREATE_NEW);
    ASSERT_NE(h, INVALID_HANDLE_VALUE);
    EXPECT_TRUE(WriteFile(h, "0123456789", 10, nullptr, nullptr));
    EXPECT_TRUE(CloseHandle(h));
    EXPECT_EQ(Open(path, GENERIC_WRITE, CREATE_NEW), INVALID_HANDLE_VALUE);
    EXPECT_EQ(Contents(path), "0123456789");

    // OPEN_EXISTING for writing overwrites in place without truncating.
    h = Open(path, GENERIC_WRITE, OPEN_EXISTING);
    ASSERT_NE(h, INVALID_HANDLE_VALUE);
    EXPECT_TRUE(WriteFile(h, "ab", 2, nullptr, nullptr));
    EXPECT_TRUE(CloseHandle(h));
    EXPECT_EQ(Contents(path), "ab23456789");

    // OPEN_ALWAYS keeps an existing file and creates a missing one.
    h = Open(path, GENERIC_READ | GENERIC_WRITE, OPEN_ALWAYS);
    ASSERT_NE(h, INVALID_HANDLE_VALUE);
    char buf[4] = {};
    DWORD read = 0;
    EXPECT_TRUE(ReadFile(h, buf, 3, &read, nullptr));
    EXPECT_EQ(std::string(buf, read), "ab2");
    // Writing after reading continues at the current position.
    EXPECT_TRUE(WriteFile(h, "XY", 2, nullptr, nullptr));
    EXPECT_TRUE(ReadFile(h, buf, 2, &read, nullptr));
    EXPECT_EQ(std::string(buf, read), "56");
    EXPECT_TRUE(CloseHandle(h));
    EXPECT_EQ(Contents(path), "ab2XY56789");
    const std::string fresh = Path("fresh.txt");
    h = Open(fresh, GENERIC_READ, OPEN_ALWAYS);
    ASSERT_NE(h, INVALID_HANDLE_VALUE);
    EXPECT_TRUE(CloseHandle(h));
    EXPECT_EQ(Contents(fresh), "");

    // CREATE_ALWAYS truncates.
    h = Open(path, GENERIC_WRITE, CREATE_ALWAYS);
    ASSERT_NE(h, INVALID_HANDLE_VALUE);
    EXPECT_TRUE(WriteFile(h, "new", 3, nullptr, nullptr));
    EXPECT_TRUE(CloseHandle(h));
    EXPECT_EQ(Contents(path), "new");

    // TRUNCATE_EXISTING needs write access, then empties the file.
    EXPECT_EQ(Open(path, GENERIC_READ, TRUNCATE_EXISTING), INVALID_HANDLE_VALUE);
    EXPECT_EQ(Contents(path), "new");
    h = Open(path, GENERIC_WRITE, TRUNCATE_EXISTING);
    ASSERT_NE(h, INVALID_HANDLE_VALUE);
    EXPECT_TRUE(CloseHandle(h));
    EXPECT_EQ(Contents(path), "");
}

TEST_F(VeskFileTest, WholeFileHelpersKeepBytesAsTheyAre) {
    const std::string path = Path("doc.sql");
    ASSERT_TRUE(WriteWholeFile(path, kBytes));
    std::string got;
    ASSERT_TRUE(ReadWholeFile(path, got));
    EXPECT_EQ(got, kBytes);

    // Rewriting a shorter text leaves nothing of the old one.
    ASSERT_TRUE(WriteWholeFile(path, "a\r\n"));
    ASSERT_TRUE(ReadWholeFile(path, got));
    EXPECT_EQ(got, "a\r\n");

    // Larger than one read chunk.
    std::string big(200000, '\0');
    for (std::size_t i = 0; i < big.size(); ++i)
        big[i] = static_cast<char>(i * 7);
    ASSERT_TRUE(WriteWholeFile(path, big));
    ASSERT_TRUE(ReadWholeFile(path, got));
    EXPECT_EQ(got, big);

    // Failures leave the output alone.
    got = "kept";
    EXPECT_FALSE(ReadWholeFile(Path("missing"), got));
    EXPECT_FALSE(ReadWholeFile(m_dir.string(), got));
    EXPECT_EQ(got, "kept");
    EXPECT_FALSE(WriteWholeFile(Path("no/such/dir/file"), "x"));
    EXPECT_FALSE(WriteWholeFile(m_dir.string(), "x"));
}
