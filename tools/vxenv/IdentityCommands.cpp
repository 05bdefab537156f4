// vxenv whoami and sysinfo: who runs the client, and the about box's system information.
#include <string>

#include "Commands.h"
#include "Json.h"
#include "vxutil/login/AccountSid.h"
#include "vxutil/login/OSUserName.h"
#include "vxutil/login/SystemInfo.h"

namespace vxenv {

int RunWhoami(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 0, 0, code)) return code;
    const CGNString user = ClientGetOSUserName();
    char sid[256];
    unsigned long size = sizeof sid;
    if (!ClientGetTextSid(sid, &size))
        return context.Fail("could not read the security identifier");
    if (context.json()) {
        context.Print(JsonObject().Add("user", user.view()).Add("sid", sid).Text());
        return kOk;
    }
    context.Print("user: " + user.str());
    context.Print(std::string("sid: ") + sid);
    return kOk;
}

int RunSysinfo(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 0, 0, code)) return code;
    const CGNString text = ClientGetSystemInfo();
    if (context.json()) {
        context.Print(JsonObject().Add("text", text.view()).Text());
        return kOk;
    }
    context.Print(text.view());
    return kOk;
}

}  // namespace vxenv
