// What the demo asks its user and tells them, behind one interface: dialogs
// on a screen, a script in tests.
#pragma once

#include <string>

class IDemoPrompts {
public:
    enum class EAnswer { Save, Discard, Cancel };

    virtual ~IDemoPrompts() = default;
    // A modified text is about to go.
    virtual EAnswer AskSaveChanges(const std::string& strTitle) = 0;
    // A file to open or to save to; empty when the user cancelled.
    virtual std::string AskOpenPath() = 0;
    virtual std::string AskSavePath(const std::string& strSuggested) = 0;
    // Something went wrong, or the text is not quite what the file holds.
    virtual void Tell(const std::string& strTitle, const std::string& strText) = 0;
    // Go on despite what the text says?
    virtual bool Confirm(const std::string& strTitle, const std::string& strText) = 0;
};
