// The extended control and the settings store: the key table with its
// defaults, reading afresh, loading at creation and on the broadcast, and
// InitEditor.
#include <string>

#include "EditorExFixture.h"
#include "platform/GdiObjects.h"
#include "platform/Platform.h"

namespace {

LOGFONTA FontOf(HFONT hFont) {
    LOGFONTA lf{};
    GetObjectA(hFont, static_cast<int>(sizeof lf), &lf);
    return lf;
}

}  // namespace

TEST_F(EditorExTest, EveryGetDefReadsItsKeyAfreshWithTheTableDefaults) {
    // An empty store: the defaults of the key table.
    CEditorEx& e = m_editor;
    const std::pair<long long, long long> defaults[] = {
        {e.GetDefTabSize(), 4},          {e.GetDefTabConvert(), 0},
        {e.GetDefWordCompletion(), 1},   {e.GetDefKeywordMode(), 0},
        {e.GetDefDragDropFlag(), 1},     {e.GetDefMarginMode(), 0},
        {e.GetDefBlockMode(), 0},        {e.GetDefMarginColor(), 0xD0D0D0},
        {e.GetDefBookmarkColor(), 0x800000}, {e.GetDefTextColor(), 0xFFFFFFFF},
        {e.GetDefBackgroundColor(), 0xFFFFFFFF}, {e.GetDefSelectedTextColor(), 0xFFFFFFFF},
        {e.GetDefSelectedBkgColor(), 0xFFFFFFFF}, {e.GetDefSyntaxColorEnable(), 1},
        {e.GetDefSyntaxColorLang(), 10}, {e.GetDefShortcutsEnable(), 1},
        {e.GetDefSyntaxColor(0), RGB(0, 127, 0)}, {e.GetDefSyntaxColor(4), RGB(127, 0, 0)},
        {e.GetDefSyntaxColor(7), RGB(255, 0, 255)}, {e.GetDefSyntaxColor(8), RGB(255, 0, 0)}};
    for (size_t i = 0; i < std::size(defaults); ++i)
        EXPECT_EQ(defaults[i].first, defaults[i].second) << "row " << i;
    LOGFONTA lf = *m_editor.GetDefFont();
    EXPECT_EQ(std::make_tuple(lf.lfHeight, lf.lfWeight, lf.lfItalic), std::make_tuple(-14, 400, 0));
    EXPECT_STREQ(lf.lfFaceName, "Courier New");

    // A change in the store shows at the next call, with no reload between.
    Set("TabSize", 7);
    Set("MarginBkgColor", 0x123456);
    Set("FontNorFrgColor", 0x0000FF);
    Set("UseSyntaxColor", 0);
    Set("KeyWord1", "1,2,3");
    Set("FontSize", 20);
    Set("FontBold", 1);
    Set("FontItalic", 1);
    Set("FontName", "Proportional");
    EXPECT_EQ(m_editor.GetDefTabSize(), 7);
    EXPECT_EQ(m_editor.GetDefMarginColor(), 0x123456u);
    EXPECT_EQ(m_editor.GetDefTextColor(), 0x0000FFu);
    EXPECT_EQ(m_editor.GetDefSyntaxColorEnable(), 0);
    EXPECT_EQ(m_editor.GetDefSyntaxColor(1), RGB(1, 2, 3));
    lf = *m_editor.GetDefFont();
    EXPECT_EQ(lf.lfHeight, -20);
    EXPECT_EQ(lf.lfWeight, 700);
    EXPECT_EQ(lf.lfItalic, 1);
    EXPECT_STREQ(lf.lfFaceName, "Proportional");
    Set("TabSize", 5);
    EXPECT_EQ(m_editor.GetDefTabSize(), 5);

    // Without a settings object integers read 0, not the default.
    m_store.SetSettingsAvailable(false);
    EXPECT_EQ(m_editor.GetDefTabSize(), 0);
    EXPECT_EQ(m_editor.GetDefWordCompletion(), 0);
    EXPECT_EQ(m_editor.GetDefMarginColor(), 0u);
    EXPECT_EQ(m_editor.GetDefSyntaxColor(0), 0u);
    EXPECT_EQ(m_editor.GetDefFont()->lfHeight, 0);
    EXPECT_STREQ(m_editor.GetDefFont()->lfFaceName, "");
}

