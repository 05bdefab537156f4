#include "platform/profile/ProfileCache.h"

#include <algorithm>
#include <chrono>

namespace vx {
namespace {

constexpr std::size_t kMaxEntries = 32;

// File systems keep modification times in ticks of a few milliseconds (or whole seconds), so a
// file rewritten twice within one tick, same size and with a recycled inode number, would
// keep its stamp. A file only counts as settled once its time is safely in the past; until
// then it is read again at every lookup.
constexpr std::int64_t kSettleNs = 2'000'000'000;

bool IsSettled(const FileStamp& stamp) {
    if (!stamp.exists) return true;
    const auto now = std::chrono::duration_cast<std::chrono::nanoseconds>(
                         std::chrono::system_clock::now().time_since_epoch())
                         .count();
    return now - stamp.modifiedNs > kSettleNs;
}

}  // namespace

ProfileCache& ProfileCache::Instance() {
    static ProfileCache cache;
    return cache;
}

std::shared_ptr<const ProfileDocument> ProfileCache::Get(const std::string& path) {
    std::lock_guard<std::mutex> guard(m_mutex);
    const FileStamp current = StatFile(path);
    auto found = m_entries.find(path);
    if (found != m_entries.end() && found->second.settled && found->second.stamp == current) {
        found->second.lastUse = ++m_uses;
        return found->second.document;
    }

    std::string content;
    FileStamp stamp;
    if (!ReadWholeFile(path, content, stamp)) {
        // Unreadable now, perhaps readable later: nothing to keep.
        m_entries.erase(path);
        return std::make_shared<const ProfileDocument>();
    }
    auto document = std::make_shared<const ProfileDocument>(
        ProfileDocument::Parse(std::string_view(content).substr(0, kMaxProfileBytes)));
    if (found == m_entries.end() && m_entries.size() >= kMaxEntries) EvictLeastRecentlyUsed();
    m_entries[path] = Entry{stamp, document, IsSettled(stamp), ++m_uses};
    return document;
}

void ProfileCache::Forget(const std::string& path) {
    std::lock_guard<std::mutex> guard(m_mutex);
    m_entries.erase(path);
}

void ProfileCache::EvictLeastRecentlyUsed() {
    auto oldest = std::min_element(
        m_entries.begin(), m_entries.end(),
        [](const auto& a, const auto& b) { return a.second.lastUse < b.second.lastUse; });
    if (oldest != m_entries.end()) m_entries.erase(oldest);
}

}  // namespace vx
