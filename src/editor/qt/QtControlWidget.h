// A Qt widget hosting one control of a given class derived from CEditor,
// typed: CQtControlWidget<CEditorEx> puts the extended editor into a layout
// and hands it back as what it is.
#pragma once

#include <memory>
#include <utility>

#include "editor/qt/QtEditorWidget.h"

template <class TControl>
class CQtControlWidget : public CQtEditorWidget {
public:
    // The control is made from args (its zone, or nothing to own one).
    template <class... Args>
    explicit CQtControlWidget(QWidget* pParent, DWORD dwStyle, Args&&... args)
        : CQtEditorWidget(std::make_unique<TControl>(std::forward<Args>(args)...), pParent,
                          dwStyle) {}

    TControl& Control() { return static_cast<TControl&>(Editor()); }
};
