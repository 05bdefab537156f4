// RLockWindowUpdate's locker for Qt widgets: updates of the locked widget are switched off and
// back on, which repaints it once.
#pragma once

#include <QPointer>
#include <QWidget>

#include "vxutil/runtime/RLockWindowUpdate.h"

namespace vx {

class QtWindowUpdateLocker final : public WindowUpdateLocker {
public:
    bool Lock(WindowHandle window) override;
    void Unlock() override;

private:
    QPointer<QWidget> m_widget;
    bool m_disabled = false;  // whether Lock switched updates off (they may have been off)
};

}  // namespace vx
