#include "vxutil/listctrl/RangeMessage.h"

#include "gnrt/StringTable.h"
#include "vxutil/gnrt/OSLoadString.h"
#include "vxutil/runtime/MessageText.h"

namespace vx {

CGNString NumberRangeMessage(const CGNString& text, int minimum, int maximum) {
    CGNString pattern;
    OSLoadString(kStrNumberOutOfRange, pattern);
    return FillConversions(pattern.view(), {{text.c_str()},
                                            {nullptr, minimum},
                                            {nullptr, maximum},
                                            {nullptr, minimum},
                                            {nullptr, maximum}});
}

}  // namespace vx
