#include "vxutil/foundation/CVXFixedName.h"

#include "gnrt/MultiByte.h"

namespace vx::names {

void Store(char* buffer, std::size_t size, const char* text, std::size_t available) {
    if (buffer == nullptr || size == 0) return;
    std::memset(buffer, 0, size);
    if (text == nullptr) return;
    std::size_t length = 0;
    while (length < available && text[length] != '\0')
        ++length;
    std::memcpy(buffer, text, vx::mb::CutLength(text, length, size - 1));
}

}  // namespace vx::names
