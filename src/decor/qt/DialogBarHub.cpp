#include "decor/qt/DialogBarHub.h"

namespace vx {

DialogBarHub& DialogBarHub::Instance() {
    static DialogBarHub hub;
    return hub;
}

}  // namespace vx
