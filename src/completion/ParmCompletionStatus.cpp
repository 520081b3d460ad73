// Where the caret stands in the calls it is inside: the innermost call is
// read from its trigger to the caret, on the copy of its lines without
// comments and strings, to find the parameter the caret is in or that the
// call is over. A call that is over gives way to the one around it.
#include <algorithm>
#include <cctype>
#include <string>
#include <vector>

#include "colour/TextZoneColor.h"
#include "completion/CompletionTooltip.h"
#include "completion/OpenParmComp.h"
#include "completion/ParmCompSet.h"

namespace {

bool IsSign(const std::string& s) {
    return s == "~" || s == "-" || s == "+";
}

bool IsOut(const std::string& s) {
    std::string lower;
    for (char c : s)
        lower += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return lower == "out" || lower == "output";
}

// Whether a parameter of a call without parentheses, read so far as the
// tokens of list and the token being read, can still be of the form
// [@name =] [+|-|~] value [out|output].
bool ShapeFits(const std::vector<std::string>& list, bool bToken, int nParm) {
    switch (list.size()) {
        case 0:
            return true;
        case 1:
            if (list[0] == "=") return false;
            return !(nParm == 0 && (list[0] == ";" || list[0] == "."));
        case 2:
            if (IsSign(list[0]) || list[1] == "=") return true;
            return !bToken && IsOut(list[1]);
        case 3:
            if (IsSign(list[0])) return !bToken && IsOut(list[2]);
            return list[1] == "=";
        case 4:
            if (IsSign(list[0]) || list[1] != "=") return false;
            if (IsSign(list[2])) return true;
            return !bToken && IsOut(list[3]);
        case 5:
            return !bToken;
        default:
            return false;
    }
}

}  // namespace

void CTextZoneColor::UpdateParmTooltipStatus() {
    // Both last over every round: a call that ends inside brackets leaves
    // them open for the call around it.
    std::vector<char> stack;
    while (!m_openParmComps.empty()) {
        COpenParmComp* R = m_openParmComps.back();
        const int nLineP = GetSelMobileLine();
        const int nCharP = GetSelMobileChar();
        const bool K = R->nKind == 0;

        // A caret before the column behind the trigger has deleted the
        // trigger or left the call to the left: either way it is over.
        bool bOver = nLineP < R->nLine || (nLineP == R->nLine && nCharP < R->nChar);
        int nParm = 0;
        std::string token;
        std::vector<std::string> list;
        auto flush = [&]() {
            if (!token.empty()) list.push_back(token);
            token.clear();
        };
        CStringEx line;
        for (int nLine = R->nLine; !bOver && nLine <= nLineP; ++nLine) {
            GetCommentAndStringFreeLine(&line, nLine, 1);
            CStringEx* pLine = GetLine(nLine);
            const int visible = pLine ? pLine->GetLength() - pLine->IsEnded() : 0;
            if (visible <= 0) continue;
            if (K && nLine != R->nLine && stack.empty()) flush();
            const int from = nLine == R->nLine ? R->nChar : 0;
            const int to = nLine == nLineP ? std::min(nCharP, visible) : visible;
            const char* t = line.c_str();
            for (int i = std::max(from, 0); !bOver && i < to; ++i) {
                const char b = t[i];
                const char top = stack.empty() ? 0 : stack.back();
                const bool depth0 = stack.empty();
                auto ordinary = [&](char c) {
                    if (K) token += c;
                };
                if (top == '"' || top == '[') {
                    // Inside a quoted or bracketed name only its closer counts.
                    const char closer = top == '"' ? '"' : ']';
                    if (b == closer && i + 1 < to && t[i + 1] == closer) {
                        ordinary(b);
                        ordinary(b);
                        ++i;
                    } else {
                        if (b == closer) stack.pop_back();
                        ordinary(b);
                    }
                } else {
                    switch (b) {
                        case ' ':
                        case '\t':
                        case 10:
                            if (K && depth0) flush();
                            break;
                        case '"':
                        case '[':
                            if (depth0 || top == '(') stack.push_back(b);
                            ordinary(b);
                            break;
                        case '(':
                        case ')':
                            if (K) {
                                if (depth0)
                                    bOver = true;
                                else
                                    ordinary(b);
                            } else if (b == '(') {
                                if (depth0 || top == '(') stack.push_back(b);
                            } else if (depth0) {
                                bOver = true;
                            } else if (top == '(') {
                                stack.pop_back();
                            }
                            break;
                        case ',':
                            if (depth0) {
                                ++nParm;
                                if (R->pSet && nParm > R->pSet->nParmCount) bOver = true;
                                token.clear();
                                list.clear();
                            } else {
                                ordinary(b);
                            }
                            break;
                        case '.':
                        case ';':
                        case '=':
                            if (K && depth0) {
                                flush();
                                list.emplace_back(1, b);
                            } else {
                                ordinary(b);
                            }
                            break;
                        default:
                            ordinary(b);
                            break;
                    }
                }
                if (!bOver && K && !ShapeFits(list, !token.empty(), nParm)) bOver = true;
            }
        }

        if (!bOver) {
            if (!R->pSet) return;  // the answer is awaited
            if (!m_pParmTooltip) OpenParmTooltip(R);
            if (m_pParmTooltip) m_pParmTooltip->SetActiveParm(nParm);
            return;
        }
        m_openParmComps.pop_back();
        delete R;
        CloseParmTooltip(0);
    }
}
