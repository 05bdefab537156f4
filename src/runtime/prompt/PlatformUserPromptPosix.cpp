#include "runtime/prompt/PlatformUserPrompt.h"

namespace vx {

RUserPrompt& PlatformUserPrompt() {
    static RDefaultUserPrompt prompt;
    return prompt;
}

}  // namespace vx
