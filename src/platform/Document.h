// The data behind one or more views: a title, a path and the modified flag
// that views set when the user edits. Frames show the title, and a modified
// document is asked about before it goes.
#pragma once

#include <string>
#include <vector>

#include "TextzoneExport.h"
#include "platform/Types.h"

class CCmdUI;
class CFrameWnd;
class CView;

class TEXTZONE_EXPORT CDocument {
public:
    CDocument() = default;
    virtual ~CDocument();
    CDocument(const CDocument&) = delete;
    CDocument& operator=(const CDocument&) = delete;

    const std::string& GetTitle() const { return m_strTitle; }
    virtual void SetTitle(const char* pszTitle);
    const std::string& GetPathName() const { return m_strPathName; }
    // Also makes the file name the title.
    virtual void SetPathName(const char* pszPathName);

    virtual BOOL IsModified() { return m_bModified; }
    // Frames of the document show the change in their titles.
    virtual void SetModifiedFlag(BOOL bModified = TRUE);

    void AddView(CView* pView);
    void RemoveView(CView* pView);
    const std::vector<CView*>& GetViews() const { return m_views; }
    void UpdateAllViews(CView* pSender, LPARAM lHint = 0);
    void UpdateFrameCounts();

    // Commands a view did not handle come here.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, CCmdUI* pCmdUI);
    // Asked before a modified document is closed or replaced; FALSE keeps it.
    // The base saves nothing and lets it go.
    virtual BOOL SaveModified() { return TRUE; }
    virtual BOOL CanCloseFrame(CFrameWnd* pFrame);

protected:
    std::string m_strTitle;
    std::string m_strPathName;
    BOOL m_bModified = FALSE;
    std::vector<CView*> m_views;
};
