#include "DemoLoginOwner.h"

#include <QEventLoop>
#include <QTimer>

#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/foundation/CVXServerNameList.h"
#include "vxutil/runtime/RUserPrompt.h"
#include "vxutil/runtime/RVisualPump.h"
#include "vxutil/runtime/qt/QtText.h"

namespace {

CGNStringList EnabledServers(const CGNString& homeFolder) {
    CVXServerNameList list;
    CGNStringList names;
    if (!CAppEnv::GetServerList(homeFolder, list, 0, 1)) return names;
    for (int i = 0; i < list.GetCount(); ++i)
        names.Add(list.GetServer(i)->GetName());
    return names;
}

}  // namespace

int DemoLoginOwner::Login(CGNString& user, CGNString& password) {
    const QString refusal = RefusalFor(user, password);
    if (!refusal.isEmpty()) {
        // The owner shows its own messages; the dialog stays open for another try.
        RUserPrompt::Current().Show(nullptr, vx::FromQString(refusal).c_str(), nullptr,
                                    vx::kMbOk | vx::kMbIconExclamation);
        return 0;
    }
    PretendServerCall();
    CGNString homeFolder;
    CAppEnv::FindHomeDirectory(user, homeFolder);
    m_user = user;
    m_servers = EnabledServers(homeFolder);
    CAppEnv::SetLastUserLoggedIn(user);
    CAppEnv::SetLastUserAndPassword(user.c_str(), password.c_str());
    return 1;
}

int DemoLoginOwner::GetLoggedInServerArray(CGNStringList& servers) {
    for (const CGNString& server : m_servers)
        servers.Add(server);
    return m_servers.GetCount();
}

QString DemoLoginOwner::RefusalFor(const CGNString& user, const CGNString& password) const {
    CGNString homeFolder;
    if (!CAppEnv::FindHomeDirectory(user, homeFolder))
        return QStringLiteral("There is no user '%1'. Add it with Accounts...")
            .arg(vx::ToQString(user));
    if (EnabledServers(homeFolder).IsEmpty())
        return QStringLiteral("User '%1' has no enabled server. Add one with Accounts...")
            .arg(vx::ToQString(user));
    if (password.IsEmpty()) return QStringLiteral("Please enter a password.");
    return {};
}

void DemoLoginOwner::PretendServerCall() const {
    // A client library waiting on the network runs a loop that leaves user input alone; the
    // pump keeps the windows painted meanwhile, as it does for every client tool.
    RVisualPump pump(-1, 1);
    QEventLoop call;
    QTimer::singleShot(m_callMilliseconds, &call, &QEventLoop::quit);
    call.exec(QEventLoop::ExcludeUserInputEvents);
}
