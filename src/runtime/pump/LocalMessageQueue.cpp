#include "runtime/pump/LocalMessageQueue.h"

#include <algorithm>

namespace vx {

void LocalMessageQueue::Post(LocalMessageTarget& target, unsigned message, std::uintptr_t wParam,
                             std::intptr_t lParam) {
    m_messages.push_back({&target, message, wParam, lParam});
}

bool LocalMessageQueue::DispatchNext(unsigned first, unsigned last) {
    const bool any = first == 0 && last == 0;
    auto found = std::find_if(m_messages.begin(), m_messages.end(), [&](const Message& m) {
        return any || (m.message >= first && m.message <= last);
    });
    if (found == m_messages.end()) return false;
    // Taken off the queue before dispatching: the target may post or take messages itself.
    Message taken = *found;
    m_messages.erase(found);
    taken.target->OnMessage(taken.message, taken.wParam, taken.lParam);
    return true;
}

bool LocalMessageQueue::IsWaiting(const LocalMessageTarget& target, unsigned message,
                                  std::uintptr_t wParam) const {
    return std::any_of(m_messages.begin(), m_messages.end(), [&](const Message& m) {
        return m.target == &target && m.message == message && m.wParam == wParam;
    });
}

void LocalMessageQueue::Discard(const LocalMessageTarget& target, unsigned message,
                                std::uintptr_t wParam) {
    std::erase_if(m_messages, [&](const Message& m) {
        return m.target == &target && m.message == message && m.wParam == wParam;
    });
}

}  // namespace vx
