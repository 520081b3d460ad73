#include "textzone/LinePool.h"

#include <algorithm>
#include <functional>

namespace {

// Blocks grow by doubling up to this many objects (a few megabytes), so a
// small zone stays small and a large text needs few blocks.
constexpr std::size_t kMaxBlockCount = std::size_t{1} << 16;

}  // namespace

void* CLinePool::AllocateLine(std::size_t nSize) {
    if (m_nLineSize == 0) m_nLineSize = std::max(nSize, sizeof(void*));
    if (nSize != m_nLineSize) return nullptr;
    if (m_pFree) {
        void* p = m_pFree;
        m_pFree = *static_cast<void**>(p);
        return p;
    }
    if (static_cast<std::size_t>(m_pEnd - m_pNext) < m_nLineSize) NewBlock();
    void* p = m_pNext;
    m_pNext += m_nLineSize;
    return p;
}

void CLinePool::NewBlock() {
    std::size_t count = std::max(m_nNextCount, m_nExpectedLines);
    m_nExpectedLines = 0;
    m_nNextCount = std::min(m_nNextCount * 2, kMaxBlockCount);
    Block block;
    block.nBytes = count * m_nLineSize;
    // Objects are constructed in it before use: no zero-filling.
    block.memory = std::make_unique_for_overwrite<std::byte[]>(block.nBytes);
    m_pNext = block.memory.get();
    m_pEnd = m_pNext + block.nBytes;
    auto at = std::upper_bound(m_blocks.begin(), m_blocks.end(), m_pNext,
                               [](const std::byte* p, const Block& b) {
                                   return std::less<const std::byte*>()(p, b.memory.get());
                               });
    m_blocks.insert(at, std::move(block));
}

bool CLinePool::OwnsLine(const void* p) const {
    const auto* at = static_cast<const std::byte*>(p);
    std::less<const std::byte*> before;
    auto it = std::upper_bound(
        m_blocks.begin(), m_blocks.end(), at,
        [&](const std::byte* q, const Block& b) { return before(q, b.memory.get()); });
    if (it == m_blocks.begin()) return false;
    --it;
    return before(at, it->memory.get() + it->nBytes);
}

void CLinePool::FreeLine(void* p) {
    *static_cast<void**>(p) = m_pFree;
    m_pFree = p;
}

char* CLinePool::AllocateText(std::size_t nBytes) {
    if (!m_text) m_text.emplace();
    return static_cast<char*>(m_text->allocate(nBytes, 1));
}

void CLinePool::ExpectText(std::size_t nBytes) {
    // Only an unused resource may be replaced: bytes already handed out stay.
    if (!m_text && nBytes > 0) m_text.emplace(nBytes);
}

void CLinePool::Reset() {
    m_blocks.clear();
    m_pNext = m_pEnd = nullptr;
    m_pFree = nullptr;
    m_nLineSize = 0;
    m_nNextCount = 64;
    m_nExpectedLines = 0;
    m_text.reset();
}
