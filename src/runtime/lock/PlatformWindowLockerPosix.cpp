#include "runtime/lock/PlatformWindowLocker.h"

namespace vx {

WindowUpdateLocker* PlatformWindowLocker() {
    return nullptr;
}

}  // namespace vx
