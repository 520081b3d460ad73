#include "host/VeskFile.h"

#include <cstdio>
#include <filesystem>
#include <memory>
#include <mutex>
#include <unordered_set>

namespace {

struct FileObject {
    std::FILE* fp = nullptr;
    bool bRead = false;
    bool bWrite = false;
    // An update stream needs a seek between reading and writing.
    enum class LastOp { None, Read, Write } lastOp = LastOp::None;
};

// Open handles, so that a stale or foreign handle fails instead of crashing.
std::mutex g_mutex;
std::unordered_set<FileObject*> g_openFiles;

FileObject* Lookup(HANDLE h) {
    auto* p = static_cast<FileObject*>(h);
    return g_openFiles.count(p) ? p : nullptr;
}

std::FILE* OpenStream(const char* path, DWORD creation, bool bWrite) {
    // Existing files are opened for update only when writing, so a read-only
    // file can still be read.
    const char* existing = bWrite ? "r+b" : "rb";
    switch (creation) {
        case CREATE_NEW:
            return std::fopen(path, "w+bx");
        case CREATE_ALWAYS:
            return std::fopen(path, "w+b");
        case OPEN_EXISTING:
            return std::fopen(path, existing);
        case OPEN_ALWAYS: {
            if (std::FILE* fp = std::fopen(path, existing)) return fp;
            if (std::FILE* fp = std::fopen(path, "w+bx")) return fp;
            return std::fopen(path, existing);  // someone else created it meanwhile
        }
        case TRUNCATE_EXISTING: {
            if (!bWrite) return nullptr;
            std::FILE* fp = std::fopen(path, "r+b");
            return fp ? std::freopen(path, "w+b", fp) : nullptr;
        }
        default:
            return nullptr;
    }
}

}  // namespace

HANDLE VESK_CreateFile(const char* path, DWORD access, DWORD /*share*/, void* /*security*/,
                       DWORD creation, DWORD /*flags*/, HANDLE /*hTemplate*/) {
    if (!path || !*path) return INVALID_HANDLE_VALUE;
    std::error_code ec;
    if (std::filesystem::is_directory(path, ec)) return INVALID_HANDLE_VALUE;

    auto file = std::make_unique<FileObject>();
    file->bRead = (access & GENERIC_READ) != 0;
    file->bWrite = (access & GENERIC_WRITE) != 0;
    file->fp = OpenStream(path, creation, file->bWrite);
    if (!file->fp) return INVALID_HANDLE_VALUE;

    std::lock_guard lock(g_mutex);
    g_openFiles.insert(file.get());
    return file.release();
}

BOOL ReadFile(HANDLE hFile, void* buffer, DWORD toRead, DWORD* read, void* overlapped) {
    if (read) *read = 0;
    std::lock_guard lock(g_mutex);
    FileObject* file = Lookup(hFile);
    if (!file || !file->bRead || overlapped || (!buffer && toRead)) return FALSE;
    if (file->lastOp == FileObject::LastOp::Write && std::fseek(file->fp, 0, SEEK_CUR) != 0)
        return FALSE;
    file->lastOp = FileObject::LastOp::Read;
    std::size_t n = toRead ? std::fread(buffer, 1, toRead, file->fp) : 0;
    if (read) *read = static_cast<DWORD>(n);
    if (std::ferror(file->fp)) {
        std::clearerr(file->fp);
        return FALSE;
    }
    return TRUE;
}

BOOL WriteFile(HANDLE hFile, const void* buffer, DWORD toWrite, DWORD* written, void* overlapped) {
    if (written) *written = 0;
    std::lock_guard lock(g_mutex);
    FileObject* file = Lookup(hFile);
    if (!file || !file->bWrite || overlapped || (!buffer && toWrite)) return FALSE;
    if (file->lastOp == FileObject::LastOp::Read && std::fseek(file->fp, 0, SEEK_CUR) != 0)
        return FALSE;
    file->lastOp = FileObject::LastOp::Write;
    std::size_t n = toWrite ? std::fwrite(buffer, 1, toWrite, file->fp) : 0;
    // Flushing here reports a full disk at this write, not at close.
    bool bOk = n == toWrite && std::fflush(file->fp) == 0;
    if (written) *written = static_cast<DWORD>(n);
    if (!bOk) std::clearerr(file->fp);
    return bOk ? TRUE : FALSE;
}

BOOL CloseHandle(HANDLE hObject) {
    std::unique_ptr<FileObject> file;
    {
        std::lock_guard lock(g_mutex);
        file.reset(Lookup(hObject));
        if (!file) return FALSE;
        g_openFiles.erase(file.get());
    }
    return std::fclose(file->fp) == 0 ? TRUE : FALSE;
}

bool ReadWholeFile(const std::string& path, std::string& out) {
    std::error_code ec;
    if (std::filesystem::is_directory(path, ec)) return false;
    std::FILE* fp = std::fopen(path.c_str(), "rb");
    if (!fp) return false;
    std::string bytes;
    char chunk[65536];
    std::size_t n;
    while ((n = std::fread(chunk, 1, sizeof chunk, fp)) > 0)
        bytes.append(chunk, n);
    bool bOk = !std::ferror(fp);
    std::fclose(fp);
    if (bOk) out = std::move(bytes);
    return bOk;
}

bool WriteWholeFile(const std::string& path, const std::string& bytes) {
    std::FILE* fp = std::fopen(path.c_str(), "wb");
    if (!fp) return false;
    bool bOk = std::fwrite(bytes.data(), 1, bytes.size(), fp) == bytes.size();
    // A failed close can lose buffered data, so it counts as a failed write.
    if (std::fclose(fp) != 0) bOk = false;
    return bOk;
}
