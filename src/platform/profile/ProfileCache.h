// The process-wide cache of parsed profile files, keyed by path. A file is parsed again only
// when its identity on disk (inode, size, modification time) has changed since it was read.
#pragma once

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <unordered_map>

#include "platform/profile/ProfileDocument.h"
#include "vxutil/platform/SafeFile.h"

namespace vx {

class ProfileCache {
public:
    static ProfileCache& Instance();

    // The current content of the file; a missing or unreadable file gives an empty document.
    std::shared_ptr<const ProfileDocument> Get(const std::string& path);
    // Drops the entry of a file that this process has just written.
    void Forget(const std::string& path);

private:
    struct Entry {
        FileStamp stamp;
        std::shared_ptr<const ProfileDocument> document;
        bool settled = false;  // old enough for its stamp to tell every later change
        std::uint64_t lastUse = 0;
    };

    void EvictLeastRecentlyUsed();

    std::mutex m_mutex;
    std::unordered_map<std::string, Entry> m_entries;
    std::uint64_t m_uses = 0;
};

}  // namespace vx
