#include "vxutil/foundation/VXMessageCatalog.h"

#include <atomic>

namespace vx {
namespace {

std::atomic<const MessageCatalog*> g_catalog{nullptr};

}  // namespace

const MessageCatalog* SetMessageCatalog(const MessageCatalog* catalog) {
    return g_catalog.exchange(catalog);
}

CGNString GetServerMessageText(std::int32_t number) {
    const MessageCatalog* catalog = g_catalog.load();
    return catalog != nullptr ? catalog->GetMessageText(number) : CGNString();
}

}  // namespace vx