TEST_F(EditorExTest, SyntaxColourTextsScanAsFarAsTheyGo) {
    Set("Comment", "12,34");
    Set("String", "7");
    Set("Variable", "red");
    Set("KeyWord6", "9,8, 7");
    EXPECT_EQ(m_editor.GetDefSyntaxColor(0), RGB(12, 34, 0));
    EXPECT_EQ(m_editor.GetDefSyntaxColor(7), RGB(7, 0, 0));
    EXPECT_EQ(m_editor.GetDefSyntaxColor(8), RGB(0, 0, 0));
    EXPECT_EQ(m_editor.GetDefSyntaxColor(6), RGB(9, 8, 7));
    // Outside the nine classes there is no key.
    EXPECT_EQ(m_editor.GetDefSyntaxColor(9), 0u);
    EXPECT_EQ(m_editor.GetDefSyntaxColor(-1), 0u);
}

TEST_F(EditorExTest, CreationLoadsTheSettingsAndTheFirstMessageKeepsThem) {
    Set("TabSize", -8);
    Set("FontSize", 20);
    Set("FontBold", 1);
    Set("FontNorBkgColor", static_cast<int>(RGB(1, 2, 3)));
    Set("MarginMode", 1);
    Set("KeywordMode", 1);
    Set("WordCompletion", 0);
    Set("ConvertTabs", 1);
    Set("BookmarkColor", static_cast<int>(RGB(9, 9, 9)));
    Set("Comment", "1,2,3");
    Set("EnableShortcuts", 0);
    CEditorEx editor;
    Create(editor, 32);
    CTextZoneParam& zone = *editor.GetTextZone();
    // Creation painted, so the control's own set-up has run too; its tab of
    // 4 and the parent's font did not replace the settings.
    EXPECT_TRUE(editor.m_bInitialized);
    EXPECT_EQ(zone.GetWindow(), &editor);
    EXPECT_EQ(zone.GetTabWidth(), -8);
    ASSERT_TRUE(editor.m_pDefFont);
    EXPECT_EQ(zone.GetFont(), editor.m_pDefFont->GetSafeHandle());
    const LOGFONTA lf = FontOf(zone.GetFont());
    EXPECT_EQ(lf.lfHeight, -20);
    EXPECT_EQ(lf.lfWeight, 700);
    COLORREF crText, crBack, crSelText, crSelBack;
    zone.GetColors(&crText, &crBack, &crSelText, &crSelBack);
    const std::pair<long long, long long> loaded[] = {
        {editor.m_crBackground, RGB(1, 2, 3)}, {crBack, RGB(1, 2, 3)},
        {zone.IsMarginMode(), 1},              {zone.GetKeywordMode(), 1},
        {zone.GetWordCompletion(), 0},         {zone.GetTabConvert(), 1},
        {zone.GetBookmarkColor(0), RGB(9, 9, 9)}, {zone.IsSyntaxColorEnabled(), 1},
        {zone.GetSyntaxColor(1), RGB(1, 2, 3)}, {zone.GetSyntaxColor(2), RGB(0, 0, 255)},
        {static_cast<long long>(zone.GetShortcuts().size()), 0}};
    for (size_t i = 0; i < std::size(loaded); ++i)
        EXPECT_EQ(loaded[i].first, loaded[i].second) << "row " << i;

    // A tab size stored negative or positive is the same width.
    Set("TabSize", 8);
    editor.SendMessage(CEditorEx::GetLoadIniMessage());
    EXPECT_EQ(zone.GetTabWidth(), -8);
    editor.DestroyWindow();
}

