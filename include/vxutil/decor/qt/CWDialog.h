// The base of every dialog of the library: it shows the context-help ("?") button in its
// caption, and keeps F1, the what's-this request and unhandled context menus to itself, so that
// the library's dialogs never open help unless a derived dialog handles these events itself.
#pragma once

#include <QDialog>

#include "vxutil/widgets_export.h"

class VXUTIL_WIDGETS_API CWDialog : public QDialog {
    Q_OBJECT
public:
    explicit CWDialog(QWidget* parent = nullptr);

    // Shows or hides the "?" caption button; on a dialog already shown the window system may
    // apply it only when the window is made anew.
    void EnableContextHelp(bool enable);
    bool IsContextHelpEnabled() const { return m_bContextHelp; }

protected:
    bool event(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    bool m_bContextHelp = true;
};
