// File access in the desktop platform's terms, over the C library's streams.
// The access flags, share modes and creation dispositions come from
// platform/Messages.h and keep their desktop meanings:
//   CREATE_NEW         create; fail if the file exists
//   CREATE_ALWAYS      create, or truncate an existing file
//   OPEN_EXISTING      open; fail if the file is missing
//   OPEN_ALWAYS        open, or create a missing file
//   TRUNCATE_EXISTING  open and truncate; fail if missing or without GENERIC_WRITE
// POSIX has no share modes: the share argument is accepted and not enforced.
#pragma once

#include <cstdint>
#include <string>

#include "TextzoneExport.h"
#include "platform/Messages.h"
#include "platform/Types.h"

inline const HANDLE INVALID_HANDLE_VALUE = reinterpret_cast<HANDLE>(static_cast<std::intptr_t>(-1));

// Returns INVALID_HANDLE_VALUE on failure, never null. security, flags and
// hTemplate are ignored; directories cannot be opened.
TEXTZONE_EXPORT HANDLE VESK_CreateFile(const char* path, DWORD access, DWORD share, void* security,
                                       DWORD creation, DWORD flags, HANDLE hTemplate);
// Reading at the end of the file succeeds with 0 bytes read. FALSE on a read
// error, a handle without GENERIC_READ, or a handle that is not open.
// Overlapped I/O is not supported: a non-null overlapped fails.
TEXTZONE_EXPORT BOOL ReadFile(HANDLE hFile, void* buffer, DWORD toRead, DWORD* read,
                              void* overlapped);
// FALSE unless every byte was written. Written data is handed to the system
// before returning, so other readers of the file see it at once.
TEXTZONE_EXPORT BOOL WriteFile(HANDLE hFile, const void* buffer, DWORD toWrite, DWORD* written,
                               void* overlapped);
// FALSE for a handle that is not open (closing twice is harmless).
TEXTZONE_EXPORT BOOL CloseHandle(HANDLE hObject);

// Whole 8-bit files, bytes as they are (no line-end translation).
// On failure out is left unchanged.
TEXTZONE_EXPORT bool ReadWholeFile(const std::string& path, std::string& out);
// Creates or truncates the file; false if any byte could not be written.
TEXTZONE_EXPORT bool WriteWholeFile(const std::string& path, const std::string& bytes);
