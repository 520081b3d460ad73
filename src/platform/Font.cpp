#include "platform/Font.h"

#include <cstring>

BOOL CFont::CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight,
                       BYTE bItalic, BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet,
                       BYTE nOutPrecision, BYTE nClipPrecision, BYTE nQuality, BYTE nPitchAndFamily,
                       const char* pszFacename) {
    LOGFONTA lf;
    lf.lfHeight = nHeight;
    lf.lfWidth = nWidth;
    lf.lfEscapement = nEscapement;
    lf.lfOrientation = nOrientation;
    lf.lfWeight = nWeight;
    lf.lfItalic = bItalic;
    lf.lfUnderline = bUnderline;
    lf.lfStrikeOut = cStrikeOut;
    lf.lfCharSet = nCharSet;
    lf.lfOutPrecision = nOutPrecision;
    lf.lfClipPrecision = nClipPrecision;
    lf.lfQuality = nQuality;
    lf.lfPitchAndFamily = nPitchAndFamily;
    if (pszFacename) std::strncpy(lf.lfFaceName, pszFacename, LF_FACESIZE - 1);
    return CreateFontIndirect(&lf);
}

int CFont::GetLogFont(LOGFONTA* plf) const {
    return GetObjectA(m_hObject, static_cast<int>(sizeof(LOGFONTA)), plf);
}
