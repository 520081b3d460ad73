// The memory of one zone's lines. Line objects of one size come from large
// blocks and freed ones are kept for the next line; the bytes of a loaded
// text are handed out in order and only go back all at once. Everything is
// released by Reset, when the zone holds no line any more, so a text of
// millions of lines is made with no allocation per line and freed as a few
// blocks instead of millions of small ones (which the allocator would
// otherwise merge inside the next large allocation, the next load).
//
// One pool per zone and no locks: a zone and its lines live on one thread.
#pragma once

#include <cstddef>
#include <memory>
#include <memory_resource>
#include <optional>
#include <vector>

#include "TextzoneExport.h"

// Exported: a host's zone makes its lines here too, through NewLine.
class TEXTZONE_EXPORT CLinePool {
public:
    CLinePool() = default;
    CLinePool(const CLinePool&) = delete;
    CLinePool& operator=(const CLinePool&) = delete;

    // Memory for a line object of nSize bytes. The first call fixes the
    // size the pool serves; another size gets null (the caller uses the heap).
    void* AllocateLine(std::size_t nSize);
    // Whether p came from AllocateLine.
    bool OwnsLine(const void* p) const;
    // Takes back the memory of a line object already destroyed.
    void FreeLine(void* p);
    // nBytes bytes for a line's text, valid until Reset.
    char* AllocateText(std::size_t nBytes);

    // Sizes the next blocks for a load of that many lines and bytes, so that
    // it takes one block of each.
    void ExpectLines(std::size_t nLines) { m_nExpectedLines = nLines; }
    void ExpectText(std::size_t nBytes);

    // Frees every block. No object from AllocateLine may be alive.
    void Reset();

    std::size_t GetLineSize() const { return m_nLineSize; }
    std::size_t GetBlockCount() const { return m_blocks.size(); }

private:
    struct Block {
        std::unique_ptr<std::byte[]> memory;
        std::size_t nBytes = 0;
    };
    void NewBlock();

    std::size_t m_nLineSize = 0;
    std::vector<Block> m_blocks;   // by address, for OwnsLine
    std::byte* m_pNext = nullptr;  // the unused part of the newest block
    std::byte* m_pEnd = nullptr;
    void* m_pFree = nullptr;  // freed objects, each holding the next one's address
    std::size_t m_nExpectedLines = 0;
    std::size_t m_nNextCount = 64;  // objects in the next block without a hint
    std::optional<std::pmr::monotonic_buffer_resource> m_text;
};