TEST_F(EditorExTest, AControlFirstSizedAfterCreationKeepsItsSettings) {
    // Made empty, as a layout does, so the set-up waits for the first paint.
    Set("TabSize", 6);
    Set("FontSize", 18);
    CEditorEx editor;
    ASSERT_TRUE(editor.Create(WS_VISIBLE | WS_CHILD, RECT{0, 0, 0, 0}, &m_parent, 36));
    EXPECT_FALSE(editor.m_bInitialized);
    editor.MoveWindow(0, 0, 300, 200);
    editor.UpdateWindow();
    EXPECT_TRUE(editor.m_bInitialized);
    EXPECT_EQ(editor.GetTextZone()->GetTabWidth(), -6);
    EXPECT_EQ(FontOf(editor.GetTextZone()->GetFont()).lfHeight, -18);
    editor.DestroyWindow();
}

TEST_F(EditorExTest, ACreationRefusedBelowLoadsNothingAndFails) {
    // A window procedure below the control that refuses the window.
    class CRefusedEditor : public CEditorEx {
    public:
        LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            return message == WM_CREATE ? -1 : CEditorEx::DefWindowProc(message, wParam, lParam);
        }
    };
    CRefusedEditor editor;
    EXPECT_FALSE(editor.Create(WS_VISIBLE | WS_CHILD, RECT{0, 0, 100, 100}, &m_parent, 37));
    EXPECT_EQ(editor.GetSafeHwnd(), nullptr);
    EXPECT_EQ(editor.m_pDefFont->GetSafeHandle(), nullptr);
}

TEST_F(EditorExTest, BackgroundAndColouringFollowTheBroadcast) {
    const UINT nLoad = CEditorEx::GetLoadIniMessage();
    Set("FontNorBkgColor", static_cast<int>(RGB(200, 100, 50)));
    EXPECT_EQ(m_editor.SendMessage(nLoad), 0);
    EXPECT_EQ(m_editor.m_crBackground, RGB(200, 100, 50));
    // -1 is the system's window colour, for the window as for the zone.
    Set("FontNorBkgColor", -1);
    m_editor.SendMessage(nLoad);
    EXPECT_EQ(m_editor.m_crBackground, GetSysColor(COLOR_WINDOW));
    // The window is repainted whole with the new settings.
    m_editor.UpdateWindow();
    Set("UseSyntaxColor", 0);
    m_editor.SendMessage(nLoad);
    EXPECT_FALSE(Zone().IsSyntaxColorEnabled());
    RECT rcUpdate, rcClient;
    ASSERT_TRUE(m_editor.GetUpdateRect(&rcUpdate));
    m_editor.GetClientRect(&rcClient);
    EXPECT_TRUE(EqualRect(&rcUpdate, &rcClient));
    Set("UseSyntaxColor", 1);
    Set("Variable", "4,5,6");
    m_editor.SendMessage(nLoad);
    EXPECT_TRUE(Zone().IsSyntaxColorEnabled());
    EXPECT_EQ(Zone().GetSyntaxColor(9), RGB(4, 5, 6));
}

TEST_F(EditorExTest, TheBroadcastFromTheTopReachesEveryEditorBelowIt) {
    // One editor a direct child, one inside a pane of the parent.
    CWnd pane;
    ASSERT_TRUE(pane.Create(WS_VISIBLE | WS_CHILD, RECT{0, 0, 300, 300}, &m_parent, 40));
    CEditorEx nested;
    ASSERT_TRUE(nested.Create(WS_VISIBLE | WS_CHILD, RECT{0, 0, 200, 200}, &pane, 41));
    Set("TabSize", 2);
    Set("KeywordMode", 2);
    m_parent.SendMessageToDescendants(CEditorEx::GetLoadIniMessage());
    for (CEditorEx* pEditor : {&m_editor, &nested}) {
        EXPECT_EQ(pEditor->GetTextZone()->GetTabWidth(), -2);
        EXPECT_EQ(pEditor->GetTextZone()->GetKeywordMode(), 2u);
    }

    // A section name sent to one editor stays its section from then on.
    m_store.WriteInt("Report", "TabSize", 6);
    char szSection[] = "Report";
    nested.SendMessage(CEditorEx::GetLoadIniMessage(), reinterpret_cast<WPARAM>(szSection));
    EXPECT_STREQ(nested.m_strSection.c_str(), "Report");
    EXPECT_EQ(nested.GetTextZone()->GetTabWidth(), -6);
    Set("TabSize", 3);
    m_parent.SendMessageToDescendants(CEditorEx::GetLoadIniMessage());
    EXPECT_EQ(m_editor.GetTextZone()->GetTabWidth(), -3);
    EXPECT_EQ(nested.GetTextZone()->GetTabWidth(), -6);
    nested.DestroyWindow();
    pane.DestroyWindow();
}

