// Counts the prompts and dialogs open over an in-cell editor. While one is open the editor
// loses focus to it, and Qt would commit and delete the editor inside the dialog's event loop;
// the delegate ignores the editor's focus loss as long as the count is above zero.
#pragma once

namespace vx {

class ModalGuard {
public:
    class Scope {
    public:
        explicit Scope(ModalGuard& guard) : m_guard(guard) { ++m_guard.m_depth; }
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;
        ~Scope() { --m_guard.m_depth; }

    private:
        ModalGuard& m_guard;
    };

    bool Active() const { return m_depth > 0; }

private:
    int m_depth = 0;
};

}  // namespace vx
