#include "foundation/OwnedText.h"

#include <cstring>
#include <new>

namespace vx::owned {

char* Copy(const char* text) {
    if (text == nullptr) return nullptr;
    const std::size_t size = std::strlen(text) + 1;
    char* copy = new (std::nothrow) char[size];
    if (copy != nullptr) std::memcpy(copy, text, size);
    return copy;
}

bool Replace(char*& slot, const char* text) {
    char* copy = Copy(text);  // before the release: `text` may be the slot's own text
    delete[] slot;
    slot = copy;
    return text == nullptr || copy != nullptr;
}

}  // namespace vx::owned
