// Whole files as bytes, for tests that read or write files of their own.
#pragma once

#include <fstream>
#include <iterator>
#include <string>

// The bytes of a file; empty when it cannot be read.
inline std::string ReadFileBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// Replaces the file with the bytes; false when it cannot be written.
inline bool WriteFileBytes(const std::string& path, const std::string& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << bytes;
    return static_cast<bool>(out);
}
