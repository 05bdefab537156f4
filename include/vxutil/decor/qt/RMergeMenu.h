// Merges one Qt menu into another: a module's menus into the host's menu bar, before its
// "Window", "?" or "Help" menu, or one pop-up into another.
#pragma once

#include <QWidget>

#include "vxutil/widgets_export.h"

// `destination` and `source` are QMenuBars or QMenus. Plain items are shared, not copied: one
// QAction serves both menus, so its state and its connections follow, and the caller keeps the
// source's actions alive as long as the destination shows them. Pop-ups are made anew, so that
// later merges never change the source. With `topLevel` the items go before the destination's
// first "Window", "?" or "Help" item; otherwise at its end. 1 when everything was merged; 0 when
// a menu was missing or an item could not be placed.
VXUTIL_WIDGETS_API int RMergeMenu(QWidget* destination, const QWidget* source,
                                  bool topLevel = true);
