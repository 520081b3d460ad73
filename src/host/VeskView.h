// The view base of the host family's applications: a document view that
// the editor views derive from. It adds nothing the editor relies on beyond
// the framework's view.
#pragma once

#include "TextzoneExport.h"
#include "platform/View.h"

class TEXTZONE_EXPORT CVeskView : public CView {};
