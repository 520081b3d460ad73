// The settings both extended editors take from the host's settings store:
// the GetDef... family, each a fresh read of one key under m_strSection,
// and the loading of them all into the editor and its zone. The control
// and the view both derive from it, so a host that overrides a GetDef...
// in either gets the same effect.
#pragma once

#include <memory>

#include "TextzoneExport.h"
#include "host/VeskString.h"
#include "platform/Font.h"
#include "platform/Types.h"

class CTextZoneParam;
class CWnd;

class TEXTZONE_EXPORT CEditorDefaults {
public:
    // The option page shows and writes the same keys with the same defaults.
    static constexpr int kSyntaxColorCount = 9;
    static const char* const kSyntaxColorKeys[kSyntaxColorCount];
    static const char* const kSyntaxColorDefaults[kSyntaxColorCount];

    virtual ~CEditorDefaults();

    // One font description for the whole library, valid until the next call
    // of any editor.
    virtual LOGFONTA* GetDefFont();
    virtual int GetDefTabSize();
    virtual int GetDefTabConvert();
    virtual int GetDefWordCompletion();
    virtual int GetDefKeywordMode();
    virtual int GetDefDragDropFlag();
    virtual int GetDefMarginMode();
    virtual int GetDefBlockMode();
    virtual COLORREF GetDefMarginColor();
    virtual COLORREF GetDefBookmarkColor();
    virtual COLORREF GetDefTextColor();
    virtual COLORREF GetDefBackgroundColor();
    virtual COLORREF GetDefSelectedTextColor();
    virtual COLORREF GetDefSelectedBkgColor();
    virtual int GetDefSyntaxColorEnable();
    virtual int GetDefSyntaxColorLang();
    virtual COLORREF GetDefSyntaxColor(int nIndex);
    virtual int GetDefShortcutsEnable();

    // Tells every open editor to read its settings again, as the preference
    // pages do after writing them; with a section name, that section from
    // now on.
    static void BroadcastSettingsChanged(const char* pszSection = nullptr);

    // "r,g,b" as the store holds a colour; parts that do not scan are 0.
    static COLORREF ParseColor(const char* pszText);

    VESK::String m_strSection = "Editor";
    std::unique_ptr<CFont> m_pDefFont;

protected:
    // What loading the settings needs of the window that owns them.
    virtual CTextZoneParam* GetSettingsZone() = 0;
    virtual CWnd* GetSettingsWindow() = 0;
    virtual void SetSettingsFont(CFont* pFont, int bRedraw) = 0;
    virtual void SetSettingsBackground(COLORREF cr) = 0;

    // The answer to "EditExLoadIniMessage": wParam, when not null, is the
    // address of a new section name. Returns 0.
    LRESULT LoadIniSetting(WPARAM wParam);
    // Makes the font from the settings and, if that worked, hands it and
    // every behaviour and colour setting to the zone; FALSE if no font.
    BOOL ApplyFontAndBehaviour();
    // Syntax colours, or none, by the settings.
    void ApplySyntaxColors();

    int ReadInt(const char* pszKey, int nDefault);
};
