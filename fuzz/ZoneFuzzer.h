// Drives an editor control and its zone with operations decoded from bytes,
// and checks after each one what must always hold. A broken rule prints what
// was wrong and aborts, so that both libFuzzer and the seeded driver see it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "ByteReader.h"
#include "platform/Font.h"

class CEditor;
class CTextZone;
class CHeadlessPlatform;

class CZoneFuzzer {
public:
    // Runs one input from a fresh control; returns the operations it ran.
    static long Run(const std::uint8_t* pData, std::size_t nSize);

    // With a trace each operation is printed before it runs and the text
    // after it; at level 2 every line of the store too.
    static void SetTrace(int nLevel) { s_nTrace = nLevel; }
    // A text as a report can show it: control bytes spelled out, cut short.
    static std::string Shown(const std::string& text);

private:
    CZoneFuzzer(CHeadlessPlatform& platform, CEditor& editor);

    void Step(CByteReader& in);
    void StepText(CByteReader& in, int nOp);
    void StepInput(CByteReader& in, int nOp);
    void StepSettings(CByteReader& in, int nOp);
    void StepBlocks(CByteReader& in, int nOp);

    // The checks (FuzzChecks.cpp).
    void CheckInvariants();
    void CheckStore();
    void CheckLengths();
    void CheckCheckValues();
    void CheckSelection();
    void CheckBlocks();
    void CheckHistory();
    [[noreturn]] void Fail(const std::string& what);

    std::string Text();
    int LineCount();
    void Trace(const char* pszFormat, ...);
    // Notes a change of the text that the history cannot reverse.
    void Rebase();

    CHeadlessPlatform& m_platform;
    CEditor& m_editor;
    CTextZone& m_zone;
    std::string m_strBase;     // the text the history goes back to
    bool m_bBaseValid = true;  // false once the history may have lost a step
    std::string m_strLastOp;
    std::vector<std::unique_ptr<CFont>> m_fonts;
    static int s_nTrace;
};
