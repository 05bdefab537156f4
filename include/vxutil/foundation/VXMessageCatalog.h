// The server's message catalogue: the text of a server message by its number.
//
// The texts belong to the server API library of the client tool, so the tool supplies the
// catalogue; without one every lookup gives an empty text.
#pragma once

#include <cstdint>

#include "vxutil/export.h"
#include "vxutil/gnrt/CGNString.h"

namespace vx {

class VXUTIL_API MessageCatalog {
public:
    virtual ~MessageCatalog() = default;
    // The message text of `number`; empty when the number is unknown.
    virtual CGNString GetMessageText(std::int32_t number) const = 0;
};

// Installs `catalog` (not owned; null removes it) and returns the one installed before.
VXUTIL_API const MessageCatalog* SetMessageCatalog(const MessageCatalog* catalog);
// The installed catalogue's text of `number`, or an empty text.
VXUTIL_API CGNString GetServerMessageText(std::int32_t number);

}  // namespace vx
