// The one call with which a client tool asks who logs in.
#pragma once

#include <QString>

#include "vxutil/widgets_export.h"

class CLoginOwner;
class QWidget;

// Runs the login dialog modally over `parent`, proposing `user` and `password`; `owner` performs
// the login. Returns 1 (the owner's Login returned 1), 2 (cancelled) or -1 (no QApplication to
// show it in). `user` is not written back: the owner keeps what it needs of the login.
VXUTIL_WIDGETS_API int ShowLoginDialog(QString& user, CLoginOwner* owner, QWidget* parent,
                                       QString password);
