// Prints a text of the library's string table, in the user's language.
#include <cstdio>

#include "vxutil/decimal/TKMessage.h"  // std::span: needs C++20
#include "vxutil/gnrt/OSLoadString.h"

int main() {
    CGNString text;
    OSLoadString(3055, text);
    std::puts(text.c_str());
    return TKMessageCatalogue().empty() ? 1 : 0;
}
