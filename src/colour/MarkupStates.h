// Start states of a markup line. The low 16 bits say where in the markup the
// line starts; the high 16 bits hold the state of the embedded language there
// (LS_PLAIN, LS_QUOTE, LS_DOUBLE or LS_COMMENT), 0 when none is open.
#pragma once

#include <cstdint>

constexpr std::uint32_t MS_TEXT = 1;                 // between tags
constexpr std::uint32_t MS_TAG = 2;                  // in a tag
constexpr std::uint32_t MS_DECLARATION = 3;          // in a "<!" declaration
constexpr std::uint32_t MS_SCRIPT_TAG = 4;           // in a SCRIPT tag, Java-like body ahead
constexpr std::uint32_t MS_VBSCRIPT_TAG = 5;         // in a SCRIPT tag, VB-like body ahead
constexpr std::uint32_t MS_DOUBLE_VALUE = 6;         // + 0..3: a " value of states 2..5
constexpr std::uint32_t MS_SINGLE_VALUE = 10;        // + 0..3: a ' value of states 2..5
constexpr std::uint32_t MS_DECL_COMMENT = 14;        // a "--" comment in a declaration
constexpr std::uint32_t MS_SCRIPT = 15;              // a SCRIPT body, Java-like
constexpr std::uint32_t MS_VBSCRIPT = 16;            // a SCRIPT body, VB-like
constexpr std::uint32_t MS_SERVER = 17;              // a "<%" section
constexpr std::uint32_t MS_SERVER_IN_SCRIPT = 18;    // a "<%" section inside state 15
constexpr std::uint32_t MS_SERVER_IN_VBSCRIPT = 19;  // a "<%" section inside state 16
constexpr std::uint32_t MS_DIRECTIVE = 20;           // a "<%@" directive
constexpr std::uint32_t MS_PROCESSING = 21;          // a "<?" section
constexpr std::uint32_t MS_SERVER_COMMENT = 22;      // a "<%--" comment

constexpr std::uint32_t MarkupPart(std::uint32_t nState) {
    return nState & 0xFFFF;
}
constexpr std::uint32_t EmbeddedPart(std::uint32_t nState) {
    return nState >> 16;
}
constexpr std::uint32_t MarkupState(std::uint32_t nMarkup, std::uint32_t nEmbedded) {
    return nMarkup | (nEmbedded << 16);
}
