// The message raised for errors from outside the arithmetic: input streams and files.
#pragma once

#include "vxutil/decimal/TKxmsg.h"

class VXUTIL_API TKExternalErr : public TKxmsg {
public:
    using TKxmsg::TKxmsg;
};
