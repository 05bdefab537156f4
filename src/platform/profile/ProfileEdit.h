// Several keys of one section of a profile file written as one unit: on POSIX one edit of the
// file (all of them or none); on Windows one call of the system function per key, in the
// order given, stopping at the first that fails.
#pragma once

#include <initializer_list>

namespace vx {

struct ProfileKeyValue {
    const char* key;
    const char* value;  // null deletes the key
};

bool ProfileWriteValues(const char* section, std::initializer_list<ProfileKeyValue> values,
                        const char* file);

}  // namespace vx
