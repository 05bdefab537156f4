// A profile file of its own for each test, in the test's settings home.
#pragma once

#include <string>

#include "support/TempHome.h"
#include "vxutil/platform/ProfileFile.h"

namespace vx::test {

class ProfileTest : public HomeTest {
protected:
    void Put(const std::string& bytes) const { WriteBytes(path, bytes); }
    std::string Bytes() const { return ReadBytes(path); }
    std::string Get(const char* section, const char* key, const char* def = "default") const {
        return ProfileGetString(section, key, def, path.c_str());
    }
    bool Set(const char* section, const char* key, const char* value) const {
        return ProfileWriteString(section, key, value, path.c_str());
    }

    const std::string path = home.file("test.ini");
};

}  // namespace vx::test
