#include "runtime/qt/QtWindowUpdateLocker.h"

namespace vx {

bool QtWindowUpdateLocker::Lock(WindowHandle window) {
    m_widget = static_cast<QWidget*>(window);
    m_disabled = m_widget->updatesEnabled();
    if (m_disabled) m_widget->setUpdatesEnabled(false);
    return true;
}

void QtWindowUpdateLocker::Unlock() {
    if (m_widget != nullptr && m_disabled) m_widget->setUpdatesEnabled(true);
    m_widget = nullptr;
    m_disabled = false;
}

}  // namespace vx
