// The caret: one for the thread, owned by the window that created it, made
// hidden and shown by ShowCaret; hides and shows nest. The state is kept
// here, portably; the owner's peer is told to draw it.
#pragma once

#include "TextzoneExport.h"
#include "platform/Types.h"

struct CaretInfo {
    CWnd* pOwner = nullptr;  // null: there is no caret
    int nWidth = 0;          // 0 asks for the system's width
    int nHeight = 0;
    POINT pt;
    int nHideCount = 0;
    bool IsVisible() const { return pOwner && nHideCount == 0; }
};

TEXTZONE_EXPORT const CaretInfo& GetCaretInfo();

TEXTZONE_EXPORT BOOL CreateCaret(HWND hWnd, void* hBitmap, int nWidth, int nHeight);
TEXTZONE_EXPORT BOOL DestroyCaret();
TEXTZONE_EXPORT BOOL ShowCaret(HWND hWnd);
TEXTZONE_EXPORT BOOL HideCaret(HWND hWnd);
TEXTZONE_EXPORT BOOL SetCaretPos(int x, int y);
// FALSE when there is no caret.
TEXTZONE_EXPORT BOOL GetCaretPos(POINT* ppt);
