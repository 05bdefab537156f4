// Leaks on purpose: the sanitizer stage runs it to prove that leak detection works on this
// machine before trusting a clean run.
#include <cstdlib>

int main() {
    void* volatile lost = std::malloc(64);
    lost = nullptr;
    return lost == nullptr ? 0 : 1;
}
