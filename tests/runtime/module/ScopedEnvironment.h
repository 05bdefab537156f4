// Sets environment variables for one test and restores them afterwards.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

namespace vx::test {

class ScopedEnvironment {
public:
    ScopedEnvironment() = default;
    ScopedEnvironment(const ScopedEnvironment&) = delete;
    ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;
    ~ScopedEnvironment() {
        for (auto it = m_saved.rbegin(); it != m_saved.rend(); ++it)
            Put(it->first, it->second);
    }

    // An empty value removes the variable.
    void Set(const std::string& name, const std::string& value) {
        const char* old = std::getenv(name.c_str());
        m_saved.emplace_back(name, old != nullptr ? std::optional<std::string>(old) : std::nullopt);
        Put(name, value.empty() ? std::nullopt : std::optional<std::string>(value));
    }

private:
    static void Put(const std::string& name, const std::optional<std::string>& value) {
#ifdef _WIN32
        _putenv_s(name.c_str(), value ? value->c_str() : "");
#else
        if (value)
            setenv(name.c_str(), value->c_str(), 1);
        else
            unsetenv(name.c_str());
#endif
    }

    std::vector<std::pair<std::string, std::optional<std::string>>> m_saved;
};

}  // namespace vx::test
