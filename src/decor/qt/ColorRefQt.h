// Colours between the core's 0x00BBGGRR values and Qt's, channel by channel.
#pragma once

#include <QColor>

#include "vxutil/decor/ColorRef.h"

namespace vx {

inline QColor ToQColor(ColorRef color) {
    return QColor(RedOf(color), GreenOf(color), BlueOf(color));
}

inline ColorRef ToColorRef(const QColor& color) {
    return MakeColor(color.red(), color.green(), color.blue());
}

}  // namespace vx