TEST_F(EditorExTest, InitEditorSetsTheLanguageAndCanCapTheText) {
    Set("TabSize", 3);
    m_editor.InitEditor(10, 1, 1, 0);
    EXPECT_EQ(Zone().GetMaxLength(), 32000);
    EXPECT_EQ(Zone().GetTabWidth(), -3);
    EXPECT_TRUE(Zone().IsSyntaxColorEnabled());
    // The window keeps the system colour round the text.
    EXPECT_EQ(m_editor.m_crBackground, GetSysColor(COLOR_WINDOW));

    // At the cap a typed character is refused with a beep. The length is
    // the zone's own count, which includes the line end the text reads with.
    m_editor.SetWindowTextA(std::string(31998, 'a').c_str());
    m_editor.SetSel(31998, 31998);
    m_editor.SendMessage(WM_CHAR, 'b');
    EXPECT_EQ(Zone().GetTextLength(0), 32000);
    const int nBeeps = m_platform.GetBeepCount();
    m_editor.SendMessage(WM_CHAR, 'c');
    EXPECT_EQ(Zone().GetTextLength(0), 32000);
    EXPECT_EQ(Text(), std::string(31998, 'a') + "b");
    EXPECT_GT(m_platform.GetBeepCount(), nBeeps);

    // Without colouring the zone colours nothing; without the cap none is set.
    CEditorEx plain;
    Create(plain, 33);
    const LONG lDefaultMax = plain.GetTextZone()->GetMaxLength();
    plain.InitEditor(10, 0, 0, 0);
    EXPECT_FALSE(plain.GetTextZone()->IsSyntaxColorEnabled());
    EXPECT_EQ(plain.GetTextZone()->GetMaxLength(), lDefaultMax);
    plain.DestroyWindow();

    // Before the window exists the call is early, not fatal: creation then
    // loads the settings over it and the cap stays.
    CEditorEx early;
    early.InitEditor(10, 1, 0, 0);
    Create(early, 38);
    EXPECT_EQ(early.GetTextZone()->GetMaxLength(), 32000);
    EXPECT_EQ(early.GetTextZone()->GetTabWidth(), -3);
    EXPECT_TRUE(early.GetTextZone()->IsSyntaxColorEnabled());
    early.SendMessage(WM_CHAR, 'q');
    EXPECT_STREQ(early.GetText(kCrLfAsIs), "q");
    early.DestroyWindow();
}

TEST_F(EditorExTest, WithoutASettingsStoreTheEditorStillWorks) {
    // Every integer reads 0: no tab step, a font of height 0, black colours.
    AppDataManager::InstallAppDataManager(nullptr);
    CEditorEx editor;
    Create(editor, 34);
    editor.SetWindowTextA("a\tb\r\nselect x");
    editor.SetSel(0, 3);
    editor.SendMessage(WM_CHAR, 'z');
    editor.UpdateWindow();
    editor.Invalidate();
    editor.UpdateWindow();
    EXPECT_EQ(std::string(editor.GetText(kCrLfAsIs)), "z\r\nselect x");
    EXPECT_EQ(editor.m_crBackground, 0u);
    editor.DestroyWindow();
}
