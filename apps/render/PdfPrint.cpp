#include "apps/render/PdfPrint.h"

#include "editor/EditorEx.h"
#include "host/AppDataManager.h"
#include "host/MemoryAppDataManager.h"
#include "platform/Messages.h"
#include "platform/PrintJob.h"
#include "zones/TextZoneParam.h"

bool PrintTextToPdf(const std::string& text, const std::string& pdfPath, std::string* pError) {
    // The editor's defaults, whatever the user's own settings say.
    CMemoryAppDataManager defaults;
    IAppDataManager* pPrevious = AppDataManager::LoadAppDataManager();
    AppDataManager::InstallAppDataManager(&defaults);
    bool bDone = false;
    {
        CWnd host;
        CEditorEx editor;
        if (host.Create(0, RECT{0, 0, 800, 600}, nullptr, 0) &&
            editor.Create(WS_CHILD | WS_VISIBLE, RECT{0, 0, 800, 600}, &host, 1)) {
            editor.GetTextZone()->SetText(text.c_str());
            CPrintInfo info;
            info.m_bDirect = TRUE;
            info.m_pd.strOutputFile = pdfPath;
            bDone = editor.PrintTo(info);
        }
        editor.DestroyWindow();
        host.DestroyWindow();
    }
    AppDataManager::InstallAppDataManager(pPrevious);
    if (!bDone && pError) *pError = "cannot print to " + pdfPath;
    return bDone;
}
