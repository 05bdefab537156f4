#include "runtime/pump/MessageBackend.h"

#include "runtime/pump/LocalMessageQueue.h"

namespace vx {

// Out of line, so the interfaces' type information lives in the library.
MessageQueue::~MessageQueue() = default;
TimerSource::~TimerSource() = default;
LocalMessageTarget::~LocalMessageTarget() = default;

}  // namespace vx
