#include "runtime/module/ResourceName.h"

#include "runtime/files/FileSystem.h"

namespace vx {

std::string LocalizedResourceName(std::string_view modulePath) {
    std::size_t start = modulePath.size();
    while (start > 0 && !IsSeparator(modulePath[start - 1]))
        --start;
    std::string name(modulePath.substr(start));
    std::size_t digit = 0;
    while (digit < name.size() && (name[digit] < '0' || name[digit] > '9'))
        ++digit;
    name.insert(digit, "Res");
    return name;
}

}  // namespace vx
