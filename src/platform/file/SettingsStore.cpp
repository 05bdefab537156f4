#include "platform/file/SettingsStore.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <mutex>
#include <unordered_map>

#include "platform/file/Folders.h"

namespace vx::store {
namespace {

constexpr std::size_t kMaxEntries = 32;
// How long after its last change a file's stamp is trusted to tell every later change.
constexpr std::int64_t kSettleNs = 2'000'000'000;

bool IsSettled(const FileStamp& stamp) {
    if (!stamp.exists) return true;
    const auto now = std::chrono::duration_cast<std::chrono::nanoseconds>(
                         std::chrono::system_clock::now().time_since_epoch())
                         .count();
    return now - stamp.modifiedNs > kSettleNs;
}

class DocumentCache {
public:
    // The cached parse when the stamp alone shows it current.
    Parsed Trusted(const std::string& path, Parser parse, const FileStamp& stamp) {
        std::lock_guard guard(m_mutex);
        const auto found = m_entries.find(path);
        if (found == m_entries.end() || found->second.parse != parse ||
            !(found->second.stamp == stamp) || !IsSettled(stamp))
            return nullptr;
        found->second.lastUse = ++m_uses;
        return found->second.document;
    }

    // The parse of `bytes` read with `stamp`: the cached one when the bytes are the same.
    Parsed Current(const std::string& path, Parser parse, const FileStamp& stamp,
                   const std::string& bytes) {
        std::lock_guard guard(m_mutex);
        auto found = m_entries.find(path);
        if (found != m_entries.end() && found->second.parse == parse &&
            found->second.bytes == bytes) {
            found->second.stamp = stamp;
            found->second.lastUse = ++m_uses;
            return found->second.document;
        }
        Parsed document = parse(bytes);
        Keep(path, {parse, stamp, bytes, document, 0});
        return document;
    }

    void Store(const std::string& path, Parser parse, const FileStamp& stamp,
               const std::string& bytes, Parsed document) {
        std::lock_guard guard(m_mutex);
        Keep(path, {parse, stamp, bytes, std::move(document), 0});
    }

    void Forget(const std::string& path) {
        std::lock_guard guard(m_mutex);
        m_entries.erase(path);
    }

private:
    struct Entry {
        Parser parse = nullptr;  // also tells the document's type
        FileStamp stamp;
        std::string bytes;
        Parsed document;
        std::uint64_t lastUse = 0;
    };

    void Keep(const std::string& path, Entry entry) {
        if (!m_entries.contains(path) && m_entries.size() >= kMaxEntries) {
            const auto oldest = std::min_element(
                m_entries.begin(), m_entries.end(),
                [](const auto& a, const auto& b) { return a.second.lastUse < b.second.lastUse; });
            m_entries.erase(oldest);
        }
        entry.lastUse = ++m_uses;
        m_entries[path] = std::move(entry);
    }

    std::mutex m_mutex;
    std::unordered_map<std::string, Entry> m_entries;
    std::uint64_t m_uses = 0;
};

DocumentCache& Cache() {
    static DocumentCache cache;
    return cache;
}

}  // namespace

Parsed ReadParsed(const std::string& path, Parser parse) {
    if (Parsed trusted = Cache().Trusted(path, parse, StatFile(path))) return trusted;
    std::string bytes;
    FileStamp stamp;
    if (!ReadWholeFile(path, bytes, stamp)) {
        Cache().Forget(path);
        return nullptr;
    }
    return Cache().Current(path, parse, stamp, bytes);
}

bool EditParsed(const std::string& path, Parser parse, FileAccess access, const Change& change) {
    CreateSettingsHomeFor(path);
    Parsed updated;
    std::string written;
    FileStamp stamp;
    const bool done = UpdateFile(
        path,
        [&](std::string& bytes, const FileStamp& held) {
            const EditOutcome outcome =
                change(Cache().Current(path, parse, held, bytes), bytes, updated);
            if (outcome == EditOutcome::Write) written = bytes;
            return outcome;
        },
        access, &stamp);
    if (done && updated)
        Cache().Store(path, parse, stamp, written, std::move(updated));
    else if (!done)
        Cache().Forget(path);
    return done;
}

}  // namespace vx::store
