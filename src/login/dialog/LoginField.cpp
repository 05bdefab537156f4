#include "vxutil/login/LoginField.h"

#include "gnrt/MultiByte.h"

namespace vx {

bool FitsLoginField(std::string_view text) {
    return text.size() <= kLoginFieldMaxBytes;
}

CGNString FitLoginField(const CGNString& text) {
    return text.Left(mb::CutLength(text.c_str(), text.GetLength(), kLoginFieldMaxBytes));
}

}  // namespace vx
