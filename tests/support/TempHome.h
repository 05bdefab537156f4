// A fresh, empty settings home for one test: VX_CONFIG_HOME points at a new temporary folder
// for the fixture's lifetime, and the folder is removed afterwards. On Windows HKEY_CURRENT_USER
// is redirected to a fresh registry key as well, removed afterwards too.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include <gtest/gtest.h>

namespace vx::test {

class TempHome {
public:
    TempHome();
    ~TempHome();
    TempHome(const TempHome&) = delete;
    TempHome& operator=(const TempHome&) = delete;

    const std::filesystem::path& path() const { return m_path; }
    // Path of `name` inside the home, as a native string.
    std::string file(const std::string& name) const;

private:
    std::filesystem::path m_path;
    std::string m_previous;
    bool m_hadPrevious = false;
#ifdef _WIN32
    class RegistryOverride;
    std::unique_ptr<RegistryOverride> m_registry;
#endif
};

// A test fixture that gives every test its own settings home.
class HomeTest : public ::testing::Test {
protected:
    TempHome home;
};

// Writes `bytes` to `path` exactly as given.
void WriteBytes(const std::string& path, const std::string& bytes);
// The file's bytes, empty when it cannot be read.
std::string ReadBytes(const std::string& path);

}  // namespace vx::test
