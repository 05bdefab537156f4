#include <cstdio>

int main() {
    std::puts("usage: vxenv [--home DIR] [--app NAME] [--json] COMMAND");
    return 2;
}
