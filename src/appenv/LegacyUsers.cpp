#include "appenv/LegacyUsers.h"

#include "appenv/UserRegistry.h"
#include "gnrt/MultiByte.h"
#include "vxutil/platform/LegacyProfile.h"

namespace vx::appenv {
namespace {

constexpr const char* kSection = "VXUser";
constexpr unsigned long kValueSize = 128;

CGNString ReadLegacy(const CGNString& key) {
    char buffer[kValueSize] = {};
    LegacyProfileGetString(kSection, key.c_str(), "", buffer, kValueSize);
    return CGNString(buffer);
}

}  // namespace

CGNString LegacyUserName(unsigned slot) {
    return ReadLegacy(SlotEntryName("USER", slot));
}

CGNString LegacyUserFolder(unsigned slot) {
    // The mixed case is how older clients spelled the key.
    return ReadLegacy(SlotEntryName("Vxpath", slot));
}

CGNString LegacyDefaultFolder() {
    return ReadLegacy("VXPATH0");
}

long LegacyLastUser() {
    // The profile gives the number as unsigned; -1 comes back as 0xFFFFFFFF.
    return static_cast<int>(LegacyProfileGetInt(kSection, "LastUserLoggedIn", -1));
}

bool WriteLegacyUserName(unsigned slot, const CGNString& name) {
    char buffer[kValueSize];
    mb::BoundedCopy(buffer, kValueSize, name.c_str());
    return LegacyProfileWriteString(kSection, SlotEntryName("USER", slot).c_str(), buffer);
}

}  // namespace vx::appenv
