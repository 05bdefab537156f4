// The view interfaces' destructors, which anchor their type information in the library.
#include "vxutil/login/AccountsView.h"
#include "vxutil/login/ListPort.h"

namespace vx {

ListPort::~ListPort() = default;
AccountsView::~AccountsView() = default;

}  // namespace vx
