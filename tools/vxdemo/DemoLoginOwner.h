// The sample tool's side of a login. It talks to no server: a login succeeds when the user has
// at least one enabled server in the server file of its home folder and typed a password. The
// "server call" takes a moment, as a real one does, while a visual pump keeps the windows
// painted; the login is then remembered for the next start.
#pragma once

#include <QString>

#include "vxutil/login/CLoginOwner.h"

class DemoLoginOwner final : public CLoginOwner {
public:
    // `callMilliseconds`: how long the pretended server call takes.
    explicit DemoLoginOwner(int callMilliseconds = 1200) : m_callMilliseconds(callMilliseconds) {}

    int Login(CGNString& user, CGNString& password) override;
    int GetLoggedInServerArray(CGNStringList& servers) override;

    const CGNString& LoggedInUser() const { return m_user; }

private:
    // Why `user` cannot log in with `password`; empty when it can.
    QString RefusalFor(const CGNString& user, const CGNString& password) const;
    void PretendServerCall() const;

    int m_callMilliseconds;
    CGNString m_user;
    CGNStringList m_servers;
};
