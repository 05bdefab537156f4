#include "vxutil/gnrt/OSLoadString.h"

#include "gnrt/StringTable.h"

int OSLoadString(unsigned int id, CGNString& out) {
    const char* text = vx::BuiltInString(id);
    out = text;  // null empties the string
    return static_cast<int>(out.GetLength());
}
