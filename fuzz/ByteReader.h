// Reads the fuzz input as a stream of small choices. Once the bytes run out
// every read gives 0, so any input decodes to a finite run of operations.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

class CByteReader {
public:
    CByteReader(const std::uint8_t* pData, std::size_t nSize) : m_pData(pData), m_nSize(nSize) {}

    bool AtEnd() const { return m_nPos >= m_nSize; }
    std::uint8_t Byte() { return AtEnd() ? 0 : m_pData[m_nPos++]; }
    int Below(int n) { return n <= 0 ? 0 : Byte() % n; }
    bool Flag() { return (Byte() & 1) != 0; }
    int Word() { return Byte() | (Byte() << 8); }

    // A number that is usually small and in range, sometimes far out of it.
    int Position(int nNear) {
        switch (Below(8)) {
            case 0:
                return -1;
            case 1:
                return -2 - Word();
            case 2:
                return 0x7FFFFFFF;
            case 3:
                return static_cast<int>(0x80000000u + static_cast<unsigned>(Word()));
            case 4:
                return Word();
            default:
                return Below(nNear + 3);
        }
    }

    // Text made of the bytes an editor finds hardest: line ends in every
    // combination, blanks, hyphens, high bytes, and now and then a long run.
    std::string Text(int nMax) {
        static const char kAlphabet[] = {'a', 'b',    'Z',    ' ',    '\t', '\r', '\n',
                                         '-', '\xe9', '\xff', '\x80', '0',  '{',  '}'};
        std::string text;
        const int n = Below(nMax + 1);
        for (int i = 0; i < n; ++i) {
            const int choice = Below(20);
            if (choice < 14) {
                text += kAlphabet[choice];
            } else if (choice < 16) {
                text += "\r\n";
            } else if (choice < 17) {
                text += "\n\r";
            } else if (choice < 19) {
                text += static_cast<char>(Byte() | 1);  // any byte but 0
            } else if (Below(4) != 0) {
                text.append(static_cast<std::size_t>(Below(24)), Flag() ? 'x' : ' ');
            } else {
                // A long run: lines up to 70,000 bytes reach the line limits.
                static const int kRuns[] = {80, 300, 4096, 65499, 65500, 65537, 70000};
                text.append(static_cast<std::size_t>(kRuns[Below(7)]), Flag() ? 'x' : ' ');
            }
        }
        return text;
    }

private:
    const std::uint8_t* m_pData;
    std::size_t m_nSize;
    std::size_t m_nPos = 0;
};
