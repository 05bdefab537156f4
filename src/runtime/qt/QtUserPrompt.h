// RUserPrompt as a QMessageBox: icon, buttons and default button from the message-box style.
#pragma once

#include "vxutil/runtime/RUserPrompt.h"

namespace vx {

class QtUserPrompt final : public RUserPrompt {
public:
    int Show(WindowHandle parent, const char* text, const char* caption, unsigned style) override;
};

}  // namespace vx
