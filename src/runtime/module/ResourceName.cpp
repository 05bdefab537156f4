#include "runtime/module/ResourceName.h"

#include "runtime/files/FileSystem.h"

namespace vx {

std::string_view ModuleFolder(std::string_view modulePath) {
    std::size_t end = modulePath.size();
    while (end > 0 && !IsSeparator(modulePath[end - 1]))
        --end;
    return modulePath.substr(0, end);
}

std::string LocalizedResourceName(std::string_view modulePath) {
    std::string name(modulePath.substr(ModuleFolder(modulePath).size()));
    std::size_t digit = 0;
    while (digit < name.size() && (name[digit] < '0' || name[digit] > '9'))
        ++digit;
    name.insert(digit, "Res");
    return name;
}

}  // namespace vx
