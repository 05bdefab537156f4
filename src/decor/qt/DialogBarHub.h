// Tells every open dialog bar that the stored look changed.
#pragma once

#include <QObject>

namespace vx {

class DialogBarHub final : public QObject {
    Q_OBJECT
public:
    static DialogBarHub& Instance();

Q_SIGNALS:
    void lookChanged();
};

}  // namespace vx
