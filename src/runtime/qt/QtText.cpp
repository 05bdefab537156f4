#include "vxutil/runtime/qt/QtText.h"

#include "vxutil/gnrt/OSLoadString.h"

namespace vx {

QString ToQString(const char* text) {
#ifdef _WIN32
    return QString::fromLocal8Bit(text);
#else
    return QString::fromUtf8(text);
#endif
}

QString ToQString(const CGNString& text) {
    return ToQString(text.c_str());
}

CGNString FromQString(const QString& text) {
#ifdef _WIN32
    return CGNString(text.toLocal8Bit().toStdString());
#else
    return CGNString(text.toUtf8().toStdString());
#endif
}

QString Tr(unsigned id) {
    CGNString text;
    OSLoadString(id, text);
    return ToQString(text);
}

}  // namespace vx
