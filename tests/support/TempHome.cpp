#include "support/TempHome.h"

#include <atomic>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>
#include <sstream>

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

TempHome::TempHome() : m_path(MakeUniqueFolder()) {
    if (const char* previous = std::getenv("VX_CONFIG_HOME")) {
        m_hadPrevious = true;
        m_previous = previous;
    }
    SetEnv("VX_CONFIG_HOME", m_path.string());
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

std::string TempHome::file(const std::string& name) const { return (m_path / name).string(); }

void WriteBytes(const std::string& path, const std::string& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << bytes;
}

std::string ReadBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

}  // namespace vx::test
