// An in-process message queue that behaves like a Win32 thread queue: posted messages wait in
// order, a filtered take removes the first message of the asked identifiers and dispatches it
// to its target. It serves hosts without a toolkit, and drives the pump logic in tests.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>

#include "runtime/pump/MessageBackend.h"
#include "vxutil/export.h"

namespace vx {

// The receiver of dispatched messages: the part a window procedure plays on Windows.
class VXUTIL_API LocalMessageTarget {
public:
    virtual ~LocalMessageTarget();
    virtual void OnMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam) = 0;
};

class VXUTIL_API LocalMessageQueue : public MessageQueue {
public:
    void Post(LocalMessageTarget& target, unsigned message, std::uintptr_t wParam = 0,
              std::intptr_t lParam = 0);

    // The first waiting message with identifier `first` to `last` (every message when both are
    // 0, as with GetMessage) is removed and dispatched; false when none waits.
    bool DispatchNext(unsigned first = 0, unsigned last = 0);
    bool DispatchFirst(unsigned message) override { return DispatchNext(message, message); }

    bool IsWaiting(const LocalMessageTarget& target, unsigned message, std::uintptr_t wParam) const;
    // Removes the waiting messages that match all three without dispatching them.
    void Discard(const LocalMessageTarget& target, unsigned message, std::uintptr_t wParam);
    std::size_t Size() const { return m_messages.size(); }

private:
    struct Message {
        LocalMessageTarget* target;
        unsigned message;
        std::uintptr_t wParam;
        std::intptr_t lParam;
    };
    std::deque<Message> m_messages;
};

}  // namespace vx
