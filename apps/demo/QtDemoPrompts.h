// The demo's questions as the desktop's dialogs.
#pragma once

#include "apps/demo/DemoPrompts.h"

class QWidget;

class CQtDemoPrompts : public IDemoPrompts {
public:
    explicit CQtDemoPrompts(QWidget* pParent) : m_pParent(pParent) {}

    EAnswer AskSaveChanges(const std::string& strTitle) override;
    std::string AskOpenPath() override;
    std::string AskSavePath(const std::string& strSuggested) override;
    void Tell(const std::string& strTitle, const std::string& strText) override;
    bool Confirm(const std::string& strTitle, const std::string& strText) override;

private:
    QWidget* m_pParent;
};
