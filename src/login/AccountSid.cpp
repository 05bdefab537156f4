#include "vxutil/login/AccountSid.h"

#include "login/SidText.h"

int ClientGetTextSid(char* buffer, unsigned long* size) {
    void* sid = nullptr;
    ClientGetBinarySid(&sid);  // on failure the null identifier fails below
    return vx::FormatTextSid(sid, buffer, size);
}
