// A numeric locale whose decimal separator is a comma, for tests of text that must not depend
// on the user's locale.
#pragma once

#include <string>

namespace vx::test {

// Switches LC_NUMERIC to such a locale for the object's lifetime. Where none is installed, on
// a glibc system one is compiled once per process from the system's locale sources into a
// temporary folder. active() is false when neither worked.
class CommaLocale {
public:
    CommaLocale();
    ~CommaLocale();
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;

    bool active() const { return m_active; }

private:
    std::string m_previous;
    bool m_active = false;
};

}  // namespace vx::test
