#include "support/TempHome.h"

#include <atomic>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>
#include <sstream>

#ifdef _WIN32
#include <windows.h>

#include <cstdio>
#endif

namespace vx::test {
namespace {

void SetEnv(const char* name, const std::string& value) {
#ifdef _WIN32
    _putenv_s(name, value.c_str());
#else
    setenv(name, value.c_str(), 1);
#endif
}

void UnsetEnv(const char* name) {
#ifdef _WIN32
    _putenv_s(name, "");
#else
    unsetenv(name);
#endif
}

std::filesystem::path MakeUniqueFolder() {
    static std::atomic<unsigned> counter{0};
    std::random_device random;
    auto base = std::filesystem::temp_directory_path();
    for (;;) {
        std::ostringstream name;
        name << "vxutil-test-" << random() << '-' << counter++;
        auto candidate = base / name.str();
        if (std::filesystem::create_directory(candidate)) return candidate;
    }
}

}  // namespace

#ifdef _WIN32
// Redirects HKEY_CURRENT_USER of the whole process to a fresh key below it, so that no test
// reads or changes the registry of the person running it. Redirections nest: an inner one
// creates its key inside the outer one's and puts the outer one back when it ends.
class TempHome::RegistryOverride {
public:
    RegistryOverride() : m_previous(s_current) {
        static std::atomic<unsigned> counter{0};
        m_subKey = std::string(kParent) + "\\" + std::to_string(GetCurrentProcessId()) + '-' +
                   std::to_string(counter++);
        if (RegCreateKeyExA(HKEY_CURRENT_USER, m_subKey.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS,
                            nullptr, &m_key, nullptr) != ERROR_SUCCESS ||
            RegOverridePredefKey(HKEY_CURRENT_USER, m_key) != ERROR_SUCCESS) {
            std::fprintf(stderr, "cannot redirect HKEY_CURRENT_USER to %s\n", m_subKey.c_str());
            std::abort();
        }
        s_current = m_key;
    }

    ~RegistryOverride() {
        RegOverridePredefKey(HKEY_CURRENT_USER, m_previous);  // null: the real hive again
        s_current = m_previous;
        RegCloseKey(m_key);
        RegDeleteTreeA(HKEY_CURRENT_USER, m_subKey.c_str());
        RegDeleteKeyA(HKEY_CURRENT_USER, kParent);  // only succeeds once no other run uses it
    }

private:
    static constexpr const char* kParent = "Software\\VxUtilTests";
    static inline HKEY s_current = nullptr;
    HKEY m_previous;
    HKEY m_key = nullptr;
    std::string m_subKey;
};
#endif

TempHome::TempHome() : m_path(MakeUniqueFolder()) {
    if (const char* previous = std::getenv("VX_CONFIG_HOME")) {
        m_hadPrevious = true;
        m_previous = previous;
    }
    SetEnv("VX_CONFIG_HOME", m_path.string());
#ifdef _WIN32
    m_registry = std::make_unique<RegistryOverride>();
#endif
}

TempHome::~TempHome() {
    if (m_hadPrevious)
        SetEnv("VX_CONFIG_HOME", m_previous);
    else
        UnsetEnv("VX_CONFIG_HOME");
    std::error_code ignored;
    std::filesystem::permissions(m_path, std::filesystem::perms::owner_all,
                                 std::filesystem::perm_options::add, ignored);
    std::filesystem::remove_all(m_path, ignored);
}

std::string TempHome::file(const std::string& name) const {
    return (m_path / name).string();
}

void WriteBytes(const std::string& path, const std::string& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << bytes;
}

std::string ReadBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

}  // namespace vx::test
