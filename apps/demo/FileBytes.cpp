#include "apps/demo/FileBytes.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <random>
#include <system_error>

#if defined(__unix__)
#include <unistd.h>
#endif

namespace fs = std::filesystem;

namespace {

std::string Quoted(const fs::path& path) {
    return "\"" + path.string() + "\"";
}

bool Fail(std::string* pError, std::string message) {
    if (pError) *pError = std::move(message);
    return false;
}

// A name beside the file that nothing else uses: hidden, and with a random
// part, so that two saves never share it.
std::FILE* CreateSibling(const fs::path& target, fs::path* pTemp) {
    static std::mt19937_64 rng{std::random_device{}()};
    const fs::path folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
    for (int attempt = 0; attempt < 100; ++attempt) {
        char suffix[32];
        std::snprintf(suffix, sizeof suffix, ".%016llx.tmp",
                      static_cast<unsigned long long>(rng()));
        *pTemp = folder / ("." + target.filename().string() + suffix);
        // "x": never over a file that is already there.
        if (std::FILE* pFile = std::fopen(pTemp->c_str(), "wbx")) return pFile;
        if (errno != EEXIST) return nullptr;
    }
    return nullptr;
}

// The bytes written and on the disk, before the new file takes the old one's
// name: a crash in between must not leave an empty file under that name.
bool WriteAll(std::FILE* pFile, std::string_view bytes) {
    if (!bytes.empty() && std::fwrite(bytes.data(), 1, bytes.size(), pFile) != bytes.size())
        return false;
    if (std::fflush(pFile) != 0) return false;
#if defined(__unix__)
    if (::fsync(::fileno(pFile)) != 0) return false;
#endif
    return true;
}

}  // namespace

bool CFileBytes::Read(const std::string& path, std::string* pBytes, std::string* pError) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (!fs::exists(status)) return Fail(pError, "Cannot open " + Quoted(path) + ": there is no such file.");
    if (fs::is_directory(status))
        return Fail(pError, "Cannot open " + Quoted(path) + ": it is a folder, not a file.");
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return Fail(pError, "Cannot open " + Quoted(path) + ": " + std::strerror(errno) + ".");
    std::string bytes;
    if (fs::is_regular_file(status)) {
        const auto size = fs::file_size(path, error);
        if (!error) bytes.reserve(static_cast<size_t>(size));
    }
    // Read to the end rather than to the size: some files do not know theirs.
    char buffer[1 << 16];
    while (in.read(buffer, sizeof buffer) || in.gcount() > 0)
        bytes.append(buffer, static_cast<size_t>(in.gcount()));
    if (in.bad()) return Fail(pError, "Cannot read " + Quoted(path) + ": the read failed.");
    *pBytes = std::move(bytes);
    return true;
}

bool CFileBytes::Write(const std::string& path, std::string_view bytes, std::string* pError) {
    std::error_code error;
    fs::path target = path;
    if (target.empty()) return Fail(pError, "Cannot save: the file has no name.");
    if (fs::is_symlink(fs::symlink_status(target, error))) {
        const fs::path link = fs::read_symlink(target, error);
        if (!error) target = link.is_absolute() ? link : target.parent_path() / link;
    }
    const fs::file_status status = fs::status(target, error);
    if (fs::is_directory(status))
        return Fail(pError, "Cannot save " + Quoted(path) + ": it is a folder, not a file.");
    const fs::path folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
    if (!fs::is_directory(folder, error))
        return Fail(pError, "Cannot save " + Quoted(path) + ": the folder " + Quoted(folder) +
                                " does not exist.");

    fs::path temp;
    std::FILE* pFile = CreateSibling(target, &temp);
    if (!pFile)
        return Fail(pError, "Cannot save " + Quoted(path) + ": no new file can be made in the folder " +
                                Quoted(folder) + " (" + std::strerror(errno) + ").");
    const bool bWritten = WriteAll(pFile, bytes);
    const int nWriteErrno = errno;
    const bool bClosed = std::fclose(pFile) == 0;
    if (!bWritten || !bClosed) {
        fs::remove(temp, error);
        return Fail(pError, "Cannot save " + Quoted(path) + ": " +
                                std::strerror(bWritten ? errno : nWriteErrno) + ".");
    }
    if (fs::exists(status)) fs::permissions(temp, status.permissions(), error);
    fs::rename(temp, target, error);
    if (error) {
        const std::string reason = error.message();
        fs::remove(temp, error);
        return Fail(pError, "Cannot save " + Quoted(path) + ": " + reason + ".");
    }
    return true;
}
