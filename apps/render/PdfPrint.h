// A text printed to a PDF file through the editor's own print path (the
// extended control, its page walk and the print loop), with the editor's
// default settings and no display: what Print in an editor would give.
#pragma once

#include <string>

// The text as the bytes of a file; false with the reason in *pError.
bool PrintTextToPdf(const std::string& text, const std::string& pdfPath, std::string* pError);
