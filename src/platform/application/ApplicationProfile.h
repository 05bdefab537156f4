// The storage backend of an application profile, one per OS. Section and entry are never null
// or empty when these are called, except where noted.
#pragma once

#include <string>

namespace vx::app_profile {

std::string Location(const std::string& profileName);
// A missing entry, or one that is not a number, gives `def`.
unsigned int GetInt(const std::string& profileName, const char* section, const char* entry,
                    int def);
// A missing entry gives `def` (never null here).
std::string GetString(const std::string& profileName, const char* section, const char* entry,
                      const char* def);
bool WriteInt(const std::string& profileName, const char* section, const char* entry, int value);
// A null value deletes the entry; a null entry deletes the section.
bool WriteString(const std::string& profileName, const char* section, const char* entry,
                 const char* value);

}  // namespace vx::app_profile
